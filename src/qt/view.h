#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "forms/controls.h"

class QPushButton;

/// One view per control: it shows the control's state in a widget and tells the control what the user does.
namespace vorelio {

class View;

/// What views need of the windows they are part of.
class Gate {
 public:
  virtual ~Gate() = default;

  /// The only way from Qt into the logic: nothing that the logic throws comes back through it.
  virtual void Deliver(Programme& programme, const std::function<void()>& action) = 0;

  /// Has the view refresh itself at the next turn of the events, once however often it is asked for.
  virtual void Later(View& view) = 0;

  /// Tells the user in passing that something wasn't taken, with a beep.
  virtual void Notice(QWidget& place, const QString& text) = 0;

  /// A widget lost the focus because the logic has disabled or hidden it.
  virtual void FocusLost() = 0;

  /// While the logic's changes go to the widgets: the moves of the focus that follow from them aren't the user's.
  bool pushing = false;

  /// Whether timers fire by themselves. Under a script they don't: there the time is the script's.
  virtual bool TimersRun() const { return true; }
};

class View : public QObject, public ControlView {
 public:
  View(Control& control, QObject& shown, Gate& gate);

  /// Ends the bond with the control. The view itself goes with its widget, for it may be running.
  void Release();

  QObject& Shown() const { return shown_; }

  void Changed(Property property) override = 0;

  /// Brings up to date what `Later` has put off.
  void Refresh();
  /// The logic has given the control the focus.
  virtual void Focused() {}

 protected:
  /// What `Refresh` does when something was put off.
  virtual void ShowDeferred() {}
  void Defer();
  /// The bond has just ended: the control must not be looked at any more.
  virtual void Released() {}

  bool Bound() const { return bound_; }
  /// Gives the logic something that the user has done. When this returns, the control may have gone: see `Bound`.
  void Deliver(const std::function<void()>& action);

  Gate& gate_;

 private:
  Control& control_;
  Programme& programme_;
  QObject& shown_;
  bool bound_ = true;
  bool deferred_ = false;
};

/// What all views on a widget share: enabled, visible, colour, focus.
class WidgetView : public View {
 public:
  WidgetView(Control& control, QWidget& widget, Gate& gate);

  void Changed(Property property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// The properties that are this kind's own.
  virtual void Show(Property property) = 0;
  /// Puts the model's colour on the widget.
  virtual void ShowColour();

  QWidget& widget_;

 private:
  Control& control_;
  QString spoken_state_;
};

/// A view that knows its control's kind.
template <typename C, typename W>
class ViewOf : public WidgetView {
 public:
  ViewOf(C& control, W& widget, Gate& gate) : WidgetView(control, widget, gate), control_(control), shown_(widget) {}

 protected:
  C& control_;
  W& shown_;
};

/// The button that Enter presses from a choice, a box or an option of a window, as it does from the last of its fields.
/// None in the main window, whose choices are apart from its contact.
QPushButton* ActingButton(const QWidget& choice);

/// Puts a colour of the model on a widget: the background with black text on it, or the desktop's own colours.
void PaintField(QWidget& widget, Couleur colour);

/// Whether a colour is one of the system's, that is, none of the model's own.
bool SystemColour(Couleur colour);

/// A colour of the model; not for the system's.
QColor ToColour(Couleur colour);

}  // namespace vorelio
