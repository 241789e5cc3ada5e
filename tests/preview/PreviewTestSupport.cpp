#include "tests/preview/PreviewTestSupport.h"

#include "language/LangString.h"
#include "preview/ScenePreview.h"
#include "sf/qt/SFApplication.h"
#include "tests/preview/VexplayTrace.h"
#include "tests/vexplay/PlaybackStage.h"

#include <QApplication>
#include <QFile>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

const std::vector<std::string> kClearOps = { "Cb125:null", "FileEnd:null", "Cb157:null",
                                             "Cb109:null" };
const std::vector<std::string> kPlayOps = { "PlayFlag:1", "FileEnd:set", "Play" };

std::vector<std::string> Join(std::initializer_list<std::vector<std::string>> parts)
{
    std::vector<std::string> all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

void PreviewTest::SetUp()
{
    m_oldAppDir = g_strAppDir;
    SFSetSkinPath(QStringLiteral(TALLIX_APP_DIR "/Bin/Skin/").toStdWString().c_str());
    SFSetLanguageDirForTesting(TALLIX_APP_DIR);
    SFResetLanguageForTesting();
    g_nLanguage = 0;
    QFile css(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    if (css.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(css.readAll()));
    SetAppDir(QStringLiteral(TALLIX_APP_DIR));
    VexTrace::Reset();
}

void PreviewTest::TearDown()
{
    g_strAppDir = m_oldAppDir;
}

void PreviewTest::SetAppDir(const QString& dir)
{
    g_strAppDir = dir;
}

std::wstring PreviewTest::Wide(const std::string& text)
{
    return QString::fromStdString(text).toStdWString();
}

ShortClipDir::ShortClipDir()
{
    const QString clip = QString::fromStdString(PlaybackStage::ShortClip());
    for (const char* name : { "/1low.kvf", "/1medium.kvf", "/1high.kvf" })
        QFile::copy(clip, m_dir.path() + QString::fromLatin1(name));
}

int RunPreview(int scene, const std::function<void(QWidget* dialog)>& inside)
{
    bool forced = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&forced] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            forced = true;
            modal->close();
        }
    });
    QTimer::singleShot(0, [&inside, &guard] {
        guard.start(20000);
        QWidget* modal = QApplication::activeModalWidget();
        EXPECT_NE(modal, nullptr) << "no modal dialog";
        if (modal)
            inside(modal);
    });
    const int result = ShowScenePreview(scene, nullptr);
    EXPECT_FALSE(forced) << "the dialog had to be closed by force";
    return result;
}

int SuccessfulPlays()
{
    int plays = 0;
    for (const VexCall& c : VexTrace::Calls())
        plays += c.op == "Play" && c.ok;
    return plays;
}

Watchdog::Watchdog(const char* what, int ms)
    : m_thread([this, what, ms] {
          std::unique_lock<std::mutex> lock(m_mutex);
          if (!m_done.wait_for(lock, std::chrono::milliseconds(ms),
                               [this] { return m_finished; })) {
              std::fprintf(stderr, "Hung: %s\n", what);
              std::_Exit(3);
          }
      })
{
}

Watchdog::~Watchdog()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_finished = true;
    }
    m_done.notify_all();
    m_thread.join();
}
