#include "sf/qt/SFStyleSheetBounds.h"

namespace {

bool IsNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('#') ||
           c == QLatin1Char('.') || c == QLatin1Char('-');
}

// Index just past the terminator, or the end of the text.
int SkipPast(const QString& text, int from, const QString& terminator)
{
    const int found = text.indexOf(terminator, from);
    return found < 0 ? text.size() : found + terminator.size();
}

// Index just past the closing quote; a backslash escapes the next character.
int SkipString(const QString& text, int from)
{
    const QChar quote = text.at(from);
    int i = from + 1;
    while (i < text.size() && text.at(i) != quote)
        i += text.at(i) == QLatin1Char('\\') ? 2 : 1;
    return qMin(i + 1, int(text.size()));
}

} // namespace

QString SFBoundStyleSheetLengths(const QString& sheet, int limit)
{
    QString out;
    out.reserve(sheet.size());
    int depth = 0;
    int i = 0;
    while (i < sheet.size()) {
        const QChar c = sheet.at(i);
        int end = i + 1;
        if (QStringView(sheet).mid(i, 2) == QLatin1String("/*")) {
            end = SkipPast(sheet, i + 2, QStringLiteral("*/"));
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            end = SkipString(sheet, i);
        } else if (depth > 0 && QStringView(sheet).mid(i, 4).compare(QLatin1String("url("),
                                                                     Qt::CaseInsensitive) == 0) {
            end = SkipPast(sheet, i + 4, QStringLiteral(")"));
        } else if (c == QLatin1Char('{')) {
            ++depth;
        } else if (c == QLatin1Char('}')) {
            depth = qMax(0, depth - 1);
        } else if (depth > 0 && (c.isDigit() || c == QLatin1Char('.')) &&
                   (i == 0 || !IsNameChar(sheet.at(i - 1)) ||
                    sheet.at(i - 1) == QLatin1Char('-'))) {
            // A number: digits with at most one point, then its unit.
            int digitsEnd = i;
            bool point = false;
            while (digitsEnd < sheet.size() &&
                   (sheet.at(digitsEnd).isDigit() ||
                    (!point && sheet.at(digitsEnd) == QLatin1Char('.')))) {
                point = point || sheet.at(digitsEnd) == QLatin1Char('.');
                ++digitsEnd;
            }
            end = digitsEnd;
            while (end < sheet.size() &&
                   (sheet.at(end).isLetter() || sheet.at(end) == QLatin1Char('%')))
                ++end;
            const QString unit = sheet.mid(digitsEnd, end - digitsEnd).toLower();
            const bool relative = unit == QLatin1String("em") || unit == QLatin1String("ex");
            const bool length = relative || unit.isEmpty() || unit == QLatin1String("px") ||
                                unit == QLatin1String("pt");
            const int bound = relative ? limit / 16 : limit;
            bool ok = false;
            const double value = sheet.mid(i, digitsEnd - i).toDouble(&ok);
            if (length && ok && value > bound) {
                out += QString::number(bound) + sheet.mid(digitsEnd, end - digitsEnd);
                i = end;
                continue;
            }
        }
        out += QStringView(sheet).mid(i, end - i);
        i = end;
    }
    return out;
}
