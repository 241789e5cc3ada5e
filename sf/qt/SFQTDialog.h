#pragma once
// Every dialog of the program: a frameless QDialog that paints its own frame.

#include "sf/qt/SFQTSkinWindow.h"

#include <QDialog>

class CSFQTDialog : public CSFQTSkinWindow<QDialog> {
    Q_OBJECT
public:
    explicit CSFQTDialog(ISFDialogEvent* handler, QWidget* parent = nullptr);
    ~CSFQTDialog() override;

    // 1 accepted, 2 rejected or closed.
    int DoModalDlg() override;
    void MFCOK() override;
    void MFCCancel() override;
    // Only 16, the close message, does anything.
    void SendDlgMessage(unsigned int msg, unsigned int wParam, long lParam) override;
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
    void EmitClose() override;
    void EmitMaximized() override;
    void EmitMinimized() override;
    void EmitNormal() override;
};
