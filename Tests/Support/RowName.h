#pragma once

#include <string>

#include <gtest/gtest.h>

namespace TestSupport {

// Names the parameterised tests after their rows' name column.
struct RowName {
  template <typename Row>
  std::string operator()(const testing::TestParamInfo<Row>& info) const {
    return info.param.name;
  }
};

}  // namespace TestSupport
