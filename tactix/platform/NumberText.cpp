#include "tactix/platform/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/private/Decimal.h"

namespace tactix {

namespace {

NumberLocale& Locale() {
  static NumberLocale locale;
  return locale;
}

template <class Number>
void AppendStrOf(std::string& out, Number value) {
  if (!(value < 0)) out += ' ';
  AppendNumber(out, value, WholePart::Nothing);
}

constexpr bool IsPlace(char c) { return c == '0' || c == '#'; }

/// What a picture asks for.
struct Picture {
  explicit Picture(std::string_view picture) : text(picture) {
    point = std::min(text.find('.'), text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char c = text[i];
      if (c == '%') ++percents;
      if (c == ',' && i < point) groups = true;
      if (!IsPlace(c)) continue;
      if (i < point) {
        ++wholePlaces;
        if (c == '0' || wholeDigits > 0) ++wholeDigits;
      } else {
        ++fractionPlaces;
        if (c == '0') fractionDigits = fractionPlaces;
      }
    }
  }
  bool HasPlaces() const { return wholePlaces + fractionPlaces > 0; }

  std::string_view text;
  std::size_t point = 0;
  int wholePlaces = 0;
  int wholeDigits = 0;  // of them always printed
  int fractionPlaces = 0;
  int fractionDigits = 0;  // of them always printed
  int percents = 0;
  bool groups = false;
};

class PicturePrinter {
 public:
  PicturePrinter(const Picture& picture, const Decimal& number)
      : picture_(picture),
        number_(number),
        nextWhole_(std::max({number.Point(), picture.wholePlaces, 0})),
        wholeDigits_(std::max(number.Point(), picture.wholeDigits)),
        lastFraction_(std::max(static_cast<int>(number.Digits().size()) - number.Point(), picture.fractionDigits)) {}

  std::string Print() {
    if (number_.IsNegative() && picture_.HasPlaces()) out_ += '-';
    int wholePlace = picture_.wholePlaces;
    int fractionPlace = 0;
    for (std::size_t i = 0; i < picture_.text.size(); ++i) {
      const char c = picture_.text[i];
      if (i == picture_.point) {
        if (picture_.wholePlaces == 0 && picture_.fractionPlaces > 0) PrintWholeDownTo(0);
        out_ += Locale().Decimal;
      } else if (IsPlace(c) && i < picture_.point) {
        PrintWholeDownTo(--wholePlace);
      } else if (IsPlace(c)) {
        if (++fractionPlace <= lastFraction_) out_ += number_.DigitAt(-fractionPlace);
      } else if (c != ',') {
        out_ += c;
      }
    }
    return std::move(out_);
  }

 private:
  void PrintWholeDownTo(int place) {
    while (nextWhole_ > place) {
      --nextWhole_;
      if (nextWhole_ >= wholeDigits_) continue;
      out_ += number_.DigitAt(nextWhole_);
      if (picture_.groups && nextWhole_ > 0 && nextWhole_ % 3 == 0) out_ += Locale().Grouping;
    }
  }

  const Picture& picture_;
  const Decimal& number_;
  int nextWhole_;     // the place above the next whole digit to print
  int wholeDigits_;   // how many whole digits count
  int lastFraction_;  // how many digits behind the point count
  std::string out_;
};

std::string Format(double value, int digits, std::string_view pictureText) {
  const Picture picture(pictureText);
  Decimal number = Decimal::Significant(value, digits);
  for (int i = 0; i < picture.percents; ++i) number.MultiplyByHundred();
  number.RoundToPlaces(picture.fractionPlaces);
  return PicturePrinter(picture, number).Print();
}

template <class Number>
std::string FormatFinite(Number value, int digits, std::string_view picture) {
  if (!std::isfinite(value)) throw Error(Error::InvalidProcedureCall);
  if (!picture.empty()) return Format(static_cast<double>(value), digits, picture);
  std::string out;
  AppendNumber(out, value);
  return out;
}

}  // namespace

const NumberLocale& CurrentNumberLocale() { return Locale(); }
void SetNumberLocale(NumberLocale locale) { Locale() = std::move(locale); }

void AppendStr(std::string& out, std::int32_t value) {
  char text[16];
  text[0] = ' ';
  char* const digits = value < 0 ? text : text + 1;
  out.append(text, std::to_chars(digits, text + sizeof text, value).ptr);
}

void AppendStr(std::string& out, float value) { AppendStrOf(out, value); }
void AppendStr(std::string& out, double value) { AppendStrOf(out, value); }

void AppendStr(std::string& out, const Variant& value) {
  switch (value.Type()) {
    case VariantType::Null:
      out += "Null";
      return;
    case VariantType::Boolean:
      out += value.ToText();
      return;
    case VariantType::Object:
      return AppendStr(out, value.Plain());
    case VariantType::Empty:
    case VariantType::Integer:
    case VariantType::Long:
      return AppendStr(out, value.ToLong());
    case VariantType::Single:
      return AppendStr(out, value.ToSingle());
    default:
      return AppendStr(out, value.ToDouble());
  }
}

std::string Str(std::int32_t value) {
  std::string out;
  AppendStr(out, value);
  return out;
}

std::string Str(float value) {
  std::string out;
  AppendStr(out, value);
  return out;
}

std::string Str(double value) {
  std::string out;
  AppendStr(out, value);
  return out;
}

std::string Str(const Variant& value) {
  std::string out;
  AppendStr(out, value);
  return out;
}

std::string FormatNumber(std::int32_t value, std::string_view picture) {
  return FormatFinite(static_cast<double>(value), DoubleDigits, picture);
}

std::string FormatNumber(float value, std::string_view picture) { return FormatFinite(value, SingleDigits, picture); }

std::string FormatNumber(double value, std::string_view picture) { return FormatFinite(value, DoubleDigits, picture); }

std::string FormatNumber(const Variant& value, std::string_view picture) {
  if (value.Type() == VariantType::Object) return FormatNumber(value.Plain(), picture);
  if (value.IsNull() && picture.empty()) return {};
  if (value.Type() == VariantType::Single) return FormatNumber(value.ToSingle(), picture);
  return FormatNumber(value.ToDouble(), picture);
}

}  // namespace tactix
