#include "tactix/platform/Error.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace tactix {
namespace {

TEST(ErrorTest, KnownCodesHaveTheirNumberAndDescription) {
  struct Row {
    std::int32_t code;
    std::int32_t number;
    const char* description;
  };
  const Row rows[] = {
      {Error::InvalidProcedureCall, 5, "Invalid procedure call"},
      {Error::Overflow, 6, "Overflow"},
      {Error::SubscriptOutOfRange, 9, "Subscript out of range"},
      {Error::DivisionByZero, 11, "Division by zero"},
      {Error::TypeMismatch, 13, "Type mismatch"},
      {Error::ObjectNotSet, 91, "Object not set"},
      {Error::InvalidUseOfNull, 94, "Invalid use of Null"},
      {Error::InvalidPropertyValue, 380, "Invalid property value"},
      {Error::ObjectRequired, 424, "Object required"},
      {Error::NoSuchMember, 438, "No such member"},
      {-7, -7, "Error -7"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.number);
    const Error error(row.code);
    EXPECT_EQ(error.Code(), row.number);
    EXPECT_EQ(error.Description(), row.description);
    EXPECT_STREQ(error.what(), row.description);
    EXPECT_EQ(error.Source(), "");
  }
}

TEST(ErrorTest, KeepsItsOwnDescriptionAndSource) {
  const Error error(Error::TypeMismatch, "LoadTheList", "BettingStrategyList::");
  EXPECT_EQ(error.Code(), 13);
  EXPECT_EQ(error.Description(), "LoadTheList");
  EXPECT_STREQ(error.what(), "LoadTheList");
  EXPECT_EQ(error.Source(), "BettingStrategyList::");
}

TEST(ErrorTest, ASourceAloneLeavesTheCodesDescription) {
  const Error error(Error::Overflow, {}, "here");
  EXPECT_EQ(error.Description(), "Overflow");
  EXPECT_EQ(error.Source(), "here");
}

TEST(ErrorTest, IsCaughtAsAnException) {
  try {
    throw Error(Error::DivisionByZero);
  } catch (const std::exception& exception) {
    EXPECT_STREQ(exception.what(), "Division by zero");
  }
  static_assert(!std::is_convertible_v<std::int32_t, Error>);
}

}  // namespace
}  // namespace tactix
