#include <QRectF>
#include <cmath>

#include "maps/canvas.h"
#include "maps/projection.h"

namespace vorelio::maps {

namespace {

constexpr QRectF kImage(0, 0, kField_Width, kField_Height);
constexpr QRectF kMap(20, 26, 460, 320);
constexpr int kSquares = 10;
constexpr double kSquare_Width = 46, kSquare_Height = 32;
constexpr double kEdge = 3.2;  ///< Of the frame that counts the degrees.

void DrawLand(QPainter& painter, Position corner, const std::vector<Outline>& coasts) {
  const auto projection = [corner](Position position) { return OnField(corner, position); };
  QPainterPath land, borders;
  land.setFillRule(Qt::WindingFill);
  for (const Outline& outline : coasts) {
    const bool ring = outline.kind == "terre";
    const QPainterPath path = PathOf(outline.points, projection, ring);
    if (path.intersects(kMap.adjusted(-60, -60, 60, 60))) (ring ? land : borders).addPath(path);
  }
  painter.save();
  painter.setClipRect(kMap);
  painter.fillRect(kMap, QColor::fromRgb(ink::kSea));
  DrawShallows(painter, land);
  Stroke(painter, land, PenOf(ink::kCoast, 1.5));
  painter.fillPath(land, QColor::fromRgb(ink::kLand));
  Stroke(painter, borders, PenOf(ink::kBorder, 0.9));
  painter.restore();
}

void DrawSquares(QPainter& painter) {
  painter.setPen(PenOf(0x70708496, 0.6, Qt::FlatCap));
  for (int i = 1; i < kSquares; ++i) {
    const double x = kMap.left() + kSquare_Width * i, y = kMap.top() + kSquare_Height * i;
    painter.drawLine(QPointF(x, kMap.top()), QPointF(x, kMap.bottom()));
    painter.drawLine(QPointF(kMap.left(), y), QPointF(kMap.right(), y));
  }
}

/// A frame in turns dark and light, a step for each degree.
void DrawFrame(QPainter& painter) {
  const QRectF outer = kMap.adjusted(-kEdge, -kEdge, kEdge, kEdge);
  const QColor dark = QColor::fromRgb(ink::kFrame);
  for (int degree = 0; degree < 2 * kSquares; degree += 2) {
    const double x = kMap.left() + degree * kSquare_Width / 2;
    painter.fillRect(QRectF(x, outer.top(), kSquare_Width / 2, kEdge), dark);
    painter.fillRect(QRectF(x, kMap.bottom(), kSquare_Width / 2, kEdge), dark);
  }
  for (int degree = 0; degree < kSquares; degree += 2) {
    const double y = kMap.bottom() - (degree + 1) * kSquare_Height;
    painter.fillRect(QRectF(outer.left(), y, kEdge, kSquare_Height), dark);
    painter.fillRect(QRectF(kMap.right(), y, kEdge, kSquare_Height), dark);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(PenOf(ink::kFrame, 0.6, Qt::SquareCap));
  painter.drawRect(kMap);
  painter.drawRect(outer);
}

QString Degrees(double value, QChar positive, QChar negative) {
  const QString number = QString::number(std::abs(std::lround(value))) + u'°';
  return value == 0 ? number : number + (value > 0 ? positive : negative);
}

void DrawEdges(QPainter& painter, const std::string& field, Position corner) {
  const QFont font = Figures(6.8);
  for (int i = 0; i <= kSquares; ++i) {
    DrawWords(painter, {kMap.left() + kSquare_Width * i, kMap.bottom() + 11.5},
              Degrees(corner.longitude + 2 * i, u'E', u'O'), font, ink::kText);
    // The longitude is called at the corners already.
    if (i == 0 || i == kSquares) continue;
    const double y = kMap.bottom() - kSquare_Height * i;
    const QString latitude = QString::number(std::lround(corner.latitude + i)) + u'°';
    DrawWords(painter, {8.6, y}, latitude, font, ink::kText);
    DrawWords(painter, {kField_Width - 8.2, y}, latitude, font, ink::kText);
  }
  DrawWords(painter, {kField_Width / 2, 12}, QString::fromStdString(field), Capitals(14, 3, QFont::Bold), ink::kText);
}

}  // namespace

QImage DrawField(const std::string& field, const std::vector<Outline>& coasts) {
  const Position corner = FieldCorner(field);
  return Draw(kField_Width, kField_Height, [&](QPainter& painter) {
    painter.fillRect(kImage, QColor::fromRgb(ink::kPaper));
    DrawLand(painter, corner, coasts);
    DrawSquares(painter);
    DrawFrame(painter);
    DrawEdges(painter, field, corner);
  });
}

}  // namespace vorelio::maps
