#include "SFShowMessage.h"

#include "DialogStyle.h"
#include "MsgDlgEventImp.h"
#include "SFDialog.h"
#include "SFFactory.h"
#include "SFQtConvert.h"

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
