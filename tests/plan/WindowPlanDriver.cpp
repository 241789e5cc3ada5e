#include "tests/plan/WindowPlanDriver.h"

#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "calculator/engine/CapacityTable.h"
#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFApplication.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "streams/ChannelColumns.h"
#include "tests/streams/PageTestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Control ids of the page, as the window names them; the calculator names its own.
const unsigned kAddButton = 0x803;
const unsigned kClearButton = 0xBCC;
const unsigned kListCtrl = 0x7DE;

QString Name(const char* pszKind, unsigned nId)
{
    return QString::fromLatin1(pszKind) + QLatin1Char('_') + QString::number(nId);
}

QString StaticText(const QWidget* w)
{
    const CSFStatic* label = dynamic_cast<const CSFStatic*>(w);
    if (!label)
        return QString();
    wchar_t buffer[512] = {};
    label->GetStaticText(buffer, 512);
    return QString::fromWCharArray(buffer);
}

QString OneLine(QString strValue)
{
    return strValue.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
}

} // namespace

CWindowPlanDriver::CWindowPlanDriver(int nLanguage)
{
    UseProgramEnvironment(nLanguage);
    DialogStyle style;
    m_dlg = BringUpMainWindow(style, m_event);
    m_window = dynamic_cast<QWidget*>(m_dlg);
    if (!m_window) {
        ADD_FAILURE() << "no main window";
        return;
    }
    if (!QTest::qWaitForWindowExposed(m_window))
        ADD_FAILURE() << "the main window was not exposed";
    m_table = qobject_cast<QTableWidget*>(Named(Name("listctrl", kListCtrl)));
    QWidget* radio = Named(Name("radio", CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT));
    m_calculatorView = radio ? radio->parentWidget() : nullptr;
    if (!m_table || !m_calculatorView)
        ADD_FAILURE() << "the channel table or the calculator was not found";
}

CWindowPlanDriver::~CWindowPlanDriver()
{
    SFDestroyControl(m_dlg);
    delete m_event;
}

QWidget* CWindowPlanDriver::Named(const QString& strName, bool bVisibleOnly) const
{
    if (!m_window)
        return nullptr;
    for (QWidget* w : m_window->findChildren<QWidget*>(strName)) {
        if (!bVisibleOnly || !w->isHidden())
            return w;
    }
    ADD_FAILURE() << "no " << (bVisibleOnly ? "visible " : "") << "control "
                  << strName.toStdString();
    return nullptr;
}

QWidget* CWindowPlanDriver::CellControl(int nRow, int nColumn, const char* pszClass) const
{
    QWidget* host = m_table ? m_table->cellWidget(nRow, nColumn) : nullptr;
    if (!host) {
        ADD_FAILURE() << "no cell " << nRow << "," << nColumn;
        return nullptr;
    }
    if (host->inherits(pszClass))
        return host;
    for (QWidget* w : host->findChildren<QWidget*>()) {
        // The custom frame-rate edit shares its cell with the combo.
        if (w->inherits(pszClass) && w->objectName() != QStringLiteral("customrate"))
            return w;
    }
    ADD_FAILURE() << "no " << pszClass << " in cell " << nRow << "," << nColumn;
    return nullptr;
}

void CWindowPlanDriver::EnterRows(const std::vector<SiteRow>& rows)
{
    if (auto* clear = qobject_cast<QAbstractButton*>(Named(Name("button", kClearButton))))
        clear->click();
    // The cleared rows' widgets go for good before new ones take their places.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto* add = qobject_cast<QAbstractButton*>(Named(Name("button", kAddButton)));
    if (!add || !m_table)
        return;
    for (const SiteRow& row : rows) {
        add->click();
        const int r = m_table->rowCount() - 1;
        auto combo = [this, r](int nColumn) {
            return qobject_cast<QComboBox*>(CellControl(r, nColumn, "QComboBox"));
        };
        if (QComboBox* c = combo(ColCompression))
            c->setCurrentIndex(row.nCompression);
        if (row.nScene > 0 && row.nCompression >= 3) {
            if (QComboBox* c = combo(ColEnvironment))
                c->setCurrentIndex(row.nScene);
        }
        if (QComboBox* c = combo(ColResolution))
            c->setCurrentIndex(row.nResolution);
        if (QComboBox* c = combo(ColFrameRate))
            c->setCurrentIndex(row.nFrameRateIndex);
        if (row.nFrameRateIndex == kRowFrameRateCustom) {
            QWidget* host = m_table->cellWidget(r, ColFrameRate);
            auto* edit = host ? host->findChild<QLineEdit*>(QStringLiteral("customrate")) : nullptr;
            if (edit)
                edit->setText(QString::fromStdString(row.strCustomRate));
            else
                ADD_FAILURE() << "no custom rate edit in row " << r;
        }
        if (row.bAudio) {
            // The toggle answers the mouse, not its button's click().
            m_table->scrollTo(m_table->model()->index(r, ColAudio));
            if (QWidget* toggle = CellControl(r, ColAudio, "QAbstractButton"))
                QTest::mouseClick(toggle, Qt::LeftButton);
        }
        if (row.bTypedBitrate) {
            if (auto* edit = qobject_cast<QLineEdit*>(CellControl(r, ColBitrate, "QLineEdit")))
                edit->setText(QString::fromStdString(row.strTypedBitrate));
        }
        if (auto* spin = qobject_cast<QSpinBox*>(CellControl(r, ColChannels, "QSpinBox")))
            spin->setValue(row.nChannels);
    }
}

QString CWindowPlanDriver::TotalWord() const
{
    return StaticText(Named(QString::fromLatin1(CCalculatorBottom::kNameTotal)));
}

QString CWindowPlanDriver::ChannelCount() const
{
    return StaticText(Named(QString::fromLatin1(CCalculatorBottom::kNameChannelCount)));
}

QString CWindowPlanDriver::TotalBitrate() const
{
    return StaticText(Named(QString::fromLatin1(CCalculatorBottom::kNameBitrate)));
}

void CWindowPlanDriver::ClickMode(unsigned nRadioId)
{
    if (QWidget* radio = Named(Name("radio", nRadioId)))
        QTest::mouseClick(radio, Qt::LeftButton);
}

void CWindowPlanDriver::Choose(const QString& strName, int nIndex)
{
    if (auto* combo = qobject_cast<QComboBox*>(Named(strName, true)))
        combo->setCurrentIndex(nIndex);
}

WindowAnswer CWindowPlanDriver::Result() const
{
    return { StaticText(Named(QString::fromLatin1(CCalculatorBottom::kNameResultCaption))),
             OneLine(StaticText(Named(QString::fromLatin1(CCalculatorBottom::kNameResultValue)))) };
}

WindowAnswer CWindowPlanDriver::DiskRequirement(const WindowInputs& in, bool bDefaults)
{
    ClickMode(CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT);
    if (!bDefaults) {
        if (auto* spin = qobject_cast<QSpinBox*>(
                Named(Name("spinner", CCalculatorBottom::ID_SPIN_DAYS), true)))
            spin->setValue(in.nDays);
    }
    return Result();
}

WindowAnswer CWindowPlanDriver::RecordingDays(const WindowInputs& in, bool bDefaults)
{
    // The setting is read at each recalculation; the mode switch makes one.
    g_UISetting.m_nRecordblePersentage = in.nPercent;
    ClickMode(CCalculatorBottom::ID_RADIO_RECORDING_DAY);
    if (bDefaults)
        return Result();
    Choose(Name("combo", CCalculatorBottom::ID_COMBO_CAPACITY), in.nCapacityIndex);
    if (in.nCapacityIndex == kCapacityItemCount) {
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_CAPACITY_UNIT), in.bCustomInTB ? 1 : 0);
        if (auto* edit = qobject_cast<QLineEdit*>(
                Named(Name("edit", CCalculatorBottom::ID_EDIT_CUSTOM_CAPACITY), true)))
            edit->setText(QString::fromStdString(in.strCustomCapacity));
    }
    Choose(Name("combo", CCalculatorBottom::ID_COMBO_RECORD_PLAN), in.bWeeklyPlan ? 1 : 0);
    if (in.bWeeklyPlan) {
        for (int i = 0; i < 7; ++i) {
            if (auto* edit = qobject_cast<QLineEdit*>(
                    Named(Name("edit", CCalculatorBottom::ID_EDIT_DAY_HOURS_FIRST + i), true)))
                edit->setText(QString::number(in.anDayHours[i]));
        }
    }
    return Result();
}

WindowAnswer CWindowPlanDriver::RaidCapacity(const WindowInputs& in, bool bDefaults)
{
    ClickMode(CCalculatorBottom::ID_RADIO_RAID);
    if (!bDefaults) {
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID_DEV_TYPE), in.nRaidDevice);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID_LEVEL), in.nRaidLevel);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID_BAYS), in.nRaidBaySel);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID_DISK), in.nRaidDiskSel);
    }
    return Result();
}

WindowAnswer CWindowPlanDriver::DeviceCount(const WindowInputs& in, bool bDefaults)
{
    ClickMode(CCalculatorBottom::ID_RADIO_RAID2);
    if (!bDefaults) {
        if (auto* spin = qobject_cast<QSpinBox*>(
                Named(QString::fromLatin1(CCalculatorBottom::kNameRaid2Days), true)))
            spin->setValue(in.nRaid2Days);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID2_DEV_TYPE), in.nRaid2Device);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID2_LEVEL), in.nRaid2Level);
        Choose(Name("combo", CCalculatorBottom::ID_COMBO_RAID2_BAYS), in.nRaid2BaySel);
        Choose(QString::fromLatin1(CCalculatorBottom::kNameRaid2Disk), in.nRaid2DiskSel);
    }
    return Result();
}
