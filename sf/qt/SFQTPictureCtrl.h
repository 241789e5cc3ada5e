#pragma once
// A skin picture stretched over the control, with centred text on top.

#include "sf/SFPictureCtrl.h"

#include <QLabel>
#include <QPixmap>

class CSFQTPictureCtrl : public QLabel, public CSFPictureCtrl {
    Q_OBJECT
public:
    explicit CSFQTPictureCtrl(ISFPictureCtrlEvent* handler, QWidget* parent = nullptr);
    ~CSFQTPictureCtrl() override;

    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
    void SetCursor() override;
    int SetSkin() override;
    void ShowWindow(int show) override;
    void MoveWindow(tagRECT* rect) override;
    void MoveWindow(int x, int y, int w, int h) override;
    void SetImage(const wchar_t* file) override;
    void SetDrawPicture(int draw) override;
    void* GetHWnd() override;
    void SetWindowTextW(const wchar_t* text) override;

    const QPixmap& Image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    QPixmap m_image;
};
