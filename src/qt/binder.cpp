#include "qt/binder.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QUiLoader>
#include <algorithm>

#include "qt/caption_views.h"
#include "qt/combo_view.h"
#include "qt/grid_cell.h"
#include "qt/list_view.h"
#include "qt/multi_line_view.h"
#include "qt/other_views.h"
#include "qt/page_area.h"
#include "qt/picture_view.h"
#include "qt/qt_text.h"
#include "qt/text_field_view.h"

// Outside of any namespace: what this calls is.
static void InitResources() { Q_INIT_RESOURCE(resources); }

namespace vorelio {

namespace {

/// Makes the view if `shown` is of the widget class that goes with this kind of control.
template <typename V, typename W, typename C>
View* ViewFor(C* control, QObject* shown, Gate& gate) {
  auto* widget = qobject_cast<W*>(shown);
  return control && widget ? new V(*control, *widget, gate) : nullptr;
}

View* MakeView(Control& control, QObject* shown, Gate& gate) {
  if (auto* field = dynamic_cast<TextField*>(&control))
    return field->MultiLine() ? ViewFor<MultiLineView, QPlainTextEdit>(field, shown, gate)
                              : ViewFor<TextFieldView, QLineEdit>(field, shown, gate);
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    auto* rows = dynamic_cast<RowsView*>(shown);
    return rows ? new ListView(*list, *rows, gate) : nullptr;
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) return ViewFor<ComboView, QComboBox>(combo, shown, gate);
  if (auto* label = dynamic_cast<Label*>(&control)) return ViewFor<LabelView, QLabel>(label, shown, gate);
  if (auto* frame = dynamic_cast<Frame*>(&control)) return ViewFor<FrameView, QWidget>(frame, shown, gate);
  if (auto* button = dynamic_cast<Button*>(&control))
    return ViewFor<ClickViewOf<Button>, QPushButton>(button, shown, gate);
  if (auto* box = dynamic_cast<CheckBox*>(&control))
    return ViewFor<ClickViewOf<CheckBox>, QAbstractButton>(box, shown, gate);
  if (auto* option = dynamic_cast<OptionButton*>(&control))
    return ViewFor<ClickViewOf<OptionButton>, QRadioButton>(option, shown, gate);
  if (auto* gauge = dynamic_cast<Gauge*>(&control)) return ViewFor<GaugeView, QProgressBar>(gauge, shown, gate);
  if (auto* picture = dynamic_cast<Picture*>(&control)) {
    auto* board = dynamic_cast<PictureBoard*>(shown);
    return board ? new PictureView(*picture, *board, gate) : nullptr;
  }
  if (auto* item = dynamic_cast<MenuItem*>(&control)) return ViewFor<MenuView, QAction>(item, shown, gate);
  return nullptr;
}

/// The array's name and the element's index of a control's name, or an empty name.
struct Element {
  QString array;
  int index = 0;
};

Element ElementOf(const QString& name) {
  static const QRegularExpression shape(QStringLiteral("^(\\w+)\\((\\d+)\\)$"));
  const auto match = shape.match(name);
  return match.hasMatch() ? Element{match.captured(1), match.captured(2).toInt()} : Element{};
}

bool ForInput(const QObject& object) {
  static constexpr const char* kKinds[] = {"QLineEdit", "QPlainTextEdit", "QComboBox", "QAbstractItemView",
                                           "QAbstractButton"};
  return std::any_of(std::begin(kKinds), std::end(kKinds), [&](const char* kind) { return object.inherits(kind); });
}

/// A part that a widget has made for itself, such as the field of a combo box.
bool InnerPart(const QObject& object) {
  if (object.objectName().startsWith(QLatin1String("qt_"))) return true;
  for (const QObject* above = object.parent(); above; above = above->parent())
    if (ForInput(*above)) return true;
  return false;
}

/// The words that stand for a widget where it can't be seen.
QString SpokenName(const QWidget& widget, const Control& control) {
  if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
  for (const QLabel* label : widget.window()->findChildren<QLabel*>())
    if (label->buddy() == &widget) return WithoutMnemonic(label->text()).trimmed();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return WithoutMnemonic(button->text());
  const auto* captioned = dynamic_cast<const Captioned*>(&control);
  return captioned ? ToQt(captioned->Caption()).trimmed() : QString();
}

}  // namespace

Binding::Binding(Form& form, QWidget& window, Gate& gate) {
  for (Control* control : form.Controls()) Bind(*control, window, gate);
  LookForStrangers(form, window);
  ShowFilledMenus(window);
}

Binding::~Binding() {
  for (const auto& [control, view] : views_) view->Release();
}

QObject* Binding::Find(const QString& name, QWidget& window) const {
  if (QObject* found = window.findChild<QObject*>(name)) return found;
  const Element element = ElementOf(name);
  if (element.array.isEmpty()) return nullptr;
  return window.findChild<QObject*>(QStringLiteral("%1_%2").arg(element.array).arg(element.index));
}

namespace {

struct Place {
  int row = 0;
  int column = 0;
};

/// Where the next element goes in a holder: in rows of as many as its property "colonnes" says. A holder with the
/// property "ordre" is a table with titles in its first row and column: there the elements, counted from 1, go down the
/// columns that it names, as many to each as "lignes" says.
Place PlaceIn(const QWidget& holder, const QGridLayout& grid, int index) {
  const QStringList order = holder.property("ordre").toString().split(u';', Qt::SkipEmptyParts);
  if (order.isEmpty()) {
    const int columns = std::max(1, holder.property("colonnes").toInt());
    return {grid.count() / columns, grid.count() % columns};
  }
  const int lines = std::max(1, holder.property("lignes").toInt());
  return {1 + (index - 1) % lines, order.value((index - 1) / lines).toInt()};
}

/// The titles of a place in a table, or nothing where it has none.
QString TitlesOf(const QGridLayout& grid, const Place& place) {
  QStringList words;
  for (const QLayoutItem* title : {grid.itemAtPosition(0, place.column), grid.itemAtPosition(place.row, 0)})
    if (const auto* label = title ? qobject_cast<const QLabel*>(title->widget()) : nullptr) words << label->text();
  return words.join(QStringLiteral(", "));
}

/// The first cell is in the tab chain; to the others lead the arrow keys.
void LetIn(const QWidget& holder, QWidget& cell) {
  for (const auto* other : holder.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly))
    if (other->focusPolicy() & Qt::TabFocus) return;
  cell.setFocusPolicy(Qt::StrongFocus);
}

}  // namespace

/// A field that a picture of its form has a place for. The board's property "cases" is what each of them is called,
/// before its number.
QObject* Binding::LayOnPicture(Control& control, QWidget& window) {
  if (!dynamic_cast<TextField*>(&control)) return nullptr;
  for (const Control* other : control.Parent().Controls()) {
    const auto* picture = dynamic_cast<const Picture*>(other);
    const auto place = picture ? picture->PlaceOf(control) : std::nullopt;
    if (!place) continue;
    auto* board = dynamic_cast<PictureBoard*>(window.findChild<QWidget*>(ToQt(picture->Name())));
    if (!board) return nullptr;
    auto* cell = new PictureCell(*board);
    cell->setObjectName(ToQt(control.Name()));
    cell->setAccessibleName(board->property("cases").toString() + u' ' + ToQt(control.Words()));
    board->Lay(*cell, {place->left, place->top, place->width, place->height});
    if (control.Visible()) LetIn(*board, *cell);
    return cell;
  }
  return nullptr;
}

/// An element of an array for which the window has a holder only: a cell is made in it.
QObject* Binding::Fill(Control& control, QWidget& window) {
  const Element element = ElementOf(ToQt(control.Name()));
  auto* holder = element.array.isEmpty() ? nullptr : window.findChild<QWidget*>(element.array);
  if (!holder) return nullptr;
  auto* grid = qobject_cast<QGridLayout*>(holder->layout());
  if (!grid) {
    delete holder->layout();
    grid = new QGridLayout(holder);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(holder->property("ecart").toInt());
  }
  QWidget* cell = nullptr;
  if (dynamic_cast<TextField*>(&control)) cell = new GridCell(*holder);
  if (dynamic_cast<Label*>(&control)) cell = new CaptionLabel(holder);
  if (dynamic_cast<CheckBox*>(&control)) cell = new QCheckBox(holder);
  if (dynamic_cast<OptionButton*>(&control)) cell = new QRadioButton(holder);
  if (!cell) return nullptr;
  cell->setObjectName(ToQt(control.Name()));
  const Place place = PlaceIn(*holder, *grid, element.index);
  const QString titles = TitlesOf(*grid, place);
  const bool table = !titles.isEmpty();
  cell->setAccessibleName(table ? titles : holder->accessibleName() + u' ' + QString::number(element.index));
  if (auto* figure = table ? qobject_cast<QLineEdit*>(cell) : nullptr)
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(cell, place.row, place.column);
  if (dynamic_cast<GridCell*>(cell) && !holder->property("hors_chaine").toBool()) LetIn(*holder, *cell);
  return cell;
}

void Binding::Bind(Control& control, QWidget& window, Gate& gate) {
  if (auto* timer = dynamic_cast<Timer*>(&control)) {
    views_[&control] = new TimerView(*timer, *new QTimer(&window), gate);
    return;
  }
  QObject* shown = Find(ToQt(control.Name()), window);
  if (!shown) shown = LayOnPicture(control, window);
  if (!shown) shown = Fill(control, window);
  if (!shown) {
    problems_.push_back(control.Name() + ": no widget");
    return;
  }
  View* view = MakeView(control, shown, gate);
  if (!view) {
    problems_.push_back(control.Name() + ": the widget is a " + shown->metaObject()->className());
    return;
  }
  views_[&control] = view;
  auto* widget = qobject_cast<QWidget*>(shown);
  if (!widget) return;
  for (const auto property : {Property::Enabled, Property::Colour}) view->Changed(property);
  if (!control.Visible()) view->Changed(Property::Visible);
  widget->setAccessibleName(SpokenName(*widget, control));
}

void Binding::LookForStrangers(const Form& form, QWidget& window) {
  const auto known = [&](const QString& name) {
    const auto of_array = [&](const Control* control) {
      const Element element = ElementOf(ToQt(control->Name()));
      return element.array == name || QStringLiteral("%1_%2").arg(element.array).arg(element.index) == name;
    };
    return form.Find(FromQt(name)) || std::any_of(form.Controls().begin(), form.Controls().end(), of_array);
  };
  for (const QObject* object : window.findChildren<QObject*>()) {
    const QString name = object->objectName();
    const bool entry = object->inherits("QAction") && !name.isEmpty() && !name.startsWith(QLatin1String("titre_")) &&
                       !static_cast<const QAction*>(object)->menu();
    const bool label = object->inherits("QLabel") && !name.startsWith(QLatin1String("titre_"));
    if (!(ForInput(*object) || entry || label) || InnerPart(*object) || known(name)) continue;
    problems_.push_back(FromQt(name) + ": no control behind this " + object->metaObject()->className());
  }
}

QWidget* Binding::WidgetOf(const Control& control) const {
  const View* view = Of(control);
  return view ? qobject_cast<QWidget*>(&view->Shown()) : nullptr;
}

QAction* Binding::ActionOf(const Control& control) const {
  const View* view = Of(control);
  return view ? qobject_cast<QAction*>(&view->Shown()) : nullptr;
}

View* Binding::Of(const Control& control) const {
  const auto place = views_.find(&control);
  return place == views_.end() ? nullptr : place->second;
}

// --- Loading --------------------------------------------------------------------------------------------------------

namespace {

/// Makes this program's own kinds in place of the plain ones that the .ui files name.
class Loader : public QUiLoader {
 public:
  // The files name no widgets of other makers: a search for Designer's plugins would only cost time.
  Loader() { clearPluginPaths(); }

  QWidget* createWidget(const QString& kind, QWidget* parent, const QString& name) override {
    QWidget* own = nullptr;
    if (kind == QLatin1String("QListView")) own = new RowsView(parent);
    if (kind == QLatin1String("QLabel")) own = new CaptionLabel(parent);
    if (kind == QLatin1String("QScrollArea")) own = new PageArea(parent);
    if (kind == QLatin1String("PictureBoard")) own = new PictureBoard(parent);
    if (!own) return QUiLoader::createWidget(kind, parent, name);
    own->setObjectName(name);
    return own;
  }
};

}  // namespace

void UseResources() { InitResources(); }

QWidget* LoadWindow(const QString& form, QString& problem) {
  UseResources();
  QFile file(QStringLiteral(":/ui/") + form.toLower() + QStringLiteral(".ui"));
  if (!file.open(QIODevice::ReadOnly)) {
    problem = file.fileName() + QStringLiteral(": ") + file.errorString();
    return nullptr;
  }
  Loader loader;
  QWidget* window = loader.load(&file);
  if (!window) problem = loader.errorString();
  for (QLabel* label : window ? window->findChildren<QLabel*>() : QList<QLabel*>())
    if (label->property("rogne").toBool()) label->setText(label->text().trimmed());
  // A .ui file can put labels into a status bar, but not say where.
  if (auto* bar = window ? window->findChild<QStatusBar*>() : nullptr)
    for (QLabel* label : bar->findChildren<QLabel*>()) bar->addPermanentWidget(label);
  return window;
}

}  // namespace vorelio
