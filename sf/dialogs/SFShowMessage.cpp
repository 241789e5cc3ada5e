#include "sf/dialogs/SFShowMessage.h"

#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/dialogs/MsgDlgEventImp.h"
#include "sf/qt/SFQtConvert.h"

int SFShowMessage(const wchar_t* text, const wchar_t* title, int btnMode, int reserved,
                  void* parent)
{
    DialogStyle style;
    CMsgDlgEventImp handler(text, title, btnMode, reserved);
    handler.GetStyle(style);
    CSFDialog* dlg = SFCreateDialog(&handler, SFWidgetFromHandle(parent), 0);
    if (!dlg)
        return 2;
    handler.SetDlg(dlg);
    dlg->SetSkin(&style);
    dlg->SetDrawBackGround(1);
    dlg->Create(L"", nullptr);
    dlg->CenterWindow(nullptr);
    const int result = dlg->DoModalDlg();
    SFDestroyControl(dlg);
    return result;
}
