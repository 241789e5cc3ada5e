#include "sf/qt/SFSkinParse.h"

#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQtConvert.h"

#include <QFile>
#include <QStringList>
#include <algorithm>
#include <climits>
#include <cstdint>
#include <cwchar>
#include <sys/stat.h>

namespace {

int ClampToInt(std::int64_t v)
{
    return static_cast<int>(std::clamp<std::int64_t>(v, INT_MIN, INT_MAX));
}

} // namespace

QColor SFParseColor(const wchar_t* text)
{
    if (!text || std::wcslen(text) != 6)
        return QColor(0, 0, 0, 255);
    unsigned int channel[3] = { 0, 0, 0 };
    for (int i = 0; i < 3; ++i) {
        const wchar_t pair[3] = { text[2 * i], text[2 * i + 1], L'\0' };
        unsigned int value = 0;
        if (std::swscanf(pair, L"%x", &value) == 1)
            channel[i] = value & 0xFFu;
    }
    return QColor(static_cast<int>(channel[0]), static_cast<int>(channel[1]),
                  static_cast<int>(channel[2]), 255);
}

QColor SFParseColor(const std::wstring& text)
{
    return SFParseColor(text.c_str());
}

QColor SFColorFromRef(unsigned long ref)
{
    return QColor(static_cast<int>(ref & 0xFFu), static_cast<int>((ref >> 8) & 0xFFu),
                  static_cast<int>((ref >> 16) & 0xFFu), 255);
}

QRect SFParseRect(const wchar_t* text)
{
    if (!text || !*text)
        return QRect(QPoint(0, 0), QPoint(-1, -1));
    int x = 0, y = 0, w = 0, h = 0;
    std::swscanf(text, L"%d,%d,%d,%d", &x, &y, &w, &h);
    return QRect(QPoint(x, y),
                 QPoint(ClampToInt(std::int64_t(x) + w - 1), ClampToInt(std::int64_t(y) + h - 1)));
}

QRect SFParseRect(const std::wstring& text)
{
    return SFParseRect(text.c_str());
}

QSize SFParseSize(const wchar_t* text)
{
    const QStringList parts =
        SFToQString(text).trimmed().split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return QSize(0, 0);
    return QSize(parts.at(0).toInt(nullptr, 10), parts.at(1).toInt(nullptr, 10));
}

QSize SFParseSize(const std::wstring& text)
{
    return SFParseSize(text.c_str());
}

QString SFSkinFilePath(const std::wstring& file)
{
    QString path = g_strSkinPath + SFToQString(file);
    // No name gives the folder itself, which loads as no picture: a skin rule
    // without an image, on which the skins' own spinner buttons rely.
    if (file.empty())
        return path;
    // Reading a FIFO blocks, a device never ends: an image that is there but
    // no regular file counts as missing, and an empty path loads nothing.
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) == 0 && !S_ISREG(st.st_mode))
        return QString();
    return path;
}

QString SFCssQuoted(const QString& text)
{
    // Qt ignores url() but draws url("") as an empty image over the native parts.
    if (text.isEmpty())
        return text;
    QString quoted;
    quoted.reserve(text.size() + 2);
    quoted += QLatin1Char('"');
    for (const QChar c : text) {
        // Qt's style-sheet scanner drops the backslash before any character.
        if (c == QLatin1Char('"') || c == QLatin1Char('\\') || c == QLatin1Char('\n') ||
            c == QLatin1Char('\r') || c == QLatin1Char('\f'))
            quoted += QLatin1Char('\\');
        quoted += c;
    }
    quoted += QLatin1Char('"');
    return quoted;
}

std::unique_ptr<QPixmap> SFLoadSkinPixmap(const std::wstring& file)
{
    if (file.empty())
        return nullptr;
    auto pixmap = std::make_unique<QPixmap>();
    if (!pixmap->load(SFSkinFilePath(file), "PNG"))
        return nullptr;
    return pixmap;
}
