#pragma once
// Combo box painted from slices of one skin image. Only a choice the user
// makes reaches the handler: the item setters are silent.

#include "sf/SFComboBox.h"
#include "sf/qt/SFQTControl.h"

#include <QComboBox>
#include <QMetaObject>
#include <QPixmap>
#include <QRect>

class CSFQTComboBox : public CSFQTControl<QComboBox, CSFComboBox> {
    Q_OBJECT
public:
    enum Slice { Normal, Hover, PressedDown, PressedUp, Disabled, Slice6, Slice7, SliceCount };
    // Height of every popup row.
    static constexpr int RowHeight = 25;

    explicit CSFQTComboBox(ISFComboBoxEvent* handler, QWidget* parent = nullptr);
    ~CSFQTComboBox() override;

    int Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id) override;
    int SetSkin(ImageComboBoxStyle* style) override;
    int AddString(const wchar_t* text) override;
    int DeleteString(unsigned int index) override;
    int GetLBText(int index, wchar_t* buffer) const override;
    int GetCurSel() const override;
    int SetCurSel(int index) override;
    int GetCount() const override;
    void EnableWindow(int enable) override;
    void SetOriginStyle(int origin) override;
    void Clear() override;
    void ResetContent() override;

    void showPopup() override;
    void hidePopup() override;

    // The slice the next paint draws, SliceCount when none is drawn.
    int PaintedSlice() const;
    QRect SliceRect(int slice) const { return m_slices[slice].rect; }
    bool SliceSet(int slice) const { return m_slices[slice].set != 0; }
    bool SliceStretch(int slice) const { return m_slices[slice].stretch != 0; }
    int State() const { return m_state; }
    bool PopupOpen() const { return m_popupOpen != 0; }
    // Where the current text goes: room for the arrow is kept at the right.
    QRect TextRect() const;

public slots:
    void OnSelectChanged(int nIndex);

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    struct SliceInfo {
        QRect rect;
        int set = 0;
        int stretch = 0;
    };

    void Connect();
    void Disconnect();
    bool PopupActive() const;
    void MakePopup();
    void ApplySheet();

    SliceInfo m_slices[SliceCount];
    int m_state;
    QPixmap m_image;
    int m_popupOpen;
    int m_originStyle;
    int m_sheetWanted;
    int m_popupMade;
    QMetaObject::Connection m_selectConnection;
};
