#pragma once
// Rows of a combo box's popup list, each exactly as high as asked.

#include <QItemDelegate>

class CSFQTComboDelegate : public QItemDelegate {
    Q_OBJECT
public:
    CSFQTComboDelegate(int rowHeight, QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int m_rowHeight;
};
