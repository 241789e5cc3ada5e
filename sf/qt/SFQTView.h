#pragma once
// The container of a page: paints a colour or an image and runs its
// handler's message map for the controls placed on it.

#include "sf/SFView.h"
#include "sf/qt/SFQTControl.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

class CSFQTView : public CSFQTControl<QWidget, CSFView> {
    Q_OBJECT
public:
    explicit CSFQTView(ISFViewEvent* handler, QWidget* parent = nullptr);
    ~CSFQTView() override;

    int Create(const wchar_t* className, const wchar_t* title, unsigned long style,
               const tagRECT& rect, void* parent, unsigned int id) override;
    void SetBackground(const wchar_t* image) override;
    void GetViewClientRect(tagRECT* rect) override;
    void GetViewWindowRect(tagRECT* rect) override;
    void Screen2Client(tagPOINT* pt) override;
    void Screen2Client(tagRECT* rect) override;
    int isShow() override;
    int isWindow() override;
    int SubclassWindow() override;
    void* UnsubclassWindow() override;
    void SetRoundCornerRadius(unsigned int radius) override;
    // Alpha is the complement of the top byte: 0 is opaque black.
    void SetBGClr(unsigned int color) override;
    void SetParentWindow(void* parent, WINDOW_TYPE type) override;
    void SetFrameClr(unsigned int color, int enable) override;

    QColor BackgroundColor() const { return m_bgColor; }

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void customEvent(QEvent* e) override;

private:
    QColor m_bgColor;
    QPixmap m_bgImage;
    int m_frameEnabled;
    QColor m_frameColor;
    unsigned int m_cornerRadius;
};
