#include "shell/AboutDlgEventImp.h"

#include "sf/DialogStyle.h"
#include "sf/ImageButtonStyle.h"
#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFPictureCtrl.h"
#include "sf/SFRect.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFQtConvert.h"

#include <QDesktopServices>
#include <QUrl>

SF_BEGIN_MSGMAP(CAboutDlgEventImp)
    SF_ON_COMMAND(1000, OnWebSite)
SF_END_MSGMAP()

namespace {

constexpr int kWebSiteId = 1000;

std::wstring TextOrEmpty(const wchar_t* text)
{
    return text ? std::wstring(text) : std::wstring();
}

} // namespace

CAboutDlgEventImp::CAboutDlgEventImp(const wchar_t* title, const wchar_t* picture,
                                     const wchar_t* version, const wchar_t* copyright,
                                     const wchar_t*)
    : m_pDlg(nullptr), m_pPicture(nullptr), m_pVersion(nullptr), m_pCopyright(nullptr),
      m_pWebSite(nullptr), m_pBtnClose(nullptr), m_strVersion(TextOrEmpty(version)),
      m_strCopyright(TextOrEmpty(copyright)), m_strTitle(TextOrEmpty(title)),
      m_strPicture(TextOrEmpty(picture))
{
}

CAboutDlgEventImp::~CAboutDlgEventImp()
{
}

void CAboutDlgEventImp::GetStyle(DialogStyle& style)
{
    style = SFSmallDialogStyle();
}

int CAboutDlgEventImp::Dlg_OnInitDialog(bool bCreateOnly)
{
    if (bCreateOnly)
        return 1;
    const int kGap = 10;
    const CSFRect rcDlg(0, 0, 360, 250);
    CSFRect rcText(0, 0, 330, 20);
    const CSFRect rcPicture(1, 0, 360, 59);
    rcText.OffsetRect(20, rcPicture.bottom + kGap * 2);

    m_pPicture = SFCreatePictureCtrl(nullptr);
    if (m_pPicture) {
        m_pPicture->SetImage(m_strPicture.c_str());
        m_pPicture->Create(L"", 0x50000000, rcPicture, GetUIWnd(), 0);
    }

    m_pVersion = SFCreateStatic(nullptr);
    if (m_pVersion) {
        m_pVersion->Create(m_strVersion.c_str(), 0x10010000, rcText, GetUIWnd(), 0);
        m_pVersion->SetTextSize(14);
        m_pVersion->SetTextAlignFlag(0);
    }

    rcText.OffsetRect(0, rcText.Height() + kGap);
    m_pCopyright = SFCreateStatic(nullptr);
    if (m_pCopyright) {
        m_pCopyright->Create(m_strCopyright.c_str(), 0x10010000, rcText, GetUIWnd(), 0);
        m_pCopyright->SetTextSize(14);
    }

    // The third line would hold the web site, which is not shown.
    rcText.OffsetRect(0, rcText.Height() + kGap);

    m_pBtnClose = SFCreateButton(this);
    if (m_pBtnClose) {
        const tagRECT rcClose{ rcDlg.Width() - 22, 2, rcDlg.Width() + 2, 26 };
        m_pBtnClose->Create(L"", 0x10000000, rcClose, GetUIWnd(), 2);
        ImageButtonStyle style;
        style.strNormal = L"close-normal.png";
        style.strHover = L"close-hover.png";
        style.strPressed = L"close-pressed.png";
        style.strDisabled = L"close-disabled.png";
        m_pBtnClose->SetSkin(&style);
        m_pBtnClose->SetToolTipText(GetLangString(L"Close", 0));
    }

    if (m_pDlg) {
        CSFRect rc = rcDlg;
        m_pDlg->MoveWindow(&rc);
        m_pDlg->CenterWindow(nullptr);
    }
    return 1;
}

void CAboutDlgEventImp::Dlg_Destroy()
{
    SFDestroyControl(m_pPicture);
    m_pPicture = nullptr;
    SFDestroyControl(m_pVersion);
    m_pVersion = nullptr;
    SFDestroyControl(m_pCopyright);
    m_pCopyright = nullptr;
    SFDestroyControl(m_pWebSite);
    m_pWebSite = nullptr;
    SFDestroyControl(m_pBtnClose);
    m_pBtnClose = nullptr;
}

void CAboutDlgEventImp::BTN_OnLButtonDown(int id, unsigned int, tagPOINT)
{
    if (id == kWebSiteId && m_pWebSite)
        m_pWebSite->SetTextColor(0xFFFFFF);
}

void CAboutDlgEventImp::BTN_OnLButtonUp(int id, unsigned int, tagPOINT)
{
    if (id == kWebSiteId && m_pWebSite)
        m_pWebSite->SetTextColor(0);
}

void CAboutDlgEventImp::BTN_OnMouseMove(int id, unsigned int, tagPOINT)
{
    if (id == kWebSiteId && m_pWebSite)
        m_pWebSite->SetTextColor(0xFF0000);
}

void CAboutDlgEventImp::BTN_OnMouseLeave(int id, unsigned int, long)
{
    if (id == kWebSiteId && m_pWebSite)
        m_pWebSite->SetTextColor(0);
}

void CAboutDlgEventImp::OnWebSite()
{
    if (!m_pWebSite)
        return;
    wchar_t address[129] = {};
    m_pWebSite->GetWindowTextW(address, 129);
    if (address[0] != L'\0')
        QDesktopServices::openUrl(QUrl::fromUserInput(SFToQString(address)));
}
