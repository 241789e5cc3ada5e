#include "SFFactory.h"

#include "SFButton.h"
#include "SFCheckBox.h"
#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFListCtrl.h"
#include "SFNumSpiner.h"
#include "SFQTDialog.h"
#include "SFQTMainWindow.h"
#include "SFQTPictureCtrl.h"
#include "SFQTView.h"
#include "SFRadioBox.h"
#include "SFStatic.h"

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

// Every realisation deletes its widget through the abstract class's virtual
// destructor.
void SFDestroyControl(CSFDialog* control)
{
    delete control;
}

void SFDestroyControl(CSFView* control)
{
    delete control;
}

void SFDestroyControl(CSFPictureCtrl* control)
{
    delete control;
}

void SFDestroyControl(CSFButton* control)
{
    delete control;
}

void SFDestroyControl(CSFCheckBox* control)
{
    delete control;
}

void SFDestroyControl(CSFRadioBox* control)
{
    delete control;
}

void SFDestroyControl(CSFEditCtrl* control)
{
    delete control;
}

void SFDestroyControl(CSFComboBox* control)
{
    delete control;
}

void SFDestroyControl(CSFStatic* control)
{
    delete control;
}

void SFDestroyControl(CSFNumSpiner* control)
{
    delete control;
}

void SFDestroyControl(CSFListCtrl* control)
{
    delete control;
}

void SFDestroyView(CSFView*)
{
}
