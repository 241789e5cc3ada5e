#include "sf/qt/SFQTPictureCtrl.h"

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QPainter>

CSFQTPictureCtrl::CSFQTPictureCtrl(ISFPictureCtrlEvent* handler, QWidget* parent)
    : QLabel(parent), CSFPictureCtrl(handler)
{
}

CSFQTPictureCtrl::~CSFQTPictureCtrl()
{
}

int CSFQTPictureCtrl::Create(const wchar_t* text, unsigned long style, const tagRECT& rect,
                             void* parent, unsigned int id)
{
    const QString label = SFToQString(text);
    setText(label);
    setAlignment(Qt::Alignment::fromInt(132));
    setParent(SFWidgetFromHandle(parent));
    setGeometry(SFRectForCreate(rect));
    m_nID = id;
    SFNameControl(this, "picture", id, label);
    SFApplyVisibleStyle(this, style);
    return 1;
}

void CSFQTPictureCtrl::SetCursor()
{
}

int CSFQTPictureCtrl::SetSkin()
{
    return 1;
}

void CSFQTPictureCtrl::ShowWindow(int show)
{
    setVisible(show != 0);
}

void CSFQTPictureCtrl::MoveWindow(tagRECT* rect)
{
    if (rect)
        setGeometry(SFRectInclusive(*rect));
}

void CSFQTPictureCtrl::MoveWindow(int x, int y, int w, int h)
{
    setGeometry(SFRectFromXYWH(x, y, w, h));
}

void CSFQTPictureCtrl::SetImage(const wchar_t* file)
{
    m_image = QPixmap();
    if (file && *file)
        m_image.load(SFSkinFilePath(file));
    update();
}

void CSFQTPictureCtrl::SetDrawPicture(int)
{
}

void* CSFQTPictureCtrl::GetHWnd()
{
    return SFHandleFromWidget(this);
}

void CSFQTPictureCtrl::SetWindowTextW(const wchar_t* text)
{
    setText(SFToQString(text));
}

void CSFQTPictureCtrl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_image.isNull())
        painter.drawPixmap(rect(), m_image);
    if (!text().isEmpty())
        painter.drawText(rect(), Qt::AlignCenter, text());
}
