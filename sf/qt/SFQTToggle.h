#pragma once
// What the image toggle and the image check box share: eight skin pictures
// picked by state and check, and a release inside that flips the check and
// reports it. Qt's own check follows m_checked, never the other way round.

#include "platform/WinTypes.h"
#include "sf/ImageRadioBox.h"
#include "sf/qt/SFQTControl.h"
#include "sf/qt/SFToggleSkin.h"

#include <QPoint>

class QEnterEvent;
class QEvent;
class QMouseEvent;
class QWidget;

// QtButton is the Qt button shown, Facade the abstract control realised.
template <class QtButton, class Facade>
class CSFQTToggle : public CSFQTControl<QtButton, Facade> {
public:
    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
    int SetSkin(ImageRadioBox* style) override;
    void SetCheck(int check) override;
    int GetCheck() const override;
    int GetWindowTextW(wchar_t* buffer, int size) const override;
    void SetWindowTextW(const wchar_t* text) override;

    int State() const { return m_state; }

    // Tells the page of a flip by a release; the control may be gone after.
    virtual void OnClicked(bool checked, QPoint pt) = 0;

protected:
    // kind names the control at Create: "<kind>_<id>".
    template <class Handler>
    CSFQTToggle(Handler* handler, QWidget* parent, const char* kind)
        : CSFQTControl<QtButton, Facade>(handler, parent), m_state(CSFToggleSkin::StateNormal),
          m_checked(0), m_kind(kind)
    {
        this->setCheckable(true);
    }

    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void nextCheckState() override;

    // Keeps the Qt check, which screen readers report, equal to m_checked.
    void SyncQtCheck();

    int m_state;
    unsigned char m_checked;
    CSFToggleSkin m_skin;

private:
    const char* m_kind;
};
