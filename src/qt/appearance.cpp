#include "qt/appearance.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QToolTip>
#include <algorithm>

#include "qt/caption_views.h"
#include "qt/rows_view.h"
#include "qt/style.h"

namespace vorelio {

namespace {

const char* const kDressed = "vorelio_habillee";

Appearance::Theme ToTheme(const QString& word) {
  if (word == QLatin1String("clair")) return Appearance::Theme::Light;
  if (word == QLatin1String("sombre")) return Appearance::Theme::Dark;
  return Appearance::Theme::System;
}

QString Word(Appearance::Theme theme) {
  switch (theme) {
    case Appearance::Theme::Light: return QStringLiteral("clair");
    case Appearance::Theme::Dark: return QStringLiteral("sombre");
    case Appearance::Theme::System: break;
  }
  return QStringLiteral("systeme");
}

struct Shades {
  QRgb window, text, base, alternate, button, card, border, hairline, dark, highlight, quiet, tip;
};

constexpr Shades kLight = {0xFFEDF0F4, 0xFF1A2330, 0xFFFFFFFF, 0xFFF5F7FA, 0xFFF3F5F8, 0xFFFCFDFE,
                           0xFFBFC8D2, 0xFFDBE1E8, 0xFF94A0AD, 0xFF1D6FA5, 0xFF5C6876, 0xFFFFFDF0};
constexpr Shades kDark = {0xFF1B2026, 0xFFE2E7ED, 0xFF15191E, 0xFF1A1F25, 0xFF2C343D, 0xFF232930,
                          0xFF46515D, 0xFF323A44, 0xFF0E1114, 0xFF2B7BAF, 0xFF95A1AE, 0xFF2C343D};

/// The band at the head of the main window is night blue in both themes.
constexpr QRgb kBand = 0xFF16324A, kBandDark = 0xFF11263A, kBandText = 0xFFF2F6FA, kBandQuiet = 0xFFA9C0D4;

void DressBand(QWidget& band, bool dark) {
  QPalette palette;
  palette.setColor(QPalette::Window, QColor::fromRgb(dark ? kBandDark : kBand));
  palette.setColor(QPalette::WindowText, QColor::fromRgb(kBandText));
  palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(kBandQuiet));
  band.setPalette(palette);
  band.setAutoFillBackground(true);
}

void DressPaper(QWidget& paper) {
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::white);
  palette.setColor(QPalette::WindowText, Qt::black);
  paper.setPalette(palette);
  paper.setAutoFillBackground(true);
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPointSizeF(QApplication::font().pointSizeF());
  paper.setFont(fixed);
}

void DressText(QWidget& widget) {
  const QVariant scale = widget.property("echelle"), bold = widget.property("gras");
  if (scale.isValid() || bold.isValid()) {
    const QWidget* above = widget.parentWidget();
    QFont font = above && above->property("papier").toBool() ? above->font() : QApplication::font();
    if (scale.isValid()) font.setPointSizeF(font.pointSizeF() * scale.toDouble());
    font.setBold(bold.toBool());
    widget.setFont(font);
  }
  if (widget.property("discret").toBool()) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, widget.parentWidget()->palette().color(QPalette::PlaceholderText));
    widget.setPalette(palette);
  }
  if (auto* plate = dynamic_cast<CaptionLabel*>(&widget); plate && widget.property("plaque").isValid()) {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(widget.property("plaque").toString()));
    palette.setColor(QPalette::WindowText, Qt::black);
    plate->setPalette(palette);
    plate->SetPlate(true);
  }
}

}  // namespace

QPalette ThemePalette(bool dark) {
  const Shades& shades = dark ? kDark : kLight;
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, QRgb colour) { palette.setColor(role, QColor::fromRgb(colour)); };
  set(QPalette::Window, shades.window);
  set(QPalette::WindowText, shades.text);
  set(QPalette::Base, shades.base);
  set(QPalette::AlternateBase, shades.alternate);
  set(QPalette::Text, shades.text);
  set(QPalette::Button, shades.button);
  set(QPalette::ButtonText, shades.text);
  set(QPalette::BrightText, 0xFFFFFFFF);
  set(QPalette::Light, shades.card);
  set(QPalette::Midlight, shades.hairline);
  set(QPalette::Mid, shades.border);
  set(QPalette::Dark, shades.dark);
  set(QPalette::Shadow, shades.dark);
  set(QPalette::Highlight, shades.highlight);
  set(QPalette::HighlightedText, 0xFFFFFFFF);
  set(QPalette::PlaceholderText, shades.quiet);
  set(QPalette::Link, shades.highlight);
  set(QPalette::ToolTipBase, shades.tip);
  set(QPalette::ToolTipText, shades.text);
  // A selection stays readable in a window that isn't in front.
  palette.setColor(QPalette::Inactive, QPalette::Highlight,
                   Blend(QColor::fromRgb(shades.highlight), QColor::fromRgb(shades.window), 0.1));
  const QColor faint = Blend(QColor::fromRgb(shades.text), QColor::fromRgb(shades.card), 0.5);
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faint);
  // What a locked field shows is still to be read.
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor::fromRgb(shades.quiet));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(shades.border));
  return palette;
}

Appearance::Appearance(QSettings& memory)
    : memory_(memory),
      base_(QApplication::font()),
      desktop_dark_(DesktopIsDark()),
      theme_(ToTheme(memory.value(QStringLiteral("Affichage/Theme")).toString())),
      zoom_(std::clamp(memory.value(QStringLiteral("Affichage/Zoom"), 100).toInt(), kSmallest, kLargest)) {
  QApplication::setStyle(new VorelioStyle);
  Apply();
  FollowDesktop(following_, [this](bool dark) { DesktopChanged(dark); });
}

bool Appearance::Dark() const { return theme_ == Theme::System ? desktop_dark_ : theme_ == Theme::Dark; }

void Appearance::DesktopChanged(bool dark) {
  if (dark == desktop_dark_) return;
  desktop_dark_ = dark;
  if (theme_ == Theme::System) Apply();
}

void Appearance::SetTheme(Theme theme) {
  theme_ = theme;
  memory_.setValue(QStringLiteral("Affichage/Theme"), Word(theme));
  Apply();
}

void Appearance::SetZoom(int percent) {
  zoom_ = std::clamp(percent, kSmallest, kLargest);
  memory_.setValue(QStringLiteral("Affichage/Zoom"), zoom_);
  Apply();
}

void Appearance::Apply() {
  const QPalette palette = ThemePalette(Dark());
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
  QFont font = base_;
  font.setPointSizeF(base_.pointSizeF() * zoom_ / 100);
  QApplication::setFont(font);
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->property(kDressed).toBool()) Dress(*window);
}

void Appearance::Dress(QWidget& window) const {
  window.setProperty(kDressed, true);
  const QList<QWidget*> widgets = window.findChildren<QWidget*>();
  for (QWidget* widget : widgets)
    if (widget->property("bandeau").toBool())
      DressBand(*widget, Dark());
    else if (widget->property("papier").toBool())
      DressPaper(*widget);
  for (QWidget* widget : widgets) {
    DressText(*widget);
    // Qt 6.4 keeps the least width of a combo box over a change of its font, but not over one of the style.
    if (widget->inherits("QComboBox")) {
      QEvent change(QEvent::StyleChange);
      QApplication::sendEvent(widget, &change);
      widget->updateGeometry();
    }
    // Lists have a font of their own, which follows in size.
    if (auto* rows = dynamic_cast<RowsView*>(widget)) rows->Arrange();
  }
}

}  // namespace vorelio
