#include "sf/qt/SFQTComboDelegate.h"

CSFQTComboDelegate::CSFQTComboDelegate(int rowHeight, QObject* parent)
    : QItemDelegate(parent), m_rowHeight(rowHeight)
{
}

QSize CSFQTComboDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    // The item's icon is already this high; Qt's margins would add to it.
    QSize size = QItemDelegate::sizeHint(option, index);
    size.setHeight(m_rowHeight);
    return size;
}
