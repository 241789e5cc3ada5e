#pragma once
// Where application code gets its controls: each factory returns a new,
// parentless control (null if it cannot be allocated); Create places it.

#include "sf/SFFwd.h"

class QWidget;

CSFDialog* SFCreateDialog(ISFDialogEvent* handler, QWidget* parent, int flags);
CSFDialog* SFCreateMainWindow(ISFDialogEvent* handler, QWidget* parent);
CSFView* SFCreateView(ISFViewEvent* handler);
CSFPictureCtrl* SFCreatePictureCtrl(ISFPictureCtrlEvent* handler);
CSFButton* SFCreateButton(ISFButtonEvent* handler);
CSFCheckBox* SFCreateCheckBox(ISFCheckBoxEvent* handler);
CSFRadioBox* SFCreateRadioBox(ISFRadioBoxEvent* handler);
CSFEditCtrl* SFCreateEditCtrl(ISFEditCtrlEvent* handler);
CSFComboBox* SFCreateComboBox(ISFComboBoxEvent* handler);
CSFStatic* SFCreateStatic(ISFStaticEvent* handler);
CSFNumSpiner* SFCreateNumSpiner(ISFNumSpinerEvent* handler);
CSFListCtrl* SFCreateListCtrl(ISFListCtrlEvent* handler);

// Deletes any control of the factories and its Qt widget, through the
// abstract class's virtual destructor; null is ignored.
template <class Control>
void SFDestroyControl(Control* control)
{
    delete control;
}

// A page's views go down with their Qt parent, so this does nothing.
void SFDestroyView(CSFView* view);
