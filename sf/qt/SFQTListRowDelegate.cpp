#include "sf/qt/SFQTListRowDelegate.h"

#include "sf/qt/SFQTListCtrl.h"

#include <QPainter>

CSFQTListRowDelegate::CSFQTListRowDelegate(CSFQTListCtrl* list)
    : QStyledItemDelegate(list), m_pList(list)
{
}

void CSFQTListRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    const QColor color = m_pList ? m_pList->RowColor(index.row()) : QColor();
    if (color.isValid())
        painter->fillRect(option.rect, color);
    QStyledItemDelegate::paint(painter, option, index);
}

QWidget* CSFQTListRowDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor)
        editor->setObjectName(QStringLiteral("celleditor"));
    return editor;
}

void CSFQTListRowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                const QModelIndex&) const
{
    // Qt asks again for every cell page on each layout; moving a page to
    // where it stands would only make its parent recount what covers what.
    if (editor && editor->geometry() != option.rect)
        editor->setGeometry(option.rect);
}
