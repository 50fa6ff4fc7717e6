#include "qt/rows_view.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/caption_views.h"

namespace vorelio {

namespace {

constexpr int kTick = 18;

/// Paints a row: one run of fixed-pitch text, cut nowhere, and a tick in front of it in lists that have them.
class RowPainter : public QStyledItemDelegate {
 public:
  explicit RowPainter(RowsView& rows) : QStyledItemDelegate(&rows), rows_(rows) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return rows_.RowSize(); }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const auto group = !option.state.testFlag(QStyle::State_Enabled) ? QPalette::Disabled
                       : option.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                                     : QPalette::Inactive;
    if (selected)
      painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    else if (index.row() % 2 == 1)
      painter->fillRect(option.rect, option.palette.brush(group, QPalette::AlternateBase));
    const QVariant tick = index.data(Qt::CheckStateRole);
    if (tick.isValid()) {
      QStyleOptionButton box;
      box.palette = option.palette;
      box.rect = QRect(option.rect.left() + RowsView::kMargin, option.rect.center().y() - 7, 15, 15);
      box.state = option.state & QStyle::State_Enabled;
      box.state |= tick.toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
      rows_.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, &rows_);
    }
    painter->setFont(rows_.font());
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(option.rect.adjusted(rows_.TextStart(), 0, 0, 0),
                      Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, index.data().toString());
  }

 private:
  RowsView& rows_;
};

}  // namespace

std::vector<ColumnTitle> ParseTitles(const QString& titles) {
  std::vector<ColumnTitle> parsed;
  for (const QString& title : titles.split(u';')) {
    const auto place = title.lastIndexOf(u'@');
    if (place > 0) parsed.push_back({title.left(place), title.mid(place + 1).toInt()});
  }
  return parsed;
}

/// The titles, each over its column, moving with the rows from side to side.
class RowsView::Titles : public QWidget {
 public:
  explicit Titles(RowsView& rows)
      : QWidget(&rows), rows_(rows), titles_(ParseTitles(rows.property("titres").toString())) {
    setObjectName(QStringLiteral("titre_colonnes"));
    QStringList words;
    for (const auto& [title, column] : titles_) words << title;
    setAccessibleName(words.join(QStringLiteral(", ")));
  }

 protected:
  void paintEvent(QPaintEvent*) override { rows_.PaintTitles(*this, titles_); }

 private:
  RowsView& rows_;
  std::vector<ColumnTitle> titles_;
};

RowsView::RowsView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setItemDelegate(new RowPainter(*this));
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideNone);
  setTabKeyNavigation(false);
  setAutoScroll(false);
}

int RowsView::TextStart() const {
  const bool ticks = model() && model()->rowCount() > 0 && model()->index(0, 0).data(Qt::CheckStateRole).isValid();
  return ticks ? 2 * kMargin + kTick : kMargin;
}

QSize RowsView::RowSize() const {
  const QFontMetricsF metrics(font());
  const qreal width = metrics.horizontalAdvance(QString(std::max(widest_, 1), u'0'));
  return {TextStart() + static_cast<int>(width) + kMargin + 1, static_cast<int>(metrics.height()) + 4};
}

// Room for the rows that its property "lignes_au_moins" asks for.
QSize RowsView::minimumSizeHint() const {
  const QSize least = QListView::minimumSizeHint();
  const int rows = property("lignes_au_moins").toInt();
  if (rows == 0) return least;
  const int around = viewportMargins().top() + horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
  return {least.width(), std::max(least.height(), rows * RowSize().height() + around)};
}

void RowsView::SetWidest(int characters) {
  widest_ = characters;
  // Ticks have come or gone with the rows: the titles stand elsewhere.
  if (strip_) strip_->update();
}

void RowsView::Arrange() {
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  // The desktop's fixed font counts for its face; its size follows the zoom of the windows.
  fixed.setPointSizeF(QFont().pointSizeF());
  fixed.setStyleHint(QFont::TypeWriter);
  fixed.setFixedPitch(true);
  if (fixed != font()) setFont(fixed);
  if (!strip_) strip_ = MakeStrip();
  if (strip_) {
    QFont bold = fixed;
    bold.setBold(true);
    strip_->setFont(bold);
    PlaceStrip();
    setViewportMargins(0, strip_->height(), 0, 0);
    strip_->show();
  }
  horizontalScrollBar()->setSingleStep(2 * fontMetrics().averageCharWidth());
  scheduleDelayedItemsLayout();
  updateGeometry();
}

void RowsView::resizeEvent(QResizeEvent* event) {
  // Whoever looks at the end of a log goes on doing so in a window of another height.
  const bool at_end = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  QListView::resizeEvent(event);
  if (at_end) scrollToBottom();
  if (strip_) PlaceStrip();
}

QWidget* RowsView::MakeStrip() {
  QWidget* strip = nullptr;
  const QString heading = property("entete").toString();
  auto* named = heading.isEmpty() ? nullptr : window()->findChild<QLabel*>(heading);
  if (auto* label = dynamic_cast<CaptionLabel*>(named)) {
    label->setParent(this);
    label->SetHeadingOf(*this);
    strip = label;
  } else if (property("titres").isValid()) {
    strip = new Titles(*this);
  }
  if (strip) connect(horizontalScrollBar(), &QScrollBar::valueChanged, strip, qOverload<>(&QWidget::update));
  return strip;
}

void RowsView::PlaceStrip() {
  constexpr int kAir = 10;
  const QRect inside = contentsRect();
  strip_->setGeometry(inside.left(), inside.top(), inside.width(), strip_->fontMetrics().height() + kAir);
}

void RowsView::PaintTitles(QWidget& strip, const std::vector<ColumnTitle>& titles) const {
  QPainter painter(&strip);
  painter.fillRect(strip.rect(), palette().brush(QPalette::Button));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(strip.rect().bottomLeft(), strip.rect().bottomRight());
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.setFont(strip.font());
  const QFontMetricsF metrics(font());
  const qreal left = TextStart() - horizontalScrollBar()->value();
  for (const auto& [words, column] : titles) {
    const qreal x = left + metrics.horizontalAdvance(QString(column - 1, u' '));
    painter.drawText(QRectF(x, 0, strip.width(), strip.height()), Qt::AlignVCenter | Qt::AlignLeft, words);
  }
}

// --- The user -------------------------------------------------------------------------------------------------------

int RowsView::RowAt(QPoint place) const {
  // Right of a short row counts as the row: what is meant is the line.
  const QModelIndex index = indexAt(QPoint(kMargin, place.y()));
  if (index.isValid()) return index.row();
  return indexAt(place).isValid() ? indexAt(place).row() : -1;
}

bool RowsView::InTick(QPoint place) const {
  const int x = place.x() + horizontalScrollBar()->value();
  return TextStart() > kMargin && x < TextStart();
}

void RowsView::Select(int row) {
  if (OnSelect && row >= 0 && row < model()->rowCount()) OnSelect(row);
}

/// Leaves the keys where they are, at the row that has moved up.
void RowsView::Take(int row) {
  Select(row);
  const int left = model()->rowCount();
  if (left > 0) setCurrentIndex(model()->index(std::clamp(row, 0, left - 1), 0));
}

void RowsView::mousePressEvent(QMouseEvent* event) {
  if (OnBefore) OnBefore();
  if (event->button() != Qt::LeftButton) return;
  const int row = RowAt(event->pos());
  Select(row);
  // A click can take its row out of the list: the one that moved up under the mouse wasn't meant.
  dragging_ = row >= 0 && currentIndex().row() == row;
  if (row >= 0 && InTick(event->pos()) && OnTick) OnTick(row);
}

void RowsView::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_ || !event->buttons().testFlag(Qt::LeftButton)) return;
  const int row = RowAt(event->pos());
  if (row >= 0 && row != currentIndex().row()) Select(row);
}

void RowsView::mouseReleaseEvent(QMouseEvent*) {}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (OnBefore) OnBefore();
  if (event->button() != Qt::LeftButton) return;
  const int row = RowAt(event->pos());
  if (row >= 0 && InTick(event->pos()))
    OnTick(row);
  else if (OnDouble)
    OnDouble(row);
}

int RowsView::Page() const { return std::max(1, viewport()->height() / std::max(1, RowSize().height()) - 1); }

void RowsView::keyPressEvent(QKeyEvent* event) {
  if (OnBefore) OnBefore();
  const int count = model() ? model()->rowCount() : 0;
  const bool none = !currentIndex().isValid();
  const int row = currentIndex().row();
  int target = 0;
  switch (event->key()) {
    case Qt::Key_Up: target = none ? count - 1 : row - 1; break;
    case Qt::Key_Down: target = none ? RowAt({kMargin, 1}) : row + 1; break;
    case Qt::Key_PageUp: target = none ? count - 1 : row - Page(); break;
    case Qt::Key_PageDown: target = none ? RowAt({kMargin, 1}) : row + Page(); break;
    case Qt::Key_Home: target = 0; break;
    case Qt::Key_End: target = count - 1; break;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      QScrollBar* bar = horizontalScrollBar();
      bar->setValue(bar->value() + (event->key() == Qt::Key_Left ? -4 : 4) * bar->singleStep());
      return;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (TakenByClick())
        Take(row);
      else if (OnTick && row >= 0 && TextStart() > kMargin)
        OnTick(row);
      return;
    default: event->ignore(); return;
  }
  if (count == 0) return;
  target = std::clamp(target, 0, count - 1);
  TakenByClick() ? setCurrentIndex(model()->index(target, 0)) : Select(target);
}

}  // namespace vorelio
