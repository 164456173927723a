#pragma once

#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// One card count: a small coloured tag, "RC" for the running count or "TC" for the true count, and the value beside
/// it. Display only; raises no events.
class TACTIX_EXPORT CardCountDisplayBox : public Control {
 public:
  explicit CardCountDisplayBox(Site& site);
  ~CardCountDisplayBox() override;

  /// Which count it is, noCountBox by default; saved and notified. Setting it, even to the value it has, repaints the
  /// box: the tag takes the type's text and colour (a number that is no type leaves it as it is), the value the shadow
  /// box's colour.
  Coded<TypeOfCountBox> CountBoxType() const { return countBoxType_; }
  void CountBoxType(Coded<TypeOfCountBox> type);
  /// Shows a value, which may be any number.
  void CountValue(Coded<CardCountDisplayValueRanges> value);
  /// The colour behind the value, white for 0. Shown only at the next repaint, that is when CountBoxType is set.
  void ShadowBoxStatus(Coded<ShadowBoxingConstants> status) { shadowBoxStatus_ = status; }

  /// The tag's colours; system colours by default. Not saved.
  Color BackColor() const { return Children.labelCountLabel.BackColor(); }
  void BackColor(Color color) { Children.labelCountLabel.BackColor(color); }
  Color ForeColor() const { return Children.labelCountLabel.ForeColor(); }
  void ForeColor(Color color) { Children.labelCountLabel.ForeColor(color); }

  void Resized() override;
  const PropertyTable& Properties() const override;

  struct EventSet {
    std::tuple<> All() { return {}; }
  } Events;

  struct ChildWidgets {
    Label labelCountLabel;
    Label labelCountValue;
  } Children;

 private:
  void Repaint();

  Coded<TypeOfCountBox> countBoxType_ = TypeOfCountBox::noCountBox;
  Coded<ShadowBoxingConstants> shadowBoxStatus_ = ShadowBoxingConstants::ShadowBoxingDisabled;
};

}  // namespace tactix
