#pragma once

// Reports a breached invariant of a setting record as "file(line): text".
// Without a hook it writes to stderr and aborts; a hook receives the report
// instead and the caller carries on.
typedef void (*ConfigAssertHook)(const char* file, unsigned int line, const char* text);

// Returns the hook it replaces; null restores the default report.
ConfigAssertHook SetConfigAssertHook(ConfigAssertHook hook);

void ConfigAssertFailed(const char* text, const char* file, unsigned int line);

// Records are reported against the file and line numbers they always had.
#define CONFIG_ASSERT_FILE ".\\Config\\VexUISetting"

#ifdef NDEBUG
#define CONFIG_ASSERT(expr, line) ((void)0)
#else
#define CONFIG_ASSERT(expr, line) \
    ((expr) ? (void)0 : ConfigAssertFailed(#expr, CONFIG_ASSERT_FILE, (line)))
#endif
