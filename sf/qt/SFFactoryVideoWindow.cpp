#include "sf/SFVideoWindowFactory.h"
#include "sf/qt/SFQTVideoWindow.h"
#include "sf/qt/SFQtConvert.h"

#include <new>

CSFVideoWindow* SFCreateVideoWindow(void* parent, ISFVideoWindowEvent* handler, int rows,
                                    int columns)
{
    auto* window = new (std::nothrow) CSFQTVideoWindow(handler, SFWidgetFromHandle(parent));
    if (window) {
        window->SetRows(rows);
        window->SetColumns(columns);
    }
    return window;
}

void SFDestroyControl(CSFVideoWindow* control)
{
    delete control;
}
