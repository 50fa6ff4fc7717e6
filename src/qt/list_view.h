#pragma once

#include <QAbstractListModel>

#include "qt/rows_view.h"
#include "qt/view.h"

namespace vorelio {

/// The rows of a list box for Qt: it looks into the list itself, and shows of it what it has been told of last.
class RowsModel : public QAbstractListModel {
 public:
  RowsModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  /// Takes the list as it is now; tells the length of its longest row.
  int Reset();
  /// The ticks have changed.
  void TicksChanged();
  /// The list is going.
  void Forget();

 private:
  const ListBox* list_;
  int told_ = 0;
};

class ListView final : public ViewOf<ListBox, RowsView> {
 public:
  ListView(ListBox& list, RowsView& rows, Gate& gate);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void Show(Property property) override;
  void ShowDeferred() override;
  void Released() override { model_->Forget(); }

 private:
  void ShowIndex();
  template <typename Action>
  void Tell(Action action);

  RowsModel* model_;
  bool items_changed_ = true;
  bool index_changed_ = false;
  bool to_end_ = false;
};

}  // namespace vorelio
