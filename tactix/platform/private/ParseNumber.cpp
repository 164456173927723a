#include "tactix/platform/private/ParseNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <system_error>

#include "tactix/platform/Error.h"

namespace tactix {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view Blanks = " \t\r\n\v\f";
  const auto first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

double ParsePattern(std::string_view digits) {
  std::uint32_t pattern = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, pattern, 16);
  if (result.ptr != end || result.ec == std::errc::invalid_argument) throw Error(Error::TypeMismatch);
  if (result.ec == std::errc::result_out_of_range) throw Error(Error::Overflow);
  return static_cast<std::int32_t>(pattern);
}

/// Collects digits and a power of ten. They go to strtod without a decimal point, which it would expect as the locale
/// writes it.
class ScaledDigits {
 public:
  void AddWhole(char digit) {
    if (!Add(digit)) ++exponent_;
  }
  void AddFraction(char digit) {
    if (Add(digit)) --exponent_;
  }
  void AddExponent(std::int64_t exponent) { exponent_ += exponent; }

  double Value() const {
    if (count_ == 0) return 0;
    char text[MostDigits + 32];
    char* end = std::copy(digits_, digits_ + count_, text);
    std::int64_t exponent = exponent_;
    if (inexact_) {  // one more digit, so that what was left out does not look like an exact tie
      *end++ = '1';
      --exponent;
    }
    *end++ = 'e';
    end = std::to_chars(end, text + sizeof text - 1, exponent).ptr;
    *end = '\0';
    return std::strtod(text, nullptr);
  }

 private:
  static constexpr int MostDigits = 40;

  bool Add(char digit) {
    if (count_ == 0 && digit == '0') return true;
    if (count_ < MostDigits) {
      digits_[count_++] = digit;
      return true;
    }
    inexact_ = inexact_ || digit != '0';
    return false;
  }

  char digits_[MostDigits] = {};
  int count_ = 0;
  std::int64_t exponent_ = 0;
  bool inexact_ = false;
};

double ParseDecimal(std::string_view text) {
  std::size_t at = 0;
  const auto next = [&] { return at < text.size() ? text[at] : '\0'; };
  const bool negative = next() == '-';
  if (negative || next() == '+') ++at;

  ScaledDigits digits;
  bool any = false;
  for (; IsDigit(next()); ++at, any = true) digits.AddWhole(next());
  if (next() == '.') ++at;
  for (; IsDigit(next()); ++at, any = true) digits.AddFraction(next());
  if (!any) throw Error(Error::TypeMismatch);

  if (next() == 'e' || next() == 'E') {
    ++at;
    const bool small = next() == '-';
    if (small || next() == '+') ++at;
    if (!IsDigit(next())) throw Error(Error::TypeMismatch);
    constexpr std::int64_t Plenty = 1'000'000'000'000;  // more than any text has digits
    std::int64_t exponent = 0;
    for (; IsDigit(next()); ++at) exponent = std::min(exponent * 10 + (next() - '0'), Plenty);
    digits.AddExponent(small ? -exponent : exponent);
  }
  if (at != text.size()) throw Error(Error::TypeMismatch);

  const double value = digits.Value();
  if (std::isinf(value)) throw Error(Error::Overflow);
  return negative ? -value : value;
}

}  // namespace

double ParseNumber(std::string_view text) {
  text = WithoutBlanks(text);
  if (text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) return ParsePattern(text.substr(2));
  return ParseDecimal(text);
}

}  // namespace tactix
