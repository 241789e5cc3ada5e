// One QApplication for the whole process, on an offscreen screen of desktop
// size: the default 800 by 600 could not hold the main window, and centring
// would have nothing to show.
#include <QApplication>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    if (!platform || !*platform || std::strcmp(platform, "offscreen") == 0)
        setenv("QT_QPA_PLATFORM", "offscreen:configfile=" TALLIX_SCREEN_CONFIG, 1);
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
