#include "tactix/@ROOM@/@NAME@.h"

#include <limits>
#include <string>

#include "tactix/platform/PropertyTable.h"

namespace tactix {

namespace {

constexpr std::string_view ValueName = "Value";

// Twips.
constexpr float DesignWidth = 1500;
constexpr float DesignHeight = 420;

constexpr std::int16_t Highest = std::numeric_limits<std::int16_t>::max();

/// Goes on at 0 after the highest number.
std::int16_t Next(std::int16_t value) { return value == Highest ? std::int16_t{0} : static_cast<std::int16_t>(value + 1); }

}  // namespace

@NAME@::@NAME@(Site& site) : Control(site) {
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(Children.ValueButton, "ValueButton");
  Children.ValueButton.Clicked.Connect([this] { Value(Next(value_)); });
  Show(value_);
  Resized();
}

@NAME@::~@NAME@() { MarkAsGone(); }

void @NAME@::Value(std::int16_t value) {
  const Weak<@NAME@> self(this);
  Show(value);
  NotifyChanged(ValueName);
  if (self) Events.ValueChanged.Raise(value);
}

void @NAME@::Show(std::int16_t value) {
  value_ = value;
  Children.ValueButton.Caption(std::to_string(value));
}

void @NAME@::Resized() { Children.ValueButton.Place(0, 0, Extender().ScaleWidth(), Extender().ScaleHeight()); }

const PropertyTable& @NAME@::Properties() const {
  using Self = @NAME@;
  const auto restore = [](Self& self, std::int16_t value) { self.Show(value); };
  static const PropertyTable table = PropertyTable()
                                         .Property(ValueName, &Self::Value, &Self::Value)
                                         .Saved(std::int16_t{0}, {.restore = PropertyTable::SetBy(restore)});
  return table;
}

}  // namespace tactix
