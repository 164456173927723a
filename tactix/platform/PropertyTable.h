#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/PropertyRows.h"
#include "tactix/platform/Tolerance.h"

namespace tactix {

/// What happens where a saved property cannot be read: the next one has its turn, the error ends it and reaches the
/// container, or the property takes its default.
enum class OnFailedRead { PassOver, Report, TakeTheDefault };

enum class SavedWays { BothWays, SavedOnly, RestoredOnly };

/// What is not as a saved property's own row says.
struct SavedDifferently {
  SavedWays ways = SavedWays::BothWays;
  /// Its name in saved forms and notices.
  std::string_view name = {};
  /// What is saved, where that is not what the property reads.
  std::function<Variant(Control&)> value = nullptr;
  /// How it comes back, where that is not by setting the property.
  std::function<void(Control&, const Variant&)> restore = nullptr;
  /// Saved also where it equals its default.
  bool always = false;
};

/// The properties of a control class: for late-bound access, for saving and restoring, for type information and for
/// sweeps over all controls.
class TACTIX_EXPORT PropertyTable : public PropertyRows<PropertyTable, Control> {
 public:
  struct SavedRow {
    std::string name;
    Getter defaultValue;
    Getter value = nullptr;    ///< empty: never saved
    Setter restore = nullptr;  ///< empty: never read back
    bool always = false;
  };

  /// The property added last is saved, with this default. Properties are saved and restored in the order in which this
  /// was said of them.
  PropertyTable& Saved(Variant defaultValue, SavedDifferently differently = {});
  /// The same with a default that depends on the control.
  PropertyTable& SavedWithDefault(Getter defaultValue, SavedDifferently differently = {});
  /// Something saved or read back that is no property.
  PropertyTable& SavedBeside(SavedRow row);

  /// A default that is the same for all controls of the class.
  static Getter Always(Variant value);

  /// PassOver by default, both.
  PropertyTable& FailedReads(OnFailedRead onFailure);
  PropertyTable& FailedWrites(OnFailure onFailure);

  /// In the order in which they are saved and restored.
  const std::vector<SavedRow>& SavedRows() const { return saved_; }

  /// What Control::ReadProperties and WriteProperties do. The bag may destroy the control, which ends it.
  void Restore(Control& control, PropertyBag& bag) const;
  void Save(Control& control, PropertyBag& bag) const;

 private:
  std::vector<SavedRow> saved_;
  OnFailedRead onFailedRead_ = OnFailedRead::PassOver;
  OnFailure onFailedWrite_ = OnFailure::PassOver;
};

/// The container's font: what a saved font defaults to.
TACTIX_EXPORT Variant AmbientFontOf(Control& control);

}  // namespace tactix
