#include "tactix/counting/CardValueSelector.h"

#include <algorithm>
#include <string>

#include "tactix/platform/Error.h"
#include "tactix/platform/SavedProperties.h"
#include "tactix/platform/Variant.h"

namespace tactix {

namespace {

constexpr std::int32_t Ace = 1;
constexpr std::int32_t Ten = 10;
constexpr std::int32_t FirstRowsValue = CardValueSelector::LowestValue;

// Twips.
constexpr float DesignWidth = 2100;
constexpr float DesignHeight = 900;
constexpr float Margin = 60;
constexpr float Inset = 120;
constexpr float CaptionHeight = 270;
constexpr float CardWidth = 420;
constexpr float ListHeight = 375;
constexpr float SizeOfListFont = 9.75F;
constexpr float SizeOfCardFont = 13.5F;

std::string RowText(std::int32_t value) { return (value > 0 ? "+" : "") + std::to_string(value); }

}  // namespace

CardValueSelector::~CardValueSelector() = default;

void CardValueSelector::Build() {
  const auto& [panel, frame, list, card] = widgets_;
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(panel, variety_.panelName);
  panel.Caption("Point Value");
  panel.Add(frame, variety_.frameName);
  frame.Caption(variety_.frameCaption);
  frame.Add(card, "lblCardValue");
  card.Caption("A");
  card.Font({"MS Sans Serif", SizeOfCardFont, true});
  card.Alignment(TextAlignment::Center);
  frame.Add(list, variety_.listName);
  list.Font({"Comic Sans MS", SizeOfListFont});
  for (std::int32_t value = LowestValue; value <= HighestValue; ++value) list.AddItem(RowText(value));
  list.Clicked.Connect([this] { TakeThePick(); });
  list.Changed.Connect([this] { TakeThePick(); });
  Arrange();
}

void CardValueSelector::Arrange() {
  const float width = Extender().ScaleWidth();
  const float height = Extender().ScaleHeight();
  const float frameWidth = std::max(width - 2 * Margin, 0.0F);
  const float frameHeight = std::max(height - 2 * Margin, 0.0F);
  const float top = std::max((frameHeight - CaptionHeight - ListHeight) / 2, 0.0F) + CaptionHeight;
  const float listLeft = Inset + CardWidth;
  widgets_.panel.Place(0, 0, width, height);
  widgets_.frame.Place(Margin, Margin, frameWidth, frameHeight);
  widgets_.card.Place(Inset, top, CardWidth, ListHeight);
  widgets_.list.Place(listLeft, top, std::max(frameWidth - listLeft - Inset, 0.0F), ListHeight);
}

void CardValueSelector::Resized() { Arrange(); }

void CardValueSelector::CardNumber(std::int32_t card) {
  if (card < Ace || card > Ten) return;
  cardNumber_ = card;
  widgets_.card.Caption(card == Ace ? "A" : card == Ten ? "T" : std::to_string(card));
  NotifyChanged("CardValue");
}

void CardValueSelector::SelectedValue(std::int32_t value) {
  // Only what the setter takes is positive; the list offers more.
  if (value < 1 || value > HighestValue) return;
  const Weak<CardValueSelector> self(this);
  selectedValue_ = value;
  // The player's choice comes before the host's: the list stays where it is, and the value becomes its row's.
  TakeThePick();
  if (self) PositionTheList();
}

void CardValueSelector::TakeThePick() {
  const Weak<CardValueSelector> self(this);
  selectedValue_ = widgets_.list.ListIndex() + FirstRowsValue;
  std::int32_t picked = selectedValue_;
  selected_.Raise(picked);
  if (self) NotifyChanged(variety_.valueName);
}

void CardValueSelector::PositionTheList() {
  if (selectedValue_ < LowestValue || selectedValue_ > HighestValue) return;
  widgets_.list.ListIndex(selectedValue_ - FirstRowsValue);
}

void CardValueSelector::ReadProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag);
  saved.Read(variety_.valueName, 0, [this](const Variant& read) {
    const std::int32_t value = read.ToLong();
    // A value that has no row fails with 380, also where its row's number would not fit.
    if (value > HighestValue) throw Error(Error::InvalidPropertyValue);
    widgets_.list.ListIndex(value - FirstRowsValue);
  });
  saved.Read("CardValue", Ace, [this](const Variant& card) {
    cardNumber_ = card.ToLong();
    // Digits here, for the ace and the ten too.
    widgets_.card.Caption(std::to_string(cardNumber_));
  });
}

void CardValueSelector::WriteProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag);
  saved.Write(
      variety_.valueName, [this] { return selectedValue_; }, 0);
  saved.Write(
      "CardValue", [this] { return cardNumber_; }, Ace);
}

}  // namespace tactix
