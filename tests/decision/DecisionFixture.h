#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"

namespace tactix::tests {

/// A decision box on a headless site, as designed: its container has not told it anything yet.
class DecisionFixture : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  DecisionFixture() { recorder_.Watch(box_->Events.All()); }

  HeadlessSite site_;
  std::unique_ptr<Decision> box_ = std::make_unique<Decision>(site_);
  Decision::ChildWidgets& children_ = box_->Children;
  EventRecorder recorder_;
};

}  // namespace tactix::tests
