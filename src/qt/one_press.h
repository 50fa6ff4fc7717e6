#pragma once

#include <QObject>

namespace vorelio {

/// One press is one action: a key that is held down goes on moving and writing, and does nothing else. What it has
/// opened, a box with a question for one, waits for a press of its own.
class OnePress : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vorelio
