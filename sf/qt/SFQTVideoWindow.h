#pragma once
// The video window on a QWidget: sub windows placed by a CQTVideoWindowLayout.

#include "sf/ISFRadioBoxEvent.h"
#include "sf/ImageVideoWindowStyle.h"
#include "sf/SFVideoWindow.h"
#include "sf/qt/QTVideoWindowLayout.h"
#include "sf/qt/SFQTControl.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QWidget>
#include <vector>

class CSFQTVideoWindowSubWnd;

class CSFQTVideoWindow : public CSFQTControl<QWidget, CSFVideoWindow>, public ISFRadioBoxEvent {
    Q_OBJECT
public:
    // The style record read into what painting needs.
    struct Skin {
        ImageVideoWindowStyle style;
        QPixmap idle;
        QColor back = Qt::black;
        QColor focus = Qt::black;
        QColor title = Qt::black;
        QColor drop = Qt::black;
        QColor record = Qt::black;
        int titleHeight = 0;
        QSize buttonSize = QSize(0, 0);
        int frameWidth = 0;
        int focusFrameWidth = 0;
    };

    explicit CSFQTVideoWindow(ISFVideoWindowEvent* handler, QWidget* parent = nullptr);
    ~CSFQTVideoWindow() override;

    int Create(const wchar_t* text, const tagRECT& rect, void* parent, unsigned int id) override;
    int SetSkin(ImageVideoWindowStyle* style) override;
    VIDEOWINDOWMODE GetVideoWindowMode() override;
    void SetRows(int rows) override;
    void SetColumns(int columns) override;
    void SetSubWinProportion(int x, int y) override;
    int SetLayout(const char* text) override;
    int GetLayout(char* buffer, int size) override;
    void SetDefaultLayout(DEFAULT_LAYOUT layout) override;
    void* GetSubWinHandle(int index) override;
    void* GetCurrentWinHandle() override;
    int GetCurrentSubWinIndex() override;
    int GetSubWinID(int index) override;
    int GetSubWinIndexFromID(int id) override;
    int GetCurrentSubWinCount() override;
    void SetSubWinVideo(int index, int video) override;
    void SetSubWinVideoByID(int id, int video) override;
    void SetDragMode(int mode) override;
    void SetFrameZoomMode(int enable) override;
    int IsEnableFrameZoom() override;
    void SetDrawOSDHandle(int index, void* handle) override;
    void GetFrameOSDRect(tagRECT& rect) override;
    void SetDragSubWinCursor(unsigned int normal, unsigned int dragging) override;
    void SetSubWinCtrlsVisible(int visible) override;
    void SetSubWinRecordState(int index, int recording) override;
    void EableSubWinExchange(int enable) override;
    void ResetSubWinSizeToMin(int index) override;
    void ResetSubWinSizeToMinByID(int id) override;
    void SetFocusSubWin(int index) override;
    void SetActiveCheckMode(int mode) override;
    void SetParent(void* parent) override;
    void SetUpdatesEnabled(int index, bool enable) override;
    void SetFocus(int focus) override;
    int RenderSubWin(int index, unsigned char* data, RENDER_DATA_TYPE type, int width,
                     int height) override;

    // The drag toggles of the sub windows report here.
    void RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender) override;

    // Stored state, for the sub windows and tests.
    const Skin& SkinData() const { return m_skin; }
    const CQTVideoWindowLayout& Layout() const { return m_layout; }
    CSFQTVideoWindowSubWnd* SubWindow(int index) const;
    bool SubWinCtrlsVisible() const { return m_bSubWinCtrlsVisible; }
    bool SubWinExchangeEnabled() const { return m_bSubWinExchange; }
    // Frames are drawn between several sub windows, not around a lone one.
    bool ShowsFrames() const;
    int ZoomedIndex() const { return m_nZoomIndex; }
    const CSFQTVideoWindowSubWnd* DropTarget() const { return m_pDropTarget; }
    int Rows() const { return m_nGridRows; }
    int Columns() const { return m_nGridCols; }
    int DragMode() const { return m_nDragMode; }
    int ActiveCheckMode() const { return m_nActiveCheckMode; }

    // What the sub windows hear from the user; positions in this widget.
    void OnSubWinLButtonDown(CSFQTVideoWindowSubWnd* sub, const QPoint& pos);
    void OnSubWinDrag(CSFQTVideoWindowSubWnd* sub, const QPoint& pos);
    void OnSubWinLButtonUp(CSFQTVideoWindowSubWnd* sub, const QPoint& pos);
    void OnSubWinDoubleClick(CSFQTVideoWindowSubWnd* sub);
    void OnSubWinButton(CSFQTVideoWindowSubWnd* sub, int id);

protected:
    void resizeEvent(QResizeEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    void PlaceSubWindows();
    void RefreshSubWindows();
    void SetZoom(int index);
    void ExchangeSubWindows(int a, int b);
    bool ValidIndex(int index) const;
    CSFQTVideoWindowSubWnd* SubWindowAt(const QPoint& pos) const;

    CQTVideoWindowLayout m_layout;
    std::vector<CSFQTVideoWindowSubWnd*> m_subWnds;
    Skin m_skin;
    int m_nGridRows;
    int m_nGridCols;
    int m_nProportionX;
    int m_nProportionY;
    int m_nCurrentIndex;
    int m_nZoomIndex;
    int m_nNextSubWinID;
    int m_nDragMode;
    int m_nActiveCheckMode;
    unsigned int m_nCursorNormal;
    unsigned int m_nCursorDragging;
    bool m_bFrameZoom;
    bool m_bSubWinCtrlsVisible;
    bool m_bSubWinExchange;
    // Index of the sub window a drag to exchange started in, or -1.
    int m_nDragFrom;
    CSFQTVideoWindowSubWnd* m_pDropTarget;
};
