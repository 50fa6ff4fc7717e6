#pragma once

#include <QScrollArea>

namespace vorelio {

/// A part of a window that scrolls where the screen has no room for it. It is as large as its contents as long as that
/// can be, and shows what has the focus.
class PageArea : public QScrollArea {
 public:
  explicit PageArea(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vorelio
