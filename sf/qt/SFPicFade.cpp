#include "sf/qt/SFPicFade.h"

#include <QEasingCurve>
#include <QWidget>
#include <new>

CSFPicFade::CSFPicFade(QWidget* target)
    : m_target(target), m_animation(nullptr), m_opacity(1.0), m_enabled(0)
{
}

void CSFPicFade::Finished(QObject* sender)
{
    auto* finished = qobject_cast<QPropertyAnimation*>(sender);
    if (!finished)
        finished = m_animation;
    if (finished == m_animation)
        m_animation = nullptr;
    if (finished)
        finished->deleteLater();
}

QPropertyAnimation* CSFPicFade::Replace()
{
    if (!m_enabled)
        return nullptr;
    if (m_animation && m_animation->state() == QAbstractAnimation::Running &&
        !m_target->isEnabled())
        return nullptr;
    // Qt stops a running animation of the same property when the next one
    // starts, and a stopped one never reports finished: retire it here.
    if (m_animation) {
        QPropertyAnimation* older = m_animation;
        m_animation = nullptr;
        older->stop();
        older->deleteLater();
    }
    auto* animation = new (std::nothrow)
        QPropertyAnimation(m_target, QByteArrayLiteral("picTransparence"), m_target);
    if (!animation)
        return nullptr;
    animation->setDuration(300);
    animation->setKeyValueAt(0.0, 1.0f);
    animation->setKeyValueAt(0.5, 0.5f);
    animation->setKeyValueAt(1.0, 1.0f);
    animation->setEasingCurve(QEasingCurve::OutInBack);
    m_animation = animation;
    return animation;
}
