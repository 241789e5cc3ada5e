#include "sf/SFFactory.h"

#include "sf/SFButton.h"
#include "sf/SFCheckBox.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFListCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/qt/SFQTDialog.h"
#include "sf/qt/SFQTMainWindow.h"
#include "sf/qt/SFQTPictureCtrl.h"
#include "sf/qt/SFQTView.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"

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
