#pragma once
// The short dip of a skinned control's picture on hover and press. The
// control keeps the "picTransparence" property and the slot that hears the
// end of a dip; this keeps the opacity and the running animation.

#include <QObject>
#include <QPropertyAnimation>

class QWidget;

class CSFPicFade {
public:
    explicit CSFPicFade(QWidget* target);

    void Enable(int enable) { m_enabled = enable; }
    double Opacity() const { return m_opacity; }
    void SetOpacity(double opacity) { m_opacity = opacity; }
    QPropertyAnimation* Animation() const { return m_animation; }

    // Starts a new dip, 1.0 -> 0.5 -> 1.0 over 300 ms, whose end reaches
    // onFinished. Nothing while switched off, nor while a disabled control
    // is still dipping.
    template <class Control>
    void Run(Control* control, void (Control::*onFinished)())
    {
        QPropertyAnimation* animation = Replace();
        if (!animation)
            return;
        QObject::connect(animation, &QPropertyAnimation::finished, control, onFinished);
        animation->start(QAbstractAnimation::KeepWhenStopped);
    }

    // For the control's slot: frees the dip that ended (the sender, or the
    // current one when called directly).
    void Finished(QObject* sender);

private:
    // Retires the current dip and makes the next, unstarted; null for none.
    QPropertyAnimation* Replace();

    QWidget* m_target;
    QPropertyAnimation* m_animation;
    double m_opacity;
    int m_enabled;
};
