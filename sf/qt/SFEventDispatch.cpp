#include "sf/qt/SFEventDispatch.h"

#include "sf/SFEventBase.h"
#include "sf/qt/SFCustomEvent.h"
#include "sf/qt/SFQtConvert.h"

#include <QCoreApplication>
#include <QWidget>
#include <new>

bool SFIsCustomEvent(const QEvent* e)
{
    return e && e->type() == CSFCustomEvent::EventType();
}

bool SFDispatchMessageMap(CSFEventBase* handler, const CSFCustomEvent& e)
{
    if (!handler)
        return false;
    const SF_MSGMAP_ENTRY* entry = SFFindMessageEntry(handler->GetSFMessageMap(), e.message, e.code,
                                                      static_cast<unsigned int>(e.lParam));
    if (!entry)
        return false;
    if (!entry->pfn)
        return true;
    switch (entry->nSig) {
    case SF_SIG_UIMSG:
    case SF_SIG_NOTIFY:
        entry->pfn(handler, e.wParam, e.lParam);
        break;
    case SF_SIG_VOID:
        entry->pfn(handler, 0, 0);
        break;
    default:
        break;
    }
    return true;
}

void SFSendCommandEvent(QObject* control, unsigned int id)
{
    if (!control || !control->parent())
        return;
    CSFCustomEvent e(SF_MSG_COMMAND, 0, 0, id);
    QCoreApplication::sendEvent(control->parent(), &e);
}

void SFSendNotifyEvent(QObject* control, unsigned int code, void* record, unsigned int id)
{
    if (!control || !control->parent())
        return;
    CSFCustomEvent e(SF_MSG_NOTIFY, code, reinterpret_cast<SF_WPARAM>(record), id);
    QCoreApplication::sendEvent(control->parent(), &e);
}

void SFSendUIMessage(void* target, unsigned int id, unsigned int wParam)
{
    QWidget* widget = SFWidgetFromHandle(target);
    if (!widget || !QCoreApplication::instance())
        return;
    CSFCustomEvent e(SF_MSG_UI, SF_MSG_UI, wParam, id);
    QCoreApplication::sendEvent(widget, &e);
}

void SFPostUIMessage(void* target, unsigned int id, unsigned int wParam)
{
    QWidget* widget = SFWidgetFromHandle(target);
    if (!widget || !QCoreApplication::instance())
        return;
    CSFCustomEvent* e = new (std::nothrow) CSFCustomEvent(SF_MSG_UI, SF_MSG_UI, wParam, id);
    if (e)
        QCoreApplication::postEvent(widget, e);
}
