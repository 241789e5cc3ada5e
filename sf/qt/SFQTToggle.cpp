#include "sf/qt/SFQTToggle.h"

#include "sf/SFCheckBox.h"
#include "sf/SFRadioBox.h"
#include "sf/qt/SFQtConvert.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>

template <class QtButton, class Facade>
int CSFQTToggle<QtButton, Facade>::Create(const wchar_t* text, unsigned long style,
                                          const tagRECT& rect, void* parent, unsigned int id)
{
    const QString label = SFToQString(text);
    this->setText(label);
    this->Place(parent, SFRectForCreate(rect), id, m_kind, label);
    SFApplyVisibleStyle(this, style);
    return 1;
}

template <class QtButton, class Facade>
int CSFQTToggle<QtButton, Facade>::SetSkin(ImageRadioBox* style)
{
    if (!m_skin.Load(style))
        return 0;
    this->update();
    return 1;
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::SetCheck(int check)
{
    m_state = CSFToggleSkin::StateNormal;
    m_checked = check != 0 ? 1 : 0;
    SyncQtCheck();
    this->update();
}

template <class QtButton, class Facade>
int CSFQTToggle<QtButton, Facade>::GetCheck() const
{
    return m_checked;
}

template <class QtButton, class Facade>
int CSFQTToggle<QtButton, Facade>::GetWindowTextW(wchar_t* buffer, int size) const
{
    if (!buffer || size <= 0)
        return 0;
    const std::wstring value = this->text().toStdWString();
    const int count = std::min(static_cast<int>(value.size()), size);
    std::copy(value.begin(), value.begin() + count, buffer);
    return count;
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::SetWindowTextW(const wchar_t* text)
{
    this->SetLabel(text);
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::enterEvent(QEnterEvent* e)
{
    m_state = CSFToggleSkin::StateHover;
    QtButton::enterEvent(e);
    this->update();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::leaveEvent(QEvent* e)
{
    m_state = CSFToggleSkin::StateNormal;
    QtButton::leaveEvent(e);
    this->update();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::mousePressEvent(QMouseEvent* e)
{
    m_state = CSFToggleSkin::StatePressed;
    this->update();
    QtButton::mousePressEvent(e);
    // Presses outside Qt's own hit area are still the control's, not the page's.
    e->accept();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::mouseReleaseEvent(QMouseEvent* e)
{
    m_state = CSFToggleSkin::StateNormal;
    const QPoint pt = e->position().toPoint();
    if (this->rect().contains(pt)) {
        m_checked = m_checked ? 0 : 1;
        SyncQtCheck();
        QPointer<QtButton> alive(this);
        OnClicked(m_checked != 0, pt);
        if (!alive)
            return;
    }
    QtButton::mouseReleaseEvent(e);
    e->accept();
    this->update();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::mouseDoubleClickEvent(QMouseEvent* e)
{
    e->accept();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::nextCheckState()
{
    // m_checked decides; Qt's own toggling on click must not drift from it.
    SyncQtCheck();
}

template <class QtButton, class Facade>
void CSFQTToggle<QtButton, Facade>::SyncQtCheck()
{
    const QSignalBlocker block(this);
    this->setChecked(m_checked != 0);
}

// The framework's two toggles.
template class CSFQTToggle<QRadioButton, CSFRadioBox>;
template class CSFQTToggle<QPushButton, CSFCheckBox>;
