#pragma once
// Single-line edit whose commit (Return or leaving the field) reaches the
// handler exactly once.

#include "sf/SFEditCtrl.h"
#include "sf/qt/SFQTControl.h"

#include <QLineEdit>
#include <QString>

class CSFQTEditCtrl : public CSFQTControl<QLineEdit, CSFEditCtrl> {
    Q_OBJECT
public:
    explicit CSFQTEditCtrl(ISFEditCtrlEvent* handler, QWidget* parent = nullptr);
    ~CSFQTEditCtrl() override;

    int Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id,
               bool password) override;
    int SetSkin(const wchar_t* image) override;
    // Copies without a terminator and zeroes buffer[size - 1]; returns the
    // full length.
    int GetWindowTextW(wchar_t* buffer, int size) const override;
    void SetWindowTextW(const wchar_t* text) override;
    void EnableWindow(int enable) override;
    void SetReadOnly(int readOnly) override;
    void GetEditCtrolPos(tagRECT& rect) override;
    void SetRegExp() override;

public slots:
    void OnTextChange(const QString& strText);
    void OnKeyPressed();
    void editingFinishe();

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    // editingFinished signals still to be ignored after a Return commit.
    int m_commitSkip;
};
