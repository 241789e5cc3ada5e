#pragma once
// Paints the list control's two row colours under each cell, so that they
// also show through the transparent cell pages.

#include <QStyledItemDelegate>

class CSFQTListCtrl;

class CSFQTListRowDelegate : public QStyledItemDelegate {
public:
    explicit CSFQTListRowDelegate(CSFQTListCtrl* list);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    // Cell pages and editors take the whole cell, whatever padding the
    // style gives item text.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    CSFQTListCtrl* m_pList;
};
