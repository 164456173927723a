#pragma once

#include <gtest/gtest.h>

#include <string>

namespace tactix::tests {

/// Names the cases of a table test by their rows' `name`.
struct RowName {
  template <class Row>
  std::string operator()(const testing::TestParamInfo<Row>& row) const {
    return row.param.name;
  }
};

}  // namespace tactix::tests
