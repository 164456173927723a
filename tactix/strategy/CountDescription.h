#pragma once

#include <string_view>

#include "tactix/strategy/CountStrategyRecord.h"

namespace tactix {

/// Takes a count system's description apart: "description,caption,enciphered listed n n n n " and no more. Each field
/// that has been read is in the record, also where a later one fails.
class CountDescription {
 public:
  /// The text must live on.
  explicit CountDescription(std::string_view text) : rest_(text) {}

  /// Reads up to the second flag; the record's name is then the row's text. True when the system is listed, so that its
  /// numbers follow. Fails with 5 without any comma, or where a blank behind a flag is missing; with 13 where a flag
  /// is none.
  bool ReadTexts(CountStrategyRecord& record, int system);
  /// Reads the four whole numbers. Fails with 5, 6 or 13 where one is missing or none; with 9 where a field follows.
  void ReadNumbers(CountStrategyRecord& record, int system);

 private:
  /// The text up to the separator, which is passed over.
  std::string_view Next(char separator);
  bool Has(char separator) const { return rest_.find(separator) != std::string_view::npos; }

  std::string_view rest_;
};

}  // namespace tactix
