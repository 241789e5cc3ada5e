#pragma once
// What the preview tests share: the skin, dictionary and application
// directory, and a modal run of the preview. Windows to play into are
// PlaybackStage's.

#include <QString>
#include <QTemporaryDir>
#include <condition_variable>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

class QWidget;

// Sequences the manager sends the library.
extern const std::vector<std::string> kClearOps;
extern const std::vector<std::string> kPlayOps;
std::vector<std::string> Join(std::initializer_list<std::vector<std::string>> parts);

// Real skin, English dictionary and the style sheet; a clean trace; the
// application directory put back afterwards.
class PreviewTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    // The directory SFGetAppPath gives from now on.
    static void SetAppDir(const QString& dir);
    static std::wstring Wide(const std::string& text);

private:
    QString m_oldAppDir;
};

// An application directory whose three scene clips are the 0.12 s test clip,
// so that the preview loops quickly.
class ShortClipDir {
public:
    ShortClipDir();
    QString Path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

// Runs ShowScenePreview(scene, null); inside gets the open dialog and must
// close it. A dialog still open after 20 s is closed, and fails the test.
int RunPreview(int scene, const std::function<void(QWidget* dialog)>& inside);

// Number of successful vexplay_Play calls so far.
int SuccessfulPlays();

// Ends the process with a message if it is still alive after ms: a deadlock
// then fails instead of hanging the suite.
class Watchdog {
public:
    Watchdog(const char* what, int ms);
    ~Watchdog();

private:
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_finished = false;
    std::thread m_thread;
};
