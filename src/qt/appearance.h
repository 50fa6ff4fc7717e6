#pragma once

#include <QFont>
#include <QPalette>
#include <QSettings>
#include <QWidget>
#include <functional>

namespace vorelio {

/// The look of the windows: light or dark, and the size of their text. Both are the user's choice, and are kept.
///
/// Properties of widgets in the .ui files that it looks at: "echelle" (size of the text against the others'), "gras"
/// (bold), "discret" (quiet text), "plaque" (the colour of a label's plate), "bandeau" (the band at the head of a
/// window), "papier" (a printed label: black on white in a fixed pitch, also in the dark).
class Appearance {
 public:
  enum class Theme { System, Light, Dark };

  static constexpr int kSmallest = 80, kLargest = 200, kStep = 10;  ///< Zoom, in percent.

  /// Takes the application over. `memory` keeps the choices and must live as long.
  explicit Appearance(QSettings& memory);

  Theme CurrentTheme() const { return theme_; }
  void SetTheme(Theme theme);
  bool Dark() const;
  /// The desktop has become dark, or light.
  void DesktopChanged(bool dark);

  int Zoom() const { return zoom_; }
  /// Clipped to the bounds above.
  void SetZoom(int percent);

  /// Gives a window what its properties ask for. Later changes reach it by themselves.
  void Dress(QWidget& window) const;

 private:
  void Apply();

  QSettings& memory_;
  QFont base_;
  bool desktop_dark_;
  Theme theme_;
  int zoom_;
  QObject following_;  ///< What hears the desktop belongs to it.
};

/// The palette of the light or the dark theme.
QPalette ThemePalette(bool dark);

/// Whether the desktop says that it is dark.
bool DesktopIsDark();

/// Calls `changed` whenever the desktop becomes dark or light, as long as `owner` lives.
void FollowDesktop(QObject& owner, std::function<void(bool dark)> changed);

}  // namespace vorelio
