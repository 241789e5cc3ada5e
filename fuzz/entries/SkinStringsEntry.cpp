#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzGuiApp.h"
#include "fuzz/entries/FuzzScratch.h"
#include "sf/DialogStyle.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFFrameSkin.h"
#include "sf/qt/SFSkinParse.h"

#include <QByteArray>
#include <QDir>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <algorithm>
#include <string>
#include <vector>

namespace {

// The images a record may name; any other name finds no file.
const char* const kImages[][3] = {
    { "Frame.png", "148", "140" },
    { "FrameMain.png", "200", "150" },
    { "background.png", "8", "8" },
    { "btn.png", "10", "10" },
};

const QString& SkinDir()
{
    static const QString dir = [] {
        QString path = QString::fromStdString(FuzzScratch::Dir()) + QStringLiteral("/Skin/");
        QDir().mkpath(path);
        for (const auto& image : kImages) {
            QImage picture(QByteArray(image[1]).toInt(), QByteArray(image[2]).toInt(),
                           QImage::Format_ARGB32);
            // Distinct pixels, so that a wrongly cut piece would show.
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    picture.setPixel(x, y, qRgba(x * 7, y * 5, (x ^ y) & 0xFF, 255));
            FUZZ_CHECK(picture.save(path + QLatin1String(image[0]), "PNG"));
        }
        return path;
    }();
    return dir;
}

std::vector<std::wstring*> Fields(DialogStyle& s)
{
    return { &s.strFrameImage,
             &s.strBackgroundImage,
             &s.strBackgroundMode,
             &s.strBackgroundColor,
             &s.strTopLeft,
             &s.strTopLeftMode,
             &s.strTop,
             &s.strTopMode,
             &s.strTopRight,
             &s.strTopRightMode,
             &s.strLeftTop,
             &s.strLeftTopMode,
             &s.strLeft,
             &s.strLeftMode,
             &s.strLeftBottom,
             &s.strLeftBottomMode,
             &s.strBottomLeft,
             &s.strBottomLeftMode,
             &s.strBottom,
             &s.strBottomMode,
             &s.strBottomRight,
             &s.strBottomRightMode,
             &s.strRightBottom,
             &s.strRightBottomMode,
             &s.strRight,
             &s.strRightMode,
             &s.strRightTop,
             &s.strRightTopMode,
             &s.strBtn4Normal,
             &s.strBtn4Hover,
             &s.strBtn4Pressed,
             &s.strBtn3Normal,
             &s.strBtn3Hover,
             &s.strBtn3Pressed,
             &s.strBtn2Normal,
             &s.strBtn2Hover,
             &s.strBtn2Pressed,
             &s.strBtn1Normal,
             &s.strBtn1Hover,
             &s.strBtn1Pressed,
             &s.strReserved,
             &s.strBtn4Rect,
             &s.strBtn3Rect,
             &s.strBtn2Rect,
             &s.strBtn1Rect,
             &s.strTitleFont,
             &s.strTitleFontSize,
             &s.strTitleFontWeight,
             &s.strTitleColor,
             &s.strTitleColorInactive,
             &s.strTitleReserved1,
             &s.strTitleReserved2,
             &s.strTitleReserved3,
             &s.strTitleAlign,
             &s.strTitleRect,
             &s.strClientRect,
             &s.strRoundCorner,
             &s.strWindowSize,
             &s.strBtn1ImageNormal,
             &s.strBtn1ImageHover,
             &s.strBtn1ImagePressed,
             &s.strBtn3ImageNormal,
             &s.strBtn3ImageHover,
             &s.strBtn3ImagePressed,
             &s.strBtn2ImageNormal,
             &s.strBtn2ImageHover,
             &s.strBtn2ImagePressed,
             &s.strBtn4ImageNormal,
             &s.strBtn4ImageHover,
             &s.strBtn4ImagePressed };
}

bool IsImageField(const DialogStyle& s, const std::wstring* field)
{
    const std::wstring* images[] = { &s.strFrameImage,       &s.strBackgroundImage,
                                     &s.strBtn1ImageNormal,  &s.strBtn1ImageHover,
                                     &s.strBtn1ImagePressed, &s.strBtn2ImageNormal,
                                     &s.strBtn2ImageHover,   &s.strBtn2ImagePressed,
                                     &s.strBtn3ImageNormal,  &s.strBtn3ImageHover,
                                     &s.strBtn3ImagePressed, &s.strBtn4ImageNormal,
                                     &s.strBtn4ImageHover,   &s.strBtn4ImagePressed };
    return std::find(std::begin(images), std::end(images), field) != std::end(images);
}

void ParseAlone(const std::wstring& text)
{
    FUZZ_CHECK(SFParseColor(text).alpha() == 255);
    const QRect rect = SFParseRect(text);
    if (text.empty())
        FUZZ_CHECK(rect == QRect(QPoint(0, 0), QPoint(-1, -1)));
    SFParseSize(text);
}

void Exercise(const DialogStyle& style, bool dialog, int width, int height)
{
    CSFFrameSkin skin;
    skin.Load(style, dialog);
    QPixmap picture = skin.Compose(width, height, !dialog);
    FUZZ_CHECK(!skin.HasFrame() || picture.size() == QSize(width, height));
    for (int button = 0; button <= CSFFrameSkin::ButtonCount; ++button)
        for (int state = CSFFrameSkin::Normal; state <= CSFFrameSkin::Pressed; ++state)
            skin.PaintButtons(picture, button, state);
    skin.AdjustForResize(width, width + 37);
    skin.AdjustForResize(-1, width);
    for (const QPoint& pt : { QPoint(0, 0), QPoint(width - 1, 5), QPoint(-3, -3) }) {
        const int button = skin.ButtonAt(pt);
        FUZZ_CHECK(button >= 0 && button <= CSFFrameSkin::ButtonCount);
    }
    const QSize radii = skin.Radii();
    CSFFrameSkin::RoundMask(QSize(width, height), radii.width(), radii.height());
}

} // namespace

int FuzzSkinStrings(const uint8_t* data, size_t size)
{
    FuzzGuiApp::Ensure();
    const QString skinPath = g_strSkinPath;
    g_strSkinPath = SkinDir();

    DialogStyle style;
    const std::vector<std::wstring*> fields = Fields(style);
    const QList<QByteArray> lines =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)).split('\n');
    for (qsizetype i = 0; i < lines.size() && i < static_cast<qsizetype>(fields.size()); ++i) {
        std::wstring* field = fields[static_cast<size_t>(i)];
        *field = QString::fromUtf8(lines[i]).toStdWString();
        ParseAlone(*field);
        // Names with a path could reach any file of the machine.
        if (IsImageField(style, field) && field->find_first_of(L"/\\") != std::wstring::npos)
            field->clear();
    }

    // The window is as large as the record asks, within reason.
    QSize window = SFParseSize(style.strWindowSize);
    if (window.isEmpty())
        window = QSize(200, 100);
    const int width = std::clamp(window.width(), 1, 600);
    const int height = std::clamp(window.height(), 1, 600);
    Exercise(style, true, width, height);
    Exercise(style, false, width, height);

    g_strSkinPath = skinPath;
    return 0;
}
