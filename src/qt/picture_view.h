#pragma once

#include "qt/picture_board.h"
#include "qt/view.h"

namespace vorelio {

/// Shows a picture of the program's directory.
class PictureView final : public ViewOf<Picture, PictureBoard> {
 public:
  PictureView(Picture& picture, PictureBoard& board, Gate& gate);

 protected:
  void Show(Property) override {}
  void ShowColour() override {}
};

}  // namespace vorelio
