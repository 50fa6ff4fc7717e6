#include <QDir>
#include <QImage>

#include "entry/ddfm.h"
#include "maps/activity_map.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "qt/picture_board.h"
#include "qt/qt_text.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

/// Where the middle of a cell is on the image, in pixels of its plain size.
QPointF OnImage(const PictureBoard& board, const QSize& plain, const QWidget& cell) {
  const double scale = std::min(double(board.width()) / plain.width(), double(board.height()) / plain.height());
  const QPointF corner((board.width() - plain.width() * scale) / 2, (board.height() - plain.height() * scale) / 2);
  return (QRectF(cell.geometry()).center() - corner) / scale;
}

QImage Delivered(const QString& file) { return QImage(QStringLiteral(VORELIO_DATA_DIR "/") + file); }

/// Maps are painted beside the grid of the main window.
class PictureTest : public On<WindowsBench> {
 protected:
  PictureTest() { Open<DDFM>(); }
};

TEST_F(PictureTest, CellsKeepTheirPlaceAsTheWindowGrows) {
  Carte& map = Open<Carte>();
  auto* window = windows.WindowOf(map);
  auto* board = dynamic_cast<PictureBoard*>(windows.WidgetOf(map.Picture1));
  ASSERT_TRUE(board);
  for (const QSize size : {QSize(760, 560), QSize(1300, 640), QSize(900, 1000)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    const auto* cell = windows.WidgetOf(map.Dep(57));
    const QPointF off = OnImage(*board, {475, 510}, *cell) - QPointF(384 + 12.5, 104 + 10);
    EXPECT_TRUE(off.manhattanLength() < 1.5) << qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y()));
  }
}

TEST_F(PictureTest, ArrowsLeadToTheNearestCell) {
  Carte& map = Open<Carte>();
  EXPECT_TRUE(QTest::qWaitForWindowActive(windows.WindowOf(map)));
  auto* cell = windows.WidgetOf(map.Dep(55));
  cell->setFocus(Qt::MouseFocusReason);
  QTest::keyClick(cell, Qt::Key_Right);
  EXPECT_EQ(programme.Focus(), &map.Dep(57));
  QTest::keyClick(windows.WidgetOf(map.Dep(57)), Qt::Key_Down);
  EXPECT_EQ(programme.Focus(), &map.Dep(54));
}

TEST_F(PictureTest, EveryMapHasItsImageInBothSizes) {
  QStringList files;
  const auto check = [&](const Picture& picture) {
    const QString file = ToQt(picture.File());
    const QSize plain(picture.Width(), picture.Height());
    EXPECT_EQ(Delivered(file).size(), plain);
    EXPECT_EQ(Delivered(QString(file).replace(QStringLiteral(".jpg"), QStringLiteral("@2x.jpg"))).size(), plain * 2);
    files << file;
  };
  programme.Recoit([&] {
    check(programme.Fenetre<Carte>().Picture1);
    check(programme.Fenetre<Carte_Acti>().Picture1);
    for (const auto field : kChamps_Cartes) check(Carte_Du_Champ(programme, field)->Picture1);
  });
  files.removeDuplicates();
  EXPECT_EQ(files.size(), 10);
}

TEST(PictureBoardTest, TheSizeIsChosenByTheScale) {
  const QStringList wanted = {QStringLiteral("a/b.jpg"), QStringLiteral("a/b@2x.jpg")};
  for (const int scale : {1, 2}) {
    PictureBoard board(nullptr);
    QStringList read;
    board.SetPicture(wanted[0], {40, 30}, [&read](const QString& file) {
      read << file;
      QImage image(40, 30, QImage::Format_RGB32);
      image.fill(Qt::red);
      return image;
    });
    board.resize(QSize(40, 30) * scale);
    EXPECT_EQ(board.grab().toImage().pixelColor(20, 15), QColor(Qt::red));
    EXPECT_EQ(read, QStringList(wanted[scale - 1]));
  }
}

TEST_F(PictureTest, AMissingImageLeavesTheCells) {
  Carte_JN& map = Open<Carte_JN>();
  const QImage seen = windows.WidgetOf(map.Picture1)->grab().toImage();
  EXPECT_FALSE(seen.isNull());
  EXPECT_TRUE(windows.WidgetOf(map.Dep(57))->isVisible());
  EXPECT_EQ(programme.Erreur_Fatale(), 0);
}

}  // namespace
}  // namespace vorelio::tests
