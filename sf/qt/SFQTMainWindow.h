#pragma once
// The one main window: a frameless QMainWindow that paints its own frame.

#include "sf/qt/SFQTSkinWindow.h"

#include <QMainWindow>
#include <QMap>
#include <QRect>

class QAction;
class QMenu;
class QPropertyAnimation;

class CSFQTMainWindow : public CSFQTSkinWindow<QMainWindow, CSFQTMainWindow> {
    Q_OBJECT
public:
    explicit CSFQTMainWindow(ISFDialogEvent* handler, QWidget* parent = nullptr);
    ~CSFQTMainWindow() override;

    // A main window is never modal: -1.
    int DoModalDlg() override;
    int IsDlgZoomed() override;
    int ModifyDlgStyleEx(unsigned long remove, unsigned long add, unsigned int flags) override;
    void MacShowMaximize(bool maximize) override;
    void AddMenuMac(const wchar_t* text, int id) override;
    void AddMenuAction(const wchar_t* text, int menuId, int actionId) override;

    // The session change notification: 7 locked, 8 unlocked.
    void OnSessionChange(unsigned int wParam);

public slots:
    void OnSwitchSize();
    void OnAniShowMaxFinished();
    void OnAniShowNorFinished();
    void Ontriggered(QAction* action);
    void accept();
    void reject();

signals:
    void sgnClose();
    void sgnMaximized();
    void sgnMinimized();
    void sgnNormal();

protected:
    bool IsMaximisedWindow() const override;
    QRect CenterArea() const override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;
    void closeEvent(QCloseEvent* e) override;

private:
    QRect m_restoreRect;
    QPropertyAnimation* m_pResizeAnimation;
    bool m_maximised;
    QMap<int, QMenu*> m_menus;
};
