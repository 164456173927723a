#pragma once

#include <string>

#include "tactix/companion/PlayingTable.h"
#include "trainer/engine/Strategy.h"

namespace trainer::screens {

/// A strategy of the catalogue, played by its table.
class TableStrategy final : public engine::Strategy {
 public:
  TableStrategy(std::string name, const tactix::companion::PlayingTable& table)
      : name_(std::move(name)), table_(table) {}

  [[nodiscard]] std::string_view Name() const override { return name_; }

 private:
  [[nodiscard]] engine::Decision Wish(const engine::Hand& hand, engine::Rank upCard, const engine::LegalPlays& legal,
                                      const engine::Rules& rules) const override;

  std::string name_;
  tactix::companion::PlayingTable table_;
};

}  // namespace trainer::screens
