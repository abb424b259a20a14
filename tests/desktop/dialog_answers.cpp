#include "desktop/dialog_answers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <utility>

namespace pantrigo {

DialogAnswers::DialogAnswers() {
  qApp->installEventFilter(this);
}

DialogAnswers::~DialogAnswers() {
  qApp->removeEventFilter(this);
}

std::vector<SeenBox> DialogAnswers::boxes() {
  return std::exchange(seen_, {});
}

bool DialogAnswers::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || !watched->isWidgetType()) return false;
  if (auto* box = qobject_cast<QMessageBox*>(watched)) {
    QTimer::singleShot(0, box, [this, box] { answerBox(*box); });
    return false;
  }
  const auto found = actions_.find(watched->objectName().toStdString());
  if (found != actions_.end() && static_cast<QWidget*>(watched)->isWindow()) {
    QTimer::singleShot(0, watched, std::move(found->second));
    actions_.erase(found);
  }
  return false;
}

void DialogAnswers::answerBox(QMessageBox& box) {
  seen_.push_back({box.text().toStdString(), box.windowTitle().toStdString()});
  if (boxAction_) {
    std::exchange(boxAction_, nullptr)();
    return;
  }
  std::string wanted = "Esc";
  if (!answers_.empty()) {
    wanted = answers_.front();
    answers_.pop_front();
  }
  for (QAbstractButton* button : box.buttons()) {
    if (button->text().remove(QLatin1Char('&')).toStdString() != wanted) continue;
    QTest::mouseClick(button, Qt::LeftButton);
    return;
  }
  QTest::keyClick(&box, Qt::Key_Escape);
}

}  // namespace pantrigo
