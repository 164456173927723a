#include "tactix/platform/PropertyTable.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/Site.h"

namespace tactix {

PropertyTable& PropertyTable::Saved(Variant defaultValue, SavedDifferently differently) {
  return SavedWithDefault(Always(std::move(defaultValue)), std::move(differently));
}

PropertyTable& PropertyTable::SavedWithDefault(Getter defaultValue, SavedDifferently differently) {
  Row& row = LastRow();
  row.savedAs = differently.name.empty() ? row.name : std::string(differently.name);
  SavedRow saved{.name = row.savedAs, .defaultValue = std::move(defaultValue), .always = differently.always};
  if (differently.ways != SavedWays::RestoredOnly) saved.value = differently.value ? differently.value : row.get;
  if (differently.ways != SavedWays::SavedOnly) saved.restore = differently.restore ? differently.restore : row.set;
  return SavedBeside(std::move(saved));
}

PropertyTable& PropertyTable::SavedBeside(SavedRow row) {
  saved_.push_back(std::move(row));
  return *this;
}

PropertyTable::Getter PropertyTable::Always(Variant value) {
  return [value = std::move(value)](Control&) { return value; };
}

PropertyTable& PropertyTable::FailedReads(OnFailedRead onFailure) {
  onFailedRead_ = onFailure;
  return *this;
}

PropertyTable& PropertyTable::FailedWrites(OnFailure onFailure) {
  onFailedWrite_ = onFailure;
  return *this;
}

void PropertyTable::Restore(Control& control, PropertyBag& bag) const {
  const Weak<Control> self(control);
  for (const SavedRow& row : saved_) {
    if (!row.restore) continue;
    const Variant defaultValue = row.defaultValue(control);
    if (!self) return;
    try {
      const Variant value = bag.Read(row.name, defaultValue).Plain();
      if (self) row.restore(control, value);
    } catch (const Error&) {
      if (onFailedRead_ == OnFailedRead::Report) throw;
      if (self && onFailedRead_ == OnFailedRead::TakeTheDefault) row.restore(control, defaultValue);
    }
    if (!self) return;
  }
}

void PropertyTable::Save(Control& control, PropertyBag& bag) const {
  const Weak<Control> self(control);
  for (const SavedRow& row : saved_) {
    if (!row.value) continue;
    Run(onFailedWrite_, [&] {
      const Variant value = row.value(control);
      if (!self) return;
      if (row.always) {
        bag.Write(row.name, value);
      } else {
        bag.Write(row.name, value, row.defaultValue(control));
      }
    });
    if (!self) return;
  }
}

Variant AmbientFontOf(Control& control) { return control.ItsSite().AmbientFont(); }

}  // namespace tactix
