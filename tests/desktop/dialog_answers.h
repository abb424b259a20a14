#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QMessageBox;

namespace pantrigo {

/// What a message box said.
struct SeenBox {
  std::string text;
  std::string caption;
};

/// Answers message boxes and works dialogs as they come up, in the order of the answers given beforehand. A box that no
/// answer waits for is dismissed and kept among the seen ones.
class DialogAnswers : public QObject {
 public:
  DialogAnswers();
  ~DialogAnswers() override;

  /// The caption of the button that the next box is answered by ("Yes", "No", "OK"), or "Esc".
  void answer(std::string button) { answers_.push_back(std::move(button)); }
  /// What is done while the next box stands open, in place of an answer.
  void whenBoxShown(std::function<void()> action) { boxAction_ = std::move(action); }
  /// What is done once the window of that form has come up.
  void whenShown(const std::string& form, std::function<void()> action) { actions_[form] = std::move(action); }

  /// The boxes since the last call.
  [[nodiscard]] std::vector<SeenBox> boxes();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void answerBox(QMessageBox& box);

  std::deque<std::string> answers_;
  std::function<void()> boxAction_;
  std::map<std::string, std::function<void()>> actions_;
  std::vector<SeenBox> seen_;
};

}  // namespace pantrigo
