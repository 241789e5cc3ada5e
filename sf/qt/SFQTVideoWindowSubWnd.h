#pragma once
// One sub window of the video window: a frame, a title bar with the close,
// snapshot and property buttons and the drag toggle, and the play surface.

#include "sf/ISFButtonEvent.h"

#include <QWidget>

class CSFButton;
class CSFQTVideoWindow;
class CSFQTVideoWindowPlayWnd;
class CSFRadioBox;

class CSFQTVideoWindowSubWnd : public QWidget, public ISFButtonEvent {
    Q_OBJECT
public:
    // Ids of the title bar controls.
    enum { ID_CLOSE = 1, ID_SNAP = 2, ID_PROPERTY = 3, ID_DRAG = 4 };

    CSFQTVideoWindowSubWnd(CSFQTVideoWindow* owner, int index, int id);
    ~CSFQTVideoWindowSubWnd() override;

    int Index() const { return m_nIndex; }
    void SetIndex(int index) { m_nIndex = index; }
    int ID() const { return m_nSubWinID; }
    int Video() const { return m_nVideo; }
    void SetVideo(int video) { m_nVideo = video; }
    int RecordState() const { return m_nRecordState; }
    void SetRecordState(int state);
    void* OSDHandle() const { return m_pOSDHandle; }
    void SetOSDHandle(void* handle) { m_pOSDHandle = handle; }
    bool DragEnabled() const { return m_bDragEnabled; }
    void SetDragEnabled(bool enabled) { m_bDragEnabled = enabled; }

    CSFQTVideoWindowPlayWnd* PlayWnd() const { return m_pPlayWnd; }
    CSFButton* Button(int id) const;
    CSFRadioBox* DragToggle() const { return m_pDragToggle; }

    // Takes up the owner's skin, frame and controls state again.
    void Refresh();
    // Pictures of the title bar controls changed.
    void ReskinControls();

    void BTN_OnClicked(int id) override;

protected:
    void resizeEvent(QResizeEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    void EnsureControls();
    void LayoutChildren();
    int FrameInset() const;
    int TitleHeight() const;

    CSFQTVideoWindow* m_pOwner;
    int m_nIndex;
    int m_nSubWinID;
    int m_nVideo;
    int m_nRecordState;
    void* m_pOSDHandle;
    bool m_bDragEnabled;
    CSFQTVideoWindowPlayWnd* m_pPlayWnd;
    CSFButton* m_pBtnClose;
    CSFButton* m_pBtnSnap;
    CSFButton* m_pBtnProperty;
    CSFRadioBox* m_pDragToggle;
};
