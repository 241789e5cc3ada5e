// The start-up benchmark's floor: the least a Qt widget program does to put
// a window of the main window's size on the screen.
#include "shell/FirstPaintReport.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.resize(1100, 750);
    FirstPaintReport::WatchIfAsked(&window);
    window.show();
    return app.exec();
}
