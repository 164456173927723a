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

/// Lets the player pick the point value that a count system gives to one card.
class TACTIX_EXPORT CountValueSelector : public CardValueSelector {
 public:
  explicit CountValueSelector(Site& site);
  ~CountValueSelector() override;

  /// Both as CardValueSelector says.
  Coded<theCardValuePossibilities> CardValue() const { return CardNumber(); }
  void CardValue(Coded<theCardValuePossibilities> card) { CardNumber(card.Value()); }
  Coded<CardPointValuePossibilities> PointValue() const { return SelectedValue(); }
  void PointValue(Coded<CardPointValuePossibilities> value) { SelectedValue(value.Value()); }

  const PropertyTable& Properties() const override;

  struct EventSet {
    /// Carries the value. What the handler writes to it is ignored.
    Event<std::int32_t&> CountValueSelected{1, "CountValueSelected"};

    auto All() { return std::tie(CountValueSelected); }
  } Events;

  struct ChildWidgets {
    Panel panelPointValue;
    Frame fraPointValue;
    Label lblCardValue;
    ListBox cmbPointValue;
  } Children;
};

}  // namespace tactix
