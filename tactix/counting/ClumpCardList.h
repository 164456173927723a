#pragma once

#include <cstdint>
#include <tuple>

#include "tactix/counting/CardValueSelector.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Frame.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/platform/widgets/Panel.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// Lets the player pick the clump value of one card.
class TACTIX_EXPORT ClumpCardList : public CardValueSelector {
 public:
  explicit ClumpCardList(Site& site);
  ~ClumpCardList() override;

  /// Both as CardValueSelector says.
  Coded<theClumpCardValuePossibilities> CardValue() const { return CardNumber(); }
  void CardValue(Coded<theClumpCardValuePossibilities> card) { CardNumber(card.Value()); }
  Coded<CardClumpValuePossibilities> ClumpValue() const { return SelectedValue(); }
  void ClumpValue(Coded<CardClumpValuePossibilities> value) { SelectedValue(value.Value()); }

  const PropertyTable& Properties() const override;

  struct EventSet {
    /// Carries the value. What the handler writes to it is ignored.
    Event<std::int32_t&> ClumpValueSelected{1, "ClumpValueSelected"};

    auto All() { return std::tie(ClumpValueSelected); }
  } Events;

  struct ChildWidgets {
    Panel panelClumpValue;
    Frame fraClumpValue;
    Label lblCardValue;
    ListBox cmbClumpValue;
  } Children;
};

}  // namespace tactix
