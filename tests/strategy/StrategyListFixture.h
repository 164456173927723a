#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/StrategyList.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"

namespace tactix::tests {

/// An empty list on a headless site, with a catalogue that a test describes.
class StrategyListFixture : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  StrategyListFixture() { recorder_.Watch(list_->Events.All()); }

  Texts Rows() const {
    Texts rows;
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) rows.push_back(Box().List(row));
    return rows;
  }
  ListBox& Box() const { return list_->Children.StrategyListBox; }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<StrategyList> list_ = std::make_unique<StrategyList>(site_);
  EventRecorder recorder_;
};

}  // namespace tactix::tests
