#pragma once
// A 100 by 100 dialog showing an animation from the skin directory while
// work goes on. Kept ready; nothing in the program shows it yet.

#include "sf/ISFDialogEvent.h"

#include <string>

class CSFDialog;
class QLabel;
class QMovie;

class CProgressDlgEventImp : public ISFDialogEvent {
    SF_DECLARE_MSGMAP()
public:
    // file: animation in the skin directory; width, height: its size in pixels.
    CProgressDlgEventImp(const wchar_t* file, int width, int height);
    CProgressDlgEventImp(const CProgressDlgEventImp&) = delete;
    CProgressDlgEventImp& operator=(const CProgressDlgEventImp&) = delete;
    ~CProgressDlgEventImp() override;

    void SetDlg(CSFDialog* dlg) { m_pDlg = dlg; }

    int Dlg_OnInitDialog(bool bCreateOnly) override;
    void Dlg_Destroy() override;
    // Timer 2 ends the dialog.
    void OnTimerClose(unsigned int wParam, long lParam);

private:
    CSFDialog* m_pDlg;
    QLabel* m_pLabel;
    std::wstring m_strFile;
    int m_nWidth;
    int m_nHeight;
    QMovie* m_pMovie;
};
