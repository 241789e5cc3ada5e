#include "sf/qt/SFQTDialog.h"

#include "sf/qt/SFCustomEvent.h"
#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFQtConvert.h"

#include <QPointer>

CSFQTDialog::CSFQTDialog(ISFDialogEvent* handler, QWidget* parent)
    : CSFQTSkinWindow<QDialog, CSFQTDialog>(handler, parent, false)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
    SFNameControl(this, "dialog", static_cast<unsigned int>(-1), QString());
    // Queued, so a caption button acts after its mouse event has returned.
    connect(this, &CSFQTDialog::sgnClose, this, &QWidget::close, Qt::QueuedConnection);
    connect(this, &CSFQTDialog::sgnMaximized, this, &QWidget::showMaximized, Qt::QueuedConnection);
    connect(this, &CSFQTDialog::sgnMinimized, this, &QWidget::showMinimized, Qt::QueuedConnection);
    connect(this, &CSFQTDialog::sgnNormal, this, &QWidget::showNormal, Qt::QueuedConnection);
}

CSFQTDialog::~CSFQTDialog()
{
}

int CSFQTDialog::DoModalDlg()
{
    setWindowModality(Qt::ApplicationModal);
    setModal(true);
    if (Handler())
        Handler()->Dlg_OnInitDialog(false);
    setFocus();
    const int result = exec();
    return result == QDialog::Rejected ? 2 : result;
}

int CSFQTDialog::IsDlgZoomed()
{
    return 1;
}

int CSFQTDialog::ModifyDlgStyleEx(unsigned long remove, unsigned long add, unsigned int)
{
    const bool wasVisible = isVisible();
    const Qt::WindowFlags flags =
        (windowFlags() & ~Qt::WindowFlags::fromInt(static_cast<int>(remove))) |
        Qt::WindowFlags::fromInt(static_cast<int>(add));
    setWindowFlags(flags);
    if (wasVisible)
        show();
    return 1;
}

void CSFQTDialog::MacShowMaximize(bool maximize)
{
    if (maximize)
        showMaximized();
    else
        showNormal();
}

bool CSFQTDialog::eventFilter(QObject*, QEvent*)
{
    return true;
}

void CSFQTDialog::OnSwitchSize()
{
}

void CSFQTDialog::accept()
{
    if (Handler())
        Handler()->Dlg_OnOK();
    QDialog::accept();
}

void CSFQTDialog::reject()
{
    if (Handler())
        Handler()->Dlg_OnCancel();
    QDialog::reject();
}

void CSFQTDialog::customEvent(QEvent* e)
{
    if (!SFIsCustomEvent(e)) {
        QDialog::customEvent(e);
        return;
    }
    // A mapped member may destroy the window.
    const QPointer<QObject> alive(this);
    DispatchCustomEvent(e);
    if (!alive || !Handler())
        return;
    // Ids 1 and 2 are OK and Cancel on every dialog, whatever the map did.
    const CSFCustomEvent* ev = static_cast<const CSFCustomEvent*>(e);
    if (ev->message == SF_MSG_COMMAND && ev->code == 0) {
        if (ev->lParam == 1)
            accept();
        else if (ev->lParam == 2)
            reject();
    }
}
