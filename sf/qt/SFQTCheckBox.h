#pragma once
// The image check box, on the model of the image toggle: a release inside
// flips it and reports. No page creates one.

#include "SFCheckBox.h"
#include "SFToggleSkin.h"

#include <QPoint>
#include <QPushButton>

class CSFQTCheckBox : public QPushButton, public CSFCheckBox {
    Q_OBJECT
public:
    explicit CSFQTCheckBox(ISFCheckBoxEvent* handler, QWidget* parent = nullptr);
    ~CSFQTCheckBox() override;

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
    void EnableWindow(int enable) override;

    int State() const { return m_state; }

public Q_SLOTS:
    void OnClicked(bool checked, QPoint pt);

protected:
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void nextCheckState() override;

private:
    void SyncQtCheck();

    int m_state;
    unsigned char m_checked;
    int m_textFlags;
    CSFToggleSkin m_skin;
};
