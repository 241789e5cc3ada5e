#pragma once
// The library's ports: which are held, what each has open and plays, its
// callbacks, and the windows played into. One lock guards it all; nothing
// slow runs under it.

#include <QWidget>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace vexplay {

class ClipDecoder;
class ClipPlayer;
class FrameSink;

class PortTable {
public:
    using Callback = void (*)(int port, void* user);
    static constexpr int kPorts = 64;
    static constexpr int kOtherCallbacks = 3;

    static PortTable& Instance();
    ~PortTable();
    PortTable(const PortTable&) = delete;
    PortTable& operator=(const PortTable&) = delete;

    bool GetPort(int* port);
    bool OpenFile(int port, const char* path);
    bool CloseFile(int port);
    bool Play(int port, void* window);
    bool SetPlayFlag(int port, int flag);
    bool SetFileEndCallback(int port, Callback callback, void* user);
    bool SetOtherCallback(int port, int which, Callback callback, void* user);

    // The GUI side.
    void RegisterWindow(WId window, const std::shared_ptr<FrameSink>& sink);
    // The window is going: its ports stop, and nothing of theirs is called
    // once this returns.
    void DetachWindow(const std::shared_ptr<FrameSink>& sink);
    bool Playing(const std::shared_ptr<FrameSink>& sink);
    // Stops every port for good; for the application's end.
    void StopAll();

private:
    using Lock = std::unique_lock<std::mutex>;
    using Players = std::vector<std::shared_ptr<ClipPlayer>>;
    using PlayerTest = std::function<bool(const ClipPlayer&)>;

    struct Slot {
        bool held = false;
        // The window died under it; the first to be taken back when no port
        // is free, as its holder may be gone too.
        bool orphaned = false;
        unsigned long long orphanedAt = 0;
        unsigned generation = 0;
        bool paced = true;
        std::unique_ptr<ClipDecoder> clip;
        std::shared_ptr<ClipPlayer> player;
        Callback fileEnd = nullptr;
        void* fileEndUser = nullptr;
        Callback others[kOtherCallbacks] = {};
        void* otherUsers[kOtherCallbacks] = {};
    };

    // What has to be joined or freed once the lock is let go.
    struct Leftovers {
        Players players;
        std::vector<std::unique_ptr<ClipDecoder>> clips;
        ~Leftovers();
    };

    PortTable() = default;
    Slot* HeldSlot(int port);
    void FileEnded(ClipPlayer& player);
    void ClearCallbacks(Slot& slot);
    void Retire(Slot& slot, Leftovers& leftovers);
    void Release(Slot& slot, Leftovers& leftovers);
    void ReapZombies(Leftovers& leftovers);
    // Stops the matching players of the slots, clears those slots'
    // callbacks, and waits while a matching player's callback runs on
    // another thread; again after each wait, as a callback may start new
    // plays. A thread in a callback itself does not wait: two callbacks
    // waiting for each other would never end.
    void StopAndWait(Lock& lock, const PlayerTest& match);

    std::mutex m_mutex;
    std::condition_variable m_callbackDone;
    Slot m_slots[kPorts];
    // Players that were stopped from their own thread and still have to be
    // joined by another.
    Players m_zombies;
    std::map<WId, std::weak_ptr<FrameSink>> m_windows;
    unsigned long long m_orphans = 0;
};

} // namespace vexplay
