// Paints the rows of lists, so that the picked row, the row under the mouse and the row of the keyboard differ.
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace tessaly {

class rowpainter : public QStyledItemDelegate {
  public:
    // Makes this object paint the rows of a list.
    explicit rowpainter(QAbstractItemView& list);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tessaly
