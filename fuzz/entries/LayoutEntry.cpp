#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "sf/qt/QTVideoWindowLayout.h"

#include <QByteArray>
#include <QString>

namespace {

void CheckWindows(const CQTVideoWindowLayout& layout)
{
    const int cells = layout.Rows() * layout.Columns();
    FUZZ_CHECK(layout.SubWindowCount() <= cells);
    FUZZ_CHECK(layout.Rects().size() <= cells);
}

} // namespace

int FuzzLayout(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype newline = bytes.indexOf('\n');
    const QString text = QString::fromUtf8(newline < 0 ? bytes : bytes.left(newline));

    // The widget's own size after a resize, when the input names one.
    int width = 97;
    int height = 61;
    if (newline >= 0) {
        const QList<QByteArray> numbers = bytes.mid(newline + 1).simplified().split(' ');
        if (numbers.size() >= 2) {
            width = numbers[0].toInt();
            height = numbers[1].toInt();
        }
    }

    CQTVideoWindowLayout layout;
    if (layout.Parse(text) != 1)
        return 0;
    FUZZ_CHECK(layout.Rows() >= 1 && layout.Columns() >= 1);
    QString before;
    layout.Format(before);

    // The text's rectangles are in its own space; Rebuild reads them so.
    CQTVideoWindowLayout rebuilt;
    rebuilt.Parse(text);
    rebuilt.Rebuild();
    CheckWindows(rebuilt);

    // A size that does not change leaves the text's own rectangles, however many.
    if (layout.Resize(width, height) == 1)
        CheckWindows(layout);
    FUZZ_CHECK(layout.Resize(width, height) == 0);
    if (layout.Resize(height, width) == 1)
        CheckWindows(layout);

    // What the model writes reads back as a layout, and survives a resize.
    QString after;
    layout.Format(after);
    CQTVideoWindowLayout again;
    if (again.Parse(after) == 1 && again.Resize(400, 300) == 1)
        CheckWindows(again);
    return 0;
}
