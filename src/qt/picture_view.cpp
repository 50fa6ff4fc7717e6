#include "qt/picture_view.h"

#include <QImage>

#include "core/errors.h"
#include "forms/programme.h"
#include "qt/qt_text.h"

namespace vorelio {

PictureView::PictureView(Picture& picture, PictureBoard& board, Gate& gate) : ViewOf(picture, board, gate) {
  const Programme& programme = picture.Parent().programme();
  const auto read = [&programme](const QString& file) {
    QImage image;
    try {
      const std::string bytes = programme.Disque().ReadAll(programme.Chemin(FromQt(file)));
      image.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    } catch (const Erreur_Execution&) {
      // A window without its image still tells what is worked.
    }
    return image;
  };
  board.SetPicture(ToQt(picture.File()), {picture.Width(), picture.Height()}, read);
}

}  // namespace vorelio
