#include "Config/ConfigAssert.h"

#include <cstdio>
#include <cstdlib>

namespace {
ConfigAssertHook g_assertHook = nullptr;
}

ConfigAssertHook SetConfigAssertHook(ConfigAssertHook hook)
{
    ConfigAssertHook previous = g_assertHook;
    g_assertHook = hook;
    return previous;
}

void ConfigAssertFailed(const char* text, const char* file, unsigned int line)
{
    if (g_assertHook) {
        g_assertHook(file, line, text);
        return;
    }
    std::fprintf(stderr, "%s(%u): %s\n", file, line, text);
    std::fflush(stderr);
    std::abort();
}
