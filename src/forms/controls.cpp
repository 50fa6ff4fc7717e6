#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "core/errors.h"
#include "core/text.h"
#include "forms/programme.h"

namespace vorelio {

void Indice_Refuse() { throw Erreur_Execution(Erreur::Indice_Hors_Limites); }

// --- Control --------------------------------------------------------------------------------------------------------

Control::Control(Form& form, std::string_view name) : form_(form), name_(name) { form.controls_.push_back(this); }

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Notify(Property::Enabled);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify(Property::Visible);
}

void Control::SetColour(Couleur colour) {
  if (colour_ == colour) return;
  colour_ = colour;
  Notify(Property::Colour);
}

void Control::SetFocus() {
  if (enabled_ && visible_) form_.programme().Prend_Focus(*this);
}

void Control::UserFocus() { form_.programme().Note_Focus(*this); }

bool Control::Reachable() const {
  const Form* modal = form_.programme().Fenetre_Modale();
  const bool locked = modal && modal != &form_ && !form_.AboveModal();
  return enabled_ && visible_ && form_.Visible() && !form_.Unloaded() && !locked;
}

void Control::Raise(const std::function<void()>& event) const {
  if (event) form_.programme().Evenement(event);
}

bool Control::RaiseKey(const KeyHandler& handler, int& key) const {
  if (handler) Raise([&] { handler(key); });
  return key != 0;
}

void EnableAll(std::initializer_list<Control*> controls, bool enabled) {
  for (Control* control : controls) control->SetEnabled(enabled);
}

// --- TextField ------------------------------------------------------------------------------------------------------

TextField::TextField(Form& form, std::string_view name, std::string_view text, bool multi_line)
    : Control(form, name), text_(text), selection_(static_cast<int>(text.size())), multi_line_(multi_line) {}

void TextField::SetText(std::string_view text) {
  text_ = text;
  caret_ = 0;
  selection_ = static_cast<int>(text_.size());
  Notify(Property::Text);
}

void TextField::SetCaret(int position, int length) {
  const int size = static_cast<int>(text_.size());
  caret_ = std::clamp(position, 0, size);
  selection_ = std::clamp(length, 0, size - caret_);
  Notify(Property::Caret);
}

void TextField::ReplaceSelection(std::string_view text) {
  text_.replace(static_cast<std::size_t>(caret_), static_cast<std::size_t>(selection_), text);
  caret_ += static_cast<int>(text.size());
  selection_ = 0;
  Notify(Property::Text);
}

void TextField::UserKey(int key) {
  if (!Reachable()) return;
  SetFocus();
  if (!RaiseKey(KeyPress, key) || read_only_) return;
  if (key == kEntree && multi_line_) ReplaceSelection(kFin_De_Ligne);
  if (key >= ' ') ReplaceSelection(std::string(1, static_cast<char>(key)));
}

void TextField::UserText(std::string_view text, int caret) {
  if (!Reachable()) return;
  text_ = text;
  SetCaret(caret);
  Notify(Property::Text);
}

void TextField::UserCaret(int position, int length) {
  if (Reachable()) SetCaret(position, length);
}

void TextField::UserClick() {
  if (!Reachable()) return;
  SetFocus();
  Raise(Click);
}

void TextField::UserDblClick() {
  if (!Reachable()) return;
  SetFocus();
  Raise(DblClick);
}

// --- Lists ----------------------------------------------------------------------------------------------------------

std::string_view ListControl::Item(int index) const {
  return index >= 0 && index < Count() ? items_[static_cast<std::size_t>(index)] : std::string_view{};
}

void ListControl::SetListIndex(int index) {
  if (index < -1 || index >= Count()) Indice_Refuse();
  TakeIndex(index);
  Raise(Click);
}

void ListControl::TakeIndex(int index) {
  index_ = index;
  Notify(Property::ListIndex);
}

void ListControl::ClearItems() {
  items_.Clear();
  index_ = -1;
  Notify(Property::Items);
}

void ListControl::UserSelect(int index) {
  if (!Reachable() || index < 0 || index >= Count()) return;
  SetFocus();
  SetListIndex(index);
}

void ListControl::InsertAt(int index, std::string_view text) {
  if (index == Count())
    items_.Append(text);
  else
    items_.Insert(static_cast<std::size_t>(index), text);
  if (index <= index_) ++index_;
  Notify(Property::Items);
}

void ListControl::WriteOver(int index, std::string_view head) {
  items_.WriteOver(static_cast<std::size_t>(index), head);
  Notify(Property::Items);
}

void ListControl::Merge(const std::vector<std::string>& texts) {
  if (texts.empty()) return;
  // The selected row moves after the new ones that come before it.
  if (index_ >= 0)
    index_ += static_cast<int>(std::lower_bound(texts.begin(), texts.end(), Item(index_)) - texts.begin());
  Rows merged;
  auto old = items_.begin();
  for (const std::string& text : texts) {
    for (; old != items_.end() && *old <= text; ++old) merged.Append(*old);
    merged.Append(text);
  }
  for (; old != items_.end(); ++old) merged.Append(*old);
  items_ = std::move(merged);
  Notify(Property::Items);
}

void ListControl::Append(const std::vector<std::string>& texts) {
  if (texts.empty()) return;
  for (const std::string& text : texts) items_.Append(text);
  Notify(Property::Items);
}

void ListControl::EraseAt(int index) {
  items_.Erase(static_cast<std::size_t>(index));
  if (index == index_) index_ = -1;
  if (index < index_) --index_;
  Notify(Property::Items);
}

void ListControl::ReplaceAt(int index, std::string_view text) {
  items_.Replace(static_cast<std::size_t>(index), text);
  Notify(Property::Items);
}

ListBox::ListBox(Form& form, std::string_view name, Kind kind) : ListControl(form, name), kind_(kind) {}

void ListBox::AddItem(std::string_view text) {
  int place = Count();
  if (kind_ == Kind::Sorted && place > 0 && Item(place - 1) > text)
    place = static_cast<int>(std::upper_bound(Items().begin(), Items().end(), text) - Items().begin());
  if (kind_ == Kind::Checked) checked_.insert(checked_.begin() + place, false);
  InsertAt(place, text);
}

void ListBox::AddItems(std::vector<std::string> texts) {
  if (kind_ == Kind::Checked) checked_.resize(checked_.size() + texts.size());
  if (kind_ != Kind::Sorted) return Append(texts);
  std::stable_sort(texts.begin(), texts.end());
  Merge(texts);
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= Count()) throw Erreur_Execution(Erreur::Argument_Invalide);
  if (kind_ == Kind::Checked) checked_.erase(checked_.begin() + index);
  EraseAt(index);
}

void ListBox::SetItem(int index, std::string_view text) {
  if (index < 0 || index >= Count()) throw Erreur_Execution(Erreur::Argument_Invalide);
  ReplaceAt(index, text);
}

void ListBox::ClearItems() {
  checked_.clear();
  ListControl::ClearItems();
}

void ListBox::ShowEnd() {
  TakeIndex(-1);
  Notify(Property::ScrollToEnd);
}

bool ListBox::Checked(int index) const {
  return index >= 0 && index < static_cast<int>(checked_.size()) && checked_[static_cast<std::size_t>(index)];
}

void ListBox::UserTick(int index) {
  if (!Reachable() || index < 0 || index >= static_cast<int>(checked_.size())) return;
  checked_[static_cast<std::size_t>(index)].flip();
  Notify(Property::Checked);
}

void ListBox::UserDblClick(int index) {
  if (!Reachable()) return;
  SetFocus();
  if (index >= 0 && index < Count()) SetListIndex(index);
  Raise(DblClick);
}

void ListBox::UserKey(int key) {
  if (!Reachable()) return;
  SetFocus();
  RaiseKey(KeyPress, key);
  // Enter means what a double click means, where it means nothing of its own.
  if (key == kEntree && !KeyPress && DblClick && ListIndex() >= 0) UserDblClick(ListIndex());
}

ComboBox::ComboBox(Form& form, std::string_view name, Kind kind, std::string_view text)
    : ListControl(form, name), kind_(kind), text_(text) {}

void ComboBox::ClearItems() {
  text_.clear();
  ListControl::ClearItems();
}

void ComboBox::TakeIndex(int index) {
  text_ = Item(index);
  replace_ = true;
  ListControl::TakeIndex(index);
}

void ComboBox::SetText(std::string_view text) { Put(text, true); }

void ComboBox::Put(std::string_view text, bool replace) {
  const auto row = std::find(Items().begin(), Items().end(), text);
  text_ = text;
  replace_ = replace;
  ListControl::TakeIndex(row == Items().end() ? -1 : static_cast<int>(row - Items().begin()));
  Notify(Property::Text);
}

void ComboBox::UserEnter() { replace_ = true; }

void ComboBox::UserKey(int key) {
  if (!Reachable()) return;
  if (Parent().programme().Focus() != this) UserEnter();
  SetFocus();
  if (!RaiseKey(KeyPress, key) || key < ' ') return;
  if (kind_ == Kind::Editable) {
    UserText((replace_ ? std::string{} : text_) + static_cast<char>(key));
    return;
  }
  typed_ = Majuscules(typed_ + static_cast<char>(key));
  for (int i = 0; i < Count(); ++i)
    if (Majuscules(Item(i)).starts_with(typed_)) return SetListIndex(i);
}

void ComboBox::UserText(std::string_view text) {
  if (!Reachable()) return;
  Put(text, false);
}

// --- Controls with a caption ----------------------------------------------------------------------------------------

Captioned::Captioned(Form& form, std::string_view name, std::string_view caption)
    : Control(form, name), caption_(caption) {
  SetColour(kFace_Bouton);
}

void Captioned::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Notify(Property::Caption);
}

void Button::UserClick() {
  if (!Reachable()) return;
  SetFocus();
  Raise(Click);
}

void CheckBox::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Notify(Property::Checked);
  Raise(Click);
}

void CheckBox::UserClick() {
  if (!Reachable()) return;
  SetFocus();
  SetChecked(!checked_);
}

void Gauge::SetProgress(int done, int total) {
  done_ = done;
  total_ = total;
  Notify(Property::Progress);
}

Picture::Picture(Form& form, std::string_view name, std::string_view file, int width, int height)
    : Control(form, name), file_(file), width_(width), height_(height) {}

std::optional<Picture::Place> Picture::PlaceOf(const Control& control) const {
  const auto place = places_.find(&control);
  return place == places_.end() ? std::nullopt : std::optional(place->second);
}

OptionButton::OptionButton(Form& form, std::string_view name, std::string_view caption, std::string_view group,
                           bool set)
    : Captioned(form, name, caption), group_(group), set_(set) {}

void OptionButton::SetOn() {
  if (set_) return;
  for (Control* control : Parent().Controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (!other || !other->set_ || other->group_ != group_) continue;
    other->set_ = false;
    other->Notify(Property::Checked);
  }
  set_ = true;
  Notify(Property::Checked);
  Raise(Click);
}

void OptionButton::UserClick() {
  if (!Reachable()) return;
  SetFocus();
  SetOn();
}

MenuItem::MenuItem(Form& form, std::string_view name, std::string_view caption, bool checked)
    : Captioned(form, name, caption), checked_(checked) {}

void MenuItem::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Notify(Property::Checked);
}

void MenuItem::UserClick() {
  if (Reachable()) Raise(Click);
}

Timer::Timer(Form& form, std::string_view name, int interval_ms, bool enabled)
    : Control(form, name), interval_(interval_ms) {
  SetEnabled(enabled);
}

void Timer::Fire() {
  if (Enabled() && !Parent().Unloaded()) Raise(Tick);
}

// --- Form -----------------------------------------------------------------------------------------------------------

Form::Form(Programme& programme, std::string_view name, std::string_view title)
    : programme_(programme), name_(name), title_(title) {}

WindowService& Form::Screen() const { return programme_.plateforme.windows; }

void Form::SetTitle(std::string_view title) {
  title_ = title;
  Screen().Changed(*this);
}

void Form::Show() {
  if (unloaded_) return;
  visible_ = true;
  Screen().Changed(*this);
}

void Form::ShowModal(const std::function<void()>& first) {
  modal_ = true;
  Show();
  if (first) first();
  if (visible_) Screen().RunModal(*this);
  modal_ = false;
  programme_.Quitte_Si_Termine();
}

void Form::Hide() {
  visible_ = false;
  Screen().Changed(*this);
}

void Form::Centre() { Screen().Centre(*this); }

void Form::Unload() {
  if (unloading_) return;
  unloading_ = true;
  programme_.Evenement([this] { Form_Unload(); });
  visible_ = false;
  unloaded_ = true;
  programme_.Decharge(*this);
}

void Form::UserClose() {
  const Form* modal = programme_.Fenetre_Modale();
  // The main window can always be closed: the program then ends, whatever other window is open.
  if (unloaded_ || !visible_ || (modal && modal != this && !Main() && !AboveModal())) return;
  Unload();
}

Control* Form::Find(std::string_view name) const {
  for (Control* control : controls_)
    if (control->Name() == name) return control;
  return nullptr;
}

}  // namespace vorelio
