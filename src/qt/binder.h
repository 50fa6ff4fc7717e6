#pragma once

#include <QString>
#include <string>
#include <unordered_map>
#include <vector>

#include "qt/view.h"

class QAction;

namespace vorelio {

/// The bond between a form and its window: each control of the form is joined with the widget or the action of the
/// window that bears its name. A name with an index, "Dpt(57)", is also looked for as "Dpt_57"; if the window has
/// neither, the controls of the array are filled into the widget that is called "Dpt". Controls that lie on a picture
/// are made on its board.
class Binding {
 public:
  Binding(Form& form, QWidget& window, Gate& gate);
  /// Parts the form from the window; the window stays.
  ~Binding();
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  QWidget* WidgetOf(const Control& control) const;
  QAction* ActionOf(const Control& control) const;
  /// The control's view, or null.
  View* Of(const Control& control) const;

  /// What of form and window doesn't fit: a control without a widget, or with one of another kind, and a widget for
  /// input or with a control's way of name that no control stands behind.
  const std::vector<std::string>& Problems() const { return problems_; }

 private:
  void Bind(Control& control, QWidget& window, Gate& gate);
  QObject* Find(const QString& name, QWidget& window) const;
  QObject* LayOnPicture(Control& control, QWidget& window);
  QObject* Fill(Control& control, QWidget& window);
  void LookForStrangers(const Form& form, QWidget& window);

  std::unordered_map<const Control*, View*> views_;
  std::vector<std::string> problems_;
};

/// Makes the .ui files and icons known to Qt; calling it again changes nothing.
void UseResources();

/// Makes a window from the .ui file of a form's name; empty if there is none or it doesn't load, with the reason in
/// `problem`.
QWidget* LoadWindow(const QString& form, QString& problem);

}  // namespace vorelio
