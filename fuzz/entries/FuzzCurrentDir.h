#pragma once
// Makes a directory current for one scope: the settings store works on
// "config.xml" in the current directory.

#include <string>

class FuzzCurrentDir {
public:
    explicit FuzzCurrentDir(const std::string& dir);
    ~FuzzCurrentDir();
    FuzzCurrentDir(const FuzzCurrentDir&) = delete;
    FuzzCurrentDir& operator=(const FuzzCurrentDir&) = delete;

private:
    std::string m_previous;
};
