#include "sf/SFFactory.h"

#include "sf/ISFListRowBinder.h"
#include "sf/qt/SFQTListCtrl.h"

#include <new>
#include <utility>

CSFListCtrl* SFCreateListCtrl(ISFListCtrlEvent* handler)
{
    return new (std::nothrow) CSFQTListCtrl(handler);
}

void SFSetListRowBinder(CSFListCtrl* list, std::unique_ptr<ISFListRowBinder> binder)
{
    if (CSFQTListCtrl* qtList = dynamic_cast<CSFQTListCtrl*>(list))
        qtList->SetRowBinder(std::move(binder));
}
