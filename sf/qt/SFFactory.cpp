#include "sf/SFFactory.h"

#include "sf/qt/SFQTDialog.h"
#include "sf/qt/SFQTMainWindow.h"
#include "sf/qt/SFQTPictureCtrl.h"
#include "sf/qt/SFQTView.h"

#include <new>

CSFDialog* SFCreateDialog(ISFDialogEvent* handler, QWidget* parent, int)
{
    return new (std::nothrow) CSFQTDialog(handler, parent);
}

CSFDialog* SFCreateMainWindow(ISFDialogEvent* handler, QWidget* parent)
{
    return new (std::nothrow) CSFQTMainWindow(handler, parent);
}

CSFView* SFCreateView(ISFViewEvent* handler)
{
    return new (std::nothrow) CSFQTView(handler);
}

CSFPictureCtrl* SFCreatePictureCtrl(ISFPictureCtrlEvent* handler)
{
    return new (std::nothrow) CSFQTPictureCtrl(handler);
}

void SFDestroyView(CSFView*)
{
}
