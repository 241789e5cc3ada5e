#include "sf/qt/SFSkinParse.h"
#include "sf/qt/SFStyleSheetBounds.h"

#include <QString>
#include <gtest/gtest.h>

namespace {

struct BoundCase {
    const char* name;
    const char* sheet;
    const char* expected;
};

const BoundCase kBoundCases[] = {
    { "absurd minimum", "* { min-width: 2147483647px; min-height: 2147483647px; }",
      "* { min-width: 4096px; min-height: 4096px; }" },
    { "huge border keeps its style and colour", "* { border: 2147483647px solid red; }",
      "* { border: 4096px solid red; }" },
    { "negative and fractional", "QLabel { margin: -99999px; width: 99999.5px; }",
      "QLabel { margin: -4096px; width: 4096px; }" },
    { "unitless and points", "QLabel { min-width: 5000; font-size: 70000pt; }",
      "QLabel { min-width: 4096; font-size: 4096pt; }" },
    { "em by a sixteenth", "QLabel { font-size: 999999em; padding: 300ex; }",
      "QLabel { font-size: 256em; padding: 256ex; }" },
    { "each of several values", "QLabel { padding: 4096px 4097px 10px 1000000px; }",
      "QLabel { padding: 4096px 4096px 10px 4096px; }" },
    { "sane lengths untouched", "QPushButton { width: 21px; padding: 0 8px; }",
      "QPushButton { width: 21px; padding: 0 8px; }" },
    { "percent is no length", "QLabel { width: 99999%; }", "QLabel { width: 99999%; }" },
    { "colours and selectors untouched", "QLabel#x99999 { color: #999999; }",
      "QLabel#x99999 { color: #999999; }" },
    { "url untouched", "QLabel { image: url(a/99999/b.png); }",
      "QLabel { image: url(a/99999/b.png); }" },
    { "strings untouched", "QLabel { qproperty-text: \"99999px\"; }",
      "QLabel { qproperty-text: \"99999px\"; }" },
    { "comments untouched", "/* 99999px { */ QLabel { width: 12px; }",
      "/* 99999px { */ QLabel { width: 12px; }" },
    { "cut short", "QLabel { width: 99999", "QLabel { width: 4096" },
    { "unclosed string", "QLabel { x: \"99999px", "QLabel { x: \"99999px" },
};

TEST(SheetText, LengthsBeyondTheBoundComeDown)
{
    for (const BoundCase& c : kBoundCases) {
        EXPECT_EQ(SFBoundStyleSheetLengths(QString::fromUtf8(c.sheet), 4096),
                  QString::fromUtf8(c.expected))
            << c.name;
    }
}

struct QuoteCase {
    const char* path;
    const char* expected;
};

const QuoteCase kQuoteCases[] = {
    { "/opt/tallix/Bin/Skin/a.png", "\"/opt/tallix/Bin/Skin/a.png\"" },
    { "/home/o'brien/$HOME/100%/a.png", "\"/home/o'brien/$HOME/100%/a.png\"" },
    { "/say \"hi\"/a.png", "\"/say \\\"hi\\\"/a.png\"" },
    { "/back\\slash/a.png", "\"/back\\\\slash/a.png\"" },
    { "/line\nbreak/a.png", "\"/line\\\nbreak/a.png\"" },
    { "/应用 ünïcødé ☃/a.png", "\"/应用 ünïcødé ☃/a.png\"" },
    // No image: url() stays empty, which Qt ignores.
    { "", "" },
};

TEST(SheetText, PathsQuotedWithEscapes)
{
    for (const QuoteCase& c : kQuoteCases)
        EXPECT_EQ(SFCssQuoted(QString::fromUtf8(c.path)), QString::fromUtf8(c.expected)) << c.path;
}

} // namespace
