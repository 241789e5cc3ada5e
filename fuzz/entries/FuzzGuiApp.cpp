#include "fuzz/entries/FuzzGuiApp.h"

#include <QGuiApplication>
#include <cstdlib>

void FuzzGuiApp::Ensure()
{
    if (QCoreApplication::instance())
        return;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static int argc = 1;
    static char name[] = "tallix-fuzz";
    static char* argv[] = { name, nullptr };
    // Lives to the end of the process, as the fuzzer has no end of its own.
    static QGuiApplication* app = new QGuiApplication(argc, argv);
    (void)app;
}
