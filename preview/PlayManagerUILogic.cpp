#include "preview/PlayManagerUILogic.h"

#include "language/SFStreamConvert.h"
#include "vexplay/vexplay.h"

#include <boost/make_shared.hpp>
#include <chrono>

using Lock = std::unique_lock<std::recursive_timed_mutex>;

std::mutex CPlayManagerUILogic::s_lastMutex;
std::wstring CPlayManagerUILogic::s_strLastFile;
void* CPlayManagerUILogic::s_hLastWnd = nullptr;

CPlayManagerUILogic::CPlayManagerUILogic() : m_nPort(NO_PORT), m_nStopping(0)
{
}

CPlayManagerUILogic::~CPlayManagerUILogic()
{
    Stop();
    m_pSelf.reset();
}

boost::shared_ptr<CPlayManagerUILogic> CPlayManagerUILogic::Create()
{
    boost::shared_ptr<CPlayManagerUILogic> manager = boost::make_shared<CPlayManagerUILogic>();
    manager->Init();
    return manager;
}

void CPlayManagerUILogic::PlayFile(std::wstring path, void* hWnd)
{
    Lock lock(m_mutex);
    {
        std::lock_guard<std::mutex> last(s_lastMutex);
        s_strLastFile = path;
        s_hLastWnd = hWnd;
    }
    SF_SOFT_BASE::CSFStreamConvert convert(path.c_str(), 0);
    Open(convert.GetA() ? convert.GetA() : "");
    Play(hWnd);
}

void CPlayManagerUILogic::Open(const char* path)
{
    Lock lock(m_mutex);
    if (m_nPort == NO_PORT) {
        if (!vexplay_GetPort(&m_nPort)) {
            m_nPort = NO_PORT;
            return;
        }
    }
    ClearCallbacks();
    if (!vexplay_OpenFile(m_nPort, path))
        ClearCallbacks();
}

void CPlayManagerUILogic::ClearCallbacks()
{
    Lock lock(m_mutex);
    vexplay_SetCallback125(m_nPort, nullptr, nullptr);
    vexplay_SetFileEndCallback(m_nPort, nullptr, nullptr);
    vexplay_SetCallback157(m_nPort, nullptr, nullptr);
    vexplay_SetCallback109(m_nPort, nullptr, nullptr);
}

void CPlayManagerUILogic::Play(void* hWnd)
{
    Lock lock(m_mutex);
    if (m_nPort == NO_PORT)
        return;
    vexplay_SetPlayFlag(m_nPort, 1);
    vexplay_SetFileEndCallback(m_nPort, &CPlayManagerUILogic::OnFileEnd, this);
    if (!vexplay_Play(m_nPort, hWnd))
        ClearCallbacks();
}

void CPlayManagerUILogic::Stop()
{
    ++m_nStopping;
    {
        Lock lock(m_mutex);
        if (m_nPort != NO_PORT) {
            ClearCallbacks();
            if (vexplay_CloseFile(m_nPort))
                m_nPort = NO_PORT;
        }
    }
    --m_nStopping;
}

int CPlayManagerUILogic::GetPort()
{
    Lock lock(m_mutex);
    return m_nPort;
}

std::wstring CPlayManagerUILogic::GetLastFile()
{
    std::lock_guard<std::mutex> last(s_lastMutex);
    return s_strLastFile;
}

void* CPlayManagerUILogic::GetLastWnd()
{
    std::lock_guard<std::mutex> last(s_lastMutex);
    return s_hLastWnd;
}

void CPlayManagerUILogic::OnFileEnd(int, void* user)
{
    auto* self = static_cast<CPlayManagerUILogic*>(user);
    if (!self)
        return;
    // A stop on the GUI thread holds the lock while closing this port, and
    // the close waits for this callback: waiting here for good would hang
    // both, so give way to it.
    Lock lock(self->m_mutex, std::defer_lock);
    while (!lock.try_lock_for(std::chrono::milliseconds(2))) {
        if (self->m_nStopping > 0)
            return;
    }
    if (self->m_nStopping > 0)
        return;
    const std::wstring path = GetLastFile();
    void* const hWnd = GetLastWnd();
    self->Stop();
    self->PlayFile(path, hWnd);
}
