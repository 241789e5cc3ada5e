#include "tests/preview/VexplayTrace.h"

#include "vexplay/vexplay.h"

#include <QCoreApplication>
#include <QThread>
#include <chrono>
#include <mutex>
#include <thread>

extern "C" {
int __real_vexplay_GetPort(int* port);
int __real_vexplay_OpenFile(int port, const char* path);
int __real_vexplay_CloseFile(int port);
int __real_vexplay_Play(int port, void* hWnd);
int __real_vexplay_SetPlayFlag(int port, int flag);
int __real_vexplay_SetFileEndCallback(int port, VEXPLAY_CALLBACK callback, void* user);
int __real_vexplay_SetCallback125(int port, VEXPLAY_CALLBACK callback, void* user);
int __real_vexplay_SetCallback157(int port, VEXPLAY_CALLBACK callback, void* user);
int __real_vexplay_SetCallback109(int port, VEXPLAY_CALLBACK callback, void* user);
}

namespace {

std::mutex g_mutex;
std::vector<VexCall> g_calls;
std::string g_delayOp;
bool g_delayGui = false;
int g_delayMs = 0;

bool OnGuiThread()
{
    const QCoreApplication* app = QCoreApplication::instance();
    return app && QThread::currentThread() == app->thread();
}

// Sleeps here if this call is the one to hold up.
void MaybeDelay(const char* op)
{
    int ms = 0;
    {
        std::lock_guard<std::mutex> lock(g_mutex);
        if (g_delayOp != op || g_delayGui != OnGuiThread())
            return;
        g_delayOp.clear();
        ms = g_delayMs;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

int Record(const char* op, int port, std::string arg, const void* pointer, int result)
{
    VexCall call;
    call.op = op;
    call.port = port;
    call.arg = std::move(arg);
    call.pointer = pointer;
    call.ok = result != 0;
    call.guiThread = OnGuiThread();
    std::lock_guard<std::mutex> lock(g_mutex);
    g_calls.push_back(std::move(call));
    return result;
}

const char* Set(VEXPLAY_CALLBACK callback)
{
    return callback ? "set" : "null";
}

} // namespace

namespace VexTrace {

void Reset()
{
    std::lock_guard<std::mutex> lock(g_mutex);
    g_calls.clear();
    g_delayOp.clear();
}

std::vector<VexCall> Calls()
{
    std::lock_guard<std::mutex> lock(g_mutex);
    return g_calls;
}

std::size_t Count()
{
    std::lock_guard<std::mutex> lock(g_mutex);
    return g_calls.size();
}

std::vector<std::string> Ops(std::size_t first)
{
    std::vector<std::string> ops;
    const std::vector<VexCall> calls = Calls();
    for (std::size_t i = first; i < calls.size(); ++i) {
        const VexCall& c = calls[i];
        const bool withArg =
            c.op != "GetPort" && c.op != "OpenFile" && c.op != "CloseFile" && c.op != "Play";
        ops.push_back(withArg ? c.op + ":" + c.arg : c.op);
    }
    return ops;
}

void DelayNext(const std::string& op, bool onGuiThread, int ms)
{
    std::lock_guard<std::mutex> lock(g_mutex);
    g_delayOp = op;
    g_delayGui = onGuiThread;
    g_delayMs = ms;
}

} // namespace VexTrace

extern "C" {

int __wrap_vexplay_GetPort(int* port)
{
    MaybeDelay("GetPort");
    const int result = __real_vexplay_GetPort(port);
    return Record("GetPort", port ? *port : -1, std::string(), nullptr, result);
}

int __wrap_vexplay_OpenFile(int port, const char* path)
{
    MaybeDelay("OpenFile");
    return Record("OpenFile", port, path ? path : "", nullptr, __real_vexplay_OpenFile(port, path));
}

int __wrap_vexplay_CloseFile(int port)
{
    MaybeDelay("CloseFile");
    return Record("CloseFile", port, std::string(), nullptr, __real_vexplay_CloseFile(port));
}

int __wrap_vexplay_Play(int port, void* hWnd)
{
    MaybeDelay("Play");
    return Record("Play", port, std::string(), hWnd, __real_vexplay_Play(port, hWnd));
}

int __wrap_vexplay_SetPlayFlag(int port, int flag)
{
    MaybeDelay("PlayFlag");
    return Record("PlayFlag", port, std::to_string(flag), nullptr,
                  __real_vexplay_SetPlayFlag(port, flag));
}

// The four callback setters differ only in their names.
#define TALLIX_TRACE_CALLBACK_SETTER(name, tag)                                \
    int __wrap_vexplay_##name(int port, VEXPLAY_CALLBACK callback, void* user) \
    {                                                                          \
        MaybeDelay(tag);                                                       \
        return Record(tag, port, Set(callback), user,                          \
                      __real_vexplay_##name(port, callback, user));            \
    }

TALLIX_TRACE_CALLBACK_SETTER(SetFileEndCallback, "FileEnd")
TALLIX_TRACE_CALLBACK_SETTER(SetCallback125, "Cb125")
TALLIX_TRACE_CALLBACK_SETTER(SetCallback157, "Cb157")
TALLIX_TRACE_CALLBACK_SETTER(SetCallback109, "Cb109")

#undef TALLIX_TRACE_CALLBACK_SETTER

} // extern "C"
