#pragma once
// A fresh temporary directory for one test, removed with everything in it.

#include <string>

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& Path() const { return m_path; }
    std::string File(const std::string& name) const { return m_path + "/" + name; }
    void Write(const std::string& name, const std::string& content) const;

private:
    std::string m_path;
};
