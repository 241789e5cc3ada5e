#pragma once
// The calculator panel hosted as on the channel page, in a shown window with
// the real skin, style sheet and English dictionary, driven by real input.

#include <QString>
#include <QWidget>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "CalculatorBottom.h"
#include "SFButton.h"
#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFNumSpiner.h"
#include "SFRadioBox.h"
#include "SFStatic.h"

class CSFQTStatic;
class CSFView;

// Public, so that table rows can drive the panel through the fixture.
class CalculatorPanelTest : public ::testing::Test {
public:
    static void SetUpTestSuite();
    void SetUp() override;
    void TearDown() override;

    // Rebuilds the panel, e.g. after the totals or a setting changed.
    void CreatePanel(int nChannels = 0, double dTotalBitrate = 0.0);
    void DestroyPanel();

    template <class Control>
    static QWidget* W(Control* pControl)
    {
        return dynamic_cast<QWidget*>(pControl);
    }
    static CSFQTStatic* Q(CSFStatic* pStatic);

    static std::string Text(CSFStatic* pStatic);
    static std::string Text(CSFEditCtrl* pEdit);
    static std::string ItemText(CSFComboBox* pCombo, int nIndex);
    static bool Visible(QWidget* pWidget);
    template <class Control>
    static bool Visible(Control* pControl)
    {
        return Visible(W(pControl));
    }

    std::string Caption() const;
    std::string Value() const;

    // Real input.
    void ClickRadio(CSFRadioBox* pRadio);
    void ClickCalculate();
    void ChooseText(CSFComboBox* pCombo, const std::string& strItem);
    void Type(CSFEditCtrl* pEdit, const QString& text);
    void ReplaceText(CSFEditCtrl* pEdit, const QString& text);
    void ClearText(CSFEditCtrl* pEdit);
    void EnterNumber(CSFNumSpiner* pSpin, int nValue);
    void SwitchTo(int nMode);

    // The value label has stopped flashing; flashes are shortened for tests.
    void WaitTwinkleDone();
    bool Twinkling() const;

    std::unique_ptr<QWidget> m_host;
    CCalculatorBottom* m_pPanel = nullptr;
    CSFView* m_pView = nullptr;
};
