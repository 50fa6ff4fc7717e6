#include "qt/view.h"

#include <QFocusEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPalette>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>

#include "forms/colours.h"
#include "forms/programme.h"

namespace vorelio {

namespace {

/// What the colour of a cell says, for those who hear it; empty for one that says nothing.
QString StateOf(Couleur colour) {
  switch (colour) {
    case kDpt_Contacte: return QStringLiteral("contacté");
    case kDpt_QSL_Envoyee: return QStringLiteral("QSL envoyée");
    case kDpt_QSL_Recue: return QStringLiteral("QSL reçue");
    case kDpt_Confirme: return QStringLiteral("confirmé");
    default: return {};
  }
}

/// A field's title comes and goes with it.
void ShowTitle(const QWidget& widget, bool visible) {
  for (QLabel* label : widget.window()->findChildren<QLabel*>())
    if (label->buddy() == &widget && label->objectName().startsWith(QLatin1String("titre_")))
      label->setVisible(visible);
}

}  // namespace

// --- View -----------------------------------------------------------------------------------------------------------

View::View(Control& control, QObject& shown, Gate& gate)
    : QObject(&shown), gate_(gate), control_(control), programme_(control.Parent().programme()), shown_(shown) {
  control.SetView(this);
}

void View::Release() {
  if (!bound_) return;
  bound_ = false;
  control_.SetView(nullptr);
  shown_.removeEventFilter(this);
  shown_.disconnect(this);
  Released();
}

void View::Deliver(const std::function<void()>& action) { gate_.Deliver(programme_, action); }

void View::Defer() {
  if (deferred_) return;
  deferred_ = true;
  gate_.Later(*this);
}

void View::Refresh() {
  if (!deferred_) return;
  deferred_ = false;
  if (bound_) ShowDeferred();
}

// --- WidgetView -----------------------------------------------------------------------------------------------------

WidgetView::WidgetView(Control& control, QWidget& widget, Gate& gate)
    : View(control, widget, gate), widget_(widget), control_(control) {
  widget.installEventFilter(this);
}

void WidgetView::Changed(Property property) {
  switch (property) {
    case Property::Enabled:
    case Property::Visible: {
      const QWidget* focused = widget_.window()->focusWidget();
      const bool had_focus = focused && (focused == &widget_ || widget_.isAncestorOf(focused));
      if (had_focus && !(control_.Enabled() && control_.Visible())) gate_.FocusLost();
      const QScopedValueRollback<bool> quiet(gate_.pushing, true);
      if (property == Property::Enabled) {
        widget_.setEnabled(control_.Enabled());
      } else {
        widget_.setVisible(control_.Visible());
        ShowTitle(widget_, control_.Visible());
      }
      break;
    }
    case Property::Colour: ShowColour(); break;
    default: Show(property);
  }
}

bool WidgetView::eventFilter(QObject* watched, QEvent* event) {
  if (Bound() && !gate_.pushing && event->type() == QEvent::FocusIn) {
    // Qt moves the focus on when the logic disables a control, and gives it back to a window that comes to the front:
    // only what the user does is told.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool of_user = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (of_user && control_.Reachable() && control_.Parent().programme().Focus() != &control_)
      Deliver([this] { control_.UserFocus(); });
  }
  return QObject::eventFilter(watched, event);
}

QPushButton* ActingButton(const QWidget& choice) {
  if (qobject_cast<QMainWindow*>(choice.window())) return nullptr;
  const auto buttons = choice.window()->findChildren<QPushButton*>();
  const auto acting = std::find_if(buttons.begin(), buttons.end(),
                                   [](const auto* button) { return button->property("principal").toBool(); });
  return acting == buttons.end() ? nullptr : *acting;
}

void WidgetView::ShowColour() {
  PaintField(widget_, control_.Colour());
  const QString state = StateOf(control_.Colour());
  if (widget_.accessibleDescription() == spoken_state_) widget_.setAccessibleDescription(state);
  spoken_state_ = state;
}

// --- Colours --------------------------------------------------------------------------------------------------------

bool SystemColour(Couleur colour) { return (colour & 0x80000000U) != 0; }

QColor ToColour(Couleur colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

void PaintField(QWidget& widget, Couleur colour) {
  QPalette palette;
  if (!SystemColour(colour)) {
    // A field that can't be typed into looks like any other of that kind.
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Window})
        palette.setColor(group, role, ToColour(colour));
      // Every colour of the model is a light one.
      for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText, QPalette::PlaceholderText})
        palette.setColor(group, role, Qt::black);
    }
  } else if (colour == kFace_Bouton && widget.inherits("QAbstractItemView")) {
    palette.setColor(QPalette::Base, widget.palette().color(QPalette::Button));
  }
  widget.setPalette(palette);
}

}  // namespace vorelio
