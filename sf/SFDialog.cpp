#include "sf/SFDialog.h"

CSFDialog::CSFDialog(ISFDialogEvent* handler) : m_pHandler(handler)
{
    if (m_pHandler)
        m_pHandler->ResetMessageIDs();
}

int* CSFDialog::GetThisMessageIDs()
{
    return m_pHandler ? m_pHandler->GetThisMessageIDs() : nullptr;
}
