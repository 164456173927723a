#include "tactix/counting/CardCountDisplayBox.h"

#include <string>
#include <string_view>

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

// Twips.
constexpr float DesignWidth = 1260;
constexpr float DesignHeight = 330;
constexpr float TagPart = 0.4F;

constexpr float SizeOfTag = 8.25F;
constexpr float SizeOfValue = 9.75F;

constexpr auto White = static_cast<Color>(ShadowBoxingConstants::ShadowBoxWhiteColor);

constexpr std::string_view CountBoxTypeName = "CountBoxType";

struct Tag {
  TypeOfCountBox type;
  std::string_view text;
  CountBoxLabelColors color;
  std::string_view spoken;
};
constexpr Tag Tags[] = {
    {TypeOfCountBox::CountBoxIsRunningCount, "RC", CountBoxLabelColors::CountBoxRunningCountColor, "Running Count"},
    {TypeOfCountBox::CountBoxIsTrueCount, "TC", CountBoxLabelColors::CountBoxTrueCountColor, "True Count"},
};

}  // namespace

CardCountDisplayBox::CardCountDisplayBox(Site& site) : Control(site) {
  Extender().DesignSize(DesignWidth, DesignHeight);
  Label& tag = Children.labelCountLabel;
  Extender().Add(tag, "labelCountLabel");
  tag.Font({"MS Sans Serif", SizeOfTag});
  tag.Alignment(TextAlignment::Center);
  Label& value = Children.labelCountValue;
  Extender().Add(value, "labelCountValue");
  value.Caption("-99");
  value.ToolTipText("- is House Favorable - + is Player Favorable - against a Random Shuffle");
  value.Font({"Comic Sans MS", SizeOfValue});
  value.Alignment(TextAlignment::Center);
  value.BackColor(White);
  Resized();
}

CardCountDisplayBox::~CardCountDisplayBox() { MarkAsGone(); }

void CardCountDisplayBox::CountBoxType(Coded<TypeOfCountBox> type) {
  countBoxType_ = type;
  const Weak<CardCountDisplayBox> self(this);
  NotifyChanged(CountBoxTypeName);
  if (self) Repaint();
}

void CardCountDisplayBox::CountValue(Coded<CardCountDisplayValueRanges> value) {
  Children.labelCountValue.Caption(std::to_string(value.Value()));
}

void CardCountDisplayBox::Repaint() {
  for (const Tag& tag : Tags) {
    if (countBoxType_ != tag.type) continue;
    Children.labelCountLabel.Caption(tag.text);
    Children.labelCountLabel.BackColor(static_cast<Color>(tag.color));
    Children.labelCountValue.Heading(tag.spoken);
  }
  const bool off = shadowBoxStatus_ == ShadowBoxingConstants::ShadowBoxingDisabled;
  Children.labelCountValue.BackColor(off ? White : shadowBoxStatus_.Value());
}

void CardCountDisplayBox::Resized() {
  const float width = Extender().ScaleWidth();
  const float height = Extender().ScaleHeight();
  const float tagWidth = width * TagPart;
  Children.labelCountLabel.Place(0, 0, tagWidth, height);
  Children.labelCountValue.Place(tagWidth, 0, width - tagWidth, height);
}

const PropertyTable& CardCountDisplayBox::Properties() const {
  using Self = CardCountDisplayBox;
  static const PropertyTable table = PropertyTable()
                                         .Property(CountBoxTypeName, &Self::CountBoxType, &Self::CountBoxType)
                                         .Saved(0)
                                         .SetOnly("CountValue", &Self::CountValue)
                                         .SetOnly("ShadowBoxStatus", &Self::ShadowBoxStatus)
                                         .Property("BackColor", &Self::BackColor, &Self::BackColor)
                                         .IsAColor()
                                         .Property("ForeColor", &Self::ForeColor, &Self::ForeColor)
                                         .IsAColor();
  return table;
}

}  // namespace tactix
