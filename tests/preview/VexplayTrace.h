#pragma once
// Records every call the program makes into vexplay and passes it on to the
// real library; the test links with --wrap for each entry point.

#include <cstddef>
#include <string>
#include <vector>

struct VexCall {
    // "GetPort", "OpenFile", "CloseFile", "Play", "PlayFlag", "FileEnd",
    // "Cb125", "Cb157", "Cb109".
    std::string op;
    int port = -1;
    // OpenFile: the path; PlayFlag: the flag; the callbacks: "set" or "null".
    std::string arg;
    const void* pointer = nullptr; // Play: the window; FileEnd: the user value
    bool ok = false;
    bool guiThread = false;
};

namespace VexTrace {

void Reset();
std::vector<VexCall> Calls();
std::size_t Count();
// The operations from call first on, with the flag or whether a callback
// was set: "PlayFlag:1", "FileEnd:set", "Cb125:null".
std::vector<std::string> Ops(std::size_t first = 0);
// Holds up the next call of op made on the GUI thread (or on another) for ms
void DelayNext(const std::string& op, bool onGuiThread, int ms);

} // namespace VexTrace
