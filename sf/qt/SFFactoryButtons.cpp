#include "sf/SFFactory.h"

#include "sf/qt/SFQTButton.h"
#include "sf/qt/SFQTCheckBox.h"
#include "sf/qt/SFQTRadioBox.h"

#include <new>

CSFButton* SFCreateButton(ISFButtonEvent* handler)
{
    return new (std::nothrow) CSFQTButton(handler);
}

CSFCheckBox* SFCreateCheckBox(ISFCheckBoxEvent* handler)
{
    return new (std::nothrow) CSFQTCheckBox(handler);
}

CSFRadioBox* SFCreateRadioBox(ISFRadioBoxEvent* handler)
{
    return new (std::nothrow) CSFQTRadioBox(handler);
}
