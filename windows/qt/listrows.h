// How the rows of lists are painted: the picked row, the row under the mouse and the row of the keyboard differ.
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace tessaly {

class rowpainter : public QStyledItemDelegate {
  public:
    // Paints the rows of this list from now on.
    explicit rowpainter(QAbstractItemView& list);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tessaly
