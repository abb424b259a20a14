#include "support/recording_printer.h"

#include <algorithm>
#include <utility>

#include "platform/text/errors.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

/// Height of a line in twips for each point of its font: 20 twips to the point, and a fifth of it between the lines.
constexpr double lineHeightPerPoint = 24;

}  // namespace

void RecordingPrinter::append(std::string_view text) {
  line_.text += text;
  line_.bold = line_.bold || (bold_ && !text.empty());
  line_.size = fontSize_;
  lineOpen_ = true;
  open_ = true;
}

void RecordingPrinter::tab(int column) {
  const auto wanted = static_cast<std::size_t>(std::max(column, 1) - 1);
  if (Len(line_.text) > wanted) endLine();
  line_.text.append(wanted - Len(line_.text), ' ');
  lineOpen_ = true;
}

void RecordingPrinter::space(int count) {
  line_.text.append(static_cast<std::size_t>(std::max(count, 0)), ' ');
  lineOpen_ = true;
}

void RecordingPrinter::print(std::string_view text) {
  append(text);
}

void RecordingPrinter::endLine() {
  if (line_.size == 0) line_.size = fontSize_;
  line_.page = page_;
  line_.job = jobs_ + 1;
  lines_.push_back(std::exchange(line_, {}));
  lineOpen_ = false;
  open_ = true;
  y_ += fontSize_ * lineHeightPerPoint;
}

void RecordingPrinter::PaintPicture(const PrintPicture& picture, const PrintArea& area) {
  constexpr int invalidPicture = 481;
  if (picture.bytes == nullptr) throw RuntimeError(invalidPicture);
  pictures_.push_back({picture.file, area, page_, jobs_ + 1});
  open_ = true;
}

void RecordingPrinter::NewPage() {
  if (lineOpen_) endLine();
  open_ = true;
  ++page_;
  y_ = 0;
}

void RecordingPrinter::EndDoc() {
  if (lineOpen_) endLine();
  if (!open_) return;
  open_ = false;
  ++jobs_;
  page_ = 1;
  y_ = 0;
}

std::vector<PrintedLine> RecordingPrinter::takeLines() {
  return std::exchange(lines_, {});
}

std::vector<PrintedPicture> RecordingPrinter::takePictures() {
  return std::exchange(pictures_, {});
}

}  // namespace pantrigo
