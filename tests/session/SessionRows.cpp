#include "tests/session/SessionRows.h"

#include "calculator/CalculatorBottom.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFQTListCtrl.h"
#include "sf/qt/SFQtConvert.h"
#include "streams/ChannelColumns.h"
#include "streams/TallixEventImp.h"
#include "streams/engine/ChannelRowRules.h"
#include "tests/session/SessionCalculator.h"
#include "tests/session/SessionUser.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <cstdlib>

namespace {

using Reg = CSFQTListCtrl;

QString LabelText(CSFStatic* label)
{
    wchar_t buffer[512] = {};
    if (label)
        label->GetStaticText(buffer, 512);
    return QString::fromWCharArray(buffer);
}

// The totals as the panel prints them: kbps up to 10000, then Mbps, Gbps.
QString RateLabel(double kbps)
{
    static const char* const units[] = { "%.2f kbps", "%.2f Mbps", "%.2f Gbps" };
    int unit = 0;
    while (kbps > 10000 && unit < 2) {
        kbps /= 1024;
        ++unit;
    }
    return QString::asprintf(units[unit], kbps);
}

// What the custom frame-rate edit keeps of a typed text: three characters,
// and no more than 30 on "12MP".
QString CustomRateKept(const QString& typed, int resolution)
{
    const QString kept = typed.left(3);
    return resolution == kRowResolution12MP && kept.toInt() > 30 ? QStringLiteral("30") : kept;
}

bool IsNumber(const QString& text)
{
    bool ok = false;
    text.toLongLong(&ok);
    return ok;
}

} // namespace

CSessionRows::CSessionRows(CSessionUser& user, CTallixEventImp* page) : m_user(user), m_page(page)
{
}

QWidget* CSessionRows::PageChild(const char* name) const
{
    QWidget* page = m_page ? SFWidgetFromHandle(m_page->GetUIWnd()) : nullptr;
    return page ? page->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}

CSFQTListCtrl* CSessionRows::List() const
{
    return dynamic_cast<CSFQTListCtrl*>(PageChild("listctrl_2014"));
}

QWidget* CSessionRows::Widget(int reg, int row) const
{
    CSFQTListCtrl* list = List();
    return list ? list->CellWidget(list->RegisterControl(static_cast<Reg::Register>(reg), row))
                : nullptr;
}

QWidget* CSessionRows::Cell(int reg, int row, int column) const
{
    // The user scrolls the cell into view before working it.
    if (CSFQTListCtrl* list = List())
        list->scrollTo(list->model()->index(row, column));
    return Widget(reg, row);
}

QComboBox* CSessionRows::Combo(int reg, int row, int column) const
{
    return qobject_cast<QComboBox*>(Cell(reg, row, column));
}

int CSessionRows::Channels(int row) const
{
    const auto* spin = qobject_cast<QSpinBox*>(Widget(Reg::ChannelSpiners, row));
    return spin ? spin->value() : 0;
}

QString CSessionRows::Text(int row, int column) const
{
    wchar_t buffer[512] = {};
    if (CSFQTListCtrl* list = List())
        list->GetItemText(row, column, buffer, 512);
    return QString::fromWCharArray(buffer);
}

int CSessionRows::Rows() const
{
    return List() ? List()->GetItemCount() : 0;
}

CSessionRows::Plan CSessionRows::PlanFor(int i)
{
    static const char* const customRates[] = { "12", "31", "1234", "7", "25" };
    Plan p;
    // Every tenth row keeps "--Compression--" and stays incomplete.
    p.compression = i % 10 == 9 ? 0 : 1 + i % 4;
    p.scene = p.compression >= 3 ? (i / 4) % 4 : 0;
    // 7 and 3 are prime to 12 and 10: every resolution and frame rate comes up.
    p.resolution = 1 + (i * 7) % 12;
    p.frameRate = 1 + (i * 3) % 10;
    p.customRate =
        p.frameRate == kRowFrameRateCustom ? QString::fromLatin1(customRates[i % 5]) : QString();
    p.customRateShown = CustomRateKept(p.customRate, p.resolution);
    p.channelSteps = i % 6;
    p.channelsTyped = i % 8 == 3 ? 16 + i : 0;
    p.audio = i % 3 == 1;
    if (i == 12) {
        // A letter makes the rate 0, and the row's channels stop counting.
        p.typedRates = QStringList{ QStringLiteral("12a") };
        p.typedRatesKept = QStringList{ QStringLiteral("0") };
    } else if (i == 26) {
        // Ten digits keep nine; a sensible rate follows.
        p.typedRates = QStringList{ QStringLiteral("1234567890"), QStringLiteral("2048") };
        p.typedRatesKept = QStringList{ QStringLiteral("123456789"), QStringLiteral("2048") };
    } else if (i % 7 == 5) {
        p.typedRates = QStringList{ QStringLiteral("4096") };
        p.typedRatesKept = p.typedRates;
    }
    return p;
}

void CSessionRows::AddRows(int count)
{
    for (int i = 0; i < count; ++i) {
        const int row = Rows();
        m_user.Click(PageChild("label_add"));
        if (!m_user.Check(Rows() == row + 1, QStringLiteral("\"Add Streaming\" added no row")))
            return;
        m_user.CheckText(Text(row, ColNumber), QString::number(row + 1),
                         QStringLiteral("number of the new row"));
        m_user.CheckText(Text(row, ColBitrate), QStringLiteral("0"),
                         QStringLiteral("bit rate of the new row"));
        const Plan plan = PlanFor(row);
        Fill(row, plan);
        CheckRow(row, plan);
    }
    CheckTotals(QStringLiteral("after adding rows"));
}

void CSessionRows::Fill(int row, const Plan& p)
{
    const QString where = QStringLiteral("row %1").arg(row + 1);
    if (p.compression)
        m_user.Choose(Combo(Reg::CompressionCombos, row, ColCompression), p.compression,
                      where + QStringLiteral(" compression"));
    if (p.scene)
        m_user.Choose(Combo(Reg::EnvironmentCombos, row, ColEnvironment), p.scene,
                      where + QStringLiteral(" scene"));
    m_user.Choose(Combo(Reg::ResolutionCombos, row, ColResolution), p.resolution,
                  where + QStringLiteral(" resolution"));
    if (QComboBox* rate = Combo(Reg::FrameRateCombos, row, ColFrameRate))
        m_user.Check(rate->currentIndex() == kRowFrameRate30,
                     where + QStringLiteral(": a resolution did not start at 30 frames"));
    if (p.frameRate != kRowFrameRate30)
        m_user.Choose(Combo(Reg::FrameRateCombos, row, ColFrameRate), p.frameRate,
                      where + QStringLiteral(" frame rate"));
    if (!p.customRate.isEmpty())
        m_user.Type(Cell(Reg::CustomRateEdits, row, ColFrameRate), p.customRate,
                    where + QStringLiteral(" custom frame rate"));
    if (p.audio)
        m_user.Click(Cell(Reg::AudioChecks, row, ColAudio));
    for (int k = 0; k < p.typedRates.size(); ++k) {
        m_user.Type(Cell(Reg::BitrateEdits, row, ColBitrate), p.typedRates[k],
                    where + QStringLiteral(" bit rate"));
        m_user.CheckText(Text(row, ColBitrate), p.typedRatesKept[k],
                         where + QStringLiteral(" typed bit rate"));
    }
    // Channels last: a changed count keeps a typed rate.
    QWidget* spin = Cell(Reg::ChannelSpiners, row, ColChannels);
    if (p.channelsTyped)
        m_user.Type(spin, QString::number(p.channelsTyped), where + QStringLiteral(" channels"),
                    true);
    if (p.channelSteps) {
        m_user.Click(spin, QPoint(8, spin ? spin->height() / 2 : 0));
        m_user.Press(spin, Qt::Key_Up, p.channelSteps);
    }
}

void CSessionRows::CheckRow(int row, const Plan& p)
{
    const QString where = QStringLiteral("row %1").arg(row + 1);
    const bool smart = p.compression == 3 || p.compression == 4;
    QComboBox* scene = qobject_cast<QComboBox*>(Widget(Reg::EnvironmentCombos, row));
    m_user.Check(scene && scene->isEnabled() == smart && scene->currentIndex() == p.scene,
                 where + QStringLiteral(": scene combo"));
    QWidget* preview = Widget(Reg::EnvironmentButtons, row);
    m_user.Check(preview && preview->isHidden() != (smart && p.scene > 0),
                 where + QStringLiteral(": \"Preview\" shown exactly with a scene"));

    int rate = p.frameRate;
    if (p.resolution == kRowResolution12MP && (rate == kRowFrameRate45 || rate == kRowFrameRate60))
        rate = kRowFrameRate30;
    QComboBox* rateCombo = qobject_cast<QComboBox*>(Widget(Reg::FrameRateCombos, row));
    m_user.Check(rateCombo && rateCombo->currentIndex() == rate,
                 where + QStringLiteral(": frame rate entry %1").arg(rate));
    auto* custom = qobject_cast<QLineEdit*>(Widget(Reg::CustomRateEdits, row));
    m_user.Check(custom && custom->isHidden() != (rate == kRowFrameRateCustom),
                 where + QStringLiteral(": custom frame rate shown exactly on \"Customize\""));
    if (custom && rate == kRowFrameRateCustom)
        m_user.CheckText(custom->text(), p.customRateShown, where + QStringLiteral(" custom rate"));

    const QString bitrate = Text(row, ColBitrate);
    if (!p.typedRates.isEmpty())
        m_user.CheckText(bitrate, p.typedRatesKept.last(),
                         where + QStringLiteral(" typed bit rate after the channels"));
    else if (!p.compression)
        m_user.CheckText(bitrate, QStringLiteral("0"), where + QStringLiteral(" incomplete"));
    else
        m_user.Check(IsNumber(bitrate) && bitrate != QStringLiteral("0"),
                     where + QStringLiteral(": no estimate, \"%1\"").arg(bitrate));

    const int channels = (p.channelsTyped ? p.channelsTyped : 1) + p.channelSteps;
    m_user.Check(Channels(row) == channels,
                 where +
                     QStringLiteral(": %1 channels, expected %2").arg(Channels(row)).arg(channels));
}

double CSessionRows::VisibleTotal() const
{
    double total = 0.0;
    for (int row = 0; row < Rows(); ++row)
        total += Channels(row) * std::atof(Text(row, ColBitrate).toLatin1().constData());
    return total;
}

void CSessionRows::CheckTotals(const QString& when)
{
    int channels = 0;
    for (int row = 0; row < Rows(); ++row) {
        if (Text(row, ColBitrate) != QStringLiteral("0"))
            channels += Channels(row);
    }
    const CCalculatorBottom* calc = m_page->GetCalculator();
    m_user.CheckText(LabelText(
                         CSessionCalculator::Label(calc, CCalculatorBottom::kNameChannelCount)),
                     QString::number(channels), QStringLiteral("channel count ") + when);
    m_user.CheckText(LabelText(CSessionCalculator::Label(calc, CCalculatorBottom::kNameBitrate)),
                     RateLabel(VisibleTotal()), QStringLiteral("total bit rate ") + when);
}

void CSessionRows::CheckNumbering(const QString& when)
{
    for (int row = 0; row < Rows(); ++row) {
        if (Text(row, ColNumber) != QString::number(row + 1)) {
            m_user.Fail(QStringLiteral("row %1 is numbered \"%2\" %3")
                            .arg(row + 1)
                            .arg(Text(row, ColNumber), when));
            return;
        }
    }
}

void CSessionRows::DeleteRows(int count)
{
    for (int i = 0; i < count && Rows() > 0; ++i) {
        const int rows = Rows();
        // The second, the last, the first and a middle row in turn.
        const int choices[] = { 1, rows - 1, 0, rows / 2 };
        const int row = qMin(choices[i % 4], rows - 1);
        m_user.Click(Cell(Reg::DeleteButtons, row, ColOperation));
        const QString when = QStringLiteral("after deleting row %1 of %2").arg(row + 1).arg(rows);
        if (!m_user.Check(Rows() == rows - 1, QStringLiteral("no row went ") + when))
            return;
        CheckNumbering(when);
        CheckTotals(when);
    }
}

void CSessionRows::ClearAll()
{
    m_user.Click(PageChild("label_clear"));
    m_user.Check(Rows() == 0, QStringLiteral("\"Clear All\" left %1 rows").arg(Rows()));
    CheckTotals(QStringLiteral("after \"Clear All\""));
    m_user.CheckText(LabelText(CSessionCalculator::Label(m_page->GetCalculator(),
                                                         CCalculatorBottom::kNameBitrate)),
                     QStringLiteral("0.00 kbps"), QStringLiteral("total after \"Clear All\""));
}

int CSessionRows::RowWithScene(int scene) const
{
    for (int row = 0; row < Rows(); ++row) {
        const QComboBox* combo = qobject_cast<QComboBox*>(Widget(Reg::EnvironmentCombos, row));
        if (combo && combo->currentIndex() == scene)
            return row;
    }
    return -1;
}

QWidget* CSessionRows::PreviewButton(int row) const
{
    return Cell(Reg::EnvironmentButtons, row, ColEnvironment);
}
