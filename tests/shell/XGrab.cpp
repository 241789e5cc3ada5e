// Grabs a window of the X display it runs on, as it is on screen, and prints
// the colour at each point asked for, one "#rrggbb" a line.
//
//   tallix_xgrab <window id> <file.png | -> [x,y ...]

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QStringList>
#include <cstdio>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: tallix_xgrab <window id> <file.png | -> [x,y ...]\n");
        return 2;
    }
    bool ok = false;
    const WId window = args.at(1).toULongLong(&ok, 0);
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!ok || !screen) {
        std::fprintf(stderr, "tallix_xgrab: no window or no screen\n");
        return 2;
    }
    const QPixmap shot = screen->grabWindow(window);
    if (shot.isNull()) {
        std::fprintf(stderr, "tallix_xgrab: could not grab window %s\n", qPrintable(args.at(1)));
        return 1;
    }
    if (args.at(2) != QStringLiteral("-") && !shot.save(args.at(2), "PNG")) {
        std::fprintf(stderr, "tallix_xgrab: cannot write %s\n", qPrintable(args.at(2)));
        return 1;
    }
    const QImage image = shot.toImage();
    for (int i = 3; i < args.size(); ++i) {
        const QStringList xy = args.at(i).split(QLatin1Char(','));
        const QPoint p(xy.value(0).toInt(), xy.value(1).toInt());
        if (xy.size() != 2 || !image.rect().contains(p)) {
            std::printf("none\n");
            continue;
        }
        std::printf("%s\n", qPrintable(QColor(image.pixel(p)).name()));
    }
    return 0;
}
