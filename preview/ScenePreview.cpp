#include "preview/ScenePreview.h"

#include "language/LangString.h"
#include "preview/ScenePlayWinDlgEventImp.h"
#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/qt/SFQtConvert.h"

#include <new>

int ShowScenePreview(int scene, void* parent)
{
    DialogStyle style;
    auto* handler = new (std::nothrow) CScenePlayWinDlgEventImp;
    if (!handler)
        return 0;
    handler->GetStyle(style);

    CSFDialog* dlg = SFCreateDialog(handler, SFWidgetFromHandle(parent), 0);
    if (!dlg) {
        delete handler;
        return 0;
    }
    handler->SetDlg(dlg);
    handler->SetScene(scene);

    const wchar_t* key = CScenePlayWinDlgEventImp::SceneTitleKey(scene);
    dlg->SetSkin(&style);
    dlg->SetDrawBackGround(1);
    dlg->Create(key ? GetLangString(key, 0) : L"", nullptr);
    const int result = dlg->DoModalDlg();

    // The video window goes with the dialog, before its handler does.
    SFDestroyControl(dlg);
    delete handler;
    return result;
}
