#pragma once

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/files/files.h"

namespace pantrigo {

/// A text file open for reading by line. Cut at the first byte 26; UTF-8 when all of it is valid (a signature is
/// dropped), else Windows-1252. A line ends at CR or CR LF; in a file without any CR it ends at LF.
class TextReader {
 public:
  /// Opens the file. Errors 53, 76, 75.
  TextReader(const Files& files, std::string_view name);

  /// Whether nothing is left to read: true right after the last line was read, and at once for an empty file.
  [[nodiscard]] bool Eof() const { return position_ >= text_.size(); }

  /// Reads the next line, without its end. Error 62 at the end.
  [[nodiscard]] std::string LineInput();

  /// Goes back to the start.
  void rewind() { position_ = 0; }

 private:
  std::string text_;
  std::size_t position_ = 0;
  bool lineFeedEndsLine_ = false;
};

/// A text file open for writing: created or emptied; UTF-8 without signature, lines end in CR LF.
class TextWriter {
 public:
  /// Opens the file. Errors 76, 75.
  TextWriter(const Files& files, std::string_view name);

  /// Writes the text and CR LF. Error 61 when the disk is full.
  void PrintLine(std::string_view text);

  /// Writes what is left and closes; once closed, does nothing. Error 61 when the disk is full.
  void Close();

 private:
  std::ofstream stream_;
};

}  // namespace pantrigo
