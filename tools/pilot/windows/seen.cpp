#include "pilot/windows/seen.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "forms/controls.h"
#include "pilot/words.h"
#include "qt/qt_text.h"
#include "qt/rows_view.h"

namespace vorelio::pilot {

namespace {

using Reading = std::optional<std::string>;

std::string Utf8(const QString& text) { return text.toStdString(); }

/// Blanks that pad a caption in the model may be missing around the one on the screen.
QString Unpadded(const QString& seen, const Control& control) {
  const QString held = ToQt(control.Words());
  return seen == held.trimmed() ? held : seen;
}

Reading SeenWords(const Control& control, const QWidget& widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return Utf8(edit->text());
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
    return Utf8(edit->toPlainText().replace(u'\n', QStringLiteral("\r\n")));
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
    return Utf8(!combo->isEditable() && combo->currentIndex() < 0 ? combo->placeholderText() : combo->currentText());
  if (const auto* rows = qobject_cast<const QListView*>(&widget)) return Utf8(rows->currentIndex().data().toString());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return Utf8(WithoutMnemonic(button->text()));
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (!label && !qobject_cast<const QGroupBox*>(&widget))
    label = widget.findChild<const QLabel*>(QStringLiteral("titre_") + widget.objectName());
  if (label) return Utf8(Unpadded(label->buddy() ? WithoutMnemonic(label->text()) : label->text(), control));
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
    return Utf8(Unpadded(WithoutMnemonic(box->title()), control));
  return std::nullopt;
}

Reading SeenChecked(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  return button ? Reading(YesNo(button->isChecked())) : std::nullopt;
}

/// A field that the desktop's own colours are due to must not still bear one of the model's.
Reading SeenColour(const Control& control, const QWidget& widget) {
  if (qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QAbstractButton*>(&widget)) return std::nullopt;
  const auto role = qobject_cast<const QLabel*>(&widget) ? QPalette::Window : QPalette::Base;
  // Disabled fields leave their colour aside until they are enabled again.
  const QColor shown = widget.palette().color(QPalette::Active, role);
  const auto word = static_cast<unsigned>(shown.blue() << 16 | shown.green() << 8 | shown.red());
  if (control.Colour() == kFond_Fenetre)
    return shown == QApplication::palette(&widget).color(QPalette::Active, role)
               ? "window"
               : Utf8(QString::number(word, 16).toUpper());
  if ((control.Colour() & 0x80000000U) != 0) return std::nullopt;
  return Utf8(QString::number(word, 16).toUpper());
}

Reading SeenIndex(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return std::to_string(combo->currentIndex());
  if (const auto* rows = qobject_cast<const QListView*>(&widget)) return std::to_string(rows->currentIndex().row());
  return std::nullopt;
}

Reading SeenCount(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return std::to_string(combo->count());
  if (const auto* rows = qobject_cast<const QListView*>(&widget)) return std::to_string(rows->model()->rowCount());
  return std::nullopt;
}

/// A field shows its caret while it has the focus.
Reading SeenCaret(const QWidget& widget) {
  if (widget.window()->focusWidget() != &widget) return std::nullopt;
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
    return std::to_string(edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition());
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) {
    const int place = edit->textCursor().selectionStart();
    return std::to_string(place + edit->toPlainText().left(place).count(u'\n'));
  }
  return std::nullopt;
}

}  // namespace

Reading SeenProperty(const Control& control, const QWidget& widget, std::string_view property) {
  if (property == "text" || property == "caption") return SeenWords(control, widget);
  if (property == "enabled") return YesNo(widget.isEnabled());
  if (property == "visible") return YesNo(widget.isVisibleTo(widget.window()));
  if (property == "checked") return SeenChecked(widget);
  if (property == "colour") return SeenColour(control, widget);
  if (property == "index") return SeenIndex(widget);
  if (property == "count") return SeenCount(widget);
  return property == "caret" ? SeenCaret(widget) : std::nullopt;
}

Reading SeenProperty(const MenuItem&, const QAction& action, std::string_view property) {
  if (property == "text" || property == "caption") return Utf8(WithoutMnemonic(action.text()));
  if (property == "enabled") return YesNo(action.isEnabled());
  if (property == "visible") return YesNo(action.isVisible());
  return property == "checked" ? Reading(YesNo(action.isChecked())) : std::nullopt;
}

Reading SeenRow(const ListControl&, const QWidget& widget, int row) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
    return row < combo->count() ? Reading(Utf8(combo->itemText(row))) : std::nullopt;
  if (const auto* rows = qobject_cast<const QListView*>(&widget))
    return row < rows->model()->rowCount() ? Reading(Utf8(rows->model()->index(row, 0).data().toString()))
                                           : std::nullopt;
  return std::nullopt;
}

}  // namespace vorelio::pilot
