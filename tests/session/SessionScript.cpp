#include "tests/session/SessionScript.h"

#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFQtConvert.h"
#include "shell/MainDlgEventImp.h"
#include "shell/ToolBarEventImp.h"
#include "streams/TallixEventImp.h"
#include "tests/session/PaintCounter.h"
#include "tests/session/SessionCalculator.h"
#include "tests/session/SessionRows.h"

#include <QAbstractButton>
#include <QDialog>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QWidget>

Q_LOGGING_CATEGORY(lcSession, "tallix.session", QtWarningMsg)

namespace {

} // namespace

CSessionScript::CSessionScript(CMainDlgEventImp* main, int rows, int previewMs)
    : m_main(main), m_rows(rows), m_previewMs(previewMs)
{
}

template <class F>
void CSessionScript::Step(const char* name, F work)
{
    const int failuresBefore = m_user.Failures();
    QElapsedTimer timer;
    timer.start();
    work();
    // With what the panel answers and the totals, for the log.
    const CCalculatorBottom* calc = m_main->GetPageEvent()->GetCalculator();
    qCInfo(lcSession, "%-16s %7lld ms  %-6s | %s channels, %s | %s %s", name,
           static_cast<long long>(timer.elapsed()),
           m_user.Failures() > failuresBefore ? "FAILED" : "ok",
           qUtf8Printable(CSessionUser::LabelText(
               CSessionCalculator::Label(calc, CCalculatorBottom::kNameChannelCount))),
           qUtf8Printable(CSessionUser::LabelText(
               CSessionCalculator::Label(calc, CCalculatorBottom::kNameBitrate))),
           qUtf8Printable(CSessionUser::LabelText(
               CSessionCalculator::Label(calc, CCalculatorBottom::kNameResultCaption))),
           qUtf8Printable(CSessionUser::LabelText(
               CSessionCalculator::Label(calc, CCalculatorBottom::kNameResultValue))));
}

void CSessionScript::Run()
{
    CTallixEventImp* page = m_main ? m_main->GetPageEvent() : nullptr;
    if (!m_user.Check(page && page->GetCalculator() && SFWidgetFromHandle(m_main->GetUIWnd()),
                      QStringLiteral("the main window has no channel page"))) {
        Close();
        return;
    }
    CSessionRows rows(m_user, page);
    CSessionCalculator calculator(m_user, page->GetCalculator());

    Step("empty window", [&] { CheckEmptyWindow(); });
    Step("add rows", [&] { rows.AddRows(m_rows); });
    const double total = rows.VisibleTotal();
    Step("disk requirement", [&] { calculator.DiskRequirement(total); });
    Step("recording days", [&] { calculator.RecordingDays(total); });
    Step("raid capacity", [&] { calculator.RaidCapacity(); });
    Step("request device", [&] { calculator.RequestDevice(total); });
    static const char* const previews[] = { "preview scene 1", "preview scene 2",
                                            "preview scene 3" };
    for (int scene = 1; scene <= 3; ++scene) {
        Step(previews[scene - 1], [&] {
            const int row = rows.RowWithScene(scene);
            if (m_user.Check(row >= 0, QStringLiteral("no row with scene %1").arg(scene)))
                PreviewScene(scene, rows.PreviewButton(row));
        });
    }
    Step("delete rows", [&] { rows.DeleteRows(m_rows / 4); });
    Step("clear all", [&] {
        rows.ClearAll();
        calculator.CheckEmptyTable();
    });
    Step("close", [&] { Close(); });
}

void CSessionScript::CheckEmptyWindow()
{
    QWidget* window = SFWidgetFromHandle(m_main->GetUIWnd());
    m_user.Check(window->isVisible() && window->size() == QSize(1100, 750),
                 QStringLiteral("the main window is not shown at 1100 by 750"));
    m_user.CheckText(window->windowTitle(), CSessionUser::Word(L"ProductName"),
                     QStringLiteral("window title"));
    CCalculatorBottom* calc = m_main->GetPageEvent()->GetCalculator();
    m_user.CheckText(CSessionUser::LabelText(
                         CSessionCalculator::Label(calc, CCalculatorBottom::kNameChannelCount)),
                     QStringLiteral("0"), QStringLiteral("channels at start"));
    m_user.CheckText(CSessionUser::LabelText(
                         CSessionCalculator::Label(calc, CCalculatorBottom::kNameBitrate)),
                     QStringLiteral("0.00 kbps"), QStringLiteral("total at start"));
    m_user.CheckText(CSessionUser::LabelText(
                         CSessionCalculator::Label(calc, CCalculatorBottom::kNameResultValue)),
                     QStringLiteral("0.00GB"), QStringLiteral("answer at start"));
}

void CSessionScript::PreviewScene(int scene, QWidget* previewButton)
{
    const QString what = QStringLiteral("preview of scene %1").arg(scene);
    m_user.ClickIntoModal(
        previewButton,
        [&](QDialog* dialog) {
            m_user.CheckText(dialog->windowTitle(),
                             CSessionUser::Word(scene == 1   ? L"Scene 1"
                                                : scene == 2 ? L"Scene 2"
                                                             : L"Scene 3"),
                             what + QStringLiteral(" title"));
            QWidget* surface = nullptr;
            const bool playing = m_user.WaitUntil([&] {
                surface = dialog->findChild<QWidget*>(QStringLiteral("vexplaySurface"));
                return surface && surface->isVisible();
            });
            if (m_user.Check(playing, what + QStringLiteral(" showed no frame"))) {
                CPaintCounter paints(surface);
                m_user.Idle(m_previewMs);
                m_user.Check(paints.Paints() >= 2,
                             what + QStringLiteral(" painted %1 frames").arg(paints.Paints()));
            }
            m_user.Click(dialog->findChild<QAbstractButton*>(QStringLiteral("button_2")));
        },
        what);
}

void CSessionScript::Close()
{
    QWidget* window = m_main ? SFWidgetFromHandle(m_main->GetUIWnd()) : nullptr;
    const QString name = QStringLiteral("button_%1").arg(CToolBarEventImp::IdClose);
    auto* close = window ? window->findChild<QAbstractButton*>(name) : nullptr;
    if (!m_user.Check(close, QStringLiteral("no close button"))) {
        if (window)
            window->close();
        return;
    }
    m_user.Click(close);
    m_user.Check(window->isHidden(), QStringLiteral("the close button left the window shown"));
    m_reachedEnd = true;
}
