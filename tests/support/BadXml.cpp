#include "tests/support/BadXml.h"

#include <random>

namespace {

std::string DeeplyNested(int depth)
{
    std::string text;
    text.reserve(static_cast<std::size_t>(depth) * 8);
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    return text;
}

std::string RandomBinary(std::size_t size, unsigned seed)
{
    std::mt19937 gen(seed);
    std::uniform_int_distribution<int> byte(0, 255);
    std::string text(size, '\0');
    for (char& c : text)
        c = static_cast<char>(byte(gen));
    return text;
}

std::string HugeText()
{
    // Ten megabytes of one unterminated attribute value.
    return "<Root><Entry value=\"" + std::string(10 * 1024 * 1024, 'x');
}

} // namespace

std::vector<BadXmlCase> BadXmlCases()
{
    return {
        { "Missing", std::string(), false },
        { "Empty", std::string(), true },
        { "Truncated", "<Root><Entry name=\"OK\" val", true },
        { "NotXml", "this is not xml at all {\"json\": true}", true },
        { "Nested50000", DeeplyNested(50000), true },
        { "Huge10MB", HugeText(), true },
        { "RandomBinary", RandomBinary(64 * 1024, 7), true },
        { "RandomBinaryAfterTag", "<Root>" + RandomBinary(4096, 11), true },
    };
}
