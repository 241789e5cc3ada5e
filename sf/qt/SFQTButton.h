#pragma once
// The image button of every page: one of five skin pictures by state, with
// optional text on top.

#include "sf/SFButton.h"
#include "sf/qt/SFPicFade.h"
#include "sf/qt/SFQTControl.h"

#include <QColor>
#include <QPixmap>
#include <QPushButton>

class CSFQTButton : public CSFQTControl<QPushButton, CSFButton> {
    Q_OBJECT
    Q_PROPERTY(float picTransparence READ GetPicTransparence WRITE SetPicTransparence)
public:
    // Values of m_state; 3 is never used.
    enum State { StateHover = 0, StatePressed = 1, StateNormal = 2, StateSelected = 4 };

    explicit CSFQTButton(ISFButtonEvent* handler, QWidget* parent = nullptr);
    ~CSFQTButton() override;

    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
    int SetSkin(ImageButtonStyle* style) override;
    void EnableWindow(int enable) override;
    void SetTextColor(unsigned long color) override;
    void SetTextOffset(int x, int y) override;
    void SetTextAlign(unsigned int flags) override;
    void SetTooltipEnable(int enable) override;
    void SetToolTipText(const wchar_t* text) override;
    int GetWindowTextW(wchar_t* buffer, int size) const override;
    void SetWindowTextW(const wchar_t* text) override;
    void GetBTNWindowRect(tagRECT* rect) override;
    void EnableAnimation(int enable) override;
    bool IsEnabled() override;
    void SetBtnState(int state) override;
    void SetIconPos(ICON_POS pos) override;

    // Marks the page's current button: its idle picture becomes the selected one.
    void SetSelected(bool selected);

    float GetPicTransparence() const { return static_cast<float>(m_fade.Opacity()); }
    void SetPicTransparence(float opacity);

    int State() const { return m_state; }
    bool Selected() const { return m_selected != 0; }
    int TextFlags() const { return m_textFlags; }
    int Elide() const { return m_elide; }
    QPropertyAnimation* Animation() const { return m_fade.Animation(); }

public Q_SLOTS:
    void OnClicked();
    void OnAnimationPicTransFinished();

protected:
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    void TakeState(int state);
    void RunAnimation();
    const QPixmap& Picture(int state) const;
    const QPixmap& PictureToPaint() const;

    int m_textFlags;
    int m_elide;
    int m_state;
    unsigned char m_selected;
    unsigned char m_keepSelected;
    QColor m_textColor;
    int m_textOffsetX;
    int m_textOffsetY;
    int m_tooltipEnabled;
    QPixmap m_picHover;
    QPixmap m_picPressed;
    QPixmap m_picNormal;
    QPixmap m_picDisabled;
    QPixmap m_picSelected;
    CSFPicFade m_fade;
    ICON_POS m_iconPos;
};
