#include "sf/dialogs/ProgressDlgEventImp.h"

#include "sf/SFDialog.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQtConvert.h"

#include <QLabel>
#include <QMovie>

namespace {

constexpr unsigned int kTimerMessage = 0x113;
constexpr unsigned int kCloseTimerId = 2;
constexpr int kDialogSide = 100;

} // namespace

SF_BEGIN_MSGMAP(CProgressDlgEventImp)
    SF_MAP_ENTRY(kTimerMessage, 0, kCloseTimerId, kCloseTimerId, SF_SIG_UIMSG, OnTimerClose)
SF_END_MSGMAP()

CProgressDlgEventImp::CProgressDlgEventImp(const wchar_t* file, int width, int height)
    : m_pDlg(nullptr), m_pLabel(nullptr), m_strFile(file ? file : L""), m_nWidth(width),
      m_nHeight(height), m_pMovie(nullptr)
{
}

CProgressDlgEventImp::~CProgressDlgEventImp()
{
    delete m_pMovie;
    m_pMovie = nullptr;
}

int CProgressDlgEventImp::Dlg_OnInitDialog(bool bCreateOnly)
{
    if (bCreateOnly)
        return 1;
    const int x = (kDialogSide - m_nWidth) / 2;
    const int y = (kDialogSide - m_nHeight) / 2;
    if (!m_pLabel) {
        m_pLabel = new QLabel(SFWidgetFromHandle(GetUIWnd()));
        m_pLabel->setObjectName(QStringLiteral("animation"));
        m_pLabel->setGeometry(x, y, m_nWidth, m_nHeight);
    }
    if (!m_pMovie) {
        m_pMovie = new QMovie(g_strSkinPath + SFToQString(m_strFile));
        m_pLabel->setMovie(m_pMovie);
    }
    m_pMovie->start();
    if (m_pDlg) {
        m_pDlg->MoveWindow(0, 0, kDialogSide, kDialogSide);
        m_pDlg->CenterWindow(nullptr);
    }
    return 0;
}

void CProgressDlgEventImp::Dlg_Destroy()
{
    // The label was the window's child and is gone with it.
    m_pLabel = nullptr;
}

void CProgressDlgEventImp::OnTimerClose(unsigned int, long)
{
    if (m_pDlg)
        m_pDlg->MFCCancel();
}
