#pragma once
// Label that paints its own text with DrawText-like flags and grows to fit
// the text it is given; its text colour can flash.

#include "sf/SFStatic.h"
#include "sf/qt/SFQTControl.h"

#include <QColor>
#include <QLabel>
#include <QPointer>

class QPropertyAnimation;

class CSFQTStatic : public CSFQTControl<QLabel, CSFStatic> {
    Q_OBJECT
    Q_PROPERTY(QColor Color READ TextColor WRITE SetColorProperty)
public:
    explicit CSFQTStatic(ISFStaticEvent* handler, QWidget* parent = nullptr);
    ~CSFQTStatic() override;

    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
    void MoveWindow(tagRECT* rect) override;
    int GetStaticText(wchar_t* buffer, int size) const override;
    void SetStaticText(const wchar_t* text) override;
    void SetTextAlignFlag(unsigned int flags) override;
    unsigned int GetTextAlignFlag() override;
    void SetTextColor(unsigned int color) override;
    void SetTextBold(int bold) override;
    void GetTextSize(int& w, int& h) override;
    void SetBgColor(unsigned int color, int enable) override;
    void SetTextSize(int pixels) override;
    void GetStaticCtrolPos(tagRECT& rect) override;
    void SetTextOffset(int offset) override;
    void SetWordWrap(int wrap) override;
    int GetWordWrap() override;
    void SetWrapAnywhere(int wrap) override;
    int GetWrapAnywher() override;
    void SetToolTipText(const wchar_t* text) override;
    void SetTooltipEnable(int enable) override;
    tagRECT GetGeometry() override;
    void StartTwinkle() override;

    QColor TextColor() const { return m_textColor; }
    void SetColorProperty(const QColor& color);
    QColor BackgroundColor() const { return m_bgColor; }
    int FontPixels() const { return m_fontPixels; }
    bool TwinkleRunning() const;
    // Length of one flash loop in ms; tests shorten it.
    void SetTwinkleDuration(int ms) { m_twinkleMs = ms; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    // The font the text is painted with: bold or normal at m_fontPixels.
    QFont PaintFont() const;
    void SetTextFlag(int flag, bool on);
    // Widens and heightens from the top-left so that the text fits.
    void GrowToText(const QFont& font);

    QColor m_textColor;
    QColor m_bgColor;
    int m_bold;
    int m_textFlags;
    int m_fontPixels;
    int m_bgEnabled;
    int m_textOffset;
    int m_wordWrap;
    int m_wrapAnywhere;
    int m_tooltipEnabled;
    QPointer<QPropertyAnimation> m_animation;
    int m_twinkleMs;
};
