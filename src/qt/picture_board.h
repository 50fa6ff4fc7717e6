#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <vector>

#include "qt/arrow_cell.h"

namespace vorelio {

/// An image at its own ratio, as large as there is room for, and widgets that keep their place and size on it.
class PictureBoard : public QWidget {
 public:
  explicit PictureBoard(QWidget* parent) : QWidget(parent) {}

  /// Reads an image, "name.jpg", or "name@2x.jpg" for the same twice as large; a null image if there is none.
  using Reader = std::function<QImage(const QString& file)>;

  /// `plain` is the image's size in pixels at its plain size. It is read when it is shown for the first time.
  void SetPicture(const QString& file, const QSize& plain, Reader read);

  /// Puts a widget on the image, at a place in pixels of its plain size.
  void Lay(QWidget& widget, const QRect& place);

  QSize sizeHint() const override { return plain_ * 5 / 4; }
  QSize minimumSizeHint() const override { return plain_ * 3 / 4; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Laid {
    QWidget* widget;
    QRect place;
  };

  /// Where the image stands on the board.
  QRectF Stand() const;
  void Arrange();
  void Prepare(const QRect& stand);
  /// The image to be shown at `scale` times its plain size, read when that changes the file.
  const QImage& Source(double scale);
  void PaintAbsence(QPainter& painter, const QRect& stand) const;

  QString file_;
  QSize plain_;
  Reader read_;
  std::vector<Laid> laid_;
  QImage source_;
  bool larger_ = false;  ///< Whether `source_` was asked for twice as large.
  QPixmap shown_;
  bool dark_ = false;
  bool absent_ = false;
};

/// A field on a board.
class PictureCell : public ArrowCell {
 public:
  explicit PictureCell(PictureBoard& board) : ArrowCell(board) {}

 protected:
  /// The nearest cell in that direction.
  QWidget* Neighbour(QPoint ahead) const override;
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace vorelio
