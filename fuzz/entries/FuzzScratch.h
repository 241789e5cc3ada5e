#pragma once
// A private directory under $TMPDIR (or /tmp) for the files an entry must
// hand to a loader by name; made on first use, removed at exit.

#include <cstddef>
#include <cstdint>
#include <string>

class FuzzScratch {
public:
    static const std::string& Dir();
    // Replaces the file and returns its path.
    static std::string Write(const std::string& name, const uint8_t* data, size_t size);
    static void Remove(const std::string& name);
};
