#include "exchange/exchange_format.h"

#include <algorithm>

namespace pantrigo {

namespace {

constexpr ExchangeTag tags[] = {
    {"00:", TagKind::Title, "Title"},
    {"01:", TagKind::Category, "Nationality"},
    {"02:", TagKind::Category, "Course", true},
    {"03:", TagKind::Category, "Cooking"},
    {"04:", TagKind::Category, "Ease"},
    {"05:", TagKind::Value, "Serves"},
    {"06:", TagKind::Value, "PrepareTime"},
    {"07:", TagKind::Value, "CookTime"},
    {"08:", TagKind::Value, "Source"},
    {"09:", TagKind::Value, "Meal"},
    {"10:", TagKind::Value, "Energy"},
    {"11:", TagKind::Value, "Protein"},
    {"12:", TagKind::Value, "Cholesterol"},
    {"13:", TagKind::Value, "Carbohydrates"},
    {"14:", TagKind::Value, "Sodium"},
    {"15:", TagKind::Value, "Fibre"},
    {"16:", TagKind::Value, "Calcium"},
    {"17:", TagKind::Value, "Fat"},
    {"18:", TagKind::Value, "Iron"},
    {"19:", TagKind::Value, "ConvertCupSpoon"},
    {"20:", TagKind::Value, "Makes"},
    {"21:", TagKind::Memo, "Comment"},
    {"22:", TagKind::Value, "Ingredients"},
    {"23:", TagKind::Memo, "Method"},
    {"24:", TagKind::Link, "Health"},
    {"25:", TagKind::Link, "Other", true},
    {"26:", TagKind::Picture, ""},
    {"99:", TagKind::End, ""},
};

}  // namespace

std::span<const ExchangeTag> exchangeTags() {
  return tags;
}

const ExchangeTag* findExchangeTag(std::string_view tag) {
  const auto* found =
      std::find_if(std::begin(tags), std::end(tags), [&](const ExchangeTag& row) { return row.tag == tag; });
  return found == std::end(tags) ? nullptr : found;
}

std::string encodeMemo(std::string_view memo) {
  std::string coded(memo);
  std::replace(coded.begin(), coded.end(), '\r', '!');
  std::replace(coded.begin(), coded.end(), '\n', '~');
  return coded;
}

std::string decodeMemo(std::string_view payload) {
  std::string memo;
  memo.reserve(payload.size());
  for (std::size_t place = 0; place < payload.size(); ++place) {
    if (payload.substr(place, 2) == "!~") {
      memo += "\r\n";
      ++place;
    } else {
      memo += payload[place];
    }
  }
  return memo;
}

}  // namespace pantrigo
