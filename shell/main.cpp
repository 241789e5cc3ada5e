#include "Config/VexUISetting.h"
#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQtConvert.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "shell/ToolBarEventImp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLoggingCategory>
#include <QTimer>
#include <QWidget>

Q_LOGGING_CATEGORY(lcStart, "tallix.start", QtWarningMsg)

namespace {

QWidget* MainWidget(CMainDlgEventImp* event)
{
    return event ? SFWidgetFromHandle(event->GetUIWnd()) : nullptr;
}

void LogStartState(const QApplication& app, CMainDlgEventImp* event)
{
    if (!lcStart().isDebugEnabled())
        return;
    qCDebug(lcStart, "application directory %s", qUtf8Printable(g_strAppDir));
    qCDebug(lcStart, "style sheet %s", app.styleSheet().isEmpty() ? "none" : "applied");
    qCDebug(lcStart, "language %d", g_nLanguage);
    qCDebug(lcStart, "recordable percentage %u", g_UISetting.m_nRecordblePersentage);
    qCDebug(lcStart, "product name %s",
            qUtf8Printable(QString::fromWCharArray(GetLangString(L"ProductName", 0))));
    if (const QWidget* w = MainWidget(event))
        qCDebug(lcStart, "main window %d by %d %s, title %s", w->width(), w->height(),
                w->isVisible() ? "shown" : "hidden", qUtf8Printable(w->windowTitle()));
}

// TALLIX_EXIT_AFTER_START=1, for the tests that run the program: once the
// event loop runs, click the toolbar's close button as a user would.
void CloseOnceRunningIfAsked(CMainDlgEventImp* event)
{
    if (qEnvironmentVariableIntValue("TALLIX_EXIT_AFTER_START") != 1)
        return;
    QWidget* window = MainWidget(event);
    const QString name = QStringLiteral("button_%1").arg(CToolBarEventImp::IdClose);
    auto* close = window ? window->findChild<QAbstractButton*>(name) : nullptr;
    if (close)
        QTimer::singleShot(0, close, &QAbstractButton::click);
    else
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

// Without a session bus (a bare X server, a kiosk) libdbus would start one
// through dbus-launch, which writes under the home folder; the program writes
// nothing, and needs no bus of its own. An address nothing listens on keeps
// libdbus from looking further.
void KeepFromStartingSessionBus()
{
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

} // namespace

int main(int argc, char** argv)
{
    KeepFromStartingSessionBus();
    QApplication app(argc, argv);
    PrepareProgram(app);

    DialogStyle style;
    CMainDlgEventImp* pMainEvent = nullptr;
    CSFDialog* pMainDlg = BringUpMainWindow(style, pMainEvent);
    LogStartState(app, pMainEvent);
    CloseOnceRunningIfAsked(pMainEvent);

    // The close button ends the loop by closing the last window.
    app.exec();

    TearDownProgram(pMainDlg, pMainEvent);
    return 0;
}
