#include "pilot/run.h"

#include "core/errors.h"
#include "core/text.h"
#include "pilot/commands.h"

namespace vorelio::pilot {

namespace {

void Replace(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

}  // namespace

Run::Run(const Scenario& scenario, const WayMaker& make_way, Starter starter, std::ostream& out)
    : scenario_(scenario), starter_(std::move(starter)), out_(out) {
  doubles::CopyTemplates(folder_.Path());
  way_ = make_way(*this);
}

Run::~Run() = default;

bool Run::Execute() {
  while (Waiting()) Step();
  if (!failed_) JudgeBoxes();
  return !failed_;
}

void Run::Step() {
  const Command& command = scenario_.commands[next_++];
  line_ = command.line;
  try {
    Perform(*this, command);
    way_->Settle();
  } catch (const Failure& failure) {
    Fail(command.line, failure.text);
  } catch (const Erreur_Execution& error) {
    Fail(command.line, Vers_Utf8(error.Texte()));
  } catch (const std::exception& error) {
    Fail(command.line, error.what());
  }
}

// --- For the commands -----------------------------------------------------------------------------------------------

std::string Run::Path(const std::string& path) const {
  return path.starts_with('/') ? path : folder_.Path() + "/" + path;
}

std::string Run::Expand(std::string text) const {
  Replace(text, "{dir}", folder_.Path());
  Replace(text, "{/}", "/");
  return text;
}

Platform Run::Stand() {
  return devices_.Join(way_->Settings(), way_->Messages(), way_->Dialogs(), clock_, way_->Windows(), disk_,
                       folder_.Path());
}

void Run::Start() {
  if (!Ended()) throw Failure{"the program is running already"};
  programme_.reset();
  programme_ = std::make_unique<Programme>(Stand());
  programme_->Recoit([this] { starter_(*programme_); });
}

Programme& Run::Started() const {
  if (!programme_) throw Failure{"the program hasn't been started"};
  return *programme_;
}

Form* Run::FindForm(const std::string& name) const { return Started().Cherche_Fenetre(De_Utf8(name)); }

Control* Run::FindOpenControl(const std::string& name) const {
  const std::size_t point = name.find('.');
  const std::string control = De_Utf8(point == std::string::npos ? name : name.substr(point + 1));
  for (Form* form : Started().Fenetres())
    if (point == std::string::npos ? form->Main() : form->Name() == De_Utf8(name.substr(0, point)))
      return form->Find(control);
  return nullptr;
}

Control& Run::FindControl(const std::string& name) const {
  if (Control* control = FindOpenControl(name)) return *control;
  if (Ended()) Differs("a control " + name, "the program ended");
  const std::size_t point = name.find('.');
  if (point != std::string::npos && !FindForm(name.substr(0, point)))
    Differs("a control " + name, "no open window " + name.substr(0, point));
  Differs("a control " + name, "none of that name");
}

void Run::Note(const std::string& text) { notes_.push_back(Place(line_) + "note: " + text); }

void Run::OnlyOnScreen() {
  keys_ = true;
  if (!way_->OnScreen()) next_ = scenario_.commands.size();
}

void Run::Print(const std::string& text) { out_ << Place(line_) << text << std::endl; }

// --- What waits for the user ----------------------------------------------------------------------------------------

void Run::GoOn(const std::function<bool()>& done) {
  while (!done() && !Ended()) GoOnOnce();
}

void Run::GoOnOnce() {
  // Nobody is there any more to close the window; what waits for it must not go on as if it had been closed.
  if (!Waiting()) throw Fin_Programme{};
  Step();
}

void Run::Message(const std::string& text) {
  boxes_.Message(text);
  boxes_.boxes.back().line = line_;
}

bool Run::Question(const std::string& text, Buttons buttons, Icon icon) {
  const bool answer = boxes_.Question(text, buttons, icon);
  boxes_.boxes.back().line = line_;
  if (boxes_.boxes.back().answered || keys_) return answer;
  Fail(line_, "expected an answer queued for the question " + Shown(text) + ", found none");
  throw Fin_Programme{};
}

void Run::Fatal(int number, const std::string& text) {
  boxes_.Fatal(number, text);
  boxes_.boxes.back().line = line_;
}

std::string Run::Choice() {
  if (choices_.empty()) {
    Note("a file dialog found no choice queued, and was cancelled");
    return {};
  }
  std::string choice = choices_.front();
  choices_.pop_front();
  return choice;
}

// --- Failures -------------------------------------------------------------------------------------------------------

void Run::Fail(int line, const std::string& text) {
  if (failed_) return;
  failed_ = true;
  out_ << Place(line) << text << '\n';
  for (const std::string& note : notes_) out_ << note << '\n';
  for (const doubles::Box& box : boxes_.boxes) {
    if (box.kind == doubles::Box::Kind::Question || box.expected) continue;
    const bool fatal = box.kind == doubles::Box::Kind::Fatal;
    out_ << Place(box.line) << "note: " << (fatal ? "the program ended with " : "the message ") << Shown(box.text)
         << (fatal ? "" : " was shown") << '\n';
  }
  out_ << std::flush;
}

void Run::JudgeBoxes() {
  for (doubles::Box& box : boxes_.boxes) {
    if (box.kind == doubles::Box::Kind::Question || box.expected) continue;
    box.expected = true;  // Told here, so that it isn't noted again.
    const bool fatal = box.kind == doubles::Box::Kind::Fatal;
    return Fail(box.line, fatal ? "expected no run-time error, found " + std::to_string(boxes_.fatal_number) + ": " +
                                      Shown(box.text)
                                : "expected no message, found " + Shown(box.text));
  }
}

}  // namespace vorelio::pilot
