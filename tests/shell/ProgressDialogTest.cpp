// The progress dialog, kept ready though nothing shows it: a 100 by 100
// window with the animation centred, closed by its timer 2.

#include "ShellTestSupport.h"

#include "ProgressDlgEventImp.h"
#include "SFApplication.h"
#include "SFCustomEvent.h"
#include "SFEventDispatch.h"
#include "SFFactory.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMovie>
#include <QTest>
#include <gtest/gtest.h>

namespace {

TEST(ProgressDialog, CentresTheAnimationInA100By100Window)
{
    CShellData data;
    CProgressDlgEventImp handler(L"busy.gif", 40, 30);
    CSFDialog* dlg = SFCreateDialog(&handler, nullptr, 0);
    ASSERT_NE(dlg, nullptr);
    handler.SetDlg(dlg);
    dlg->Create(L"", nullptr);
    EXPECT_EQ(handler.m_pLabel, nullptr) << "nothing is built before the modal run";
    QRect label;
    QSize window;
    QString movieFile;
    WhenModalDialogShows([&](QDialog* dialog) {
        window = dialog->size();
        label = handler.m_pLabel->geometry();
        movieFile = handler.m_pMovie->fileName();
        // The map's timer entry closes the dialog.
        CSFCustomEvent timer(0x113, 0, 0, 2);
        SFDispatchMessageMap(&handler, timer);
    });
    EXPECT_EQ(dlg->DoModalDlg(), 2);
    EXPECT_EQ(window, QSize(100, 100));
    EXPECT_EQ(label, QRect(30, 35, 40, 30));
    EXPECT_EQ(movieFile, g_strSkinPath + QStringLiteral("busy.gif"));
    SFDestroyControl(dlg);
    EXPECT_EQ(handler.m_pLabel, nullptr);
}

} // namespace
