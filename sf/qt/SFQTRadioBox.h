#pragma once
// The image toggle: a release inside flips it and reports; grouping several
// into a real radio group is the page's business.

#include "SFRadioBox.h"
#include "SFToggleSkin.h"

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QRadioButton>

class QPropertyAnimation;

class CSFQTRadioBox : public QRadioButton, public CSFRadioBox {
    Q_OBJECT
    Q_PROPERTY(float picTransparence READ GetPicTransparence WRITE SetPicTransparence)
public:
    explicit CSFQTRadioBox(ISFRadioBoxEvent* handler, QWidget* parent = nullptr);
    ~CSFQTRadioBox() override;

    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
    void SetCursor() override;
    int SetSkin(ImageRadioBox* style) override;
    void ShowWindow(int show) override;
    void MoveWindow(tagRECT* rect) override;
    void MoveWindow(int x, int y, int w, int h) override;
    void SetCheck(int check) override;
    int GetCheck() const override;
    int GetWindowTextW(wchar_t* buffer, int size) const override;
    void SetWindowTextW(const wchar_t* text) override;
    void SetBoldHeavy(int bold) override;
    void SetTextColor(unsigned long color) override;
    void SetTextOffset(int offset) override;
    void SetTextAlign(unsigned long flags) override;
    void GetRadioClientRect(tagRECT* rect) override;
    void GetRadioWindowRect(tagRECT* rect) override;
    void SetImageInfo(void*, void*) override;
    void SetBkColor(unsigned long checked, unsigned long unchecked) override;
    void SetBkRect(bool full) override;
    void SetTooltipEnable(int enable) override;
    void SetToolTipText(const wchar_t* text) override;
    int IsWindowVisible() override;
    int IsWindow() override;
    void Invalidate(int erase) override;
    void SetEnabled(int enable) override;
    void EnableAnimation(int enable) override;
    void SetExpendBGImge(int expand) override;
    void SetIconAlign(unsigned long align) override;

    float GetPicTransparence() const { return static_cast<float>(m_opacity); }
    void SetPicTransparence(float opacity);

    int State() const { return m_state; }
    int TextFlags() const { return m_textFlags; }
    int TextOffset() const { return m_textOffset; }
    const QFont& TextFont() const { return m_font; }
    QPropertyAnimation* Animation() const { return m_animation; }

public Q_SLOTS:
    void OnClicked(bool checked, QPoint pt);
    void OnAnimationPicTransFinished();

protected:
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void changeEvent(QEvent* e) override;
    void nextCheckState() override;

private:
    void RunAnimation();
    // Keeps the Qt check, which screen readers report, equal to m_checked.
    void SyncQtCheck();

    int m_state;
    unsigned char m_checked;
    unsigned char m_bkFull;
    QFont m_font;
    int m_fontWeight;
    QColor m_bkChecked;
    QColor m_bkUnchecked;
    QColor m_textColor;
    int m_textOffset;
    int m_textFlags;
    int m_iconAlign;
    CSFToggleSkin m_skin;
    QPropertyAnimation* m_animation;
    double m_opacity;
    int m_animationEnabled;
    int m_expandBg;
    int m_tooltipEnabled;
};
