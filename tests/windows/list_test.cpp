#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>

#include "platform/qt/rows_view.h"
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
  explicit ListBench(int rows = 10, const char* titles = "N°@4;Date@7;Indicatif@17") {
    window.resize(1400, 500);
    view = Add(new RowsView, "Liste");
    view->setProperty("titres", QString::fromUtf8(titles));
    ticks = Add(new RowsView, "Cochee");
    for (int i = 0; i < rows; ++i) form().Liste.AddItem(Row(i));
    for (int i = 0; i < 4; ++i) form().Cochee.AddItem(Row(i));
    Bind();
  }

  static std::string Row(int i) {
    std::string number = std::to_string(i + 1);
    return number.insert(0, 5 - number.size(), ' ') + " 12/05/03  F6ABC" + std::string(180, ' ') + "*";
  }

  QPoint Place(RowsView* rows, int row) { return rows->visualRect(rows->model()->index(row, 0)).center(); }
  void Click(RowsView* rows, QPoint place) { QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, place); }
  int Selected() const { return view->selectionModel()->hasSelection() ? view->currentIndex().row() : -1; }

  RowsView* view;
  RowsView* ticks;
};

/// The leftmost column of a part of a picture in which something is drawn.
int FirstInk(const QImage& picture, const QRect& part) {
  const QRect inside = part & picture.rect().adjusted(3, 0, -3, 0);
  const QRgb ground = picture.pixel(inside.left(), inside.center().y());
  for (int x = inside.left(); x <= inside.right(); ++x)
    for (int y = inside.top(); y <= inside.bottom(); ++y)
      if (qAbs(qGray(picture.pixel(x, y)) - qGray(ground)) > 60) return x;
  return -1;
}

}  // namespace

class ListTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // A log of the largest size: filled at once, shown at once, its end in sight and no row selected.
  void AFullLog() {
    ListBench bench(0);
    const QSignalSpy resets(bench.view->model(), &QAbstractItemModel::modelReset);
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < kMost; ++i) bench.form().Liste.AddItem(ListBench::Row(i));
    bench.form().Liste.SetListIndex(kMost - 1);
    bench.form().Liste.ShowEnd();
    QCOMPARE(bench.gate.asked, 1);
    QCOMPARE(resets.size(), 0);
    bench.gate.Refresh();
    QCOMPARE(resets.size(), 1);
    QCOMPARE(bench.view->model()->rowCount(), kMost);
    bench.view->grab();
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(bench.Selected(), -1);
    const QRect last = bench.view->visualRect(bench.view->model()->index(kMost - 1, 0));
    QVERIFY(bench.view->viewport()->rect().contains(QPoint(0, last.center().y())));
    // Widgets don't grow with the rows.
    QVERIFY(bench.view->findChildren<QWidget*>().size() < 30);
  }

  void RowsThatHaveGoneAreNotLookedAt() {
    ListBench bench(100);
    bench.form().Liste.ClearItems();
    QCOMPARE(bench.view->model()->rowCount(), 100);
    QCOMPARE(bench.view->model()->index(99, 0).data().toString(), QString());
    bench.view->grab();
    bench.gate.Refresh();
    QCOMPARE(bench.view->model()->rowCount(), 0);
  }

  void AClickIsMadeOutOnFreshRows() {
    ListBench bench(100);
    const QPoint place = bench.Place(bench.view, 5);
    bench.form().Liste.ClearItems();
    for (int i = 0; i < 3; ++i) bench.form().Liste.AddItem("neuf");
    bench.Click(bench.view, place);
    QVERIFY(bench.form().clicks.empty());
  }

  void EachClickIsAClick() {
    ListBench bench;
    bench.Click(bench.view, bench.Place(bench.view, 2));
    bench.Click(bench.view, bench.Place(bench.view, 2));
    QCOMPARE(bench.form().clicks, (std::vector<int>{2, 2}));
    bench.gate.Refresh();
    QCOMPARE(bench.Selected(), 2);
    QCOMPARE(bench.programme.Focus(), &bench.form().Liste);
  }

  void DoubleClicksOnRowsAndBelowThem() {
    ListBench bench(3);
    QTest::mouseDClick(bench.view->viewport(), Qt::LeftButton, {}, bench.Place(bench.view, 1));
    QCOMPARE(bench.form().doubles, (std::vector<int>{1}));
    const QPoint below(20, bench.view->viewport()->height() - 3);
    bench.form().clicks.clear();
    QTest::mouseDClick(bench.view->viewport(), Qt::LeftButton, {}, below);
    QCOMPARE(bench.form().doubles, (std::vector<int>{1, 1}));
    QVERIFY(bench.form().clicks.empty());
  }

  void KeysSelectAndEnterIsAKey() {
    ListBench bench(50);
    bench.view->setFocus();
    for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down}) {
      QTest::keyClick(bench.view, key);
      bench.gate.Refresh();
    }
    QCOMPARE(bench.form().clicks, (std::vector<int>{0, 1, 2, 1, 49, 49}));
    QTest::keyClick(bench.view, Qt::Key_Return);
    QTest::keyClicks(bench.view, QStringLiteral("f"));
    QCOMPARE(bench.form().keys, (std::vector<int>{13, 'f'}));
    QTest::keyClick(bench.view, Qt::Key_F2);
    QCOMPARE(bench.form().doubles, (std::vector<int>{49}));
  }

  void TheSelectedRowIsScrolledTo() {
    ListBench bench(500);
    bench.form().Liste.SetListIndex(400);
    bench.gate.Refresh();
    QCOMPARE(bench.Selected(), 400);
    QVERIFY(bench.view->viewport()->rect().intersects(bench.view->visualRect(bench.view->model()->index(400, 0))));
    bench.form().Liste.SetListIndex(-1);
    bench.gate.Refresh();
    QCOMPARE(bench.Selected(), -1);
  }

  // A contact that is added at the end doesn't move what the operator looks at.
  void AChangeElsewhereLeavesTheViewInPlace() {
    ListBench bench(500);
    bench.view->verticalScrollBar()->setValue(100);
    bench.view->horizontalScrollBar()->setValue(30);
    bench.form().Liste.AddItem("neuf");
    bench.gate.Refresh();
    QCOMPARE(bench.view->verticalScrollBar()->value(), 100);
    QCOMPARE(bench.view->horizontalScrollBar()->value(), 30);
  }

  void TicksAreTickedByMouseAndKey() {
    ListBench bench;
    const QPoint row = bench.Place(bench.ticks, 1);
    bench.Click(bench.ticks, QPoint(RowsView::kMargin + 4, row.y()));
    QVERIFY(bench.form().Cochee.Checked(1));
    // On the text it is a click alone.
    bench.Click(bench.ticks, QPoint(200, row.y()));
    QVERIFY(bench.form().Cochee.Checked(1));
    bench.gate.Refresh();
    QTest::keyClick(bench.ticks, Qt::Key_Space);
    QVERIFY(!bench.form().Cochee.Checked(1));
    QVERIFY(bench.form().keys.empty());
    bench.form().Cochee.UserTick(3);
    QCOMPARE(bench.ticks->model()->index(3, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
  }

  // A double click that means nothing of its own means Enter.
  void ADoubleClickWithoutAMeaningIsEnter() {
    ListBench bench;
    QTest::mouseDClick(bench.ticks->viewport(), Qt::LeftButton, {}, bench.Place(bench.ticks, 2));
    QCOMPARE(bench.form().keys, (std::vector<int>{13}));
  }

  // A title stands over its column, also when the rows are scrolled or the letters larger.
  void TitlesStandOverTheirColumns_data() {
    QTest::addColumn<double>("size");
    QTest::addColumn<int>("scrolled");
    for (const double size : {9.0, 10.0, 13.0, 18.0})
      for (const int scrolled : {0, 37})
        QTest::addRow("%.0f points, scrolled by %d", size, scrolled) << size << scrolled;
  }
  void TitlesStandOverTheirColumns() {
    QFETCH(double, size);
    QFETCH(int, scrolled);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSizeF(size);
    QApplication::setFont(font);
    ListBench bench(0, "H@90");
    bench.form().Liste.AddItem(std::string(89, ' ') + "H" + std::string(115, ' '));
    bench.gate.Refresh();
    bench.view->horizontalScrollBar()->setValue(scrolled);
    QCOMPARE(bench.view->font().pointSizeF(), size);
    const auto* titles = bench.view->findChild<QWidget*>(QStringLiteral("titre_colonnes"));
    QVERIFY(titles);
    const QImage picture = bench.view->grab().toImage();
    const int in_title = FirstInk(picture, titles->geometry().adjusted(0, 2, 0, -3));
    const QRect row = bench.view->visualRect(bench.view->model()->index(0, 0));
    const int in_row = FirstInk(picture, row.translated(bench.view->viewport()->pos()));
    QVERIFY(in_row > 0);
    QVERIFY2(qAbs(in_title - in_row) <= 2, qPrintable(QStringLiteral("%1 over %2").arg(in_title).arg(in_row)));
    QApplication::setFont(before);
  }

  void ARowThatAClickTakesAwayDragsNoOther() {
    ListBench bench;
    ListBox& list = bench.form().Liste;
    list.Click = [&list] { list.RemoveItem(list.ListIndex()); };
    const QPoint place = bench.Place(bench.view, 2);
    QTest::mousePress(bench.view->viewport(), Qt::LeftButton, {}, place);
    QMouseEvent move(QEvent::MouseMove, place + QPoint(3, 2), place + QPoint(3, 2), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(bench.view->viewport(), &move);
    QTest::mouseRelease(bench.view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(list.Count(), 9);
  }
};

const InSuite<ListTest> kListTest;

}  // namespace vorelio::tests

#include "list_test.moc"
