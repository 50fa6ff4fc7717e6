#include "qt/arrow_cell.h"

#include <QKeyEvent>

namespace vorelio {

ArrowCell::ArrowCell(QWidget& holder) : QLineEdit(&holder) {
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignCenter);
  setContextMenuPolicy(Qt::NoContextMenu);
  setProperty("cellule", true);
}

void ArrowCell::keyPressEvent(QKeyEvent* event) {
  QPoint ahead;
  switch (event->key()) {
    case Qt::Key_Left: ahead = {-1, 0}; break;
    case Qt::Key_Right: ahead = {1, 0}; break;
    case Qt::Key_Up: ahead = {0, -1}; break;
    case Qt::Key_Down: ahead = {0, 1}; break;
    default: QLineEdit::keyPressEvent(event); return;
  }
  // The reason of a tab tells the model that the user has come here.
  if (QWidget* next = Neighbour(ahead)) next->setFocus(Qt::TabFocusReason);
}

}  // namespace vorelio
