#pragma once

#include <string_view>

#include "tactix/strategy/CountStrategyRecord.h"

namespace tactix {

/// Takes a count system's description apart: "description,caption,enciphered listed n n n n " and no more. Fields that
/// were read before a failure stay in the record.
class CountDescription {
 public:
  /// The text must outlive this object.
  explicit CountDescription(std::string_view text) : rest_(text) {}

  /// Reads up to the second flag; the record's name is then the row's text. True when the system is listed, so that its
  /// numbers follow. Fails with 5 where there is no comma, or no blank after a flag, and with 13 where a flag is not
  /// one.
  bool ReadTexts(CountStrategyRecord& record, int system);
  /// Reads the four whole numbers. Fails with 5 where one is missing, with 6 or 13 where it is no 16-bit number, and
  /// with 9 where another field follows.
  void ReadNumbers(CountStrategyRecord& record, int system);

 private:
  /// Takes the text up to the separator, and the separator; fails with 5 where there is none.
  std::string_view Next(char separator);
  bool Has(char separator) const { return rest_.find(separator) != std::string_view::npos; }

  std::string_view rest_;
};

}  // namespace tactix
