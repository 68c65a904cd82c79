// Fills the picked row with a dark colour and the row under the mouse with a light one, and draws a dotted frame around
// the current row of the keyboard.

#include "windows/qt/listrows.h"

#include <QAbstractItemView>
#include <QPainter>

namespace tessaly {

namespace {

const QColor hovercolour(205, 222, 245);

}  // namespace

rowpainter::rowpainter(QAbstractItemView& list) : QStyledItemDelegate(&list) {
    list.viewport()->setAttribute(Qt::WA_Hover);
    list.setItemDelegate(this);
}

void rowpainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    const bool picked = row.state & QStyle::State_Selected, keyboard = row.state & QStyle::State_HasFocus;
    row.state &= ~QStyle::State_HasFocus;  // the style would fill the row as if it were picked
    if (!picked && (row.state & QStyle::State_MouseOver)) painter->fillRect(row.rect, hovercolour);
    QStyledItemDelegate::paint(painter, row, index);
    if (!keyboard) return;
    painter->setPen(QPen(row.palette.color(picked ? QPalette::HighlightedText : QPalette::Text), 1, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(row.rect.adjusted(0, 0, -1, -1));
}

}  // namespace tessaly
