#include "sf/SFFactory.h"

#include "sf/qt/SFQTComboBox.h"
#include "sf/qt/SFQTEditCtrl.h"
#include "sf/qt/SFQTNumSpiner.h"
#include "sf/qt/SFQTStatic.h"

#include <new>

CSFEditCtrl* SFCreateEditCtrl(ISFEditCtrlEvent* handler)
{
    return new (std::nothrow) CSFQTEditCtrl(handler);
}

CSFComboBox* SFCreateComboBox(ISFComboBoxEvent* handler)
{
    return new (std::nothrow) CSFQTComboBox(handler);
}

CSFStatic* SFCreateStatic(ISFStaticEvent* handler)
{
    return new (std::nothrow) CSFQTStatic(handler);
}

CSFNumSpiner* SFCreateNumSpiner(ISFNumSpinerEvent* handler)
{
    return new (std::nothrow) CSFQTNumSpiner(handler);
}
