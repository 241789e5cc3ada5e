#include "sf/qt/SFCustomEvent.h"

QEvent::Type CSFCustomEvent::EventType()
{
    static const QEvent::Type type = static_cast<QEvent::Type>(QEvent::registerEventType(-1));
    return type;
}

namespace {
// Takes the number before main runs.
const QEvent::Type g_registeredType = CSFCustomEvent::EventType();
} // namespace

CSFCustomEvent::CSFCustomEvent(unsigned int message_, unsigned int code_, SF_WPARAM wParam_,
                               SF_LPARAM lParam_)
    : QEvent(EventType()), message(message_), code(code_), wParam(wParam_), lParam(lParam_)
{
    (void)g_registeredType;
}

CSFCustomEvent::~CSFCustomEvent()
{
}
