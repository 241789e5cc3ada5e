#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QTimer>
#include <QWidget>
#include <string>

#include "Config/ConfigXMLPersistImp.h"
#include "sf/DialogStyle.h"
#include "language/LangString.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "sf/qt/SFApplication.h"
#include "sf/SFFactory.h"
#include "sf/qt/SFQtConvert.h"
#include "Config/VexUISetting.h"

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

// Desktops match the window to tallix.desktop and show its icon.
void JoinTheDesktop()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("tallix"));
    QApplication::setWindowIcon(QIcon(g_strSkinPath + QStringLiteral("tallix.png")));
}

// TALLIX_EXIT_AFTER_START=1, for the tests that run the program: once the
// event loop runs, click the toolbar's close button as a user would.
void CloseOnceRunningIfAsked(CMainDlgEventImp* event)
{
    if (qEnvironmentVariableIntValue("TALLIX_EXIT_AFTER_START") != 1)
        return;
    QWidget* window = MainWidget(event);
    auto* close = window ? window->findChild<QAbstractButton*>(QStringLiteral("button_2003")) : nullptr;
    if (close)
        QTimer::singleShot(0, close, &QAbstractButton::click);
    else
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    SFInitUI();
    SFSetApplication(&app);
    std::wstring strAppDir = SFGetAppPath();
    SFSetSkinPath((strAppDir + L"/Bin/Skin/").c_str());
    SFLoadStyleSheet(strAppDir + L"/Tallix_Style.css");
    JoinTheDesktop();
    ReadLanguageChoice();

    g_UISetting.SetPersistent(new CConfigXMLPersistImp(std::string()));
    g_UISetting.Load();

    DialogStyle style;
    CMainDlgEventImp* pMainEvent = nullptr;
    CSFDialog* pMainDlg = BringUpMainWindow(style, pMainEvent);
    LogStartState(app, pMainEvent);
    CloseOnceRunningIfAsked(pMainEvent);

    // The close button ends the loop by closing the last window.
    app.exec();

    SFDestroyControl(pMainDlg);
    pMainDlg = nullptr;
    SFUninitUI();
    delete pMainEvent;
    pMainEvent = nullptr;
    return 0;
}
