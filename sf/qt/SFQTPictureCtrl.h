#pragma once
// A skin picture stretched over the control, with centred text on top.

#include "sf/SFPictureCtrl.h"
#include "sf/qt/SFQTControl.h"

#include <QLabel>
#include <QPixmap>

class CSFQTPictureCtrl : public CSFQTControl<QLabel, CSFPictureCtrl> {
    Q_OBJECT
public:
    explicit CSFQTPictureCtrl(ISFPictureCtrlEvent* handler, QWidget* parent = nullptr);
    ~CSFQTPictureCtrl() override;

    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override;
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
