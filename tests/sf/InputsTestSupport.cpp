#include "InputsTestSupport.h"

#include <QTest>

CInputsHost::CInputsHost(const QSize& size, const QPoint& at)
{
    setGeometry(QRect(at, size));
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this))
        qWarning("host window did not become active");
}
