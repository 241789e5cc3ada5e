#pragma once
// Every dialog of the program: a frameless QDialog that paints its own frame.

#include "sf/qt/SFQTSkinWindow.h"

#include <QDialog>

class CSFQTDialog : public CSFQTSkinWindow<QDialog, CSFQTDialog> {
    Q_OBJECT
public:
    explicit CSFQTDialog(ISFDialogEvent* handler, QWidget* parent = nullptr);
    ~CSFQTDialog() override;

    // 1 accepted, 2 rejected or closed.
    int DoModalDlg() override;
    int IsDlgZoomed() override;
    int ModifyDlgStyleEx(unsigned long remove, unsigned long add, unsigned int flags) override;
    void MacShowMaximize(bool maximize) override;

    bool eventFilter(QObject* watched, QEvent* e) override;

public slots:
    void OnSwitchSize();
    void accept() override;
    void reject() override;

signals:
    void sgnClose();
    void sgnMaximized();
    void sgnMinimized();
    void sgnNormal();

protected:
    void customEvent(QEvent* e) override;
};
