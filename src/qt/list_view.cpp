#include "qt/list_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "qt/qt_text.h"
#include "qt/typing.h"

namespace vorelio {

namespace {

/// Of a row that is longer, as a page from the web may have them, no more is laid out.
constexpr std::size_t kLongestRow = 1000;

}  // namespace

// --- RowsModel ------------------------------------------------------------------------------------------------------

int RowsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : told_; }

// The list may have changed since it was told last: a row that has gone is shown empty until then.
QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!list_ || !index.isValid()) return {};
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
    return ToQt(list_->Item(index.row()).substr(0, kLongestRow));
  if (role == Qt::CheckStateRole && list_->Genre() == ListBox::Kind::Checked)
    return list_->Checked(index.row()) ? Qt::Checked : Qt::Unchecked;
  return {};
}

int RowsModel::Reset() {
  beginResetModel();
  told_ = list_ ? list_->Count() : 0;
  endResetModel();
  std::size_t widest = 0;
  if (list_)
    for (const std::string_view item : list_->Items()) widest = std::max(widest, std::min(item.size(), kLongestRow));
  return static_cast<int>(widest);
}

void RowsModel::TicksChanged() {
  if (told_ > 0) Q_EMIT dataChanged(index(0), index(told_ - 1), {Qt::CheckStateRole});
}

void RowsModel::Forget() {
  beginResetModel();
  list_ = nullptr;
  told_ = 0;
  endResetModel();
}

// --- ListView -------------------------------------------------------------------------------------------------------

ListView::ListView(ListBox& list, RowsView& rows, Gate& gate)
    : ViewOf(list, rows, gate), model_(new RowsModel(list, &rows)) {
  rows.setModel(model_);
  rows.OnBefore = [this] { Refresh(); };
  rows.OnSelect = [this](int row) { Tell([this, row] { control_.UserSelect(row); }); };
  rows.OnDouble = [this](int row) {
    // Where a click acts by itself, the first of the two has.
    if (!control_.DblClick && !control_.KeyPress) return;
    Tell([this, row] {
      control_.UserDblClick(row);
      // Where a double click means nothing of its own, it means what Enter means.
      if (!control_.DblClick && row >= 0) control_.UserKey(kEntree);
    });
  };
  rows.OnTick = [this](int row) { Tell([this, row] { control_.UserTick(row); }); };
  rows.Arrange();
  ShowDeferred();
}

template <typename Action>
void ListView::Tell(Action action) {
  if (!Bound()) return;
  Deliver(action);
  if (Bound()) Refresh();
}

void ListView::Show(Property property) {
  switch (property) {
    case Property::Items: items_changed_ = true; break;
    case Property::ListIndex:
      index_changed_ = true;
      to_end_ = false;
      break;
    case Property::ScrollToEnd: to_end_ = true; break;
    case Property::Checked: model_->TicksChanged(); return;
    default: return;
  }
  Defer();
}

void ListView::ShowDeferred() {
  if (items_changed_) {
    // What the user looks at stays in place under a list that changes elsewhere.
    const int top = shown_.verticalScrollBar()->value(), left = shown_.horizontalScrollBar()->value();
    shown_.SetWidest(model_->Reset());
    shown_.doItemsLayout();
    shown_.verticalScrollBar()->setValue(top);
    shown_.horizontalScrollBar()->setValue(left);
  }
  if (items_changed_ || index_changed_) ShowIndex();
  if (to_end_) shown_.scrollToBottom();
  items_changed_ = index_changed_ = to_end_ = false;
}

void ListView::ShowIndex() {
  const int row = control_.ListIndex();
  if (row < 0 || row >= model_->rowCount()) {
    shown_.clearSelection();
    shown_.setCurrentIndex({});
    return;
  }
  const QModelIndex index = model_->index(row);
  shown_.setCurrentIndex(index);
  if (!index_changed_) return;
  const int left = shown_.horizontalScrollBar()->value();
  shown_.scrollTo(index);
  shown_.horizontalScrollBar()->setValue(left);
}

bool ListView::eventFilter(QObject* watched, QEvent* event) {
  if (!Bound()) return false;
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_F2 && control_.DblClick) {
      Tell([this] { control_.UserDblClick(control_.ListIndex()); });
      return true;
    }
    const QString typed = TypedCharacters(key);
    const bool blank = typed == QStringLiteral(" "), enter = typed == QStringLiteral("\r");
    const bool acts =
        (blank && control_.Genre() == ListBox::Kind::Checked) || ((blank || enter) && shown_.TakenByClick());
    if (!typed.isEmpty() && !acts) {
      Type(typed, gate_, shown_, [this](int character) { Tell([this, character] { control_.UserKey(character); }); });
      return true;
    }
  }
  return ViewOf::eventFilter(watched, event);
}

}  // namespace vorelio
