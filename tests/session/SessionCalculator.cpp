#include "tests/session/SessionCalculator.h"

#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"
#include "tests/session/SessionUser.h"
#include "Config/VexUISetting.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>

namespace {

template <class Control>
QWidget* W(Control* control)
{
    return dynamic_cast<QWidget*>(control);
}

QString EditText(CSFEditCtrl* edit)
{
    const auto* line = dynamic_cast<QLineEdit*>(edit);
    return line ? line->text() : QStringLiteral("<none>");
}

// The answer of recording days: whole days, then the hours over.
QString DaysAnswer(double days)
{
    const long long whole = static_cast<long long>(days);
    return QString::asprintf("%lld  ", whole) + CSessionUser::Word(L"Day") +
           QString::asprintf(" %0.2f ", (days - whole) * 24) + CSessionUser::Word(L"Hour");
}

// Binary GB that a day of recording takes at kbps.
double GbPerDay(double kbps)
{
    return kbps * 3600 * 24 / 1024 / 8 / 1024;
}

} // namespace

CSessionCalculator::CSessionCalculator(CSessionUser& user, CCalculatorBottom* panel)
    : m_user(user), m_panel(panel)
{
}

QString CSessionCalculator::Value() const
{
    return CSessionUser::LabelText(m_panel->m_pStaticResultValue);
}

void CSessionCalculator::SwitchTo(CSFRadioBox* radio, int mode, const char* name)
{
    m_user.Click(W(radio));
    m_user.Check(m_panel->GetMode() == mode && radio && radio->GetCheck() == 1,
                 QStringLiteral("the radio \"%1\" did not switch the mode")
                     .arg(QLatin1String(name)));
}

void CSessionCalculator::Choose(CSFComboBox* combo, int index, const QString& what)
{
    m_user.Choose(dynamic_cast<QComboBox*>(combo), index, what);
}

void CSessionCalculator::CheckAnswer(const QString& caption, const QString& value,
                                     const QString& what)
{
    m_user.CheckText(CSessionUser::LabelText(m_panel->m_pStaticResultCaption), caption,
                     what + QStringLiteral(" caption"));
    m_user.CheckText(Value(), value, what);
}

void CSessionCalculator::DiskRequirement(double total)
{
    // Already the mode at start; clicking its radio again keeps it on.
    SwitchTo(m_panel->m_pRadioDiskRequirement, CCalculatorBottom::MODE_DISK_REQUIREMENT,
             "Disk Requirement");
    QWidget* days = W(m_panel->m_pSpinDays);
    m_user.Type(days, QStringLiteral("30"), QStringLiteral("recording days"), true);
    m_user.Press(days, Qt::Key_Up, 2);
    const auto* spin = qobject_cast<QSpinBox*>(days);
    m_user.Check(spin && spin->value() == 32, QStringLiteral("recording days are not 32"));
    m_user.Click(W(m_panel->m_pBtnCalculate));

    double gb = 32 * total * 3600 * 24 / 1024 / 8 / 1024;
    static const char* const units[] = { "GB", "TB", "PB", "EB" };
    int unit = 0;
    while (10000 < gb && unit < 3) {
        gb /= 1024;
        ++unit;
    }
    CheckAnswer(CSessionUser::Word(L"Request Capacity:"), QString::asprintf("%.2f%s", gb, units[unit]),
                QStringLiteral("disk requirement for 32 days"));
}

void CSessionCalculator::RecordingDays(double total)
{
    SwitchTo(m_panel->m_pRadioRecordingDay, CCalculatorBottom::MODE_RECORDING_DAY, "Recording day");
    Choose(m_panel->m_pComboCapacity, 3, QStringLiteral("storage capacity"));  // "1TB"
    const double usable = g_UISetting.m_nRecordblePersentage * 953.67424 / 100;
    CheckAnswer(CSessionUser::Word(L"Recording Days:"), DaysAnswer(usable / GbPerDay(total)),
                QStringLiteral("recording days on 1TB"));

    // A weekly plan: five working days of eight hours.
    Choose(m_panel->m_pComboRecordPlan, 1, QStringLiteral("record plan"));
    const char* const hours[] = { "8", "8", "8", "8", "8", "0", "0" };
    for (int day = 0; day < CCalculatorBottom::kDayCount; ++day) {
        QWidget* edit = W(m_panel->m_pEditDayHours[day]);
        const QString what = QStringLiteral("hours of day %1").arg(day);
        m_user.Check(edit && edit->isVisible(), what + QStringLiteral(" not shown"));
        m_user.Type(edit, QString::fromLatin1(hours[day]), what);
    }
    const QRegularExpression weekly(QStringLiteral("^\\d+ %1 \\d+ %2 \\d+\\.\\d\\d %3$")
                                        .arg(QRegularExpression::escape(CSessionUser::Word(L"Week")),
                                             QRegularExpression::escape(CSessionUser::Word(L"Day")),
                                             QRegularExpression::escape(CSessionUser::Word(L"Hour"))));
    m_user.Check(weekly.match(Value()).hasMatch(),
                 QStringLiteral("weekly answer \"%1\"").arg(Value()));
    // Too many hours and a letter: both mended to a full day.
    m_user.Type(W(m_panel->m_pEditDayHours[6]), QStringLiteral("25"), QStringLiteral("Saturday"));
    m_user.CheckText(EditText(m_panel->m_pEditDayHours[6]), QStringLiteral("24"),
                     QStringLiteral("Saturday hours"));
    m_user.Type(W(m_panel->m_pEditDayHours[5]), QStringLiteral("x"), QStringLiteral("Friday"));
    m_user.CheckText(EditText(m_panel->m_pEditDayHours[5]), QStringLiteral("24"),
                     QStringLiteral("Friday hours"));

    // A typed capacity of 2 TB.
    Choose(m_panel->m_pComboCapacity, 13, QStringLiteral("storage capacity"));  // "Customize"
    m_user.CheckText(EditText(m_panel->m_pEditCustomCapacity), QStringLiteral("0"),
                     QStringLiteral("custom capacity on \"Customize\""));
    m_user.Type(W(m_panel->m_pEditCustomCapacity), QStringLiteral("2"), QStringLiteral("capacity"));
    Choose(m_panel->m_pComboCapacityUnit, 1, QStringLiteral("capacity unit"));  // "TB"
    m_user.Check(weekly.match(Value()).hasMatch(),
                 QStringLiteral("weekly answer on 2 TB \"%1\"").arg(Value()));

    Choose(m_panel->m_pComboRecordPlan, 0, QStringLiteral("record plan"));
    const double usable2 = g_UISetting.m_nRecordblePersentage * (2 * 0.9313225 * 1024) / 100;
    CheckAnswer(CSessionUser::Word(L"Recording Days:"), DaysAnswer(usable2 / GbPerDay(total)),
                QStringLiteral("recording days on 2 TB"));
}

void CSessionCalculator::RaidCapacity()
{
    SwitchTo(m_panel->m_pRadioRaid, CCalculatorBottom::MODE_RAID, "RAID Calculator");
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("3.60TB"),
                QStringLiteral("RAID capacity on the defaults"));
    Choose(m_panel->m_pComboRaidLevel, 1, QStringLiteral("RAID level"));  // "RAID 5"
    Choose(m_panel->m_pComboRaidBays, 1, QStringLiteral("bays"));  // "16 bay"
    Choose(m_panel->m_pComboRaidDisk, 3, QStringLiteral("disk size"));  // "4 TB"
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("43.20TB"),
                QStringLiteral("KTR6, RAID 5, 16 bays of 4 TB"));

    // "MQS71" offers no 16 bays with RAID 5: the list starts at 24.
    Choose(m_panel->m_pComboRaidDevType, 3, QStringLiteral("device type"));
    const auto* bays = dynamic_cast<QComboBox*>(m_panel->m_pComboRaidBays);
    m_user.Check(bays && bays->count() == 3 && bays->currentText() == QStringLiteral("24 bay"),
                 QStringLiteral("bays of MQS71 with RAID 5"));
    Choose(m_panel->m_pComboRaidBays, 2, QStringLiteral("bays"));  // "48 bay"
    Choose(m_panel->m_pComboRaidDisk, 15, QStringLiteral("disk size"));  // "16 TB"
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("590.40TB"),
                QStringLiteral("MQS71, RAID 5, 48 bays of 16 TB"));
}

void CSessionCalculator::RequestDevice(double total)
{
    SwitchTo(m_panel->m_pRadioRaid2, CCalculatorBottom::MODE_RAID2, "RAID Calculator2");
    m_user.Check(W(m_panel->m_pStaticDevicesTips) && W(m_panel->m_pStaticDevicesTips)->isVisible(),
                 QStringLiteral("the devices tip is not shown"));
    m_user.Type(W(m_panel->m_pSpinRaid2Days), QStringLiteral("30"),
                QStringLiteral("recording days"), true);
    Choose(m_panel->m_pComboRaid2DevType, 1, QStringLiteral("device type"));  // "MQS50"
    Choose(m_panel->m_pComboRaid2Level, 2, QStringLiteral("RAID level"));  // "RAID 6"
    Choose(m_panel->m_pComboRaid2Bays, 3, QStringLiteral("bays"));  // "48 bay"
    Choose(m_panel->m_pComboRaid2Disk, 1, QStringLiteral("disk size"));  // "2 TB"

    const double capacity = (2 * 36) * 0.9 * 1024;
    const double ratio = 30 * GbPerDay(total) / capacity;
    long long devices = static_cast<long long>(ratio);
    if (static_cast<double>(devices) < ratio)
        ++devices;
    const QString word = CSessionUser::Word(devices > 1 ? L"Devices" : L"Device");
    CheckAnswer(CSessionUser::Word(L"Request Device:"), QString::number(devices) + QLatin1Char(' ') + word,
                QStringLiteral("devices for 30 days on MQS50, RAID 6, 48 bays of 2 TB"));
}

void CSessionCalculator::CheckEmptyTable()
{
    // The panel stays on the last mode.
    CheckAnswer(CSessionUser::Word(L"Request Device:"),
                QStringLiteral("0  ") + CSessionUser::Word(L"Device"),
                QStringLiteral("devices for an empty table"));
    SwitchTo(m_panel->m_pRadioDiskRequirement, CCalculatorBottom::MODE_DISK_REQUIREMENT,
             "Disk Requirement");
    CheckAnswer(CSessionUser::Word(L"Request Capacity:"), QStringLiteral("0.00GB"),
                QStringLiteral("disk requirement for an empty table"));
}
