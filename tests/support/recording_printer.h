#pragma once

#include <string>
#include <vector>

#include "platform/printer/printer.h"

namespace pantrigo {

/// A printed line: its text in character columns, whether any piece of it was bold, the size of its last piece in
/// points. Pages and jobs count from 1.
struct PrintedLine {
  std::string text;
  bool bold = false;
  double size = 0;
  int page = 1;
  int job = 1;
};

/// A printed picture: the name of its file, its place and size in twips. Pages and jobs count from 1.
struct PrintedPicture {
  std::string file;
  PrintArea area;
  int page = 1;
  int job = 1;
};

/// A printer that keeps what is printed. Its paper has no end: a page ends by `NewPage` alone, so that no scenario
/// depends on a length of paper.
class RecordingPrinter : public Printer {
 public:
  void setFontSize(double points) override { fontSize_ = points; }
  void setFontBold(bool bold) override { bold_ = bold; }
  void tab(int column) override;
  void space(int count) override;
  void print(std::string_view text) override;
  void endLine() override;
  [[nodiscard]] double currentY() const override { return y_; }
  void setCurrentY(double twips) override { y_ = twips; }
  void PaintPicture(const PrintPicture& picture, const PrintArea& area) override;
  void NewPage() override;
  void EndDoc() override;

  /// The lines ended since the last call.
  [[nodiscard]] std::vector<PrintedLine> takeLines();
  /// The pictures drawn since the last call.
  [[nodiscard]] std::vector<PrintedPicture> takePictures();
  /// Number of ended documents.
  [[nodiscard]] int jobs() const { return jobs_; }
  /// Whether something was printed that no `EndDoc` has sent yet.
  [[nodiscard]] bool open() const { return open_; }

 private:
  void append(std::string_view text);

  std::vector<PrintedLine> lines_;
  std::vector<PrintedPicture> pictures_;
  PrintedLine line_;
  bool lineOpen_ = false;
  bool open_ = false;
  double fontSize_ = 10;
  bool bold_ = false;
  double y_ = 0;
  int page_ = 1;
  int jobs_ = 0;
};

}  // namespace pantrigo
