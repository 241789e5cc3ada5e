#pragma once
// The framework's abstract controls and their event interfaces, declared for
// headers that only hold pointers to them.

class CSFButton;
class CSFCheckBox;
class CSFComboBox;
class CSFDialog;
class CSFEditCtrl;
class CSFListCtrl;
class CSFNumSpiner;
class CSFPictureCtrl;
class CSFRadioBox;
class CSFStatic;
class CSFView;
class ISFButtonEvent;
class ISFCheckBoxEvent;
class ISFComboBoxEvent;
class ISFDialogEvent;
class ISFEditCtrlEvent;
class ISFListCtrlEvent;
class ISFNumSpinerEvent;
class ISFPictureCtrlEvent;
class ISFRadioBoxEvent;
class ISFStaticEvent;
class ISFViewEvent;
