#include "maps/canvas.h"

#include <QDir>
#include <QImageWriter>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

namespace vorelio::maps {

namespace {

/// Drawn at eight times the plain size: what two neighbours share shows no seam once it is reduced.
constexpr int kOversize = 8;
constexpr int kQuality = 93;

const char* const kCredit =
    "Départements : MapSVG (mapsvg.com) et svg-maps, CC BY 4.0 (creativecommons.org/licenses/by/4.0), reprojetés. "
    "Côtes et frontières : Natural Earth, par world-atlas.";

void Write(const QImage& image, const QString& path) {
  QImageWriter writer(path, "jpeg");
  writer.setQuality(kQuality);
  writer.setOptimizedWrite(true);
  writer.setText(QStringLiteral("Credits"), QString::fromUtf8(kCredit));
  if (!writer.write(image))
    throw std::runtime_error((path + QStringLiteral(": ") + writer.errorString()).toStdString());
}

}  // namespace

QPainterPath PathOf(const Line& points, const Projection& projection, bool closed) {
  QPainterPath path;
  for (const Position& point : points) {
    const Spot spot = projection(point);
    if (path.elementCount() == 0)
      path.moveTo(spot.x, spot.y);
    else
      path.lineTo(spot.x, spot.y);
  }
  if (closed) path.closeSubpath();
  return path;
}

QPen PenOf(QRgb colour, double width, Qt::PenCapStyle cap) {
  return QPen(QColor::fromRgba(colour), width, Qt::SolidLine, cap, Qt::RoundJoin);
}

void Stroke(QPainter& painter, const QPainterPath& path, const QPen& pen) {
  constexpr int kPiece = 60;
  painter.setPen(pen);
  const QRectF all = painter.worldTransform().inverted().mapRect(QRectF(painter.window()));
  const QRectF seen = all.adjusted(-pen.widthF(), -pen.widthF(), pen.widthF(), pen.widthF());
  for (const QPolygonF& line : path.toSubpathPolygons())
    for (qsizetype from = 0; from + 1 < line.size(); from += kPiece) {
      const QPolygonF piece(line.mid(from, kPiece + 1));
      if (piece.boundingRect().adjusted(-1, -1, 1, 1).intersects(seen)) painter.drawPolyline(piece);
    }
}

void DrawShallows(QPainter& painter, const QPainterPath& land) {
  constexpr int kBands = 4;
  const QColor sea = QColor::fromRgb(ink::kSea), shallow = QColor::fromRgb(ink::kShallow);
  for (int band = 0; band < kBands; ++band) {
    const double share = (band + 1.0) / kBands;
    const auto mix = [share](int deep, int bright) { return static_cast<int>(deep + (bright - deep) * share); };
    const QColor colour(mix(sea.red(), shallow.red()), mix(sea.green(), shallow.green()),
                        mix(sea.blue(), shallow.blue()));
    Stroke(painter, land, PenOf(colour.rgb(), 3.6 * (kBands - band)));
  }
}

namespace {

QFont FontOf(const char* family, double size) {
  QFont font(QString::fromLatin1(family));
  // A font takes whole pixels: the painter is scaled, the font is set a hundred times too large.
  font.setPixelSize(static_cast<int>(size * 100));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

QFont Capitals(double size, double spacing, QFont::Weight weight) {
  QFont font = FontOf("Liberation Sans", size);
  font.setLetterSpacing(QFont::AbsoluteSpacing, spacing * 100);
  font.setWeight(weight);
  return font;
}

QFont Slanted(double size) {
  QFont font = FontOf("Liberation Serif", size);
  font.setItalic(true);
  font.setLetterSpacing(QFont::AbsoluteSpacing, size * 12);
  return font;
}

QFont Figures(double size) { return FontOf("Liberation Sans", size); }

void DrawWords(QPainter& painter, QPointF middle, const QString& words, const QFont& font, QRgb colour, double angle) {
  painter.save();
  painter.translate(middle);
  painter.rotate(angle);
  painter.scale(0.01, 0.01);
  QPainterPath path;
  path.addText(0, 0, font, words);
  const QRectF bounds = path.boundingRect();
  const double rise = QFontMetricsF(font).capHeight() / 2;
  painter.translate(-bounds.center().x(), rise);
  painter.fillPath(path, QColor::fromRgb(colour));
  painter.restore();
}

QImage Draw(double width, double height, const std::function<void(QPainter&)>& drawing) {
  QImage image(static_cast<int>(width) * kOversize, static_cast<int>(height) * kOversize, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kOversize, kOversize);
  drawing(painter);
  return image;
}

namespace {

struct Size {
  int scale;
  QString ending;
};

std::array<Size, 2> Sizes() { return {{{1, QStringLiteral(".jpg")}, {2, QStringLiteral("@2x.jpg")}}}; }

QImage Reduced(const QImage& large, int scale) {
  return large.scaled(large.size() * scale / kOversize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Shades that a decoded picture may lie off, and the share of its pixels that may lie further off.
constexpr int kShades = 40;
constexpr double kShare = 0.002;

bool Alike(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return false;
  int off = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
      off += std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())}) >
             kShades;
    }
  return off <= kShare * one.width() * one.height();
}

}  // namespace

void Save(const QImage& large, const QString& folder, const QString& name) {
  for (const auto& [scale, ending] : Sizes()) Write(Reduced(large, scale), QDir(folder).filePath(name + ending));
}

bool Shows(const QString& folder, const QString& name, const QImage& large) {
  const auto sizes = Sizes();
  return std::all_of(sizes.begin(), sizes.end(), [&](const Size& size) {
    return Alike(QImage(QDir(folder).filePath(name + size.ending)), Reduced(large, size.scale));
  });
}

}  // namespace vorelio::maps
