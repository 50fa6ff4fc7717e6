#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <functional>

#include "maps/outlines.h"

/// What the drawings of the maps share.
namespace vorelio::maps {

/// The colours of the paper.
namespace ink {
inline constexpr QRgb kSea = 0xFFCBDFEB, kShallow = 0xFFE3EFF5, kSeaName = 0xFF6C93AE;
inline constexpr QRgb kPaper = 0xFFFBF9F4, kNeighbour = 0xFFF0E9DA, kLand = 0xFFF4EDDC;
inline constexpr QRgb kCoast = 0xFF86A7BC, kBorder = 0xFFB9AA92, kCountryName = 0xFFA99A82;
inline constexpr QRgb kFrame = 0xFF8A98A4, kText = 0xFF4A5560;
}  // namespace ink

using Projection = std::function<Spot(Position)>;

/// A ring, or a line, on the image.
QPainterPath PathOf(const Line& points, const Projection& projection, bool closed);

/// A pen with round joins, `width` in pixels of the plain image.
QPen PenOf(QRgb colour, double width, Qt::PenCapStyle cap = Qt::RoundCap);

/// The same as `strokePath`, piece by piece: the painter's time grows with the square of a path's length.
void Stroke(QPainter& painter, const QPainterPath& path, const QPen& pen);

/// Lines that follow a coast out to sea, each paler than the last.
void DrawShallows(QPainter& painter, const QPainterPath& land);

/// Words in spaced capitals: countries and titles.
QFont Capitals(double size, double spacing, QFont::Weight weight = QFont::Normal);
/// Slanted words: waters.
QFont Slanted(double size);
/// Figures along an edge.
QFont Figures(double size);

/// Words with their middle at a place, upright or turned by `angle` degrees.
void DrawWords(QPainter& painter, QPointF middle, const QString& words, const QFont& font, QRgb colour,
               double angle = 0);

/// Draws an image of `width` by `height` pixels, far larger than either of its two sizes.
QImage Draw(double width, double height, const std::function<void(QPainter&)>& drawing);

/// Writes "name.jpg" and, twice as large, "name@2x.jpg" into a folder; throws std::runtime_error.
void Save(const QImage& large, const QString& folder, const QString& name);

/// Whether the delivered "name.jpg" and "name@2x.jpg" show what has been drawn. Encoders and the edges of letters
/// differ from system to system, so that pixels are compared with some tolerance.
bool Shows(const QString& folder, const QString& name, const QImage& large);

/// The maps themselves.
QImage DrawFrance(const std::vector<Outline>& departments, const std::vector<Outline>& coasts);
QImage DrawField(const std::string& field, const std::vector<Outline>& coasts);

}  // namespace vorelio::maps
