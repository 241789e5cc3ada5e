#include "language/XmlFileLoader.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <tinyxml.h>

namespace {

bool StartsWith(const std::string& text, std::size_t pos, const char* prefix)
{
    return text.compare(pos, std::char_traits<char>::length(prefix), prefix) == 0;
}

// Position just past the terminator, or the end of the text.
std::size_t SkipPast(const std::string& text, std::size_t pos, const char* terminator)
{
    std::size_t found = text.find(terminator, pos);
    return found == std::string::npos ? text.size()
                                      : found + std::char_traits<char>::length(terminator);
}

bool IsNameStart(unsigned char c)
{
    return std::isalpha(c) || c == '_' || c >= 0x80;
}

// TinyXML's LoadFile turns CR LF and lone CR into LF before parsing; keep that.
std::string NormalizeLineEnds(const std::string& raw)
{
    std::string out;
    out.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r') {
            out += '\n';
            if (i + 1 < raw.size() && raw[i + 1] == '\n')
                ++i;
        } else {
            out += raw[i];
        }
    }
    return out;
}

} // namespace

int CXmlFileLoader::NestingDepth(const std::string& text, int limit)
{
    int depth = 0;
    int deepest = 0;
    std::size_t pos = 0;
    while (pos < text.size()) {
        pos = text.find('<', pos);
        if (pos == std::string::npos)
            break;
        if (StartsWith(text, pos, "<!--")) {
            pos = SkipPast(text, pos + 4, "-->");
        } else if (StartsWith(text, pos, "<![CDATA[")) {
            pos = SkipPast(text, pos + 9, "]]>");
        } else if (StartsWith(text, pos, "<?")) {
            pos = SkipPast(text, pos + 2, "?>");
        } else if (StartsWith(text, pos, "<!")) {
            pos = SkipPast(text, pos + 2, ">");
        } else if (StartsWith(text, pos, "</")) {
            if (depth > 0)
                --depth;
            pos = SkipPast(text, pos + 2, ">");
        } else if (pos + 1 < text.size() &&
                   IsNameStart(static_cast<unsigned char>(text[pos + 1]))) {
            // Walk the tag, minding quoted attribute values that may hold '>'.
            char quote = 0;
            std::size_t end = pos + 1;
            for (; end < text.size(); ++end) {
                char c = text[end];
                if (quote) {
                    if (c == quote)
                        quote = 0;
                } else if (c == '"' || c == '\'') {
                    quote = c;
                } else if (c == '>') {
                    break;
                }
            }
            bool selfClosing = end < text.size() && text[end - 1] == '/';
            if (!selfClosing && ++depth > deepest) {
                deepest = depth;
                if (deepest > limit)
                    return deepest;
            }
            pos = end < text.size() ? end + 1 : end;
        } else {
            ++pos;
        }
    }
    return deepest;
}

bool CXmlFileLoader::Parse(TiXmlDocument& doc, const std::string& text)
{
    doc.Clear();
    if (NestingDepth(text, kMaxDepth) > kMaxDepth) {
        doc.Parse(""); // leaves the document empty with its error flag set
        return false;
    }
    ParseWithSpare(doc, text, TIXML_DEFAULT_ENCODING);
    return !doc.Error();
}

void CXmlFileLoader::ParseWithSpare(TiXmlDocument& doc, const std::string& text, int encoding)
{
    // The longest UTF-8 character is four bytes.
    std::string spared = text;
    spared.append(4, '\0');
    doc.Parse(spared.c_str(), nullptr, static_cast<TiXmlEncoding>(encoding));
}

bool CXmlFileLoader::Load(TiXmlDocument& doc, const std::string& path)
{
    // A directory of that name would make the stream throw.
    struct stat st;
    std::ifstream in;
    // Our files are a few kilobytes; a gigabyte one would hold the start up
    // for minutes and take its size in memory twice.
    if (::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && st.st_size <= kMaxFileBytes)
        in.open(path, std::ios::binary);
    if (!in.is_open() || !in) {
        doc.Clear();
        doc.Parse("");
        return false;
    }
    std::string raw((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    doc.SetValue(path);
    return Parse(doc, NormalizeLineEnds(raw));
}
