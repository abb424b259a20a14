#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pantrigo {

/// A set of row numbers, a bit for each number from the lowest to the highest.
class RowSet {
 public:
  /// At least one number.
  explicit RowSet(const std::vector<std::int64_t>& rowNumbers) {
    const auto [lowest, highest] = std::ranges::minmax(rowNumbers);
    lowest_ = lowest;
    bits_.resize(static_cast<std::size_t>(highest - lowest) + 1);
    for (const std::int64_t number : rowNumbers) bits_[static_cast<std::size_t>(number - lowest_)] = true;
  }

  [[nodiscard]] bool contains(std::int64_t rowNumber) const {
    const auto place = static_cast<std::uint64_t>(rowNumber) - static_cast<std::uint64_t>(lowest_);
    return place < bits_.size() && bits_[place];
  }

 private:
  std::int64_t lowest_ = 0;
  std::vector<bool> bits_;
};

}  // namespace pantrigo
