#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/category_kinds.h"
#include "exchange/exchange_format.h"
#include "exchange/title_check.h"
#include "platform/files/text_file.h"

namespace pantrigo {

/// What the walk over an exchange file tells its caller as it goes. Every function may be empty.
struct ImportEvents {
  /// A line for the import log; counts as a warning.
  std::function<void(const std::string& line)> warning;
  /// A recipe was stored under this title.
  std::function<void(const std::string& title)> added;
  /// A text on the recipe in hand, for display.
  std::function<void(const std::string& text)> progress;
  /// A category was added to the store.
  std::function<void(const CategoryKind& kind, const std::string& description)> categoryAdded;
  /// After every line; true ends the walk.
  std::function<bool()> stopAsked;
};

struct ImportCounts {
  long read = 0;
  long added = 0;
  long warnings = 0;
};

/// Reads an exchange file into the store, line by line: the title line starts a new record on `gRecipe`, each later
/// line writes its field, and the end line stores it. Categories that the store doesn't know are added. Ids come from
/// counters that are read from `System` at the start and are written back by `saveCounters`.
///
/// Until the walk first finds a category that exists already, a failing step is a run-time error of `walk`; from then
/// on a step that fails is skipped and the next one runs.
class ExchangeReader {
 public:
  /// The recordsets of `global` are open; `System` and the link tables are opened anew here. Pictures are copied from
  /// `pictureFolder` to `gStartDir`.
  ExchangeReader(Global& global, const Files& files, std::string pictureFolder, DuplicateTitles duplicates,
                 ImportEvents events);

  /// Counts the recipes of the file: the lines that begin with "00:", but for the file's very last line. Error 62 for
  /// an empty file.
  [[nodiscard]] static long countRecipes(TextReader& file);

  /// The walk, from the file's start to its end or a stop.
  void walk(TextReader& file);

  /// Writes the counters back to `System`.
  void saveCounters();

  [[nodiscard]] const ImportCounts& counts() const { return counts_; }

 private:
  template <class Statement>
  void step(Statement&& statement);
  void handleLine(TextReader& file, const std::string& line);
  void perform(TextReader& file, const ExchangeTag& tag);
  void startRecipe(TextReader& file);
  void skipRecipe(TextReader& file);
  void finishRecipe();
  void writeMemo(const ExchangeTag& tag);
  void writeCategory(const ExchangeTag& tag);
  void writeLink(const ExchangeTag& tag);
  bool seekDescription(const ExchangeTag& tag, const CategoryKind& kind);
  long addDescription(const CategoryKind& kind);
  void addLink(const CategoryKind& kind, const Value& categoryId);
  void restorePictures();
  long& counter(const CategoryKind& kind);
  void tell(const std::function<void(const std::string&)>& listener, const std::string& text);

  Global& global_;
  const Files& files_;
  std::string pictureFolder_;
  DuplicateTitles duplicates_;
  ImportEvents events_;
  ImportCounts counts_;
  std::array<long, categoryKindCount> counters_{};
  bool skipping_ = false;
  std::string title_;
  std::string tag_;
  std::string payload_;
};

}  // namespace pantrigo
