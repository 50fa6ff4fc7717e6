#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>

#include "qt/rows_view.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

constexpr int kMost = 99'999;

class ListForm : public TestForm {
 public:
  explicit ListForm(Programme& programme) : TestForm(programme) {
    for (ListBox* list : {&Liste, &Cochee}) {
      list->Click = [this, list] { clicks.push_back(list->ListIndex()); };
      list->KeyPress = [this](int& key) { keys.push_back(key); };
    }
    Liste.DblClick = [this] { doubles.push_back(Liste.ListIndex()); };
  }

  ListBox Liste{*this, "Liste"};
  ListBox Cochee{*this, "Cochee", ListBox::Kind::Checked};
  std::vector<int> clicks, doubles, keys;
};

struct ListBench : ControlBench<ListForm> {
  explicit ListBench(const char* titles = "N°@4;Date@7;Indicatif@17") {
    window.resize(1400, 500);
    view->setProperty("titres", QString::fromUtf8(titles));
    for (int i = 0; i < 4; ++i) form().Cochee.AddItem(Row(i));
    Fill(10);
    Bind();
  }

  /// So many rows stand in the list, and nothing waits to be shown.
  void Fill(int rows) {
    form().Liste.ClearItems();
    for (int i = 0; i < rows; ++i) form().Liste.AddItem(Row(i));
    gate.Refresh();
    gate.asked = 0;
  }
  static std::string Row(int i) {
    std::string number = std::to_string(i + 1);
    return number.insert(0, 5 - number.size(), ' ') + " 12/05/03  F6ABC" + std::string(180, ' ') + "*";
  }

  QPoint Place(RowsView* rows, int row) { return rows->visualRect(rows->model()->index(row, 0)).center(); }
  void Click(RowsView* rows, QPoint place) { QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, place); }
  int Selected() const { return view->selectionModel()->hasSelection() ? view->currentIndex().row() : -1; }

  RowsView* view = Add(new RowsView, "Liste");
  RowsView* ticks = Add(new RowsView, "Cochee");
};

using ListTest = On<ListBench>;

/// The leftmost column of a part of a picture in which something is drawn.
int FirstInk(const QImage& picture, const QRect& part) {
  const QRect inside = part & picture.rect().adjusted(3, 0, -3, 0);
  const QRgb ground = picture.pixel(inside.left(), inside.center().y());
  for (int x = inside.left(); x <= inside.right(); ++x)
    for (int y = inside.top(); y <= inside.bottom(); ++y)
      if (qAbs(qGray(picture.pixel(x, y)) - qGray(ground)) > 60) return x;
  return -1;
}

// A log of the largest size: filled at once, shown at once, its end in sight and no row selected.
TEST_F(ListTest, AFullLog) {
  Fill(0);
  const QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
  QElapsedTimer time;
  time.start();
  for (int i = 0; i < kMost; ++i) form().Liste.AddItem(ListBench::Row(i));
  form().Liste.SetListIndex(kMost - 1);
  form().Liste.ShowEnd();
  EXPECT_EQ(gate.asked, 1);
  EXPECT_EQ(resets.size(), 0);
  gate.Refresh();
  EXPECT_EQ(resets.size(), 1);
  EXPECT_EQ(view->model()->rowCount(), kMost);
  view->grab();
  EXPECT_TRUE(time.elapsed() < 5000) << qPrintable(QString::number(time.elapsed()));
  EXPECT_EQ(Selected(), -1);
  const QRect last = view->visualRect(view->model()->index(kMost - 1, 0));
  EXPECT_TRUE(view->viewport()->rect().contains(QPoint(0, last.center().y())));
  // Widgets don't grow with the rows.
  EXPECT_TRUE(view->findChildren<QWidget*>().size() < 30);
}

TEST_F(ListTest, RowsThatHaveGoneAreNotLookedAt) {
  Fill(100);
  form().Liste.ClearItems();
  EXPECT_EQ(view->model()->rowCount(), 100);
  EXPECT_EQ(view->model()->index(99, 0).data().toString(), QString());
  view->grab();
  gate.Refresh();
  EXPECT_EQ(view->model()->rowCount(), 0);
}

TEST_F(ListTest, AClickIsMadeOutOnFreshRows) {
  Fill(100);
  const QPoint place = Place(view, 5);
  form().Liste.ClearItems();
  for (int i = 0; i < 3; ++i) form().Liste.AddItem("neuf");
  Click(view, place);
  EXPECT_TRUE(form().clicks.empty());
}

TEST_F(ListTest, EachClickIsAClick) {
  Click(view, Place(view, 2));
  Click(view, Place(view, 2));
  EXPECT_EQ(form().clicks, (std::vector<int>{2, 2}));
  gate.Refresh();
  EXPECT_EQ(Selected(), 2);
  EXPECT_EQ(programme.Focus(), &form().Liste);
}

TEST_F(ListTest, DoubleClicksOnRowsAndBelowThem) {
  Fill(3);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, Place(view, 1));
  EXPECT_EQ(form().doubles, (std::vector<int>{1}));
  const QPoint below(20, view->viewport()->height() - 3);
  form().clicks.clear();
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(form().doubles, (std::vector<int>{1, 1}));
  EXPECT_TRUE(form().clicks.empty());
}

TEST_F(ListTest, KeysSelectAndEnterIsAKey) {
  Fill(50);
  view->setFocus();
  for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down}) {
    QTest::keyClick(view, key);
    gate.Refresh();
  }
  EXPECT_EQ(form().clicks, (std::vector<int>{0, 1, 2, 1, 49, 49}));
  QTest::keyClick(view, Qt::Key_Return);
  QTest::keyClicks(view, QStringLiteral("f"));
  EXPECT_EQ(form().keys, (std::vector<int>{13, 'f'}));
  QTest::keyClick(view, Qt::Key_F2);
  EXPECT_EQ(form().doubles, (std::vector<int>{49}));
}

TEST_F(ListTest, TheSelectedRowIsScrolledTo) {
  Fill(500);
  form().Liste.SetListIndex(400);
  gate.Refresh();
  EXPECT_EQ(Selected(), 400);
  EXPECT_TRUE(view->viewport()->rect().intersects(view->visualRect(view->model()->index(400, 0))));
  form().Liste.SetListIndex(-1);
  gate.Refresh();
  EXPECT_EQ(Selected(), -1);
}

// A contact that is added at the end doesn't move what the operator looks at.
TEST_F(ListTest, AChangeElsewhereLeavesTheViewInPlace) {
  Fill(500);
  view->verticalScrollBar()->setValue(100);
  view->horizontalScrollBar()->setValue(30);
  form().Liste.AddItem("neuf");
  gate.Refresh();
  EXPECT_EQ(view->verticalScrollBar()->value(), 100);
  EXPECT_EQ(view->horizontalScrollBar()->value(), 30);
}

TEST_F(ListTest, TicksAreTickedByMouseAndKey) {
  const QPoint row = Place(ticks, 1);
  Click(ticks, QPoint(RowsView::kMargin + 4, row.y()));
  EXPECT_TRUE(form().Cochee.Checked(1));
  // On the text it is a click alone.
  Click(ticks, QPoint(200, row.y()));
  EXPECT_TRUE(form().Cochee.Checked(1));
  gate.Refresh();
  QTest::keyClick(ticks, Qt::Key_Space);
  EXPECT_FALSE(form().Cochee.Checked(1));
  EXPECT_TRUE(form().keys.empty());
  form().Cochee.UserTick(3);
  EXPECT_EQ(ticks->model()->index(3, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

// A double click that means nothing of its own means Enter.
TEST_F(ListTest, ADoubleClickWithoutAMeaningIsEnter) {
  QTest::mouseDClick(ticks->viewport(), Qt::LeftButton, {}, Place(ticks, 2));
  EXPECT_EQ(form().keys, (std::vector<int>{13}));
}

// A title stands over its column, also when the rows are scrolled or the letters larger.
TEST(ListTitles, StandOverTheirColumns) {
  const QFont before = QApplication::font();
  for (const double size : {9.0, 10.0, 13.0, 18.0}) {
    for (const int scrolled : {0, 37}) {
      QFont font = before;
      font.setPointSizeF(size);
      QApplication::setFont(font);
      ListBench bench("H@90");
      bench.Fill(0);
      bench.form().Liste.AddItem(std::string(89, ' ') + "H" + std::string(115, ' '));
      bench.gate.Refresh();
      bench.view->horizontalScrollBar()->setValue(scrolled);
      EXPECT_EQ(bench.view->font().pointSizeF(), size);
      const auto* titles = bench.view->findChild<QWidget*>(QStringLiteral("titre_colonnes"));
      ASSERT_TRUE(titles);
      const QImage picture = bench.view->grab().toImage();
      const int in_title = FirstInk(picture, titles->geometry().adjusted(0, 2, 0, -3));
      const QRect row = bench.view->visualRect(bench.view->model()->index(0, 0));
      const int in_row = FirstInk(picture, row.translated(bench.view->viewport()->pos()));
      EXPECT_TRUE(in_row > 0);
      EXPECT_TRUE(qAbs(in_title - in_row) <= 2) << qPrintable(QStringLiteral("%1 over %2").arg(in_title).arg(in_row));
    }
  }
  QApplication::setFont(before);
}

// Ticks push the rows aside, and the titles with them.
TEST_F(ListTest, TitlesArePaintedAnewWhenTicksCome) {
  ticks->setProperty("titres", QStringLiteral("Date@7"));
  ticks->Arrange();
  form().Cochee.ClearItems();
  gate.Refresh();
  QCoreApplication::processEvents();
  auto* titles = ticks->findChild<QWidget*>(QStringLiteral("titre_colonnes"));
  struct : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      painted = painted || event->type() == QEvent::Paint;
      return false;
    }
    bool painted = false;
  } watch;
  titles->installEventFilter(&watch);
  form().Cochee.AddItem(Row(0));
  gate.Refresh();
  EXPECT_TRUE(QTest::qWaitFor([&] { return watch.painted; }, 1000));
}

TEST_F(ListTest, ARowThatAClickTakesAwayDragsNoOther) {
  ListBox& list = form().Liste;
  list.Click = [&list] { list.RemoveItem(list.ListIndex()); };
  const QPoint place = Place(view, 2);
  QTest::mousePress(view->viewport(), Qt::LeftButton, {}, place);
  QMouseEvent move(QEvent::MouseMove, place + QPoint(3, 2), place + QPoint(3, 2), Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(view->viewport(), &move);
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(list.Count(), 9);
}

}  // namespace
}  // namespace vorelio::tests
