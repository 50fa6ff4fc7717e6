#include "pilot/windows/boxes.h"

#include <QAbstractButton>
#include <QLabel>

#include "pilot/windows/real_events.h"
#include "pilot/words.h"
#include "qt/qt_text.h"

namespace vorelio::pilot {

void PilotMessages::Show(const std::string& text) {
  script_.Message(text);
  words_ = ToQt(text);
  yes_ = true;
  QtMessages::Show(text);
}

bool PilotMessages::Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) {
  by_keys_ = script_.KeysAnswer();
  yes_ = script_.Question(text, buttons, icon);
  words_ = ToQt(text);
  const bool answer = QtMessages::Ask(text, buttons, icon, guard);
  by_keys_ = false;
  return answer;
}

void PilotMessages::Fatal(int number, const std::string& text) {
  script_.Fatal(number, text);
  words_ = ToQt(text);
  yes_ = true;
  QtMessages::Fatal(number, text);
}

int PilotMessages::Execute(QMessageBox& box) {
  box.setWindowModality(Qt::ApplicationModal);
  box.show();
  UntilIdle();

  const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  const QString shown = label ? label->text() : QString();
  const QString expected = QString(words_).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (!box.isVisible() || shown != expected)
    script_.Fail("expected a box with " + InQuotes(expected.toStdString()) + ", found " +
                 (box.isVisible() ? InQuotes(shown.toStdString()) : "none") + " on the screen");

  if (by_keys_) {
    script_.GoOn([&box] { return !box.isVisible(); });
    return box.standardButton(box.clickedButton());
  }

  const auto choice = yes_ ? QMessageBox::Yes | QMessageBox::Ok : QMessageBox::No | QMessageBox::Cancel;
  QAbstractButton* button = nullptr;
  for (QAbstractButton* each : box.buttons())
    if (choice.testFlag(box.standardButton(each))) button = each;
  if (!button) {
    script_.Fail("expected a button for the answer, found none in the box");
    return QMessageBox::NoButton;
  }
  const int pressed = box.standardButton(button);
  Press(*button);
  UntilIdle();
  if (box.isVisible()) script_.Fail("expected the box to close, found it open");
  return pressed;
}

// The dialog itself is the desktop's own: nothing of it is this program's but the words around it.
QString PilotDialogs::Execute(QFileDialog&) { return ToQt(script_.Choice()); }

}  // namespace vorelio::pilot
