#include "SFPicFade.h"

#include <QEasingCurve>
#include <QPropertyAnimation>
#include <new>

QPropertyAnimation* SFCreatePicFade(QObject* target)
{
    auto* animation = new (std::nothrow) QPropertyAnimation(target, QByteArrayLiteral("picTransparence"), target);
    if (!animation)
        return nullptr;
    animation->setDuration(300);
    animation->setKeyValueAt(0.0, 1.0f);
    animation->setKeyValueAt(0.5, 0.5f);
    animation->setKeyValueAt(1.0, 1.0f);
    animation->setEasingCurve(QEasingCurve::OutInBack);
    return animation;
}
