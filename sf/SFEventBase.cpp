#include "sf/SFEventBase.h"

CSFEventBase::CSFEventBase() : m_pMessageIDs(nullptr)
{
}

// The id list belongs to the object that built it.
CSFEventBase::CSFEventBase(const CSFEventBase&) : m_pMessageIDs(nullptr)
{
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): it copies nothing
CSFEventBase& CSFEventBase::operator=(const CSFEventBase&)
{
    return *this;
}

CSFEventBase::~CSFEventBase()
{
    delete[] m_pMessageIDs;
}

int* CSFEventBase::GetThisMessageIDs()
{
    return nullptr;
}

void CSFEventBase::Dlg_OnCommand(unsigned int id)
{
    const SF_MSGMAP_ENTRY* entry = SFFindMessageEntry(GetSFMessageMap(), SF_MSG_COMMAND, 0, id);
    if (entry && entry->nSig == SF_SIG_VOID && entry->pfn)
        entry->pfn(this, 0, 0);
}

void CSFEventBase::OnNotifyClick(unsigned int code, unsigned int id, tagNMHDR* hdr, long* result)
{
    const SF_MSGMAP_ENTRY* entry =
        SFFindMessageEntry(GetSFMessageMap(), SF_MSG_NOTIFY, code & 0xFFFFu, id);
    if (!entry || !entry->pfn)
        return;
    if (entry->nSig == SF_SIG_VOID)
        entry->pfn(this, 0, 0);
    else if (entry->nSig == SF_SIG_NOTIFY)
        entry->pfn(this, reinterpret_cast<SF_WPARAM>(hdr), reinterpret_cast<SF_LPARAM>(result));
}

void CSFEventBase::OnUIMessage(unsigned int code, unsigned int id, unsigned int wParam, long lParam)
{
    const SF_MSGMAP_ENTRY* entry =
        SFFindMessageEntry(GetSFMessageMap(), SF_MSG_UI, code & 0xFFFFu, id);
    if (entry && entry->nSig == SF_SIG_UIMSG && entry->pfn)
        entry->pfn(this, wParam, lParam);
}

void CSFEventBase::ResetMessageIDs()
{
    delete[] m_pMessageIDs;
    m_pMessageIDs = nullptr;
}
