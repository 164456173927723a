#include "tactix/platform/Error.h"

#include <utility>

namespace tactix {

namespace {

struct CodeText {
  std::int32_t code;
  const char* text;
};

constexpr CodeText CodeTexts[] = {
    {Error::InvalidProcedureCall, "Invalid procedure call"},
    {Error::Overflow, "Overflow"},
    {Error::SubscriptOutOfRange, "Subscript out of range"},
    {Error::DivisionByZero, "Division by zero"},
    {Error::TypeMismatch, "Type mismatch"},
    {Error::ObjectNotSet, "Object not set"},
    {Error::InvalidUseOfNull, "Invalid use of Null"},
    {Error::InvalidPropertyValue, "Invalid property value"},
    {Error::ObjectRequired, "Object required"},
    {Error::NoSuchMember, "No such member"},
};

std::string DefaultDescription(std::int32_t code) {
  for (const auto& row : CodeTexts) {
    if (row.code == code) return row.text;
  }
  return "Error " + std::to_string(code);
}

}  // namespace

Error::Error(std::int32_t code, std::string description, std::string source)
    : code_(code),
      description_(description.empty() ? DefaultDescription(code) : std::move(description)),
      source_(std::move(source)) {}

Error::Error(const Error&) = default;
Error::Error(Error&&) noexcept = default;
Error& Error::operator=(const Error&) = default;
Error& Error::operator=(Error&&) noexcept = default;
Error::~Error() = default;

const char* Error::what() const noexcept { return description_.c_str(); }

}  // namespace tactix
