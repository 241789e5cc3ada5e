#include "sf/qt/SFApplication.h"

#include <QApplication>
#include <QDir>
#include <QFile>

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
    QFile file(g_strStyleSheetPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    g_pApplication->setStyleSheet(QString::fromUtf8(file.readAll()));
    file.close();
}

// A port of the framework to another toolkit would set up and tear down
// its globals here.
void SFInitUI() {}
void SFUninitUI() {}
