#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Frame.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/platform/widgets/Panel.h"

namespace tactix {

/// What the selectors of a card's value have in common: a drop-down list from which the player picks the value, -10 to
/// +10, of the card beside it. Row r of the list stands for the value r - 10; no row is selected in a new one.
///
/// The card is ace (1) to ten (10), the ace by default; setting other numbers does nothing. Setting it shows an ace as
/// "A" and a ten as "T"; restoring it sets any number and shows it in digits.
///
/// The value is the one that was picked, 0 at first. Setting it takes 1 to 10 only, and reports what the list shows,
/// -11 for no row, instead of the number that was set: a host cannot move the list. With a row selected it reports
/// twice. Restoring a value selects its row, and reports it.
class TACTIX_EXPORT CardValueSelector : public Control {
 public:
  ~CardValueSelector() override;

  void Resized() override;

  static constexpr std::int32_t LowestValue = -10;
  static constexpr std::int32_t HighestValue = 10;

 protected:
  using SelectedEvent = Event<std::int32_t&>;

  /// What tells one selector from the other.
  struct Variety {
    std::string_view valueName;
    std::string_view panelName;
    std::string_view frameName;
    std::string_view frameCaption;
    std::string_view listName;
  };
  struct Widgets {
    Panel& panel;
    Frame& frame;
    ListBox& list;
    Label& card;
  };

  /// The widgets and the event are the derived class's members.
  CardValueSelector(Site& site, const Variety& variety, const Widgets& widgets, SelectedEvent& selected)
      : Control(site), variety_(variety), widgets_(widgets), selected_(selected) {}
  /// Builds the widgets; called by the derived class's constructor.
  void Build();

  static constexpr std::string_view CardValueName = "CardValue";
  static constexpr std::int32_t DefaultCard = 1;
  static constexpr std::int32_t DefaultValue = 0;
  /// Restore the two properties as they were saved, without the setters' rules.
  void RestoreValue(std::int32_t value);
  void RestoreCard(std::int32_t card);

  std::int32_t CardNumber() const { return cardNumber_; }
  void CardNumber(std::int32_t card);
  std::int32_t SelectedValue() const { return selectedValue_; }
  void SelectedValue(std::int32_t value);

 private:
  void Arrange();
  void TakeThePick();
  void PositionTheList();

  const Variety variety_;
  const Widgets widgets_;
  SelectedEvent& selected_;
  std::int32_t cardNumber_ = DefaultCard;
  std::int32_t selectedValue_ = DefaultValue;
};

}  // namespace tactix
