#pragma once
// Plays a sample clip into a window through vexplay and starts it over each
// time it ends.

#include <atomic>
#include <boost/shared_ptr.hpp>
#include <mutex>
#include <string>

class CPlayManagerUILogic {
public:
    // The port value that stands for no port.
    static constexpr int NO_PORT = 502;

    CPlayManagerUILogic();
    // Stops a port still playing, so that no callback can reach a deleted
    // manager.
    virtual ~CPlayManagerUILogic();
    CPlayManagerUILogic(const CPlayManagerUILogic&) = delete;
    CPlayManagerUILogic& operator=(const CPlayManagerUILogic&) = delete;

    static boost::shared_ptr<CPlayManagerUILogic> Create();
    void Init() {}

    void PlayFile(std::wstring path, void* hWnd);
    void Open(const char* path);
    void Play(void* hWnd);
    void Stop();
    void ClearCallbacks();

    int GetPort();
    // The clip last started by any manager, and its window.
    static std::wstring GetLastFile();
    static void* GetLastWnd();

private:
    static void OnFileEnd(int port, void* user);

    boost::shared_ptr<CPlayManagerUILogic> m_pSelf;
    int m_nPort;
    // The restart runs on the library's thread while the GUI thread may stop
    // the same port; recursive because the restart goes through Stop and
    // PlayFile.
    std::recursive_timed_mutex m_mutex;
    // Stops under way: a restart that meets one gives way, as the close it
    // would wait for waits for the restart in turn.
    std::atomic<int> m_nStopping;

    static std::mutex s_lastMutex;
    static std::wstring s_strLastFile;
    static void* s_hLastWnd;
};
