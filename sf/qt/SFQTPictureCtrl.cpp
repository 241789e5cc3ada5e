#include "sf/qt/SFQTPictureCtrl.h"

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QPainter>

CSFQTPictureCtrl::CSFQTPictureCtrl(ISFPictureCtrlEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent)
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
    Place(parent, SFRectForCreate(rect), id, "picture", label);
    SFApplyVisibleStyle(this, style);
    return 1;
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
