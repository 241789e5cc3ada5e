// The progress dialog, run modally as the framework runs every dialog: the
// animation centred in its 100 by 100 window, and a timer of id 2 ending it.

#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/dialogs/ProgressDlgEventImp.h"
#include "tests/streams/PageTestSupport.h"

#include <QDialog>
#include <QLabel>
#include <gtest/gtest.h>

namespace {

// Runs the dialog of handler; inspect sees it inside its loop and must close it.
int RunProgress(CProgressDlgEventImp& handler, const std::function<void(QDialog*)>& inspect)
{
    CSFDialog* dlg = SFCreateDialog(&handler, nullptr, 0);
    if (!dlg)
        return -1;
    handler.SetDlg(dlg);
    DialogStyle style = SFSmallDialogStyle();
    dlg->SetSkin(&style);
    dlg->Create(L"", nullptr);
    CModalWatch watch(inspect);
    const int result = dlg->DoModalDlg();
    EXPECT_EQ(watch.Seen(), 1);
    SFDestroyControl(dlg);
    return result;
}

struct Centring {
    int width;
    int height;
    QRect label;
};

class ProgressDialogCentring : public ::testing::TestWithParam<Centring> {};

TEST_P(ProgressDialogCentring, CentresTheAnimationInAHundredSquare)
{
    const Centring& c = GetParam();
    CProgressDlgEventImp handler(L"loading.gif", c.width, c.height);
    QRect label;
    QSize window;
    const int result = RunProgress(handler, [&](QDialog* dialog) {
        if (auto* animation = dialog->findChild<QLabel*>(QStringLiteral("animation")))
            label = animation->geometry();
        window = dialog->size();
        dialog->reject();
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(label, c.label);
    EXPECT_EQ(window, QSize(100, 100));
}

// Halves truncate towards zero, also for an animation wider than the window.
INSTANTIATE_TEST_SUITE_P(Sizes, ProgressDialogCentring,
                         ::testing::Values(Centring{ 32, 32, QRect(34, 34, 32, 32) },
                                           Centring{ 41, 20, QRect(29, 40, 41, 20) },
                                           Centring{ 101, 1, QRect(0, 49, 101, 1) },
                                           Centring{ 140, 120, QRect(-20, -10, 140, 120) }));

TEST(ProgressDialog, OnlyTheTimerOfIdTwoEndsIt)
{
    CProgressDlgEventImp handler(L"missing.gif", 32, 32);
    bool stillOpen = false;
    const int result = RunProgress(handler, [&](QDialog* dialog) {
        handler.OnUIMessage(0, 3, 0, 0);
        stillOpen = dialog->isVisible();
        handler.OnUIMessage(0, 2, 0, 0);
    });
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(result, 2);
}

} // namespace
