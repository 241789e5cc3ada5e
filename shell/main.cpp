#include <QApplication>
#include <QLoggingCategory>
#include <string>

#include "ConfigXMLPersistImp.h"
#include "LangString.h"
#include "SFApplication.h"
#include "VexUISetting.h"

Q_LOGGING_CATEGORY(lcStart, "tallix.start", QtWarningMsg)

namespace {

void LogStartState(const QApplication& app)
{
    if (!lcStart().isDebugEnabled())
        return;
    qCDebug(lcStart, "application directory %s", qUtf8Printable(g_strAppDir));
    qCDebug(lcStart, "style sheet %s", app.styleSheet().isEmpty() ? "none" : "applied");
    qCDebug(lcStart, "language %d", g_nLanguage);
    qCDebug(lcStart, "recordable percentage %u", g_UISetting.m_nRecordblePersentage);
    qCDebug(lcStart, "product name %s",
            qUtf8Printable(QString::fromWCharArray(GetLangString(L"ProductName", 0))));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    SFInitUI();
    SFSetApplication(&app);
    std::wstring strAppDir = SFGetAppPath();
    SFSetSkinPath((strAppDir + L"/Bin/Skin/").c_str());
    SFLoadStyleSheet(strAppDir + L"/Tallix_Style.css");
    ReadLanguageChoice();

    g_UISetting.SetPersistent(new CConfigXMLPersistImp(std::string()));
    g_UISetting.Load();
    LogStartState(app);

    // The main window and its event loop come with the shell; until then
    // the start sequence ends here.

    SFUninitUI();
    return 0;
}
