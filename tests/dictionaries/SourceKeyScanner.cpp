#include "SourceKeyScanner.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const std::string kCall = "GetLangString";

bool IsIdentChar(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

size_t SkipSpace(const std::string& s, size_t i)
{
    while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i])) != 0)
        ++i;
    return i;
}

// Index just past the literal or character constant that opens at i.
size_t SkipQuoted(const std::string& s, size_t i)
{
    const char quote = s[i++];
    while (i < s.size() && s[i] != quote) {
        if (s[i] == '\\')
            ++i;
        ++i;
    }
    return i < s.size() ? i + 1 : i;
}

// Reads the body of the literal opening at i (on the quote), undoing the
// simple escapes; returns false when it is not terminated.
bool ReadLiteral(const std::string& s, size_t i, std::string& out)
{
    out.clear();
    for (++i; i < s.size(); ++i) {
        char c = s[i];
        if (c == '"')
            return true;
        if (c == '\n')
            return false;
        if (c == '\\' && i + 1 < s.size()) {
            c = s[++i];
            switch (c) {
            case 'n': c = '\n'; break;
            case 't': c = '\t'; break;
            case 'r': c = '\r'; break;
            default: break;  // \\, \", \' and anything rarer stand for themselves
            }
        }
        out += c;
    }
    return false;
}

bool IsBuildTree(const fs::path& dir)
{
    const std::string name = dir.filename().string();
    if (name.rfind("build", 0) == 0 || name.rfind("cmake-build", 0) == 0)
        return true;
    std::error_code ec;
    return fs::exists(dir / "CMakeCache.txt", ec);
}

}  // namespace

std::set<std::string> CSourceKeyScanner::ExtractKeys(const std::string& text)
{
    std::set<std::string> keys;
    size_t i = 0;
    while (i < text.size()) {
        const char c = text[i];
        if (c == '/' && i + 1 < text.size() && text[i + 1] == '/') {
            const size_t end = text.find('\n', i);
            i = end == std::string::npos ? text.size() : end;
        } else if (c == '/' && i + 1 < text.size() && text[i + 1] == '*') {
            const size_t end = text.find("*/", i + 2);
            i = end == std::string::npos ? text.size() : end + 2;
        } else if (c == '"' || c == '\'') {
            i = SkipQuoted(text, i);
        } else if (text.compare(i, kCall.size(), kCall) == 0
                   && (i == 0 || !IsIdentChar(text[i - 1]))
                   && (i + kCall.size() >= text.size() || !IsIdentChar(text[i + kCall.size()]))) {
            i += kCall.size();
            size_t p = SkipSpace(text, i);
            if (p < text.size() && text[p] == '(') {
                p = SkipSpace(text, p + 1);
                std::string key;
                if (p + 1 < text.size() && text[p] == 'L' && text[p + 1] == '"'
                    && ReadLiteral(text, p + 1, key) && !key.empty())
                    keys.insert(key);
            }
        } else {
            ++i;
        }
    }
    return keys;
}

std::set<std::string> CSourceKeyScanner::ScanTree(const std::string& root, int& filesScanned)
{
    std::set<std::string> keys;
    filesScanned = 0;
    const fs::path base(root);
    std::error_code ec;
    fs::recursive_directory_iterator it(base, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        const fs::path& p = it->path();
        if (it->is_directory(ec)) {
            const std::string name = p.filename().string();
            if ((it.depth() == 0 && name == "tests") || name.rfind('.', 0) == 0 || IsBuildTree(p))
                it.disable_recursion_pending();
            continue;
        }
        const std::string ext = p.extension().string();
        if (ext != ".cpp" && ext != ".h")
            continue;
        std::ifstream in(p, std::ios::binary);
        if (!in)
            continue;
        std::ostringstream text;
        text << in.rdbuf();
        ++filesScanned;
        const std::set<std::string> found = ExtractKeys(text.str());
        keys.insert(found.begin(), found.end());
    }
    return keys;
}
