#include "tactix/platform/private/Decimal.h"

#include <charconv>
#include <cmath>

namespace tactix {

namespace {

// Enough digits to tell an exact tie from what only comes close to one.
constexpr int ExactPrecision = 36;

constexpr int FirstFixedPoint = -4;  // 0.00001

void Append(std::string& out, double value, int digitsKept, WholePart belowOne) {
  if (std::isnan(value)) {
    out += "NaN";
    return;
  }
  if (std::isinf(value)) {
    out += value < 0 ? "-Infinity" : "Infinity";
    return;
  }
  const Decimal decimal = Decimal::Significant(value, digitsKept);
  if (decimal.IsZero()) {
    out += '0';
    return;
  }
  if (decimal.IsNegative()) out += '-';
  const std::string_view digits = decimal.Digits();
  const int count = static_cast<int>(digits.size());
  const int point = decimal.Point();
  if (point >= FirstFixedPoint && point <= digitsKept) {
    if (point <= 0 && belowOne == WholePart::Zero) out += '0';
    for (int place = point - 1; place >= 0; --place) out += decimal.DigitAt(place);
    if (count > point) out += '.';
    for (int place = -1; place >= point - count; --place) out += decimal.DigitAt(place);
    return;
  }
  out += digits.front();
  if (count > 1) out += '.';
  out += digits.substr(1);
  const int exponent = point - 1;
  out += exponent < 0 ? "E-" : "E+";
  const int size = std::abs(exponent);
  if (size < 10) out += '0';
  char text[8];
  const auto end = std::to_chars(text, text + sizeof text, size).ptr;
  out.append(text, end);
}

}  // namespace

Decimal Decimal::FromScientific(std::string_view text) {
  Decimal decimal;
  std::size_t at = 0;
  if (text[at] == '-') {
    decimal.negative_ = true;
    ++at;
  }
  for (; text[at] != 'e'; ++at) {
    if (text[at] != '.') decimal.digits_[static_cast<std::size_t>(decimal.count_++)] = text[at];
  }
  ++at;
  if (text[at] == '+') ++at;
  std::from_chars(text.data() + at, text.data() + text.size(), decimal.point_);
  ++decimal.point_;
  decimal.Trim();
  return decimal;
}

Decimal Decimal::Significant(double value, int digits) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, ExactPrecision).ptr;
  Decimal decimal = FromScientific({text, static_cast<std::size_t>(end - text)});
  decimal.KeepDigits(digits);
  return decimal;
}

char Decimal::DigitAt(int place) const {
  const int index = point_ - 1 - place;
  return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
}

void Decimal::KeepDigits(int kept) {
  if (kept >= count_) return;
  const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
  count_ = kept > 0 ? kept : 0;
  if (up) {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '9') --count_;
    if (count_ == 0) {
      digits_[0] = '1';
      count_ = 1;
      ++point_;
    } else {
      ++digits_[static_cast<std::size_t>(count_ - 1)];
    }
  }
  Trim();
}

void Decimal::Trim() {
  while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
  if (count_ > 0) return;
  point_ = 0;
  negative_ = false;
}

void AppendNumber(std::string& out, float value, WholePart belowOne) {
  Append(out, static_cast<double>(value), SingleDigits, belowOne);
}

void AppendNumber(std::string& out, double value, WholePart belowOne) { Append(out, value, DoubleDigits, belowOne); }

}  // namespace tactix
