#include "tests/vexplay/LoopingManager.h"

#include "vexplay/vexplay.h"

#include <mutex>
#include <set>

namespace {

std::mutex g_liveMutex;
std::set<const void*> g_live;
std::atomic<int> g_stray{ 0 };

} // namespace

LoopingManager::LoopingManager(int playFlag) : m_playFlag(playFlag)
{
    std::lock_guard<std::mutex> lock(g_liveMutex);
    g_live.insert(this);
}

LoopingManager::~LoopingManager()
{
    std::lock_guard<std::mutex> lock(g_liveMutex);
    g_live.erase(this);
}

int LoopingManager::StrayCallbacks()
{
    return g_stray;
}

std::chrono::steady_clock::time_point LoopingManager::FirstEnd() const
{
    return std::chrono::steady_clock::time_point(
        std::chrono::steady_clock::duration(m_firstEnd.load()));
}

void LoopingManager::PlayFile(const std::string& path, void* window)
{
    m_path = path;
    m_window = window;
    Open(path);
    Play(window);
}

void LoopingManager::Open(const std::string& path)
{
    if (m_port == kNoPort) {
        int port = kNoPort;
        if (!vexplay_GetPort(&port)) {
            m_port = kNoPort;
            return;
        }
        m_port = port;
    }
    ClearCallbacks();
    if (!vexplay_OpenFile(m_port, path.c_str()))
        ClearCallbacks();
}

void LoopingManager::Play(void* window)
{
    if (m_port == kNoPort)
        return;
    vexplay_SetPlayFlag(m_port, m_playFlag);
    vexplay_SetFileEndCallback(m_port, &LoopingManager::OnFileEnd, this);
    if (!vexplay_Play(m_port, window))
        ClearCallbacks();
}

void LoopingManager::Stop()
{
    if (m_port == kNoPort)
        return;
    ClearCallbacks();
    if (vexplay_CloseFile(m_port))
        m_port = kNoPort;
}

void LoopingManager::ClearCallbacks()
{
    const int port = m_port;
    vexplay_SetCallback125(port, nullptr, nullptr);
    vexplay_SetFileEndCallback(port, nullptr, nullptr);
    vexplay_SetCallback157(port, nullptr, nullptr);
    vexplay_SetCallback109(port, nullptr, nullptr);
}

void LoopingManager::OnFileEnd(int, void* user)
{
    {
        std::lock_guard<std::mutex> lock(g_liveMutex);
        if (!g_live.count(user)) {
            ++g_stray;
            return;
        }
    }
    auto* self = static_cast<LoopingManager*>(user);
    long long none = 0;
    self->m_firstEnd.compare_exchange_strong(
        none, std::chrono::steady_clock::now().time_since_epoch().count());
    ++self->m_ends;
    self->Stop();
    self->PlayFile(self->m_path, self->m_window);
}
