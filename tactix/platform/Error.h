#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "tactix/platform/Export.h"

namespace tactix {

/// A failure with one of the platform's error codes. Hosts may throw codes of their own.
class TACTIX_EXPORT Error : public std::exception {
 public:
  enum KnownCode : std::int32_t {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    ObjectRequired = 424,
    NoSuchMember = 438,
  };

  /// An empty description is replaced by the code's own text.
  explicit Error(std::int32_t code, std::string description = {}, std::string source = {});
  Error(const Error&);
  Error(Error&&) noexcept;
  Error& operator=(const Error&);
  Error& operator=(Error&&) noexcept;
  ~Error() override;

  std::int32_t Code() const noexcept { return code_; }
  /// Where the error comes from; empty unless given to the constructor.
  const std::string& Source() const noexcept { return source_; }
  const std::string& Description() const noexcept { return description_; }
  const char* what() const noexcept override;

 private:
  std::int32_t code_;
  std::string description_;
  std::string source_;
};

}  // namespace tactix
