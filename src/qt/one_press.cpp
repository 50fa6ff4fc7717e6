#include "qt/one_press.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/typing.h"

namespace vorelio {

namespace {

bool Writes(const QObject& target, const QKeyEvent& key) {
  const bool page = qobject_cast<const QPlainTextEdit*>(&target) != nullptr;
  const QString typed = TypedCharacters(key);
  // A line end is written into a page; elsewhere Enter is a step.
  if (typed == QStringLiteral("\r")) return page;
  // A blank is written into a field; elsewhere it presses or ticks.
  if (typed == QStringLiteral(" ")) return page || target.inherits("QLineEdit") || target.inherits("QComboBox");
  return !typed.isEmpty();
}

bool Moves(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Backspace:
    case Qt::Key_Delete: return true;
    default: return key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
  }
}

}  // namespace

bool OnePress::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  // A list or a menu that stands open is the innermost thing: Escape is its own, and no window's.
  if (event->type() == QEvent::ShortcutOverride && key.key() == Qt::Key_Escape && QApplication::activePopupWidget()) {
    event->accept();
    return true;
  }
  if (!key.isAutoRepeat() || Moves(key) || Writes(*watched, key)) return false;
  // An override that is accepted keeps the shortcuts from the key too.
  event->accept();
  return true;
}

}  // namespace vorelio
