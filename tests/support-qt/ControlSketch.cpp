#include "tests/support-qt/ControlSketch.h"

#include <set>
#include <string_view>

#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/platform/widgets/OptionButton.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/platform/widgets/ToolBar.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix::tests {

namespace {

/// Reading one of these creates an edition, or shows and hides buttons.
const std::set<std::string_view> ActWhenRead = {"KelvoEdition", "StatusButtonButtonVisibility"};

std::string ToText(const Font& font) {
  return font.Name + "," + Variant(font.Size).ToText() + (font.Bold ? ",bold" : "") + (font.Italic ? ",italic" : "");
}

std::string ToText(const Variant& value) {
  return value.Type() == VariantType::Font ? ToText(value.ToFont()) : value.ToText();
}

void NoteControl(Sketch& sketch, const std::string& path, Control& control) {
  for (const PropertyTable::Row& row : control.Properties().Rows()) {
    if (!row.get || ActWhenRead.contains(row.name)) continue;
    try {
      sketch[path + row.name] = ToText(row.get(control));
    } catch (const Error& error) {
      sketch[path + row.name] = "error " + std::to_string(error.Code());
    }
  }
}

void NoteButtons(Sketch& sketch, const std::string& path, const ToolBar& bar) {
  sketch[path + "Align"] = std::to_string(bar.Align());
  for (const auto& button : bar.Buttons()) {
    sketch[path + button->Key()] = std::string(button->Visible() ? "shown" : "hidden") +
                                   (button->Enabled() ? "" : ", disabled") + (button->Value() ? ", pressed" : "");
  }
}

void NoteRows(Sketch& sketch, const std::string& path, const ListBox& list) {
  sketch[path + "Row"] = std::to_string(list.ListIndex());
  sketch[path + "Text"] = list.Text();
  std::string& rows = sketch[path + "Rows"];
  for (std::int32_t row = 0; row < list.ListCount(); ++row) rows += list.List(row) + "\n";
}

void Note(Sketch& sketch, const std::string& path, Widget& widget) {
  sketch[path + "Place"] = Variant(widget.Left()).ToText() + " " + Variant(widget.Top()).ToText() + " " +
                           Variant(widget.Width()).ToText() + " " + Variant(widget.Height()).ToText();
  sketch[path + "Visible"] = widget.Visible() ? "yes" : "no";
  sketch[path + "Enabled"] = widget.Enabled() ? "yes" : "no";
  sketch[path + "HasFocus"] = widget.HasFocus() ? "yes" : "no";
  sketch[path + "ToolTip"] = widget.ToolTipText();
  sketch[path + "Font"] = ToText(widget.Font());
  sketch[path + "Colors"] = std::to_string(widget.ForeColor()) + " on " + std::to_string(widget.BackColor());
  switch (widget.Kind()) {
    case WidgetKind::Extender:
      NoteControl(sketch, path, static_cast<Extender&>(widget).ItsControl());
      break;
    case WidgetKind::ToolBar:
      NoteButtons(sketch, path, static_cast<ToolBar&>(widget));
      break;
    case WidgetKind::ListBox:
      NoteRows(sketch, path, static_cast<ListBox&>(widget));
      break;
    case WidgetKind::OptionButton:
      sketch[path + "Value"] = static_cast<OptionButton&>(widget).Value() ? "yes" : "no";
      break;
    case WidgetKind::PushButton:
      sketch[path + "DEFAULT"] = static_cast<PushButton&>(widget).DEFAULT() ? "yes" : "no";
      break;
    default:
      break;
  }
  Variant caption;
  if (widget.ReadMember("Caption", caption)) sketch[path + "Caption"] = caption.ToText();
  int place = 0;
  for (Widget* child : widget.Children()) {
    std::string childPath = path + std::string(child->Name()) + "[" + std::to_string(place++) + "].";
    Note(sketch, childPath, *child);
  }
}

}  // namespace

Sketch SketchOf(Control& control) {
  Sketch sketch;
  Note(sketch, "", control.Extender());
  return sketch;
}

std::vector<std::string> Differences(const Sketch& before, const Sketch& after) {
  Sketch all = before;
  all.insert(after.begin(), after.end());
  const auto in = [](const Sketch& sketch, const std::string& name) {
    const auto found = sketch.find(name);
    return found == sketch.end() ? std::string("nothing") : found->second;
  };
  std::vector<std::string> differences;
  for (const auto& [name, value] : all) {
    if (in(before, name) != in(after, name))
      differences.push_back(name + ": " + in(before, name) + " -> " + in(after, name));
  }
  return differences;
}

}  // namespace tactix::tests
