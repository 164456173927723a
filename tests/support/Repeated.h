#pragma once

#include <cstddef>
#include <string>

namespace tactix::tests {

inline std::string Repeated(std::size_t times, const std::string& text) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

}  // namespace tactix::tests
