#include "sf/qt/SFApplication.h"

#include "sf/qt/SFStyleSheetBounds.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <sys/stat.h>

namespace {

// No window of ours comes near this; Qt's painters fail on far larger ones.
constexpr int kMaxStyleLength = 4096;
// Ours is a few kilobytes.
constexpr qint64 kMaxStyleSheetBytes = 4 << 20;

} // namespace

QApplication* g_pApplication = nullptr;
QString g_strAppDir;
QString g_strSkinPath;
QString g_strStyleSheetPath;

void SFSetApplication(QApplication* app)
{
    g_pApplication = app;
    // From here on every relative path means the application directory.
    QDir::setCurrent(QCoreApplication::applicationDirPath());
}

std::wstring SFGetAppPath()
{
    if (g_pApplication)
        g_strAppDir = QCoreApplication::applicationDirPath();
    return g_strAppDir.toStdWString();
}

void SFSetSkinPath(const wchar_t* path)
{
    g_strSkinPath = QString::fromWCharArray(path ? path : L"");
}

void SFLoadStyleSheet(std::wstring path)
{
    g_strStyleSheetPath = QString::fromStdWString(path);
    if (!g_pApplication)
        return;
    // Looked at before it is opened: a FIFO would block the open, a device
    // never end; anything but a regular file counts as no sheet.
    struct stat st;
    if (::stat(QFile::encodeName(g_strStyleSheetPath).constData(), &st) != 0 ||
        !S_ISREG(st.st_mode) || st.st_size > kMaxStyleSheetBytes)
        return;
    QFile file(g_strStyleSheetPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QString sheet = QString::fromUtf8(file.read(kMaxStyleSheetBytes));
    g_pApplication->setStyleSheet(SFBoundStyleSheetLengths(sheet, kMaxStyleLength));
    file.close();
}

// A port of the framework to another toolkit would set up and tear down
// its globals here.
void SFInitUI()
{
}
void SFUninitUI()
{
}
