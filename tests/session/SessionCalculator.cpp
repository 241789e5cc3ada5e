#include "tests/session/SessionCalculator.h"

#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFQtConvert.h"
#include "tests/session/SessionUser.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>

namespace {

using Panel = CCalculatorBottom;

QString EditText(QWidget* edit)
{
    const auto* line = qobject_cast<QLineEdit*>(edit);
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

CSFStatic* CSessionCalculator::Label(const CCalculatorBottom* panel, const char* name)
{
    QWidget* view = panel ? SFWidgetFromHandle(panel->GetUIWnd()) : nullptr;
    return view ? dynamic_cast<CSFStatic*>(view->findChild<QWidget*>(QString::fromLatin1(name)))
                : nullptr;
}

QWidget* CSessionCalculator::Find(const QString& name) const
{
    QWidget* view = m_panel ? SFWidgetFromHandle(m_panel->GetUIWnd()) : nullptr;
    return view ? view->findChild<QWidget*>(name) : nullptr;
}

QWidget* CSessionCalculator::Find(const char* kind, unsigned int id) const
{
    return Find(QString::fromLatin1(kind) + QLatin1Char('_') + QString::number(id));
}

QComboBox* CSessionCalculator::Combo(unsigned int id) const
{
    return qobject_cast<QComboBox*>(Find("combo", id));
}

QWidget* CSessionCalculator::DayHours(int day) const
{
    return Find("edit", Panel::ID_EDIT_DAY_HOURS_FIRST + static_cast<unsigned int>(day));
}

QString CSessionCalculator::Value() const
{
    return CSessionUser::LabelText(Label(m_panel, Panel::kNameResultValue));
}

void CSessionCalculator::SwitchTo(int mode, const char* name)
{
    QWidget* radio = Find("radio", Panel::kModeRadioIds[mode]);
    m_user.Click(radio);
    const auto* check = dynamic_cast<CSFRadioBox*>(radio);
    m_user.Check(
        m_panel->GetMode() == mode && check && check->GetCheck() == 1,
        QStringLiteral("the radio \"%1\" did not switch the mode").arg(QLatin1String(name)));
}

void CSessionCalculator::Choose(QComboBox* combo, int index, const QString& what)
{
    m_user.Choose(combo, index, what);
}

void CSessionCalculator::CheckAnswer(const QString& caption, const QString& value,
                                     const QString& what)
{
    m_user.CheckText(CSessionUser::LabelText(Label(m_panel, Panel::kNameResultCaption)), caption,
                     what + QStringLiteral(" caption"));
    m_user.CheckText(Value(), value, what);
}

void CSessionCalculator::DiskRequirement(double total)
{
    // Already the mode at start; clicking its radio again keeps it on.
    SwitchTo(Panel::MODE_DISK_REQUIREMENT, "Disk Requirement");
    QWidget* days = Find("spinner", Panel::ID_SPIN_DAYS);
    m_user.Type(days, QStringLiteral("30"), QStringLiteral("recording days"), true);
    m_user.Press(days, Qt::Key_Up, 2);
    const auto* spin = qobject_cast<QSpinBox*>(days);
    m_user.Check(spin && spin->value() == 32, QStringLiteral("recording days are not 32"));
    m_user.Click(Find("button", Panel::ID_BTN_CALCULATE));

    double gb = 32 * total * 3600 * 24 / 1024 / 8 / 1024;
    static const char* const units[] = { "GB", "TB", "PB", "EB" };
    int unit = 0;
    while (10000 < gb && unit < 3) {
        gb /= 1024;
        ++unit;
    }
    CheckAnswer(CSessionUser::Word(L"Request Capacity:"),
                QString::asprintf("%.2f%s", gb, units[unit]),
                QStringLiteral("disk requirement for 32 days"));
}

void CSessionCalculator::RecordingDays(double total)
{
    SwitchTo(Panel::MODE_RECORDING_DAY, "Recording day");
    Choose(Combo(Panel::ID_COMBO_CAPACITY), 3, QStringLiteral("storage capacity")); // "1TB"
    const double usable = g_UISetting.m_nRecordblePersentage * 953.67424 / 100;
    CheckAnswer(CSessionUser::Word(L"Recording Days:"), DaysAnswer(usable / GbPerDay(total)),
                QStringLiteral("recording days on 1TB"));

    // A weekly plan: five working days of eight hours.
    Choose(Combo(Panel::ID_COMBO_RECORD_PLAN), 1, QStringLiteral("record plan"));
    const char* const hours[] = { "8", "8", "8", "8", "8", "0", "0" };
    for (int day = 0; day < Panel::kDayCount; ++day) {
        QWidget* edit = DayHours(day);
        const QString what = QStringLiteral("hours of day %1").arg(day);
        m_user.Check(edit && edit->isVisible(), what + QStringLiteral(" not shown"));
        m_user.Type(edit, QString::fromLatin1(hours[day]), what);
    }
    const QRegularExpression weekly(
        QStringLiteral("^\\d+ %1 \\d+ %2 \\d+\\.\\d\\d %3$")
            .arg(QRegularExpression::escape(CSessionUser::Word(L"Week")),
                 QRegularExpression::escape(CSessionUser::Word(L"Day")),
                 QRegularExpression::escape(CSessionUser::Word(L"Hour"))));
    m_user.Check(weekly.match(Value()).hasMatch(),
                 QStringLiteral("weekly answer \"%1\"").arg(Value()));
    // Too many hours and a letter: both mended to a full day.
    m_user.Type(DayHours(6), QStringLiteral("25"), QStringLiteral("Saturday"));
    m_user.CheckText(EditText(DayHours(6)), QStringLiteral("24"), QStringLiteral("Saturday hours"));
    m_user.Type(DayHours(5), QStringLiteral("x"), QStringLiteral("Friday"));
    m_user.CheckText(EditText(DayHours(5)), QStringLiteral("24"), QStringLiteral("Friday hours"));

    // A typed capacity of 2 TB.
    Choose(Combo(Panel::ID_COMBO_CAPACITY), 13, QStringLiteral("storage capacity")); // "Customize"
    m_user.CheckText(EditText(Find("edit", Panel::ID_EDIT_CUSTOM_CAPACITY)), QStringLiteral("0"),
                     QStringLiteral("custom capacity on \"Customize\""));
    m_user.Type(Find("edit", Panel::ID_EDIT_CUSTOM_CAPACITY), QStringLiteral("2"),
                QStringLiteral("capacity"));
    Choose(Combo(Panel::ID_COMBO_CAPACITY_UNIT), 1, QStringLiteral("capacity unit")); // "TB"
    m_user.Check(weekly.match(Value()).hasMatch(),
                 QStringLiteral("weekly answer on 2 TB \"%1\"").arg(Value()));

    Choose(Combo(Panel::ID_COMBO_RECORD_PLAN), 0, QStringLiteral("record plan"));
    const double usable2 = g_UISetting.m_nRecordblePersentage * (2 * 0.9313225 * 1024) / 100;
    CheckAnswer(CSessionUser::Word(L"Recording Days:"), DaysAnswer(usable2 / GbPerDay(total)),
                QStringLiteral("recording days on 2 TB"));
}

void CSessionCalculator::RaidCapacity()
{
    SwitchTo(Panel::MODE_RAID, "RAID Calculator");
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("3.60TB"),
                QStringLiteral("RAID capacity on the defaults"));
    Choose(Combo(Panel::ID_COMBO_RAID_LEVEL), 1, QStringLiteral("RAID level")); // "RAID 5"
    Choose(Combo(Panel::ID_COMBO_RAID_BAYS), 1, QStringLiteral("bays"));        // "16 bay"
    Choose(Combo(Panel::ID_COMBO_RAID_DISK), 3, QStringLiteral("disk size"));   // "4 TB"
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("43.20TB"),
                QStringLiteral("KTR6, RAID 5, 16 bays of 4 TB"));

    // "MQS71" offers no 16 bays with RAID 5: the list starts at 24.
    Choose(Combo(Panel::ID_COMBO_RAID_DEV_TYPE), 3, QStringLiteral("device type"));
    const QComboBox* bays = Combo(Panel::ID_COMBO_RAID_BAYS);
    m_user.Check(bays && bays->count() == 3 && bays->currentText() == QStringLiteral("24 bay"),
                 QStringLiteral("bays of MQS71 with RAID 5"));
    Choose(Combo(Panel::ID_COMBO_RAID_BAYS), 2, QStringLiteral("bays"));       // "48 bay"
    Choose(Combo(Panel::ID_COMBO_RAID_DISK), 15, QStringLiteral("disk size")); // "16 TB"
    CheckAnswer(CSessionUser::Word(L"Available Capacity:"), QStringLiteral("590.40TB"),
                QStringLiteral("MQS71, RAID 5, 48 bays of 16 TB"));
}

void CSessionCalculator::RequestDevice(double total)
{
    SwitchTo(Panel::MODE_RAID2, "RAID Calculator2");
    const QWidget* tips = Find(QString::fromLatin1(Panel::kNameDevicesTips));
    m_user.Check(tips && tips->isVisible(), QStringLiteral("the devices tip is not shown"));
    m_user.Type(Find(QString::fromLatin1(Panel::kNameRaid2Days)), QStringLiteral("30"),
                QStringLiteral("recording days"), true);
    Choose(Combo(Panel::ID_COMBO_RAID2_DEV_TYPE), 1, QStringLiteral("device type")); // "MQS50"
    Choose(Combo(Panel::ID_COMBO_RAID2_LEVEL), 2, QStringLiteral("RAID level"));     // "RAID 6"
    Choose(Combo(Panel::ID_COMBO_RAID2_BAYS), 3, QStringLiteral("bays"));            // "48 bay"
    Choose(qobject_cast<QComboBox*>(Find(QString::fromLatin1(Panel::kNameRaid2Disk))), 1,
           QStringLiteral("disk size")); // "2 TB"

    const double capacity = (2 * 36) * 0.9 * 1024;
    const double ratio = 30 * GbPerDay(total) / capacity;
    long long devices = static_cast<long long>(ratio);
    if (static_cast<double>(devices) < ratio)
        ++devices;
    const QString word = CSessionUser::Word(devices > 1 ? L"Devices" : L"Device");
    CheckAnswer(CSessionUser::Word(L"Request Device:"),
                QString::number(devices) + QLatin1Char(' ') + word,
                QStringLiteral("devices for 30 days on MQS50, RAID 6, 48 bays of 2 TB"));
}

void CSessionCalculator::CheckEmptyTable()
{
    // The panel stays on the last mode.
    CheckAnswer(CSessionUser::Word(L"Request Device:"),
                QStringLiteral("0  ") + CSessionUser::Word(L"Device"),
                QStringLiteral("devices for an empty table"));
    SwitchTo(Panel::MODE_DISK_REQUIREMENT, "Disk Requirement");
    CheckAnswer(CSessionUser::Word(L"Request Capacity:"), QStringLiteral("0.00GB"),
                QStringLiteral("disk requirement for an empty table"));
}
