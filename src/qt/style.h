#pragma once

#include <QProxyStyle>

namespace vorelio {

/// Fusion with flat fields and buttons, and group boxes as cards. All colours are the palette's.
///
/// Properties of widgets that it looks at: "principal" (the one button of a window that goes on), "cellule" (a cell of
/// a grid), "signes" (how many characters a field shows at least).
class VorelioStyle : public QProxyStyle {
 public:
  VorelioStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
};

/// Between two colours: `share` of the second.
QColor Blend(const QColor& one, const QColor& other, double share);

}  // namespace vorelio
