#include "sf/qt/SFKeyMap.h"

namespace {

// Keys both windows translate alike; 0 when the key is not one of them.
unsigned int CommonKey(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Space:
        return 32;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_F1:
        return 112;
    default:
        return 0;
    }
}

} // namespace

unsigned int SFMapKeyModifiers(Qt::KeyboardModifiers modifiers)
{
    unsigned int result = 0;
    if (modifiers & Qt::ShiftModifier)
        result = 16;
    if (modifiers & Qt::ControlModifier)
        result = 17;
    if (modifiers & Qt::AltModifier)
        result |= 18;
    return result;
}

unsigned int SFMapDialogKey(int qtKey)
{
    if (qtKey == Qt::Key_Return)
        return 13;
    return CommonKey(qtKey);
}

unsigned int SFMapMainWindowKey(int qtKey)
{
    if (qtKey == Qt::Key_F4)
        return 115;
    const unsigned int common = CommonKey(qtKey);
    return common ? common : static_cast<unsigned int>(qtKey);
}
