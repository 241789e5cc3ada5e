#pragma once
// Number spinner skinned by a style sheet. Unlike the combo box it reports
// every change, also those made from code.

#include "sf/SFNumSpiner.h"
#include "sf/qt/SFQTControl.h"

#include <QSpinBox>

class CSFQTNumSpiner : public CSFQTControl<QSpinBox, CSFNumSpiner> {
    Q_OBJECT
public:
    explicit CSFQTNumSpiner(ISFNumSpinerEvent* handler, QWidget* parent = nullptr);
    ~CSFQTNumSpiner() override;

    int Create(const wchar_t* text, const tagRECT& rect, void* parent, unsigned int id) override;
    void SetRange(int min, int max) override;
    void GetRange(int& min, int& max) override;
    void SetStep(int step) override;
    int GetStep() override;
    void SetCurrentNum(int value) override;
    int GetCurrentNum() override;
    void StepUp() override;
    void StepDown() override;
    int SetSkin(ImageNumSpinerStyle* style) override;
    void EnableWindow(int enable) override;
    void SetCircleStep(int circle) override;
    void SetOriginStyle(int origin) override;

    // The nine rules of the skin, with the skin path before every file name.
    static QString SkinStyleSheet(const ImageNumSpinerStyle& style);

public slots:
    void OnValueChanged(int value);

private:
    int m_originStyle;
};
