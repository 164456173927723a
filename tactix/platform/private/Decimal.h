#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tactix {

/// A finite number as its decimal digits: 0.d1d2d3… times ten to the power of Point(). For the platform's number texts.
class Decimal {
 public:
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

/// How many significant digits the platform's texts give to a number.
inline constexpr int SingleDigits = 7;
inline constexpr int DoubleDigits = 15;

/// What a text writes before the point of a number below 1.
enum class WholePart { Zero, Nothing };

/// The number's text behind what `out` holds, rounded to its significant digits: fixed from 0.00001 up to as many
/// digits before the point, else with an exponent. Infinities and NaN are words.
void AppendNumber(std::string& out, float value, WholePart belowOne = WholePart::Zero);
void AppendNumber(std::string& out, double value, WholePart belowOne = WholePart::Zero);

}  // namespace tactix
