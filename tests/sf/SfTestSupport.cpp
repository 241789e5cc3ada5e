#include "tests/sf/SfTestSupport.h"

#include "sf/DialogStyle.h"
#include "sf/qt/SFApplication.h"

#include <QImage>
#include <QPainter>

SF_BEGIN_MSGMAP(CLoggingDialogHandler)
    SF_ON_COMMAND(1, OnMappedOk)
    SF_ON_COMMAND(7, OnMapped7)
SF_END_MSGMAP()

SF_BEGIN_MSGMAP(CLoggingViewHandler)
    SF_ON_COMMAND(7, OnMapped7)
SF_END_MSGMAP()

namespace {

// x, y, width, height as the style strings give them.
void Fill(QImage& image, int x, int y, int w, int h, const QColor& color)
{
    QPainter p(&image);
    p.fillRect(QRect(x, y, w, h), color);
}

} // namespace

CTestSkin::CTestSkin() : m_oldSkinPath(g_strSkinPath)
{
    using namespace SkinColors;
    QImage frame(148, 140, QImage::Format_ARGB32);
    frame.fill(Body);
    Fill(frame, 0, 0, 10, 27, TopLeft);
    Fill(frame, 30, 0, 7, 27, Top);
    Fill(frame, 138, 0, 10, 27, TopRight);
    Fill(frame, 0, 27, 1, 80, LeftTop);
    Fill(frame, 0, 110, 1, 20, Left);
    Fill(frame, 2, 110, 1, 20, LeftBottom);
    Fill(frame, 0, 130, 10, 10, BottomLeft);
    Fill(frame, 10, 130, 1, 10, Bottom);
    Fill(frame, 138, 130, 10, 10, BottomRight);
    Fill(frame, 147, 27, 1, 80, RightTop);
    Fill(frame, 147, 110, 1, 20, Right);
    Fill(frame, 145, 110, 1, 20, RightBottom);
    Fill(frame, 40, 0, 20, 20, Btn1Normal);
    Fill(frame, 60, 0, 20, 20, Btn1Hover);
    frame.save(m_dir.filePath(QStringLiteral("Frame.png")), "PNG");
    g_strSkinPath = m_dir.path() + QLatin1Char('/');
}

CTestSkin::~CTestSkin()
{
    g_strSkinPath = m_oldSkinPath;
}

void CTestSkin::FillDialogStyle(DialogStyle& s)
{
    // The dialogs' own skin, with pieces that differ from their neighbours so
    // that painting one in the place of another shows.
    s = SFSmallDialogStyle();
    s.strBackgroundImage = L"";
    s.strBackgroundColor = L"102030";
    s.strTop = L"30,0,7,27";
    s.strLeftBottom = L"2,110,1,20";
    s.strRightBottom = L"145,110,1,20";
}
