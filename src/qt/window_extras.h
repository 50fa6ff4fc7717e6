#pragma once

#include <QMainWindow>
#include <QSettings>

#include "forms/controls.h"
#include "qt/appearance.h"

/// What the windows offer beyond the logic: the menu "Affichage", full screen, and their places on the screen, which
/// are kept.
namespace vorelio {

class WindowExtras {
 public:
  WindowExtras(Appearance& appearance, QSettings& memory) : appearance_(appearance), memory_(memory) {}

  /// Furnishes a window before it is shown for the first time; true if it has a place of its own from an earlier run.
  bool Furnish(const Form& form, QWidget& window);

 private:
  void AddViewMenu(QMainWindow& window);
  bool Restore(const QString& name, QWidget& window);

  Appearance& appearance_;
  QSettings& memory_;
};

}  // namespace vorelio
