#pragma once
// Start-up services of the framework: the application object, the
// application directory, the skin path and the style sheet.

#include <QString>
#include <string>

class QApplication;

extern QApplication* g_pApplication;
extern QString g_strAppDir;
extern QString g_strSkinPath;
extern QString g_strStyleSheetPath;

void SFSetApplication(QApplication* app);
std::wstring SFGetAppPath();
void SFSetSkinPath(const wchar_t* path);
void SFLoadStyleSheet(std::wstring path);
void SFInitUI();
void SFUninitUI();
