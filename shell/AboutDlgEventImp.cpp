#include "shell/AboutDlgEventImp.h"

#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFPictureCtrl.h"
#include "sf/SFRect.h"
#include "sf/SFStatic.h"
#include "sf/dialogs/SFControlNames.h"
#include "sf/dialogs/SFReleaseControls.h"
#include "sf/dialogs/SFSkinRecords.h"
#include "sf/qt/SFQtConvert.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

constexpr int kWebSiteId = 1000;
constexpr unsigned int kCloseButtonId = 2;
constexpr unsigned long kPictureStyle = 0x50000000ul;
constexpr unsigned long kTextStyle = 0x10010000ul;
constexpr int kTextSize = 14;
constexpr unsigned int kLinkPressedColor = 0xFFFFFF;
constexpr unsigned int kLinkHoverColor = 0xFF0000;
constexpr int kAddressChars = 129;

std::wstring TextOrEmpty(const wchar_t* text)
{
    return text ? std::wstring(text) : std::wstring();
}

} // namespace

SF_BEGIN_MSGMAP(CAboutDlgEventImp)
    SF_ON_COMMAND(kWebSiteId, OnWebSite)
SF_END_MSGMAP()

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
        m_pPicture->Create(L"", kPictureStyle, rcPicture, GetUIWnd(), 0);
    }

    m_pVersion = SFCreateStatic(nullptr);
    if (m_pVersion) {
        m_pVersion->Create(m_strVersion.c_str(), kTextStyle, rcText, GetUIWnd(), 0);
        m_pVersion->SetTextSize(kTextSize);
        m_pVersion->SetTextAlignFlag(0);
        SFSetObjectName(m_pVersion, "label_version");
    }

    rcText.OffsetRect(0, rcText.Height() + kGap);
    m_pCopyright = SFCreateStatic(nullptr);
    if (m_pCopyright) {
        m_pCopyright->Create(m_strCopyright.c_str(), kTextStyle, rcText, GetUIWnd(), 0);
        m_pCopyright->SetTextSize(kTextSize);
        SFSetObjectName(m_pCopyright, "label_copyright");
    }

    // The third line would hold the web site, which is not shown.
    rcText.OffsetRect(0, rcText.Height() + kGap);

    m_pBtnClose = SFCreateCloseButton(this, tagRECT{ rcDlg.Width() - 22, 2, rcDlg.Width() + 2, 26 },
                                      GetUIWnd(), kCloseButtonId);

    if (m_pDlg) {
        CSFRect rc = rcDlg;
        m_pDlg->MoveWindow(&rc);
        m_pDlg->CenterWindow(nullptr);
    }
    return 1;
}

void CAboutDlgEventImp::Dlg_Destroy()
{
    SFReleaseControls(m_pPicture, m_pVersion, m_pCopyright, m_pWebSite, m_pBtnClose);
}

void CAboutDlgEventImp::TintWebSite(int id, unsigned int color)
{
    if (id == kWebSiteId && m_pWebSite)
        m_pWebSite->SetTextColor(color);
}

void CAboutDlgEventImp::BTN_OnLButtonDown(int id, unsigned int, tagPOINT)
{
    TintWebSite(id, kLinkPressedColor);
}

void CAboutDlgEventImp::BTN_OnLButtonUp(int id, unsigned int, tagPOINT)
{
    TintWebSite(id, 0);
}

void CAboutDlgEventImp::BTN_OnMouseMove(int id, unsigned int, tagPOINT)
{
    TintWebSite(id, kLinkHoverColor);
}

void CAboutDlgEventImp::BTN_OnMouseLeave(int id, unsigned int, long)
{
    TintWebSite(id, 0);
}

void CAboutDlgEventImp::OnWebSite()
{
    if (!m_pWebSite)
        return;
    wchar_t address[kAddressChars] = {};
    m_pWebSite->GetWindowTextW(address, kAddressChars);
    if (address[0] != L'\0')
        QDesktopServices::openUrl(QUrl::fromUserInput(SFToQString(address)));
}
