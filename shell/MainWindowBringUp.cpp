#include "shell/MainWindowBringUp.h"

#include "Config/ConfigXMLPersistImp.h"
#include "Config/VexUISetting.h"
#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFSkinParse.h"
#include "shell/FirstPaintReport.h"
#include "shell/MainDlgEventImp.h"

#include <QApplication>
#include <QIcon>
#include <QWidget>
#include <string>

namespace {

constexpr int kMainWidth = 1100;
constexpr int kMainHeight = 750;

} // namespace

void PrepareProgram(QApplication& app)
{
    SFInitUI();
    SFSetApplication(&app);
    const std::wstring strAppDir = SFGetAppPath();
    SFSetSkinPath((strAppDir + L"/Bin/Skin/").c_str());
    SFLoadStyleSheet(strAppDir + L"/Tallix_Style.css");
    // Desktops match the window to tallix.desktop and show its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("tallix"));
    QApplication::setWindowIcon(QIcon(SFSkinFilePath(L"tallix.png")));
    ReadLanguageChoice();

    g_UISetting.SetPersistent(new CConfigXMLPersistImp(std::string()));
    g_UISetting.Load();
}

void TearDownProgram(CSFDialog*& dlg, CMainDlgEventImp*& event)
{
    SFDestroyControl(dlg);
    dlg = nullptr;
    SFUninitUI();
    delete event;
    event = nullptr;
}

CSFDialog* BringUpMainWindow(DialogStyle& style, CMainDlgEventImp*& event)
{
    event = new CMainDlgEventImp();
    event->GetMainDlgStyle(style);
    CSFDialog* dlg = SFCreateMainWindow(event, nullptr);
    event->SetMainDlg(dlg);
    if (!dlg)
        return nullptr;
    dlg->SetSkin(&style);
    // The first lookup of the run: the dictionary loads here.
    dlg->Create(GetLangString(L"ProductName", 0), nullptr);
    dlg->MoveWindow(0, 0, kMainWidth, kMainHeight);
    dlg->CenterWindow(nullptr);
    FirstPaintReport::WatchIfAsked(dynamic_cast<QWidget*>(dlg));
    dlg->ShowWindow(1);
    // Shown, the style sheet has had its say on sizes; whatever it said, the
    // window keeps its own.
    auto* widget = dynamic_cast<QWidget*>(dlg);
    if (widget && widget->size() != QSize(kMainWidth, kMainHeight))
        widget->setFixedSize(kMainWidth, kMainHeight);
    return dlg;
}
