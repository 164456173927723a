#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix {

class Variant;

/// The separators of format pictures. Process-wide; a front end sets it from the user's locale.
struct NumberLocale {
  std::string Grouping = ",";
  std::string Decimal = ".";
};

TACTIX_EXPORT const NumberLocale& CurrentNumberLocale();
TACTIX_EXPORT void SetNumberLocale(NumberLocale locale);

/// A number as text with a sign position: a blank before zero and positive numbers, "-" before negative ones. The
/// digits are those of Variant::ToText, whatever the locale, but without a zero before the point (" .25", "-.5"). Of a
/// variant: a flag is "True" or "False" and Null is "Null", both without a sign position; Empty is 0, text is read as
/// its number and fails with 13 where it is none, an object is its default property. A failure leaves `out` as it was.
TACTIX_EXPORT std::string Str(std::int32_t value);
TACTIX_EXPORT std::string Str(float value);
TACTIX_EXPORT std::string Str(double value);
TACTIX_EXPORT std::string Str(const Variant& value);

/// The same, behind what `out` holds. Allocates nothing where its capacity suffices.
TACTIX_EXPORT void AppendStr(std::string& out, std::int32_t value);
TACTIX_EXPORT void AppendStr(std::string& out, float value);
TACTIX_EXPORT void AppendStr(std::string& out, double value);
TACTIX_EXPORT void AppendStr(std::string& out, const Variant& value);

/// A number in a format picture, worked out on its decimal digits (15 for a double, 7 for a single) and rounded half
/// away from zero at the picture's last place:
///
///   0   a digit, always printed
///   #   a digit, printed unless it is an insignificant zero
///   .   the decimal point; printed even where no digit follows it
///   ,   left of the point: groups the whole number by thousands
///   %   prints itself; the value is multiplied by 100 for each
///
/// Anything else prints itself. Digits for which the picture has no place are printed at its first one. A "-" goes
/// before everything, unless the value has been rounded to zero. A picture without places prints no number; an empty
/// picture prints the number as Variant::ToText does. Infinities and NaN fail with 5. Variants convert as in
/// Variant::ToDouble, except that Null with an empty picture is the empty text.
TACTIX_EXPORT std::string FormatNumber(std::int32_t value, std::string_view picture);
TACTIX_EXPORT std::string FormatNumber(float value, std::string_view picture);
TACTIX_EXPORT std::string FormatNumber(double value, std::string_view picture);
TACTIX_EXPORT std::string FormatNumber(const Variant& value, std::string_view picture);

}  // namespace tactix
