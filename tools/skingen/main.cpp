// Draws the program's skin images into a directory.
//
//   skingen <directory> [name ...] [--sheet <file>]
//
// Names, when given, must be exactly the images drawn: the build lists them
// and this keeps the two in step. --sheet also writes a contact sheet.

#include "tools/skingen/ContactSheet.h"
#include "tools/skingen/SkinCatalog.h"

#include <QGuiApplication>
#include <QSet>
#include <QStringList>
#include <cstdio>

namespace {

void complain(const QString& text)
{
    std::fprintf(stderr, "skingen: %s\n", text.toLocal8Bit().constData());
}

} // namespace

int main(int argc, char** argv)
{
    // Runs at build time, usually without a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    QStringList args = app.arguments().mid(1);
    QString sheet;
    const int sheetAt = args.indexOf(QStringLiteral("--sheet"));
    if (sheetAt >= 0) {
        if (sheetAt + 1 >= args.size()) {
            complain(QStringLiteral("--sheet needs a file name"));
            return 2;
        }
        sheet = args.at(sheetAt + 1);
        args.remove(sheetAt, 2);
    }
    if (args.isEmpty()) {
        complain(QStringLiteral("usage: skingen <directory> [name ...] [--sheet <file>]"));
        return 2;
    }
    const QString directory = args.takeFirst();

    const SkinCatalog catalog;
    if (!args.isEmpty()) {
        const QStringList drawn = catalog.names();
        const QSet<QString> expected(args.cbegin(), args.cend());
        const QSet<QString> have(drawn.cbegin(), drawn.cend());
        bool ok = true;
        for (const QString& n : expected - have) {
            complain(QStringLiteral("no drawing for \"%1\"").arg(n));
            ok = false;
        }
        for (const QString& n : have - expected) {
            complain(QStringLiteral("\"%1\" is drawn but not listed by the build").arg(n));
            ok = false;
        }
        if (!ok)
            return 1;
    }

    QString error;
    if (!catalog.writeAll(directory, &error)) {
        complain(error);
        return 1;
    }
    if (!sheet.isEmpty() && !ContactSheet::build(directory, catalog.names()).save(sheet, "PNG")) {
        complain(QStringLiteral("cannot write ") + sheet);
        return 1;
    }
    return 0;
}
