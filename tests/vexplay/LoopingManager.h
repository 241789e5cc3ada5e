#pragma once
// Drives the library in the order the program's playback manager does,
// including its restart from inside the file-end callback, so that the tests
// meet the library the way the program will. The port is atomic here only to
// keep the test itself free of data races.

#include <atomic>
#include <chrono>
#include <string>

class LoopingManager {
public:
    static constexpr int kNoPort = 502;

    explicit LoopingManager(int playFlag = 1);
    ~LoopingManager();
    LoopingManager(const LoopingManager&) = delete;
    LoopingManager& operator=(const LoopingManager&) = delete;

    void PlayFile(const std::string& path, void* window);
    void Open(const std::string& path);
    void Play(void* window);
    void Stop();
    void ClearCallbacks();

    int Port() const { return m_port; }
    int Ends() const { return m_ends; }
    std::chrono::steady_clock::time_point FirstEnd() const;

    // Callbacks that reached a manager already deleted.
    static int StrayCallbacks();

private:
    static void OnFileEnd(int port, void* user);

    std::atomic<int> m_port{ kNoPort };
    std::atomic<int> m_ends{ 0 };
    std::atomic<long long> m_firstEnd{ 0 };
    const int m_playFlag;
    std::string m_path;
    void* m_window = nullptr;
};
