// Shows the calculator panel alone, at its size on the channel page, so its
// look can be checked without the rest of the program.
//
//   calculator_demo [--channels N] [--bitrate KBPS] [--mode 0-3] [--lang en|cn]
//                   [--percent P] [--weekly] [--custom TEXT] [--tb]
//                   [--screenshot FILE]

#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/SFComboBox.h"
#include "sf/SFControlTypes.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFRadioBox.h"
#include "sf/SFView.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQTStatic.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QWidget>
#include <string>

namespace {

const int kPanelWidth = 1050;
const int kPanelHeight = 287;
const int kLastEntry = -1;

// A control of the panel by the name the framework gives it from its id.
template <class Control>
Control* FindById(QWidget* pHost, const char* pszKind, unsigned int nID)
{
    const QString name = QString::fromLatin1(pszKind) + QLatin1Char('_') + QString::number(nID);
    return dynamic_cast<Control*>(pHost->findChild<QWidget*>(name));
}

// A choice as the user makes it: the combo moves, then the panel hears of it.
void Choose(CCalculatorBottom& panel, QWidget* pHost, unsigned int nID, int nIndex)
{
    CSFComboBox* pCombo = FindById<CSFComboBox>(pHost, "combo", nID);
    if (nIndex == kLastEntry)
        nIndex = pCombo ? pCombo->GetCount() - 1 : -1;
    if (!pCombo || nIndex < 0 || nIndex >= pCombo->GetCount())
        return;
    pCombo->SetCurSel(nIndex);
    panel.SelectChanged(static_cast<int>(nID), nIndex, pCombo);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Calculator panel host"));
    parser.addHelpOption();
    const QCommandLineOption channels(QStringLiteral("channels"), QStringLiteral("Channel count."),
                                      QStringLiteral("n"), QStringLiteral("0"));
    const QCommandLineOption bitrate(QStringLiteral("bitrate"),
                                     QStringLiteral("Total bit rate in kbps."),
                                     QStringLiteral("kbps"), QStringLiteral("0"));
    const QCommandLineOption mode(QStringLiteral("mode"), QStringLiteral("Mode 0 to 3."),
                                  QStringLiteral("mode"), QStringLiteral("0"));
    const QCommandLineOption lang(QStringLiteral("lang"), QStringLiteral("en or cn."),
                                  QStringLiteral("lang"), QStringLiteral("en"));
    const QCommandLineOption percent(QStringLiteral("percent"),
                                     QStringLiteral("Recordable percentage."), QStringLiteral("p"),
                                     QStringLiteral("90"));
    const QCommandLineOption weekly(QStringLiteral("weekly"),
                                    QStringLiteral("Record plan on custom hours."));
    const QCommandLineOption custom(QStringLiteral("custom"),
                                    QStringLiteral("Typed capacity (chooses Customize)."),
                                    QStringLiteral("text"));
    const QCommandLineOption tb(QStringLiteral("tb"), QStringLiteral("Typed capacity in TB."));
    const QCommandLineOption shot(QStringLiteral("screenshot"),
                                  QStringLiteral("Save a picture of the panel and quit."),
                                  QStringLiteral("file"));
    parser.addOptions({ channels, bitrate, mode, lang, percent, weekly, custom, tb, shot });
    parser.process(app);

    SFSetApplication(&app);
    const std::wstring strAppDir = QStringLiteral(TALLIX_APP_DIR).toStdWString();
    SFSetSkinPath((strAppDir + L"/Bin/Skin/").c_str());
    SFLoadStyleSheet(strAppDir + L"/Tallix_Style.css");
    SFSetLanguageDirForTesting(TALLIX_APP_DIR);
    g_nLanguage = parser.value(lang) == QStringLiteral("cn") ? 1 : 0;
    g_UISetting.m_nRecordblePersentage = parser.value(percent).toUInt();

    auto* host = new QWidget;
    host->setWindowTitle(QStringLiteral("Calculator panel"));
    host->setFixedSize(kPanelWidth, kPanelHeight);

    CCalculatorBottom panel(nullptr);
    CSFView* pView = SFCreateView(&panel);
    pView->SetBackground(L"BottomBg(2).png");
    // The page's rectangle, inclusive as the view takes it.
    const RECT rcPage = { 0, 0, kPanelWidth - 1, kPanelHeight - 1 };
    panel.SetPageRect(RECT{ 0, 0, kPanelWidth, kPanelHeight });
    pView->Create(L"", L"", SF_WS_VISIBLE, rcPage, host, 0);
    pView->ShowWindow(1);

    panel.SetTotals(parser.value(channels).toInt(), parser.value(bitrate).toDouble());
    panel.Recalculate();

    auto switchTo = [&panel, host](int nMode) {
        const unsigned int nID = CCalculatorBottom::kModeRadioIds[nMode];
        panel.RADIO_OnClicked(1, static_cast<int>(nID), tagPOINT{ 0, 0 },
                              FindById<CSFRadioBox>(host, "radio", nID));
    };
    // The inputs of mode 1 are chosen there, then the requested mode is shown.
    if (parser.isSet(weekly) || parser.isSet(custom)) {
        switchTo(1);
        if (parser.isSet(weekly))
            Choose(panel, host, CCalculatorBottom::ID_COMBO_RECORD_PLAN, 1);
        if (parser.isSet(custom)) {
            Choose(panel, host, CCalculatorBottom::ID_COMBO_CAPACITY, kLastEntry);
            if (parser.isSet(tb))
                Choose(panel, host, CCalculatorBottom::ID_COMBO_CAPACITY_UNIT, 1);
            auto* pEdit =
                FindById<CSFEditCtrl>(host, "edit", CCalculatorBottom::ID_EDIT_CUSTOM_CAPACITY);
            if (pEdit)
                pEdit->SetWindowTextW(parser.value(custom).toStdWString().c_str());
        }
    }
    const int nMode = parser.value(mode).toInt();
    if (nMode >= 0 && nMode < 4 && (nMode != 0 || panel.GetMode() != 0))
        switchTo(nMode);
    host->show();

    if (parser.isSet(shot)) {
        const QString file = parser.value(shot);
        auto* value =
            host->findChild<CSFQTStatic*>(QString::fromLatin1(CCalculatorBottom::kNameResultValue));
        auto* poll = new QTimer(host);
        // Taken once the value has stopped flashing.
        QObject::connect(poll, &QTimer::timeout, host, [host, value, file, poll] {
            if (value && value->TwinkleRunning())
                return;
            poll->stop();
            const bool bSaved = host->grab().save(file, "PNG");
            QCoreApplication::exit(bSaved ? 0 : 1);
        });
        if (value)
            value->SetTwinkleDuration(50);
        poll->start(100);
    }

    const int nResult = app.exec();
    // The view calls back into the panel as it goes down.
    delete host;
    return nResult;
}
