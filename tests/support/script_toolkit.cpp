#include "support/script_toolkit.h"

#include <utility>

#include "platform/text/errors.h"
#include "support/bitmap_file.h"

namespace pantrigo {

namespace {

constexpr double twipsOfPixel = 15;
constexpr int helpOfContext = 1;
constexpr int invalidPicture = 481;

}  // namespace

bool asksYesNo(int style) {
  // A style is the sum of an icon (16, 32, 48, 64) and, for Yes and No, 4.
  constexpr int yesNo = 4;
  return (style & yesNo) != 0;
}

void ScriptToolkit::waitModal(Form& form, const std::function<bool()>& over) {
  person_.attend(form, over);
}

BoxAnswer ScriptToolkit::showBox(const MessageBox& box) {
  boxes_.push_back({box, BoxAnswer::OK});
  const std::size_t place = boxes_.size() - 1;
  boxes_[place].answer = person_.answer(box);
  return boxes_[place].answer;
}

void ScriptToolkit::showHelp(const HelpCall& call) {
  if (call.command == helpOfContext) helps_.push_back(call.context);
}

PictureFile ScriptToolkit::LoadPicture(const Files& files, std::string_view name) {
  auto bytes = std::make_shared<const std::string>(files.readBytes(name));
  const std::optional<BitmapSize> size = readBitmapSize(*bytes);
  if (!size) throw RuntimeError(invalidPicture);
  return {std::string(name), size->width, size->height, std::move(bytes)};
}

void ScriptToolkit::beginRun() {
  screen_ = nextScreen_;
  pointer_ = pointerDefault;
}

void ScriptToolkit::setNextScreen(double width, double height) {
  nextScreen_ = {width * twipsOfPixel, height * twipsOfPixel};
}

std::vector<ShownBox> ScriptToolkit::takeBoxes() {
  return std::exchange(boxes_, {});
}
int ScriptToolkit::takeBeeps() {
  return std::exchange(beeps_, 0);
}
int ScriptToolkit::takeSetUps() {
  return std::exchange(setUps_, 0);
}
std::vector<int> ScriptToolkit::takeHelps() {
  return std::exchange(helps_, {});
}

}  // namespace pantrigo
