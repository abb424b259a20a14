#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace pantrigo {

/// A picture for the paper: the name of its file, without a folder, and the file's bytes. Without bytes it is no
/// picture.
struct PrintPicture {
  std::string file;
  std::shared_ptr<const std::string> bytes;
};

/// A place on the page, from the top left of what can be printed on, and a size, in twips.
struct PrintArea {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

/// The printer object: text is laid out piece by piece on an open line, graphics by twips. Errors of a real printer are
/// run-time errors.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual void setFontSize(double points) = 0;
  virtual void setFontBold(bool bold) = 0;
  /// Goes to print column n, counted from 1, in columns of the average character width of the present font; to column n
  /// of the next line when the position is already beyond it.
  virtual void tab(int column) = 0;
  /// Prints n blanks.
  virtual void space(int count) = 0;
  /// Prints a text and leaves the line open.
  virtual void print(std::string_view text) = 0;
  /// Ends the open line; an empty one when nothing is on it.
  virtual void endLine() = 0;
  [[nodiscard]] virtual double currentY() const = 0;
  virtual void setCurrentY(double twips) = 0;
  /// Stretches a picture over a place of the present page, whose edges clip it; the position stays where it is. Error
  /// 481 when it is no picture.
  virtual void PaintPicture(const PrintPicture& picture, const PrintArea& area) = 0;
  virtual void NewPage() = 0;
  /// Ends the document and sends it; nothing printed makes no job.
  virtual void EndDoc() = 0;
};

}  // namespace pantrigo
