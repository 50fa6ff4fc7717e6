#include "qt/picture_board.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace vorelio {

namespace {

/// A picture in a dark window lights no room.
constexpr double kDimmed = 0.42;

/// Beyond this share of its plain size a picture is taken from the larger file.
constexpr double kLarger = 1.02;

bool IsDark(const QWidget& widget) { return widget.palette().color(QPalette::Window).lightness() < 128; }

}  // namespace

void PictureBoard::SetPicture(const QString& file, const QSize& plain, Reader read) {
  file_ = file;
  plain_ = plain;
  read_ = std::move(read);
  updateGeometry();
}

void PictureBoard::Lay(QWidget& widget, const QRect& place) {
  laid_.push_back({&widget, place});
  Arrange();
}

QRectF PictureBoard::Stand() const {
  const QSizeF size = QSizeF(plain_).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
  return {QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void PictureBoard::Arrange() {
  const QRectF stand = Stand();
  const double scale = plain_.width() > 0 ? stand.width() / plain_.width() : 1;
  for (const auto& [widget, place] : laid_) {
    const QRectF scaled(stand.topLeft() + QPointF(place.topLeft()) * scale, QSizeF(place.size()) * scale);
    widget->setGeometry(scaled.toRect());
  }
}

void PictureBoard::resizeEvent(QResizeEvent*) { Arrange(); }

const QImage& PictureBoard::Source(double scale) {
  const bool larger = scale > kLarger;
  if (!source_.isNull() && larger_ == larger) return source_;
  larger_ = larger;
  QString twice = file_;
  twice.insert(twice.lastIndexOf(u'.'), QStringLiteral("@2x"));
  source_ = read_(larger ? twice : file_);
  if (source_.isNull()) source_ = read_(larger ? file_ : twice);
  return source_;
}

void PictureBoard::Prepare(const QRect& stand) {
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(stand.size()) * ratio).toSize();
  const bool dark = IsDark(*this);
  const bool ready = shown_.size() == pixels && dark_ == dark;
  if (ready || absent_ || !read_ || pixels.isEmpty()) return;
  const QImage& source = Source(static_cast<double>(pixels.width()) / plain_.width());
  absent_ = source.isNull();
  if (absent_) return;
  QImage image = source.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  if (dark) {
    QColor shade = palette().color(QPalette::Window);
    shade.setAlphaF(static_cast<float>(kDimmed));
    QPainter(&image).fillRect(image.rect(), shade);
  }
  image.setDevicePixelRatio(ratio);
  shown_ = QPixmap::fromImage(image);
  dark_ = dark;
}

void PictureBoard::paintEvent(QPaintEvent*) {
  const QRect stand = Stand().toRect();
  Prepare(stand);
  QPainter painter(this);
  if (absent_)
    PaintAbsence(painter, stand);
  else
    painter.drawPixmap(stand.topLeft(), shown_);
}

void PictureBoard::PaintAbsence(QPainter& painter, const QRect& stand) const {
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::AlternateBase));
  painter.drawRect(stand.adjusted(0, 0, -1, -1));
  const QString words = QStringLiteral("L'image « %1 » manque dans le dossier du programme.").arg(file_);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(stand.adjusted(12, 0, -12, -8), Qt::AlignBottom | Qt::AlignLeft | Qt::TextWordWrap, words);
}

// --- Cells ----------------------------------------------------------------------------------------------------------

void PictureCell::resizeEvent(QResizeEvent* event) {
  // Bold Arial of eight points on a cell of twenty pixels, and as the cell grows.
  constexpr double kLetter = 0.56;
  QFont letters(QStringLiteral("Arial"));
  letters.setBold(true);
  letters.setPixelSize(std::max(6, static_cast<int>(std::lround(height() * kLetter))));
  setFont(letters);
  ArrowCell::resizeEvent(event);
}

// What lies aside counts twice.
QWidget* PictureCell::Neighbour(QPoint ahead) const {
  const QPoint here = geometry().center();
  QWidget* next = nullptr;
  int nearest = 0;
  for (auto* other : parentWidget()->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
    const QPoint way = other->geometry().center() - here;
    const int forward = QPoint::dotProduct(way, ahead);
    const int aside = std::abs(QPoint::dotProduct(way, {ahead.y(), ahead.x()}));
    if (other->isHidden() || forward <= 0 || aside > 2 * forward) continue;
    const int distance = forward + 2 * aside;
    if (next && distance >= nearest) continue;
    next = other;
    nearest = distance;
  }
  return next;
}

}  // namespace vorelio
