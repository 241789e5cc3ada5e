#pragma once
// The image toggle: a release inside flips it and reports; grouping several
// into a real radio group is the page's business.

#include "sf/SFRadioBox.h"
#include "sf/qt/SFPicFade.h"
#include "sf/qt/SFQTToggle.h"

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QRadioButton>

class CSFQTRadioBox : public CSFQTToggle<QRadioButton, CSFRadioBox> {
    Q_OBJECT
    Q_PROPERTY(float picTransparence READ GetPicTransparence WRITE SetPicTransparence)
public:
    explicit CSFQTRadioBox(ISFRadioBoxEvent* handler, QWidget* parent = nullptr);
    ~CSFQTRadioBox() override;

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

    float GetPicTransparence() const { return static_cast<float>(m_fade.Opacity()); }
    void SetPicTransparence(float opacity);

    int TextFlags() const { return m_textFlags; }
    int TextOffset() const { return m_textOffset; }
    const QFont& TextFont() const { return m_font; }
    QPropertyAnimation* Animation() const { return m_fade.Animation(); }

public Q_SLOTS:
    void OnClicked(bool checked, QPoint pt) override;
    void OnAnimationPicTransFinished();

protected:
    void enterEvent(QEnterEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    void RunAnimation();

    unsigned char m_bkFull;
    QFont m_font;
    int m_fontWeight;
    QColor m_bkChecked;
    QColor m_bkUnchecked;
    QColor m_textColor;
    int m_textOffset;
    int m_textFlags;
    int m_iconAlign;
    CSFPicFade m_fade;
    int m_expandBg;
    int m_tooltipEnabled;
};
