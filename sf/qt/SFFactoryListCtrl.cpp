#include "sf/SFFactory.h"

#include "sf/qt/SFQTListCtrl.h"

#include <new>

CSFListCtrl* SFCreateListCtrl(ISFListCtrlEvent* handler)
{
    return new (std::nothrow) CSFQTListCtrl(handler);
}
