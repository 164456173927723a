// The look of the lists' box: the properties that all lists save.

#include "tactix/shared/EnumerationNames.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix {

namespace {

constexpr std::string_view BackColorName = "BackColor";
constexpr std::string_view ForeColorName = "ForeColor";
constexpr std::string_view EnabledName = "Enabled";
constexpr std::string_view FontName = "Font";
constexpr std::string_view TextName = "Text";
constexpr std::string_view ToolTipTextName = "ToolTipText";
constexpr std::string_view DefaultContentName = "DefaultContent";

}  // namespace

Color StrategyListControl::BackColor() const { return Box().BackColor(); }

void StrategyListControl::BackColor(Color color) {
  Box().BackColor(color);
  NotifyChanged(BackColorName);
}

Color StrategyListControl::ForeColor() const { return Box().ForeColor(); }

void StrategyListControl::ForeColor(Color color) {
  Box().ForeColor(color);
  NotifyChanged(ForeColorName);
}

bool StrategyListControl::Enabled() const { return Box().Enabled(); }

void StrategyListControl::Enabled(bool enabled) {
  const Weak<StrategyListControl> self(this);
  Box().Enabled(enabled);
  if (self) NotifyChanged(EnabledName);
}

const tactix::Font& StrategyListControl::Font() const { return Box().Font(); }

void StrategyListControl::Font(const tactix::Font& font) {
  Box().Font(font);
  NotifyChanged(FontName);
}

const std::string& StrategyListControl::Text() const { return Box().Text(); }

void StrategyListControl::Text(std::string_view text) { SetText(text, TextName); }

const std::string& StrategyListControl::ToolTipText() const { return Box().ToolTipText(); }

void StrategyListControl::ToolTipText(std::string_view text) {
  Box().ToolTipText(text);
  NotifyChanged(ToolTipTextName);
}

const std::string& StrategyListControl::DefaultContent() const { return Box().Text(); }

void StrategyListControl::DefaultContent(std::string_view text) { SetText(text, DefaultContentName); }

void StrategyListControl::SetText(std::string_view text, std::string_view propertyName) {
  const Weak<StrategyListControl> self(this);
  Box().Text(text);
  if (self) NotifyChanged(propertyName);
}

// The rows of the property table. Restoring sets the box directly, so it notifies nobody.

void StrategyListControl::SavedRow::BackColor(PropertyTable& table) {
  table.Property(BackColorName, &List::BackColor, &List::BackColor)
      .IsAColor()
      .Saved(WindowColor,
             {.restore = PropertyTable::SetBy([](List& list, Color color) { list.Box().BackColor(color); })});
}

void StrategyListControl::SavedRow::ForeColor(PropertyTable& table) {
  table.Property(ForeColorName, &List::ForeColor, &List::ForeColor)
      .IsAColor()
      .Saved(WindowTextColor,
             {.restore = PropertyTable::SetBy([](List& list, Color color) { list.Box().ForeColor(color); })});
}

void StrategyListControl::SavedRow::Enabled(PropertyTable& table) {
  table.Property(EnabledName, &List::Enabled, &List::Enabled)
      .Saved(true, {.restore = PropertyTable::SetBy([](List& list, bool enabled) { list.Box().Enabled(enabled); })});
}

void StrategyListControl::SavedRow::Font(PropertyTable& table) {
  table.Property(FontName, &List::Font, &List::Font)
      .SavedWithDefault(
          AmbientFontOf,
          {.restore = PropertyTable::SetBy([](List& list, const tactix::Font& font) { list.Box().Font(font); })});
}

void StrategyListControl::SavedRow::Text(PropertyTable& table) {
  // Restoring an empty text leaves the present one.
  table.Property(TextName, &List::Text, &List::Text)
      .Saved("", {.restore = PropertyTable::SetBy([](List& list, const std::string& text) {
                    if (!text.empty()) list.Box().Text(text);
                  })});
}

void StrategyListControl::SavedRow::ToolTipText(PropertyTable& table) {
  table.Property(ToolTipTextName, &List::ToolTipText, &List::ToolTipText)
      .Saved("", {.restore =
                      PropertyTable::SetBy([](List& list, const std::string& text) { list.Box().ToolTipText(text); })});
}

void StrategyListControl::SavedRow::DefaultContent(PropertyTable& table) {
  table.Property(DefaultContentName, &List::DefaultContent, &List::DefaultContent)
      .Saved("", {.ways = SavedWays::SavedOnly});
}

void StrategyListControl::AddTheOtherProperties(PropertyTable& table) {
  table.Property("ControlType", &List::ControlType, &List::ControlType)
      .Property("ListIndex", &List::ListIndex, &List::ListIndex)
      .GetOnly("Style", &List::Style)
      .Property("Visible", &List::Visible, &List::Visible)
      .GetOnly("StrategyCount", &List::StrategyCount);
}

MethodTable StrategyListControl::CommonMethods() {
  return MethodTable()
      .Method("AddItem", &List::AddItem)
      .Method("LoadStrategiesFromIniFile", &List::LoadStrategiesFromIniFile)
      .Method("UseThisStrategyList", &List::UseThisStrategyList);
}

}  // namespace tactix
