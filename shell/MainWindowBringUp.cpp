#include "shell/MainWindowBringUp.h"

#include "sf/DialogStyle.h"
#include "shell/FirstPaintReport.h"
#include "language/LangString.h"
#include "shell/MainDlgEventImp.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"

#include <QWidget>

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
    dlg->MoveWindow(0, 0, 1100, 750);
    dlg->CenterWindow(nullptr);
    FirstPaintReport::WatchIfAsked(dynamic_cast<QWidget*>(dlg));
    dlg->ShowWindow(1);
    return dlg;
}
