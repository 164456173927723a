#pragma once

#include <cstddef>

namespace tactix::tests {

/// How often operator new has been called in this process.
std::size_t Allocations();

}  // namespace tactix::tests
