// The program as its own main starts and stops it, with a user session run
// inside its event loop instead of a person at the screen.
//
//   tallix_session [--preview-seconds=S] [--rows=N]
//
// Exits 0 only if the session reached the close button with every check
// met and the program then shut down as it does for a user. Offscreen by
// default; QT_LOGGING_RULES="tallix.session.info=true" prints each step's
// time.
#include "sf/DialogStyle.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "tests/session/SessionScript.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Options {
    int previewMs = 3000;
    int rows = 50;
};

bool ParseOptions(int argc, char** argv, Options& options)
{
    for (int i = 1; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strncmp(arg, "--preview-seconds=", 18) == 0)
            options.previewMs = static_cast<int>(std::atof(arg + 18) * 1000);
        else if (std::strncmp(arg, "--rows=", 7) == 0)
            options.rows = std::atoi(arg + 7);
        else
            return false;
    }
    return options.previewMs >= 0 && options.rows >= 16;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (!ParseOptions(argc, argv, options)) {
        // Rows 7, 11 and 15 are the first with scenes 1, 2 and 3.
        std::fprintf(stderr,
                     "usage: tallix_session [--preview-seconds=S] [--rows=N, 16 or more]\n");
        return 2;
    }
    // A desktop-sized screen, as the program meets on a user's machine.
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    if (!platform || !*platform || std::strcmp(platform, "offscreen") == 0)
        setenv("QT_QPA_PLATFORM", "offscreen:configfile=" TALLIX_SESSION_SCREEN, 1);

    // From here to the end, the order of the program's main.
    QApplication app(argc, argv);
    PrepareProgram(app);

    DialogStyle style;
    CMainDlgEventImp* pMainEvent = nullptr;
    CSFDialog* pMainDlg = BringUpMainWindow(style, pMainEvent);

    CSessionScript session(pMainEvent, options.rows, options.previewMs);
    bool loopEndedByClose = true;
    QTimer::singleShot(0, &app, [&] {
        session.Run();
        // The close click has ended the loop by now; if not, nothing will.
        QTimer::singleShot(60000, &app, [&] {
            loopEndedByClose = false;
            QCoreApplication::quit();
        });
    });
    app.exec();

    TearDownProgram(pMainDlg, pMainEvent);

    if (!loopEndedByClose)
        std::fprintf(stderr, "tallix_session: FAILED: the close button did not end the program\n");
    if (!session.ReachedEnd())
        std::fprintf(stderr, "tallix_session: FAILED: the session did not reach its end\n");
    const bool passed = loopEndedByClose && session.ReachedEnd() && session.Failures() == 0;
    if (!passed)
        std::fprintf(stderr, "tallix_session: %d failed checks\n", session.Failures());
    return passed ? 0 : 1;
}
