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

/// What happens when a saved property cannot be read. PassOver goes on with the next one; Report stops, and the error
/// reaches the container; TakeTheDefault sets the property to its default.
enum class OnFailedRead { PassOver, Report, TakeTheDefault };

/// Whether a property is both saved and restored, or only one of the two.
enum class SavedWays { BothWays, SavedOnly, RestoredOnly };

/// How saving a property differs from reading and setting it.
struct SavedDifferently {
  SavedWays ways = SavedWays::BothWays;
  /// Its name in saved forms and notices; empty: the property's own.
  std::string_view name = {};
  /// Gives the value to save; empty: the property is read.
  std::function<Variant(Control&)> value = nullptr;
  /// Takes the restored value; empty: the property is set.
  std::function<void(Control&, const Variant&)> restore = nullptr;
  /// Saved even when it equals its default.
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

  /// Makes the property added last a saved one, with this default. Properties are saved and restored in the order of
  /// these calls.
  PropertyTable& Saved(Variant defaultValue, SavedDifferently differently = {});
  /// The same with a default that depends on the control.
  PropertyTable& SavedWithDefault(Getter defaultValue, SavedDifferently differently = {});
  /// Saves or restores something that is not a property.
  PropertyTable& SavedBeside(SavedRow row);

  /// A default that is the same for all controls of the class.
  static Getter Always(Variant value);

  /// PassOver by default, both.
  PropertyTable& FailedReads(OnFailedRead onFailure);
  PropertyTable& FailedWrites(OnFailure onFailure);

  /// In the order in which they are saved and restored.
  const std::vector<SavedRow>& SavedRows() const { return saved_; }

  /// What Control::ReadProperties and WriteProperties do. They stop if the bag destroys the control.
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
