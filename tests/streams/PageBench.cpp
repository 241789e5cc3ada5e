// Timings and memory of the channel page on the real main window, offscreen:
// rows added one by one, one row edit at several table sizes, "Clear All".
//
//   streams_page_bench [rows]        (default 500)
//
// Times are wall clock and, in brackets, the thread's processor time, which
// other load on the machine disturbs less. TALLIX_BENCH_NO_CSS=1 runs without
// the application style sheet, TALLIX_BENCH_CSS=<file> with another one.
#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQTListCtrl.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "streams/TallixEventImp.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <string>
#include <vector>

namespace {

struct Memory {
    long rssKb = 0;
    long privateKb = 0;
    long heapKb = 0;
};

Memory ReadMemory()
{
    Memory m;
    std::ifstream in("/proc/self/smaps_rollup");
    std::string line;
    while (std::getline(in, line)) {
        const long value = std::atol(line.c_str() + std::min(line.size(), line.find(':') + 1));
        if (line.rfind("Rss:", 0) == 0)
            m.rssKb = value;
        else if (line.rfind("Private_Clean:", 0) == 0 || line.rfind("Private_Dirty:", 0) == 0)
            m.privateKb += value;
    }
    m.heapKb = static_cast<long>(mallinfo2().uordblks / 1024);
    return m;
}

void Settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

double Ms(qint64 ns)
{
    return static_cast<double>(ns) / 1e6;
}

double CpuMs()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

struct Sample {
    double handler; // the reaction itself
    double painted; // with the layout and paint that follow it
    double handlerCpu;
    double paintedCpu;
};

class Bench {
public:
    Bench()
    {
        DialogStyle style;
        m_dlg = BringUpMainWindow(style, m_event);
        m_window = dynamic_cast<QWidget*>(m_dlg);
        (void)QTest::qWaitForWindowExposed(m_window);
        m_page = m_event->GetPageEvent();
        m_list = m_window->findChild<CSFQTListCtrl*>(QStringLiteral("listctrl_2014"));
    }
    ~Bench()
    {
        SFDestroyControl(m_dlg);
        delete m_event;
    }

    template <class F>
    Sample Time(F f)
    {
        QElapsedTimer t;
        t.start();
        const double cpu = CpuMs();
        f();
        const qint64 handler = t.nsecsElapsed();
        const double handlerCpu = CpuMs() - cpu;
        m_window->repaint();
        QCoreApplication::processEvents();
        return { Ms(handler), Ms(t.nsecsElapsed()), handlerCpu, CpuMs() - cpu };
    }

    // The click of "Add Streaming" reaches the page as its command.
    Sample AddRow()
    {
        return Time([this] { ClickAdd(); });
    }
    void ClickAdd() { ClickLabel("label_add"); }
    void ClickClearAll() { ClickLabel("label_clear"); }
    void ClickLabel(const char* name)
    {
        QWidget* label = m_window->findChild<QWidget*>(QString::fromLatin1(name));
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          label->mapTo(m_window, label->rect().center()));
    }

    QComboBox* Combo(CSFQTListCtrl::Register reg, int row)
    {
        return qobject_cast<QComboBox*>(m_list->CellWidget(m_list->RegisterControl(reg, row)));
    }

    // A row of H.264 at 30 frames, alternating resolutions.
    void FillRow(int row)
    {
        Combo(CSFQTListCtrl::CompressionCombos, row)->setCurrentIndex(1);
        Combo(CSFQTListCtrl::ResolutionCombos, row)->setCurrentIndex(1 + row % 12);
    }

    // A user's choice as the combo reports it: the popup's selection sets the
    // index and the signal runs the row's reactions.
    Sample EditRow(int row, int resolution)
    {
        QComboBox* combo = Combo(CSFQTListCtrl::ResolutionCombos, row);
        return Time([combo, resolution] { combo->setCurrentIndex(resolution); });
    }

    CMainDlgEventImp* m_event = nullptr;
    CSFDialog* m_dlg = nullptr;
    QWidget* m_window = nullptr;
    CTallixEventImp* m_page = nullptr;
    CSFQTListCtrl* m_list = nullptr;
};

double MedianOf(std::vector<Sample> v, double Sample::*field)
{
    std::sort(v.begin(), v.end(),
              [field](const Sample& a, const Sample& b) { return a.*field < b.*field; });
    return v[v.size() / 2].*field;
}

Sample Median(const std::vector<Sample>& v)
{
    return { MedianOf(v, &Sample::handler), MedianOf(v, &Sample::painted),
             MedianOf(v, &Sample::handlerCpu), MedianOf(v, &Sample::paintedCpu) };
}

void PrintSample(const Sample& s)
{
    std::printf("%7.2f [%6.2f] %7.2f [%6.2f]", s.handler, s.handlerCpu, s.painted, s.paintedCpu);
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    const int rows = argc > 1 ? std::max(10, std::atoi(argv[1])) : 500;

    SFSetSkinPath(TALLIX_APP_DIR L"/Bin/Skin/");
    QFile sheet(qEnvironmentVariableIsSet("TALLIX_BENCH_CSS")
                    ? qEnvironmentVariable("TALLIX_BENCH_CSS")
                    : QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    if (!qEnvironmentVariableIsSet("TALLIX_BENCH_NO_CSS") && sheet.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    g_UISetting.m_nRecordblePersentage = 90;
    g_nLanguage = 0;
    SFSetLanguageDirForTesting(TALLIX_APP_DIR);

    Bench bench;
    if (!bench.m_list) {
        std::fprintf(stderr, "no channel page\n");
        return 1;
    }
    Settle();
    const Memory before = ReadMemory();
    const qsizetype widgetsBefore =
        bench.m_window->findChildren<QWidget*>().size() + QApplication::topLevelWidgets().size();
    const qsizetype objectsBefore =
        bench.m_window->findChildren<QObject*>().size() + QApplication::topLevelWidgets().size();

    std::vector<int> checkpoints = { 10, 100, rows };
    std::vector<Sample> adds;
    std::printf("rows | add ms [cpu], with paint [cpu] | edit ms [cpu], with paint [cpu]\n");
    for (int n = 1; n <= rows; ++n) {
        adds.push_back(bench.AddRow());
        bench.FillRow(n - 1);
        if (std::find(checkpoints.begin(), checkpoints.end(), n) == checkpoints.end())
            continue;
        Settle();
        std::vector<Sample> edits;
        for (int i = 0; i < 21; ++i)
            edits.push_back(bench.EditRow(n / 2, i % 2 ? 3 : 2));
        const Sample edit = Median(edits);
        const Sample lastAdd = adds.back();
        std::printf("%4d | ", n);
        PrintSample(lastAdd);
        std::printf(" | ");
        PrintSample(edit);
        std::printf("\n");
        if (bench.m_list->GetItemCount() != n) {
            std::fprintf(stderr, "row count %d, expected %d\n", bench.m_list->GetItemCount(), n);
            return 1;
        }
    }
    Settle();
    const Memory after = ReadMemory();
    // The last ten adds, so that one slow frame does not decide.
    const Sample lastAdds =
        Median(std::vector<Sample>(adds.end() - std::min<size_t>(10, adds.size()), adds.end()));
    std::printf("add of the last rows (median of 10): ");
    PrintSample(lastAdds);
    std::printf("\n");
    std::printf("memory per row: private %.1f KB, rss %.1f KB, heap in use %.1f KB\n",
                static_cast<double>(after.privateKb - before.privateKb) / rows,
                static_cast<double>(after.rssKb - before.rssKb) / rows,
                static_cast<double>(after.heapKb - before.heapKb) / rows);
    std::printf("widgets per row: %.1f, objects per row: %.1f\n",
                static_cast<double>(bench.m_window->findChildren<QWidget*>().size() +
                                    QApplication::topLevelWidgets().size() - widgetsBefore) /
                    rows,
                static_cast<double>(bench.m_window->findChildren<QObject*>().size() +
                                    QApplication::topLevelWidgets().size() - objectsBefore) /
                    rows);
    std::printf("totals: %d channels, %.0f kbps\n", bench.m_page->GetCalculator()->GetChannels(),
                bench.m_page->GetCalculator()->GetTotalBitrate());

    QElapsedTimer t;
    t.start();
    const double cpu = CpuMs();
    bench.m_page->OnClearAll();
    const double clear = Ms(t.nsecsElapsed());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const double deleted = Ms(t.nsecsElapsed());
    bench.m_window->repaint();
    QCoreApplication::processEvents();
    const double painted = Ms(t.nsecsElapsed());
    std::printf("clear all at %d rows: %.2f ms, widgets freed at %.2f ms, painted at %.2f ms "
                "[cpu %.2f ms]\n",
                rows, clear, deleted, painted, CpuMs() - cpu);
    if (bench.m_list->GetItemCount() != 0 || bench.m_page->GetCalculator()->GetChannels() != 0) {
        std::fprintf(stderr, "clear all left rows\n");
        return 1;
    }
    return 0;
}
