#pragma once

#include <QListView>
#include <functional>
#include <vector>

namespace vorelio {

class CaptionLabel;

/// A word over the column (from 1) that it is the title of.
struct ColumnTitle {
  QString words;
  int column;
};

/// The titles of "N°@4;Date@7;...".
std::vector<ColumnTitle> ParseTitles(const QString& titles);

/// A list of many rows of one height in a fixed-pitch font, with column titles above it that stay over their columns.
/// It selects nothing by itself: what the user does is told, and what is selected is shown.
///
/// The titles come from the widget's property "titres". Where the logic has a label for them, the property "entete"
/// names it: the label then stands there, with its words over the columns.
class RowsView : public QListView {
 public:
  explicit RowsView(QWidget* parent = nullptr);

  /// A row was pressed, or reached with the keys.
  std::function<void(int row)> OnSelect;
  /// A row was double-clicked, -1 in the empty space below the rows.
  std::function<void(int row)> OnDouble;
  std::function<void(int row)> OnTick;
  /// Before an action of the user is made out: the rows must be up to date.
  std::function<void()> OnBefore;
  /// Where a click takes its row away (property "clic_prend"), the arrow keys look for one, and Space or Enter takes
  /// it.
  bool TakenByClick() const { return property("clic_prend").toBool(); }
  /// Rows as wide as this many characters.
  void SetWidest(int characters);

  /// Takes over font and titles, after either has changed.
  void Arrange();

  /// Paints titles over their columns into the strip above the rows.
  void PaintTitles(QWidget& strip, const std::vector<ColumnTitle>& titles) const;

  /// Left of the text of a row, in pixels from the row's left edge.
  static constexpr int kMargin = 8;

  QSize RowSize() const;
  QSize minimumSizeHint() const override;
  /// Where the text of a row starts.
  int TextStart() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Titles;

  QWidget* MakeStrip();
  void PlaceStrip();
  int RowAt(QPoint place) const;
  bool InTick(QPoint place) const;
  void Select(int row);
  void Take(int row);
  int Page() const;

  QWidget* strip_ = nullptr;
  int widest_ = 0;
  bool dragging_ = false;  ///< The row that was pressed is still the selected one.
};

}  // namespace vorelio
