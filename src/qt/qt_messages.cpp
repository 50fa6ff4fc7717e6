#include "qt/qt_messages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <algorithm>

#include "qt/qt_text.h"
#include "qt/qt_windows.h"

namespace vorelio {

namespace {

/// The words of the standard buttons, whatever language the desktop speaks: the texts above them are French.
void NameButtons(QMessageBox& box) {
  const struct {
    QMessageBox::StandardButton button;
    QString words;
  } names[] = {{QMessageBox::Yes, QStringLiteral("&Oui")},
               {QMessageBox::No, QStringLiteral("&Non")},
               {QMessageBox::Ok, QStringLiteral("OK")},
               {QMessageBox::Cancel, QStringLiteral("&Annuler")}};
  for (const auto& [button, words] : names)
    if (QAbstractButton* shown = box.button(button)) shown->setText(words);
}

/// The lines of the texts are theirs: Qt would break those that it finds long.
void KeepLines(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!label) return;
  const int widest = label->fontMetrics().size(0, box.text()).width();
  label->setMinimumWidth(std::min(widest + 8, box.screen()->availableSize().width() * 7 / 10));
}

/// Keeps a box open that Escape, or the cross of its frame, would close by itself.
class StaysOpen : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    const bool escape = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    const bool cross = event->type() == QEvent::Close && event->spontaneous();
    if (cross) event->ignore();
    return escape || cross;
  }
};

QMessageBox::Icon Sign(Icon icon) {
  switch (icon) {
    case Icon::Plain: return QMessageBox::Information;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Critical: return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

int QtMessages::Run(const std::string& text, Icon icon, QMessageBox::StandardButtons buttons,
                    QMessageBox::StandardButton first, QMessageBox::StandardButton escape, const QString& only_button) {
  windows_.ShowPending();
  QWidget* asking = QApplication::activeWindow();
  QMessageBox box(asking);
  box.setWindowTitle(QStringLiteral("Vorelio"));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  box.setIcon(Sign(icon));
  box.setStandardButtons(buttons);
  box.setDefaultButton(first);
  box.setEscapeButton(escape);
  StaysOpen stays;
  if (escape == QMessageBox::NoButton) box.installEventFilter(&stays);
  NameButtons(box);
  KeepLines(box);
  if (!only_button.isEmpty()) box.button(first)->setText(only_button);
  const QPointer<QWidget> back(asking);
  const int answer = Execute(box);
  // Not every desktop gives the keyboard back by itself, and the next key belongs to the entry chain.
  box.hide();
  if (back && back->isVisible()) back->activateWindow();
  return answer;
}

void QtMessages::Show(const std::string& text) {
  Run(text, Icon::Plain, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtMessages::Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) {
  if (buttons == Buttons::YesNo) {
    const auto first = guard == Guard::NoFirst ? QMessageBox::No : QMessageBox::Yes;
    const auto escape = guard == Guard::MustChoose ? QMessageBox::NoButton : QMessageBox::No;
    return Run(text, icon, QMessageBox::Yes | QMessageBox::No, first, escape) == QMessageBox::Yes;
  }
  // What asks with OK and Cancel is about to overwrite something: Enter alone doesn't.
  return Run(text, icon, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

void QtMessages::Fatal(int, const std::string& text) {
  Run(text, Icon::Critical, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok, QStringLiteral("&Quitter"));
}

}  // namespace vorelio
