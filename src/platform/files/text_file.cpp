#include "platform/files/text_file.h"

#include "platform/text/errors.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr char endOfFileMark = 26;
constexpr std::string_view utf8Signature = "\xEF\xBB\xBF";

std::string decoded(std::string bytes) {
  bytes.erase(std::min(bytes.find(endOfFileMark), bytes.size()));
  if (!isValidUtf8(bytes)) return fromWindows1252(bytes);
  if (bytes.starts_with(utf8Signature)) bytes.erase(0, utf8Signature.size());
  return bytes;
}

}  // namespace

TextReader::TextReader(const Files& files, std::string_view name) : text_(decoded(files.readBytes(name))) {
  lineFeedEndsLine_ = text_.find('\r') == std::string::npos;
}

std::string TextReader::LineInput() {
  if (Eof()) throw RuntimeError(62);
  const char lineEnd = lineFeedEndsLine_ ? '\n' : '\r';
  const std::size_t end = std::min(text_.find(lineEnd, position_), text_.size());
  std::string line = text_.substr(position_, end - position_);
  position_ = end + 1;
  if (!lineFeedEndsLine_ && position_ < text_.size() && text_[position_] == '\n') ++position_;
  return line;
}

TextWriter::TextWriter(const Files& files, std::string_view name) {
  const std::filesystem::path path = files.resolve(name);
  std::error_code failed;
  if (!std::filesystem::is_directory(path.parent_path(), failed)) throw RuntimeError(76);
  stream_.open(path, std::ios::binary | std::ios::trunc);
  if (!stream_) throw RuntimeError(75);
}

void TextWriter::PrintLine(std::string_view text) {
  stream_ << text << "\r\n";
  if (!stream_) throw RuntimeError(61);
}

void TextWriter::Close() {
  if (!stream_.is_open()) return;
  stream_.close();
  if (stream_.fail()) throw RuntimeError(61);
}

}  // namespace pantrigo
