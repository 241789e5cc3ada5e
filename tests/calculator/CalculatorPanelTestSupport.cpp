#include "CalculatorPanelTestSupport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

#include "LangString.h"
#include "QtWait.h"
#include "SFApplication.h"
#include "SFFactory.h"
#include "SFQTStatic.h"
#include "SFView.h"
#include "VexUISetting.h"

namespace {

const int kPanelWidth = 1050;
const int kPanelHeight = 287;

} // namespace

void CalculatorPanelTest::SetUpTestSuite()
{
    SFSetSkinPath(QStringLiteral(TALLIX_APP_DIR "/Bin/Skin/").toStdWString().c_str());
    QFile css(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    if (css.open(QIODevice::ReadOnly | QIODevice::Text))
        qApp->setStyleSheet(QString::fromUtf8(css.readAll()));
    g_nLanguage = 0;
    SFSetLanguageDirForTesting(TALLIX_APP_DIR);
    SFResetLanguageForTesting();
}

void CalculatorPanelTest::SetUp()
{
    g_UISetting.m_nRecordblePersentage = 90;
    CreatePanel();
}

void CalculatorPanelTest::TearDown()
{
    DestroyPanel();
    g_UISetting.m_nRecordblePersentage = 90;
}

void CalculatorPanelTest::CreatePanel(int nChannels, double dTotalBitrate)
{
    DestroyPanel();
    m_host = std::make_unique<QWidget>();
    m_host->setFixedSize(kPanelWidth, kPanelHeight);
    m_pPanel = new CCalculatorBottom(nullptr);
    m_pPanel->SetTotals(nChannels, dTotalBitrate);
    m_pView = SFCreateView(m_pPanel);
    m_pView->SetBackground(L"BottomBg(2).png");
    m_pPanel->SetPageRect(RECT{ 25, 393, 25 + kPanelWidth, 393 + kPanelHeight });
    m_pView->Create(L"", L"", 0x10000000, RECT{ 0, 0, kPanelWidth - 1, kPanelHeight - 1 },
                    m_host.get(), 0);
    m_pView->ShowWindow(1);
    m_host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_host.get()));
    // A flash begun while the panel was made is restarted short.
    if (CSFQTStatic* value = Q(m_pPanel->m_pStaticResultValue)) {
        value->SetTwinkleDuration(20);
        if (value->TwinkleRunning())
            value->StartTwinkle();
    }
    WaitTwinkleDone();
}

void CalculatorPanelTest::DestroyPanel()
{
    // The view reports its end to the panel, so the panel goes last.
    m_host.reset();
    m_pView = nullptr;
    delete m_pPanel;
    m_pPanel = nullptr;
}

CSFQTStatic* CalculatorPanelTest::Q(CSFStatic* pStatic)
{
    return dynamic_cast<CSFQTStatic*>(pStatic);
}

std::string CalculatorPanelTest::Text(CSFStatic* pStatic)
{
    wchar_t szText[512] = {};
    if (pStatic)
        pStatic->GetStaticText(szText, 512);
    return QString::fromWCharArray(szText).toStdString();
}

std::string CalculatorPanelTest::Text(CSFEditCtrl* pEdit)
{
    auto* edit = dynamic_cast<QLineEdit*>(pEdit);
    return edit ? edit->text().toStdString() : std::string("<none>");
}

std::string CalculatorPanelTest::ItemText(CSFComboBox* pCombo, int nIndex)
{
    auto* combo = dynamic_cast<QComboBox*>(pCombo);
    return combo ? combo->itemText(nIndex).toStdString() : std::string("<none>");
}

bool CalculatorPanelTest::Visible(QWidget* pWidget)
{
    return pWidget && pWidget->isVisible();
}

std::string CalculatorPanelTest::Caption() const
{
    return Text(m_pPanel->m_pStaticResultCaption);
}

std::string CalculatorPanelTest::Value() const
{
    return Text(m_pPanel->m_pStaticResultValue);
}

void CalculatorPanelTest::ClickRadio(CSFRadioBox* pRadio)
{
    QWidget* radio = W(pRadio);
    ASSERT_NE(radio, nullptr);
    QTest::mouseClick(radio, Qt::LeftButton, Qt::NoModifier, QPoint(40, radio->height() / 2));
}

void CalculatorPanelTest::ClickCalculate()
{
    QWidget* button = W(m_pPanel->m_pBtnCalculate);
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
}

void CalculatorPanelTest::ChooseText(CSFComboBox* pCombo, const std::string& strItem)
{
    auto* combo = dynamic_cast<QComboBox*>(pCombo);
    ASSERT_NE(combo, nullptr);
    ASSERT_TRUE(combo->isVisible());
    const int nIndex = combo->findText(QString::fromStdString(strItem));
    ASSERT_GE(nIndex, 0) << strItem;
    QTest::mouseClick(combo, Qt::LeftButton, Qt::NoModifier, QPoint(20, combo->height() / 2));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(combo->view()->window()));
    QAbstractItemView* view = combo->view();
    const QModelIndex item = combo->model()->index(nIndex, 0);
    view->scrollTo(item);
    const QRect rect = view->visualRect(item) & view->viewport()->rect();
    ASSERT_FALSE(rect.isEmpty());
    // A popup that has just opened ignores a release for a double-click interval.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
    EXPECT_EVENTUALLY(!view->isVisible());
    EXPECT_EQ(combo->currentIndex(), nIndex);
}

void CalculatorPanelTest::Type(CSFEditCtrl* pEdit, const QString& text)
{
    auto* edit = dynamic_cast<QLineEdit*>(pEdit);
    ASSERT_NE(edit, nullptr);
    ASSERT_TRUE(edit->isVisible());
    edit->setFocus();
    edit->end(false);
    QTest::keyClicks(edit, text);
}

void CalculatorPanelTest::ReplaceText(CSFEditCtrl* pEdit, const QString& text)
{
    ClearText(pEdit);
    Type(pEdit, text);
}

void CalculatorPanelTest::ClearText(CSFEditCtrl* pEdit)
{
    auto* edit = dynamic_cast<QLineEdit*>(pEdit);
    ASSERT_NE(edit, nullptr);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
}

void CalculatorPanelTest::EnterNumber(CSFNumSpiner* pSpin, int nValue)
{
    auto* spin = dynamic_cast<QSpinBox*>(pSpin);
    ASSERT_NE(spin, nullptr);
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QString::number(nValue));
    QTest::keyClick(spin, Qt::Key_Return);
    EXPECT_EQ(spin->value(), nValue);
}

void CalculatorPanelTest::SwitchTo(int nMode)
{
    CSFRadioBox* radios[] = { m_pPanel->m_pRadioDiskRequirement, m_pPanel->m_pRadioRecordingDay,
                              m_pPanel->m_pRadioRaid, m_pPanel->m_pRadioRaid2 };
    ClickRadio(radios[nMode]);
    EXPECT_EQ(m_pPanel->GetMode(), nMode);
}

void CalculatorPanelTest::WaitTwinkleDone()
{
    EXPECT_EVENTUALLY(!Twinkling());
}

bool CalculatorPanelTest::Twinkling() const
{
    CSFQTStatic* value = Q(m_pPanel->m_pStaticResultValue);
    return value && value->TwinkleRunning();
}
