#pragma once
// The image check box, on the model of the image toggle: a release inside
// flips it and reports. No page creates one.

#include "sf/SFCheckBox.h"
#include "sf/qt/SFQTToggle.h"

#include <QPoint>
#include <QPushButton>

class CSFQTCheckBox : public CSFQTToggle<QPushButton, CSFCheckBox> {
    Q_OBJECT
public:
    explicit CSFQTCheckBox(ISFCheckBoxEvent* handler, QWidget* parent = nullptr);
    ~CSFQTCheckBox() override;

    void EnableWindow(int enable) override;

public Q_SLOTS:
    void OnClicked(bool checked, QPoint pt) override;

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    int m_textFlags;
};
