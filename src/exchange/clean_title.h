#pragma once

#include <string>
#include <string_view>

namespace pantrigo {

/// The two results of cleaning a title or category word: without "?", "!" and "*", once with capitals at the starts of
/// words and small letters elsewhere, once as it was typed with each apostrophe doubled.
struct CleanTitle {
  std::string caseResult;
  std::string plainResult;
};

[[nodiscard]] CleanTitle subCleanTitle(std::string_view text);

}  // namespace pantrigo
