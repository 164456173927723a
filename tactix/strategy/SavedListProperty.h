#pragma once

#include <string_view>

#include "tactix/platform/Site.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/ListBox.h"

namespace tactix {

/// A property of a list's box as it is saved.
struct SavedListProperty {
  std::string_view name;
  Variant (*defaultValue)(const Site& site);
  Variant (*get)(const ListBox& box);
  void (*set)(ListBox& box, const Variant& value);  ///< null: written, and not read back
};

inline constexpr SavedListProperty SavedBackColor = {
    "BackColor", [](const Site&) { return Variant(WindowColor); },
    [](const ListBox& box) { return Variant(box.BackColor()); },
    [](ListBox& box, const Variant& value) { box.BackColor(value.ToLong()); }};

inline constexpr SavedListProperty SavedForeColor = {
    "ForeColor", [](const Site&) { return Variant(WindowTextColor); },
    [](const ListBox& box) { return Variant(box.ForeColor()); },
    [](ListBox& box, const Variant& value) { box.ForeColor(value.ToLong()); }};

inline constexpr SavedListProperty SavedEnabled = {
    "Enabled", [](const Site&) { return Variant(true); }, [](const ListBox& box) { return Variant(box.Enabled()); },
    [](ListBox& box, const Variant& value) { box.Enabled(value.ToBoolean()); }};

inline constexpr SavedListProperty SavedText = {"Text", [](const Site&) { return Variant(""); },
                                                [](const ListBox& box) { return Variant(box.Text()); },
                                                [](ListBox& box, const Variant& value) {
                                                  const std::string text = value.ToText();
                                                  if (!text.empty())
                                                    box.Text(text);  // an empty one leaves the text as designed
                                                }};

inline constexpr SavedListProperty SavedToolTipText = {
    "ToolTipText", [](const Site&) { return Variant(""); },
    [](const ListBox& box) { return Variant(box.ToolTipText()); },
    [](ListBox& box, const Variant& value) { box.ToolTipText(value.ToText()); }};

/// The text once more: saved, but not read back.
inline constexpr SavedListProperty SavedDefaultContent = {"DefaultContent", [](const Site&) { return Variant(""); },
                                                          [](const ListBox& box) { return Variant(box.Text()); },
                                                          nullptr};

inline constexpr SavedListProperty SavedFont = {"Font", [](const Site& site) { return Variant(site.AmbientFont()); },
                                                [](const ListBox& box) { return Variant(box.Font()); },
                                                [](ListBox& box, const Variant& value) { box.Font(value.ToFont()); }};

/// The order in which the lists of playing and betting strategies save them.
inline constexpr const SavedListProperty* SavedInFormOrder[] = {
    &SavedEnabled, &SavedBackColor, &SavedForeColor, &SavedText, &SavedToolTipText, &SavedDefaultContent, &SavedFont};

}  // namespace tactix
