#include "ButtonsTestSupport.h"

#include "SFFactory.h"
#include "SFView.h"

#include <QCursor>
#include <QPainter>
#include <QTest>

CButtonHost::CButtonHost(Log& log, QSize size)
    : m_viewHandler(log), m_view(nullptr)
{
    m_top.resize(size);
    m_top.setAutoFillBackground(true);
    QPalette palette = m_top.palette();
    palette.setColor(QPalette::Window, Qt::white);
    m_top.setPalette(palette);
    m_view = SFCreateView(&m_viewHandler);
    m_view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, size.width(), size.height() }, &m_top, 3);
    m_view->SetBGClr(0x00FFFFFFu);
    log.clear();
}

CButtonHost::~CButtonHost()
{
    SFDestroyControl(m_view);
}

void* CButtonHost::Page() const
{
    return m_view->GetUIWnd();
}

bool CButtonHost::Show()
{
    ParkCursor();
    m_top.move(100, 100);
    m_top.show();
    return QTest::qWaitForWindowActive(&m_top);
}

void WriteSolidPicture(const CTestSkin& skin, const char* name, QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    image.save(skin.Dir() + QLatin1Char('/') + QString::fromLatin1(name), "PNG");
}

QImage GrabOnHost(QWidget* widget)
{
    QWidget* top = widget->window();
    const QRect where(widget->mapTo(top, QPoint(0, 0)), widget->size());
    return top->grab(where).toImage().convertToFormat(QImage::Format_RGB32);
}

void ParkCursor()
{
    QCursor::setPos(QPoint(5000, 5000));
    QCoreApplication::processEvents();
}
