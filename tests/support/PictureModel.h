#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tactix::tests {

/// What format pictures print, worked out another way than the library does: over the C library's digits.
struct PictureModel {
  int places;
  /// How many whole digits are always printed.
  int wholeDigits;
  bool isPercentage = false;

  std::string Of(float value) const { return Print(static_cast<double>(value), 7); }
  std::string Of(double value) const { return Print(value, 15); }

  /// A whole number in groups of three digits; nothing for 0.
  static std::string Grouped(std::int32_t value) {
    std::string text = std::to_string(std::llabs(value));
    if (value == 0) text.clear();
    for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
    return value < 0 ? "-" + text : text;
  }

 private:
  std::string Print(double value, int significant) const {
    char digits[64];
    // The next number up rounds ties away from zero, and nothing else otherwise.
    const double size = value == 0 ? 0 : std::nextafter(std::fabs(value), HUGE_VAL);
    std::snprintf(digits, sizeof digits, "%.*e", significant - 1, size);
    std::uint64_t mantissa = 0;
    const char* at = digits;
    for (; *at != 'e'; ++at) {
      if (*at != '.') mantissa = mantissa * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    int shift = std::atoi(at + 1) - (significant - 1) + places + (isPercentage ? 2 : 0);
    std::string zeros;
    for (; shift > 0; --shift) zeros += '0';
    if (shift < -18) mantissa = 0;
    if (shift < 0 && mantissa != 0) {
      std::uint64_t unit = 1;
      for (; shift < 0; ++shift) unit *= 10;
      mantissa = (mantissa + unit / 2) / unit;
    }
    std::string text = mantissa == 0 ? "" : std::to_string(mantissa) + zeros;
    const auto least = static_cast<std::size_t>(places + wholeDigits);
    if (text.size() < least) text.insert(0, least - text.size(), '0');
    if (places > 0) text.insert(text.size() - static_cast<std::size_t>(places), ".");
    if (isPercentage) text += '%';
    return value < 0 && mantissa != 0 ? "-" + text : text;
  }
};

}  // namespace tactix::tests
