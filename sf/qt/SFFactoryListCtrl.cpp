#include "SFFactory.h"

#include "SFQTListCtrl.h"

#include <new>

CSFListCtrl* SFCreateListCtrl(ISFListCtrlEvent* handler)
{
    return new (std::nothrow) CSFQTListCtrl(handler);
}
