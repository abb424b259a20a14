#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <string>
#include <string_view>

class QLineEdit;
class QPlainTextEdit;
class QTextDocument;

namespace pantrigo {

/// Text of the program (UTF-8) as the toolkit's, and back.
[[nodiscard]] QString toQt(std::string_view text);
[[nodiscard]] std::string fromQt(const QString& text);

/// A text with line ends of any kind as a document takes it: each is one break.
[[nodiscard]] QString shownLines(std::string_view text);

/// All of a document's text: breaks as CR LF, no-break blanks kept.
[[nodiscard]] std::string documentText(const QTextDocument& document);

/// Number of code points of a text.
[[nodiscard]] std::size_t pointCount(const QString& text);

/// A caption without the marks of access keys; "&&" is one "&", and an "&" before a blank marks nothing.
[[nodiscard]] QString plainCaption(std::string_view caption);
[[nodiscard]] bool hasAccessKey(std::string_view caption);

/// The headings in a caption that stands above several columns, with two blanks or more between them; one heading for
/// any other caption, none for an empty one.
[[nodiscard]] QStringList columnHeadings(std::string_view caption);

/// Takes back what the last typing or pasting put beyond the limit of code points, in front of the cursor. `before` is
/// the count that the box had: a longer text that was there already stays. A limit of 0 is none. Raises no signals.
void cutToLimit(QLineEdit& box, std::size_t limit, std::size_t before);
void cutToLimit(QPlainTextEdit& box, std::size_t limit, std::size_t before);

}  // namespace pantrigo
