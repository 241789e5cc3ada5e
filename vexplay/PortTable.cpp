#include "vexplay/PortTable.h"

#include "vexplay/ClipDecoder.h"
#include "vexplay/ClipPlayer.h"
#include "vexplay/FrameSink.h"
#include "vexplay/SurfaceHub.h"

#include <utility>

namespace vexplay {

namespace {

// How deep this thread is in end callbacks.
thread_local int t_callbackDepth = 0;

} // namespace

PortTable& PortTable::Instance()
{
    static PortTable table;
    return table;
}

PortTable::~PortTable()
{
    StopAll();
}

PortTable::Leftovers::~Leftovers()
{
    for (const auto& player : players)
        player->Join();
}

PortTable::Slot* PortTable::HeldSlot(int port)
{
    if (port < 0 || port >= kPorts || !m_slots[port].held)
        return nullptr;
    return &m_slots[port];
}

void PortTable::ClearCallbacks(Slot& slot)
{
    slot.fileEnd = nullptr;
    slot.fileEndUser = nullptr;
    for (int i = 0; i < kOtherCallbacks; ++i) {
        slot.others[i] = nullptr;
        slot.otherUsers[i] = nullptr;
    }
}

void PortTable::Retire(Slot& slot, Leftovers& leftovers)
{
    if (!slot.player)
        return;
    std::shared_ptr<ClipPlayer> player = std::move(slot.player);
    player->RequestStop();
    const std::shared_ptr<FrameSink>& sink = player->Sink();
    if (--sink->players <= 0) {
        sink->players = 0;
        SurfaceHub::NotifyIdle(sink);
    }
    // A thread cannot join itself, and a callback joining another callback
    // could wait for ever; such players are joined later by someone else.
    if (player->OwnThread() || (t_callbackDepth > 0 && player->inCallback))
        m_zombies.push_back(std::move(player));
    else
        leftovers.players.push_back(std::move(player));
}

void PortTable::Release(Slot& slot, Leftovers& leftovers)
{
    ClearCallbacks(slot);
    Retire(slot, leftovers);
    if (slot.clip)
        leftovers.clips.push_back(std::move(slot.clip));
    slot.held = false;
    slot.orphaned = false;
    ++slot.generation;
}

void PortTable::ReapZombies(Leftovers& leftovers)
{
    for (auto it = m_zombies.begin(); it != m_zombies.end();) {
        if ((*it)->Finished() && !(*it)->OwnThread()) {
            leftovers.players.push_back(std::move(*it));
            it = m_zombies.erase(it);
        } else {
            ++it;
        }
    }
}

void PortTable::StopAndWait(Lock& lock, const PlayerTest& match)
{
    for (;;) {
        for (Slot& slot : m_slots) {
            if (slot.player && match(*slot.player)) {
                ClearCallbacks(slot);
                slot.player->RequestStop();
            }
        }
        if (t_callbackDepth > 0)
            return;
        auto running = [&](const std::shared_ptr<ClipPlayer>& p) {
            return p && p->inCallback && !p->OwnThread() && match(*p);
        };
        bool waiting = false;
        for (const Slot& slot : m_slots)
            waiting = waiting || running(slot.player);
        for (const auto& zombie : m_zombies)
            waiting = waiting || running(zombie);
        if (!waiting)
            return;
        m_callbackDone.wait(lock);
    }
}

void PortTable::FileEnded(ClipPlayer& player)
{
    Lock lock(m_mutex);
    const int port = player.Port();
    Slot& slot = m_slots[port];
    if (player.StopRequested() || slot.player.get() != &player || !slot.fileEnd)
        return;
    const Callback callback = slot.fileEnd;
    void* const user = slot.fileEndUser;
    player.inCallback = true;
    ++t_callbackDepth;
    lock.unlock();
    try {
        callback(port, user);
    } catch (...) {
        // Nothing may leave the decoding thread.
    }
    lock.lock();
    --t_callbackDepth;
    player.inCallback = false;
    m_callbackDone.notify_all();
}

bool PortTable::GetPort(int* port)
{
    if (!port)
        return false;
    Leftovers leftovers;
    Lock lock(m_mutex);
    ReapZombies(leftovers);
    int chosen = -1;
    for (int i = 0; i < kPorts && chosen < 0; ++i)
        if (!m_slots[i].held)
            chosen = i;
    if (chosen < 0) {
        for (int i = 0; i < kPorts; ++i)
            if (m_slots[i].orphaned &&
                (chosen < 0 || m_slots[i].orphanedAt < m_slots[chosen].orphanedAt))
                chosen = i;
        if (chosen < 0)
            return false;
        Release(m_slots[chosen], leftovers);
    }
    Slot& slot = m_slots[chosen];
    slot.held = true;
    slot.paced = true;
    ++slot.generation;
    ClearCallbacks(slot);
    *port = chosen;
    return true;
}

bool PortTable::OpenFile(int port, const char* path)
{
    if (!path)
        return false;
    unsigned generation = 0;
    {
        Leftovers leftovers;
        Lock lock(m_mutex);
        ReapZombies(leftovers);
        Slot* slot = HeldSlot(port);
        if (!slot)
            return false;
        Retire(*slot, leftovers);
        if (slot->clip)
            leftovers.clips.push_back(std::move(slot->clip));
        slot->orphaned = false;
        generation = slot->generation;
    }
    // Opening reads the file: not under the lock.
    std::unique_ptr<ClipDecoder> clip = ClipDecoder::Open(path);
    Lock lock(m_mutex);
    Slot* slot = HeldSlot(port);
    if (!clip || !slot || slot->generation != generation || slot->player || slot->clip)
        return false;
    slot->clip = std::move(clip);
    return true;
}

bool PortTable::CloseFile(int port)
{
    Leftovers leftovers;
    Lock lock(m_mutex);
    ReapZombies(leftovers);
    if (!HeldSlot(port))
        return false;
    StopAndWait(lock, [port](const ClipPlayer& p) { return p.Port() == port; });
    // A callback may have closed the port meanwhile; closed it is.
    if (m_slots[port].held)
        Release(m_slots[port], leftovers);
    return true;
}

bool PortTable::Play(int port, void* window)
{
    if (!window)
        return false;
    const WId id = reinterpret_cast<WId>(window);
    // Only the GUI thread may look for a window; others find those played
    // into before.
    std::shared_ptr<FrameSink> sink = SurfaceHub::Attach(id);

    Leftovers leftovers;
    Lock lock(m_mutex);
    ReapZombies(leftovers);
    if (!sink) {
        const auto it = m_windows.find(id);
        if (it != m_windows.end())
            sink = it->second.lock();
    }
    Slot* slot = HeldSlot(port);
    if (!slot || !slot->clip)
        return false;
    if (!sink || !sink->alive) {
        // Its window is gone or was never there: should the holder be gone
        // too, the port is not lost for good.
        slot->orphaned = true;
        slot->orphanedAt = ++m_orphans;
        return false;
    }
    auto player = std::make_shared<ClipPlayer>(port, std::move(slot->clip), sink, slot->paced,
                                               [this](ClipPlayer& p) { FileEnded(p); });
    try {
        player->Start();
    } catch (...) {
        return false;
    }
    slot->player = std::move(player);
    ++sink->players;
    return true;
}

bool PortTable::SetPlayFlag(int port, int flag)
{
    Lock lock(m_mutex);
    Slot* slot = HeldSlot(port);
    if (!slot)
        return false;
    slot->paced = flag != 0;
    return true;
}

bool PortTable::SetFileEndCallback(int port, Callback callback, void* user)
{
    Lock lock(m_mutex);
    Slot* slot = HeldSlot(port);
    if (!slot)
        return false;
    slot->fileEnd = callback;
    slot->fileEndUser = user;
    return true;
}

bool PortTable::SetOtherCallback(int port, int which, Callback callback, void* user)
{
    Lock lock(m_mutex);
    Slot* slot = HeldSlot(port);
    if (!slot || which < 0 || which >= kOtherCallbacks)
        return false;
    slot->others[which] = callback;
    slot->otherUsers[which] = user;
    return true;
}

void PortTable::RegisterWindow(WId window, const std::shared_ptr<FrameSink>& sink)
{
    Lock lock(m_mutex);
    for (auto it = m_windows.begin(); it != m_windows.end();)
        it = it->second.expired() ? m_windows.erase(it) : std::next(it);
    m_windows[window] = sink;
}

void PortTable::DetachWindow(const std::shared_ptr<FrameSink>& sink)
{
    Leftovers leftovers;
    Lock lock(m_mutex);
    sink->alive = false;
    for (auto it = m_windows.begin(); it != m_windows.end();) {
        const std::shared_ptr<FrameSink> known = it->second.lock();
        it = (!known || known == sink) ? m_windows.erase(it) : std::next(it);
    }
    StopAndWait(lock, [&sink](const ClipPlayer& p) { return p.Sink() == sink; });
    for (Slot& slot : m_slots) {
        if (slot.player && slot.player->Sink() == sink) {
            Retire(slot, leftovers);
            slot.orphaned = true;
            slot.orphanedAt = ++m_orphans;
        }
    }
}

bool PortTable::Playing(const std::shared_ptr<FrameSink>& sink)
{
    Lock lock(m_mutex);
    return sink->players > 0;
}

void PortTable::StopAll()
{
    Leftovers leftovers;
    Lock lock(m_mutex);
    // No play into the windows of this application any more; those of a
    // later one are new.
    for (const auto& known : m_windows)
        if (const std::shared_ptr<FrameSink> sink = known.second.lock())
            sink->alive = false;
    m_windows.clear();
    StopAndWait(lock, [](const ClipPlayer&) { return true; });
    for (Slot& slot : m_slots)
        Retire(slot, leftovers);
    for (auto it = m_zombies.begin(); it != m_zombies.end();) {
        if (!(*it)->OwnThread()) {
            leftovers.players.push_back(std::move(*it));
            it = m_zombies.erase(it);
        } else {
            ++it;
        }
    }
}

} // namespace vexplay
