// The About dialog: opened by the toolbar, its layout, its close button, and
// the web site handlers that no control reaches.

#include "ShellTestSupport.h"

#include "AboutDlgEventImp.h"
#include "SFButton.h"
#include "SFQTPictureCtrl.h"
#include "SFQTStatic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QScreen>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

#include "QtWait.h"

namespace {

TEST(AboutDialog, OpensFromTheToolbarWithItsLayoutAndClosesByItsButton)
{
    CShellData data;
    CMainWindowUnderTest main;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main.Window()));
    bool inspected = false;
    WhenModalDialogShows([&](QDialog* dialog) {
        inspected = true;
        EXPECT_EQ(dialog->parentWidget(), main.Window());
        // MoveWindow(tagRECT*) takes 0, 0, 360, 250 as inclusive.
        EXPECT_EQ(dialog->size(), QSize(361, 251));
        EXPECT_EQ(dialog->frameGeometry().center(),
                  QGuiApplication::primaryScreen()->availableGeometry().center());
        auto* picture = dialog->findChild<CSFQTPictureCtrl*>();
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(picture->geometry(), QRect(1, 0, 359, 59));
        EXPECT_FALSE(picture->Image().isNull());
        const QList<CSFQTStatic*> lines = dialog->findChildren<CSFQTStatic*>();
        ASSERT_EQ(lines.size(), 2);
        EXPECT_EQ(lines[0]->text(), QStringLiteral("Version 1.0.0"));
        EXPECT_EQ(lines[0]->pos(), QPoint(20, 79));
        EXPECT_EQ(lines[0]->FontPixels(), 14);
        EXPECT_EQ(lines[1]->text(), QStringLiteral("Copyright \u00A9 2026 Tallix"));
        EXPECT_EQ(lines[1]->pos(), QPoint(20, 109));
        EXPECT_EQ(lines[1]->FontPixels(), 14);
        EXPECT_EQ(dialog->findChild<QWidget*>(QStringLiteral("button_1000")), nullptr);
        SaveShot(dialog, "about-dialog.png");
        auto* close = dialog->findChild<QAbstractButton*>(QStringLiteral("button_2"));
        ASSERT_NE(close, nullptr);
        // Two pixels past the dialog's right edge of 360.
        EXPECT_EQ(close->geometry(), QRect(338, 2, 24, 24));
        EXPECT_EQ(close->toolTip(), QStringLiteral("Close"));
        QTest::mouseClick(close, Qt::LeftButton);
    });
    QTest::mouseClick(main.Button(2025), Qt::LeftButton);
    EXPECT_TRUE(inspected);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(main.Window()->findChildren<QDialog*>().isEmpty()) << "the dialog outlived its call";
    EXPECT_TRUE(main.Window()->isVisible());
}

TEST(AboutDialog, LaysOutOnlyWhenShownModally)
{
    CAboutDlgEventImp handler(L"About", L"AboutPic.png", L"v", L"c", L"w");
    QWidget host;
    handler.m_pUIWnd = &host;
    CRecordingDialog dialog(&handler);
    handler.SetDlg(&dialog);
    EXPECT_EQ(handler.Dlg_OnInitDialog(true), 1);
    EXPECT_TRUE(dialog.calls.empty());
    EXPECT_EQ(handler.m_pVersion, nullptr);
    EXPECT_EQ(handler.Dlg_OnInitDialog(false), 1);
    ASSERT_EQ(dialog.moves.size(), 1u);
    const tagRECT& r = dialog.moves[0];
    EXPECT_EQ((std::vector<long>{ r.left, r.top, r.right, r.bottom }), (std::vector<long>{ 0, 0, 360, 250 }));
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{ "move", "center" }));
    EXPECT_EQ(handler.m_pWebSite, nullptr);
    handler.Dlg_Destroy();
    EXPECT_EQ(handler.m_pVersion, nullptr);
    EXPECT_EQ(handler.m_pBtnClose, nullptr);
}

// The link that the dialog never creates: a stand-in shows what its
// handlers would do to it.
class CLinkButton : public CSFButton {
public:
    std::vector<unsigned long> colours;
    std::wstring text;
    void SetTextColor(unsigned long color) override { colours.push_back(color); }
    int GetWindowTextW(wchar_t* buffer, int size) const override
    {
        const std::wstring shown = text.substr(0, static_cast<std::size_t>(size - 1));
        std::copy(shown.begin(), shown.end(), buffer);
        buffer[shown.size()] = L'\0';
        return static_cast<int>(text.size());
    }
};

TEST(AboutDialog, WebSiteHandlersColourOnlyControl1000)
{
    CAboutDlgEventImp handler(nullptr, nullptr, nullptr, nullptr, nullptr);
    for (int id : { 2, 1000 }) {
        handler.BTN_OnLButtonDown(id, 0, tagPOINT{});
        handler.BTN_OnLButtonUp(id, 0, tagPOINT{});
        handler.BTN_OnMouseMove(id, 0, tagPOINT{});
        handler.BTN_OnMouseLeave(id, 0, 0);
    }
    handler.OnWebSite(); // no link: nothing happens
    CLinkButton link;
    handler.m_pWebSite = &link;
    for (int id : { 2, 1000 }) {
        handler.BTN_OnLButtonDown(id, 0, tagPOINT{});
        handler.BTN_OnLButtonUp(id, 0, tagPOINT{});
        handler.BTN_OnMouseMove(id, 0, tagPOINT{});
        handler.BTN_OnMouseLeave(id, 0, 0);
    }
    EXPECT_EQ(link.colours, (std::vector<unsigned long>{ 0xFFFFFF, 0, 0xFF0000, 0 }));
    handler.m_pWebSite = nullptr;
}

class CUrlCatcher : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void Open(const QUrl& url) { opened << url; }
};

TEST(AboutDialog, WebSiteOpensTheLinkTextCutAt128)
{
    CUrlCatcher catcher;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &catcher, "Open");
    CAboutDlgEventImp handler(nullptr, nullptr, nullptr, nullptr, nullptr);
    CLinkButton link;
    handler.m_pWebSite = &link;
    handler.OnWebSite(); // empty text: nothing opens
    link.text = L"https://www.tallix.example/" + std::wstring(200, L'a');
    handler.OnWebSite();
    handler.m_pWebSite = nullptr;
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    ASSERT_EQ(catcher.opened.size(), 1);
    EXPECT_EQ(catcher.opened[0].toString().size(), 128);
    EXPECT_EQ(catcher.opened[0].host(), QStringLiteral("www.tallix.example"));
}

} // namespace

#include "AboutDialogTest.moc"
