#include "tactix/platform/Tolerance.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

TEST(ToleranceTest, ObjectNotSetAloneIsPassedOver) {
  int steps = 0;
  PassingOverObjectNotSet([&] {
    ++steps;
    throw Error(Error::ObjectNotSet);
  });
  PassingOverObjectNotSet([&] { ++steps; });
  EXPECT_EQ(steps, 2);
  for (const int code : {5, 13, 90, 92, 380, 1234}) {
    EXPECT_EQ(ErrorCodeOf([&] { PassingOverObjectNotSet([&] { throw Error(code); }); }), code);
  }
  EXPECT_THROW(PassingOverObjectNotSet([] { throw std::runtime_error("other"); }), std::runtime_error);
}

TEST(ToleranceTest, EveryErrorIsIgnoredAndNothingElse) {
  for (const int code : {5, 91, 1234}) {
    EXPECT_EQ(ErrorCodeOf([&] { IgnoringErrors([&] { throw Error(code); }); }), 0);
  }
  EXPECT_THROW(IgnoringErrors([] { throw std::runtime_error("other"); }), std::runtime_error);
}

}  // namespace
}  // namespace tactix::tests
