#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tactix {

/// A finite number as its decimal digits: 0.d1d2d3… times ten to the power of Point(). For the platform's number texts.
class Decimal {
 public:
  /// The fewest digits that read back as the same number.
  static Decimal Shortest(float value);
  static Decimal Shortest(double value);
  /// The number rounded, half away from zero, to this many significant digits; at most 17.
  static Decimal Significant(double value, int digits);

  bool IsZero() const { return count_ == 0; }
  bool IsNegative() const { return negative_; }
  /// Without leading and trailing zeros.
  std::string_view Digits() const { return {digits_.data(), static_cast<std::size_t>(count_)}; }
  int Point() const { return point_; }
  /// The digit whose place is worth ten to the power of `place`.
  char DigitAt(int place) const;

  void MultiplyByHundred() { point_ += IsZero() ? 0 : 2; }
  /// Rounds half away from zero to this many digits behind the point.
  void RoundToPlaces(int places) { KeepDigits(point_ + places); }

 private:
  static Decimal FromScientific(std::string_view text);
  void KeepDigits(int kept);
  void Trim();

  std::array<char, 40> digits_{};
  int count_ = 0;
  int point_ = 0;
  bool negative_ = false;
};

/// The number's shortest text behind what `out` holds: fixed from 0.00001 to below 1E+15, else with an exponent.
/// Infinities and NaN are words.
void AppendShortest(std::string& out, float value);
void AppendShortest(std::string& out, double value);

}  // namespace tactix
