#pragma once

#include <memory>
#include <string>

#include "tactix/companion/IniStrategyCatalogue.h"

namespace tactix::bench {

inline constexpr int Strategies = 55;

/// The longest catalogue whose rows a list reports: strategies 0 to 54.
inline std::shared_ptr<StrategyCatalogue> FullCatalogue() {
  std::string text = "[Playing -1]\ncaption = Empty Seat\npresent = no\n";
  for (int i = 0; i < Strategies; ++i) {
    const std::string number = std::to_string(i);
    text += "[Playing " + number + "]\ncaption = Basic Strategy with Departures " + number +
            "\nnote = Four to eight decks; the dealer stands on soft 17\n";
  }
  return std::make_shared<companion::IniStrategyCatalogue>(text, "bench");
}

}  // namespace tactix::bench
