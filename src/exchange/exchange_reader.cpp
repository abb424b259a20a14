#include "exchange/exchange_reader.h"

#include "core/recipes.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr long tagLength = 3;

}  // namespace

ExchangeReader::ExchangeReader(Global& global, const Files& files, std::string pictureFolder,
                               DuplicateTitles duplicates, ImportEvents events)
    : global_(global),
      files_(files),
      pictureFolder_(std::move(pictureFolder)),
      duplicates_(duplicates),
      events_(std::move(events)) {
  global_.gSystem = global_.gDatabase.OpenRecordset("System");
  global_.gImageRecipeId = static_cast<long>(global_.gSystem.Field("RecipeId").whole());
  for (std::size_t place = 0; place < categoryKindCount; ++place) {
    const CategoryKind& kind = categoryKinds()[place];
    counters_[place] = static_cast<long>(global_.gSystem.Field(kind.idField).whole());
    if (kind.isLinked()) global_.*kind.linkCursor = global_.gDatabase.OpenRecordset(kind.linkTable);
  }
}

long ExchangeReader::countRecipes(TextReader& file) {
  long count = 0;
  std::string line = file.LineInput();
  while (!file.Eof()) {
    if (line.starts_with("00:")) ++count;
    line = file.LineInput();
  }
  return count;
}

template <class Statement>
void ExchangeReader::step(Statement&& statement) {
  if (skipping_) {
    guarded(statement);
  } else {
    statement();
  }
}

void ExchangeReader::tell(const std::function<void(const std::string&)>& listener, const std::string& text) {
  if (listener) listener(text);
}

void ExchangeReader::walk(TextReader& file) {
  std::string line = file.LineInput();
  while (!file.Eof()) {
    handleLine(file, line);
    if (events_.stopAsked && events_.stopAsked()) break;
    line.clear();
    while (Trim(line).empty() && !file.Eof()) line = file.LineInput();
  }
  if (!title_.empty()) finishRecipe();
}

void ExchangeReader::handleLine(TextReader& file, const std::string& line) {
  step([&] { payload_ = Trim(Right(line, static_cast<long>(Len(line)) - tagLength)); });
  tag_ = Left(line, tagLength);
  if (const ExchangeTag* tag = findExchangeTag(tag_)) perform(file, *tag);
}

void ExchangeReader::perform(TextReader& file, const ExchangeTag& tag) {
  switch (tag.kind) {
    case TagKind::Title:
      startRecipe(file);
      break;
    case TagKind::Category:
      writeCategory(tag);
      break;
    case TagKind::Value:
      step([&] { global_.gRecipe.Set(tag.name, payload_); });
      break;
    case TagKind::Memo:
      writeMemo(tag);
      break;
    case TagKind::Link:
      writeLink(tag);
      break;
    case TagKind::Picture:
      restorePictures();
      break;
    case TagKind::End:
      finishRecipe();
      break;
  }
}

void ExchangeReader::startRecipe(TextReader& file) {
  ++counts_.read;
  CheckedTitle checked;
  step([&] { checked = checkTitle(global_, payload_, duplicates_); });
  if (!checked.warning.empty()) {
    ++counts_.warnings;
    tell(events_.warning, checked.warning);
  }
  title_ = checked.title;
  if (title_.empty() && !checked.warning.empty()) {
    tell(events_.progress, "Recipe " + plainText(counts_.read) + ", " + checked.warning);
    skipRecipe(file);
    return;
  }
  step([&] { global_.gRecipe.AddNew(); });
  step([&] { global_.gRecipe.Set("RecipeId", global_.gImageRecipeId); });
  step([&] { global_.gRecipe.Set("Title", title_); });
}

void ExchangeReader::skipRecipe(TextReader& file) {
  while (!file.Eof()) {
    if (file.LineInput().starts_with("99:")) return;
  }
}

void ExchangeReader::finishRecipe() {
  ++counts_.added;
  step([&] { global_.gRecipe.Update(); });
  tell(events_.progress, "Recipe " + plainText(counts_.read) + ", " + title_ + " - added ok");
  tell(events_.added, title_);
  title_.clear();
}

void ExchangeReader::writeMemo(const ExchangeTag& tag) {
  if (payload_.empty()) return;
  step([&] { global_.gRecipe.Set(tag.name, decodeMemo(payload_)); });
}

long& ExchangeReader::counter(const CategoryKind& kind) {
  return counters_[static_cast<std::size_t>(&kind - categoryKinds().data())];
}

bool ExchangeReader::seekDescription(const ExchangeTag& tag, const CategoryKind& kind) {
  Recordset& categories = global_.*kind.cursor;
  step([&] { categories.Index(kind.descriptionIndex); });
  step([&] { categories.Seek("=", payload_); });
  if (tag.alsoPlural && categories.NoMatch()) {
    step([&] { categories.Seek("=", payload_ + "s"); });
  }
  return !categories.NoMatch();
}

long ExchangeReader::addDescription(const CategoryKind& kind) {
  Recordset& categories = global_.*kind.cursor;
  const long id = ++counter(kind);
  step([&] { categories.AddNew(); });
  step([&] { categories.Set(kind.idField, id); });
  step([&] { categories.Set("Description", payload_); });
  step([&] { categories.Update(); });
  return id;
}

void ExchangeReader::writeCategory(const ExchangeTag& tag) {
  const CategoryKind& kind = categoryKind(tag.name);
  if (seekDescription(tag, kind)) {
    skipping_ = true;
    step([&] { global_.gRecipe.Set(kind.name, Value((global_.*kind.cursor).Field(kind.idField))); });
    return;
  }
  const long id = addDescription(kind);
  step([&] { global_.gRecipe.Set(kind.name, id); });
  if (events_.categoryAdded) events_.categoryAdded(kind, payload_);
}

void ExchangeReader::addLink(const CategoryKind& kind, const Value& categoryId) {
  Recordset& links = global_.*kind.linkCursor;
  step([&] { links.AddNew(); });
  step([&] { links.Set("RecipeId", global_.gImageRecipeId); });
  step([&] { links.Set(kind.idField, categoryId); });
  step([&] { links.Update(); });
}

void ExchangeReader::writeLink(const ExchangeTag& tag) {
  const CategoryKind& kind = categoryKind(tag.name);
  if (seekDescription(tag, kind)) {
    skipping_ = true;
    addLink(kind, Value((global_.*kind.cursor).Field(kind.idField)));
    return;
  }
  addLink(kind, addDescription(kind));
  if (events_.categoryAdded) events_.categoryAdded(kind, payload_);
}

void ExchangeReader::restorePictures() {
  global_.gExportSuffix.clear();
  while (true) {
    const std::string source = Files::join(pictureFolder_, Trim(payload_ + global_.gExportSuffix + ".pgx"));
    if (files_.Dir(source).empty()) return;
    const std::string target = plainText(global_.gImageRecipeId) + global_.gExportSuffix + ".bmp";
    step([&] { files_.FileCopy(source, Files::join(global_.gStartDir, target)); });
    global_.gExportSuffix = nextPictureSuffix(global_.gExportSuffix);
  }
}

void ExchangeReader::saveCounters() {
  Recordset& system = global_.gSystem;
  step([&] { system.Edit(); });
  step([&] { system.Set("RecipeId", global_.gImageRecipeId); });
  for (const CategoryKind& kind : categoryKinds()) {
    step([&] { system.Set(kind.idField, counter(kind)); });
  }
  step([&] { system.Update(); });
}

}  // namespace pantrigo
