#include "tactix/decision/DecisionToolBar.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "tactix/decision/private/DecisionToolButtons.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"
#include "tactix/shared/ResponseBlock.h"

namespace tactix {

namespace {

using Status = Coded<ButtonStatusPossibilities>;

// Twips.
constexpr float DesignWidth = 14400;
constexpr float DesignHeight = 900;

constexpr auto Bottom = static_cast<std::int32_t>(DecisionBARAlignment::DBAlignBottom);

constexpr std::string_view AlignmentName = "Alignment";

/// The names under which the visibilities are saved and notified, in the order of ButtonGroup. Some differ from the
/// property's own name: saved forms rely on them.
constexpr std::string_view VisibilityNames[] = {"HitcardButtonsVisibility", "HoleCardButtonsVisibility",
                                                "TensRatioButtonsVisibility", "DealerStrengthButtonsVisibility",
                                                "StatusButtonVisibility"};
constexpr std::string_view NameOf(ButtonGroup group) { return VisibilityNames[static_cast<std::size_t>(group)]; }

bool IsShown(Status status) { return status != ButtonStatusPossibilities::ButtonsAreInvisible; }

}  // namespace

DecisionToolBarControl::~DecisionToolBarControl() = default;

void DecisionToolBarControl::Build(CommonWidgets& widgets, std::string_view identification) {
  widgets_ = &widgets;
  blinker_.emplace(*this, widgets.BlinkTimer);
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(widgets.DecisionBAR_ID, "DecisionBAR_ID");
  Extender().Add(widgets.DecisionToolBar, "DecisionToolBar");
  widgets.DecisionBAR_ID.Caption(identification);
  widgets.DecisionBAR_ID.Visible(false);
  widgets.ImageList = tactix::ImageList(DecisionPictures);
  widgets.DecisionToolBar.AddButtons(DecisionToolButtons);
  widgets.DecisionToolBar.Pictures(widgets.ImageList);
  widgets.DecisionToolBar.Align(Bottom);
  widgets.DecisionToolBar.ButtonClicked.Connect([this](const ToolButton& button) { ButtonWasClicked(button); });
  Arrange();
}

// Layout.

Coded<DecisionBARAlignment> DecisionToolBarControl::Alignment() const { return widgets_->DecisionToolBar.Align(); }

void DecisionToolBarControl::Alignment(Coded<DecisionBARAlignment> alignment) {
  widgets_->DecisionToolBar.Align(alignment.Value());
  Arrange();
  NotifyChanged(AlignmentName);
}

void DecisionToolBarControl::Arrange() {
  const float width = Extender().ScaleWidth();
  const float height = Extender().ScaleHeight();
  const float row = std::min(RowThickness, height);
  const float column = std::min(ColumnThickness, width);
  ToolBar& bar = widgets_->DecisionToolBar;
  switch (Alignment().Row()) {
    case DecisionBARAlignment::DBAlignBottom:
      bar.Place(0, height - row, width, row);
      break;
    case DecisionBARAlignment::DBAlignLeft:
      bar.Place(0, 0, column, height);
      break;
    case DecisionBARAlignment::DBAlignRight:
      bar.Place(width - column, 0, column, height);
      break;
    default:
      bar.Place(0, 0, width, row);
  }
  widgets_->DecisionBAR_ID.Place(0, 0, width, height);
}

void DecisionToolBarControl::Resized() { Arrange(); }

void DecisionToolBarControl::PlaceTheDecisionBAR() {
  const Weak<DecisionToolBarControl> self(this);
  Extender().Top(0);
  if (!self) return;
  Extender().Left(0);
  if (self) ShowTheBarOrItsIdentification();
}

void DecisionToolBarControl::ShowTheBarOrItsIdentification() {
  const Weak<DecisionToolBarControl> self(this);
  const bool running = ItsSite().UserMode();
  widgets_->DecisionBAR_ID.Visible(!running);
  widgets_->DecisionToolBar.Visible(running);
}

// The groups.

void DecisionToolBarControl::Plug(ButtonGroup group, const Status& buttonGroupStatus) {
  const bool shown = IsShown(buttonGroupStatus);
  if (group == ButtonGroup::Status) Button(StatisticsKey).Visible(shown);
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.group == group) Button(prediction.key).Visible(shown);
  }
}

void DecisionToolBarControl::Visibility(ButtonGroup group, Status visibility) {
  VisibilityState(group) = visibility;
  Plug(group, visibility);
  NotifyChanged(NameOf(group));
}

Status DecisionToolBarControl::StatusButtonButtonVisibility() {
  DealerStrengthButtonsVisibility(DealerStrengthButtonsVisibility());
  return ButtonStatusPossibilities::ButtonsAreInvisible;
}

// The edition.

ObjectRef DecisionToolBarControl::KelvoEdition() {
  if (edition_) return edition_;
  const Weak<DecisionToolBarControl> self(this);
  const ObjectRef created = DefaultEdition::Create();
  if (self) TakeTheEdition(created);
  return created;
}

void DecisionToolBarControl::TheKelvoEditionIs(const ObjectRef& theShortKelvoEdition) {
  if (!theShortKelvoEdition) throw Error(Error::ObjectNotSet);
  const Weak<DecisionToolBarControl> self(this);
  const ObjectRef kept = theShortKelvoEdition;
  const std::int16_t edition = kept->Get("thisKelvoEdition").ToInteger();
  if (!self) return;
  shortEdition_ = edition;
  Touched();
}

// Setting up for a hand.

void DecisionToolBarControl::SetupTheDecisionBAR(const Variant& thisDCB) { SetupForAHand(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::SetupTheDecisionBAR(const DecisionBlock& thisDCB) {
  SetupForAHand(BlockReader(thisDCB, *this));
}

void DecisionToolBarControl::SetupForAHand(const BlockReader& block) {
  const Weak<DecisionToolBarControl> self(this);
  Decode(block);
  if (self) KelvoEdition();
  if (self) SetupBar(block);
}

void DecisionToolBarControl::SetupDecisionBAR(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  const ObjectRef before = TakeTheEdition(userKelvoEdition);
  SetupBar(BlockReader(thisDCB, *this));
}
void DecisionToolBarControl::SetupDecisionBAR(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  const ObjectRef before = TakeTheEdition(userKelvoEdition);
  SetupBar(BlockReader(thisDCB, *this));
}

void DecisionToolBarControl::SetupBar(const BlockReader& block) {
  // Each read may run host code, which may destroy the bar or set it up for another hand.
  const Weak<DecisionToolBarControl> self(this);
  SetupButtons(block);
  if (!self) return;
  const std::int16_t advice = block.Value(BlockField::StrategyAdvice).ToInteger();
  if (!self) return;
  advisedDecision_ = advice;
  // Taken out of the member, which only keeps the memory for the next prompt, because a handler may set up another
  // hand.
  std::string prompt = std::exchange(prompt_, {});
  prompt.clear();
  AppendDecisionPrompt(block, prompt);
  if (self) Events.HereIsThePlayersPromptMessage.Raise(prompt);
  if (self) prompt_ = std::move(prompt);
}

void DecisionToolBarControl::SetupPlayButtons(const Variant& thisDCB) { SetupButtons(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::SetupPlayButtons(const DecisionBlock& thisDCB) {
  SetupButtons(BlockReader(thisDCB, *this));
}

void DecisionToolBarControl::SetupButtons(const BlockReader& block) {
  const Weak<DecisionToolBarControl> self(this);
  const bool restricted = block.Value(BlockField::ManualPlayerRestrictions).CountsAsTrue();
  const auto legal = [&](BlockField field) { return !restricted || block.Value(field).ToBoolean(); };
  const bool split = legal(BlockField::SplitIsValid);
  if (self) Button(KeyOf(AdvicePossibilities::SplitAdvised)).Enabled(split);
  const bool surrender = legal(BlockField::SurrenderIsValid);
  if (self) Button(KeyOf(AdvicePossibilities::SurrenderAdvised)).Enabled(surrender);
  // Both are always read: an object that lacks the second must fail even where the first one allows the play.
  const bool hardDouble = legal(BlockField::HardDoubleIsValid);
  const bool softDouble = legal(BlockField::SoftDoubleIsValid);
  if (self) Button(KeyOf(AdvicePossibilities::DoubleAdvised)).Enabled(hardDouble || softDouble);
}

void DecisionToolBarControl::HereIsTheDCB(const Variant& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::HereIsTheDCB(const DecisionBlock& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::DecodeThisDCB(const Variant& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::DecodeThisDCB(const DecisionBlock& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::Decode(const BlockReader& block) {
  // A second owner: reading a host's object may destroy the bar, and the copy must outlive the reading.
  const std::shared_ptr<DecisionBlock> copy = decodedDCB_;
  DecodeBlock(block, *copy);
}

// What the player does.

void DecisionToolBarControl::ButtonWasClicked(const ToolButton& button) {
  for (const ToolBarPlay& play : ToolBarPlays) {
    if (button.Key() == play.name) return (Events.*play.event).Raise();
  }
  if (button.Key() == AdviceKey) return FlashTheAdvisedButton();
  if (button.Key() == StatisticsKey) return Events.StatsButtonWasPressed.Raise();
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (button.Key() == prediction.key) return Record(prediction.group, prediction.value);
  }
}

void DecisionToolBarControl::FlashTheAdvisedButton() {
  if (const Play* advised = FindPlay(Coded<AdvicePossibilities>(advisedDecision_))) {
    FlashObject(Button(advised->name).Handle());
  }
}

void DecisionToolBarControl::FlashObject(const ObjectRef& buttonToFlash) { blinker_->FlashEnabled(buttonToFlash); }

void DecisionToolBarControl::BlinkTime(const float& timeAmount) { blinker_->Wait(timeAmount); }

// The record.

std::int32_t DecisionToolBarControl::RecordOf(ButtonGroup group) const {
  switch (group) {
    case ButtonGroup::HitCard:
      return response_.HitCardIs.Value();
    case ButtonGroup::HoleCard:
      return response_.HoleCardIs.Value();
    case ButtonGroup::TensRatio:
      return response_.TensRatioIs.Value();
    default:
      return response_.DealerHandIs.Value();
  }
}

void DecisionToolBarControl::Record(ButtonGroup group, std::int32_t value) {
  switch (group) {
    case ButtonGroup::HitCard:
      response_.HitCardIs = value;
      return;
    case ButtonGroup::HoleCard:
      response_.HoleCardIs = value;
      return;
    case ButtonGroup::TensRatio:
      response_.TensRatioIs = value;
      return;
    default:
      response_.DealerHandIs = value;
  }
}

void DecisionToolBarControl::GetReadyForADecision() {
  if (resetPredictionButtons_) ResetYourResponseData();
}

void DecisionToolBarControl::ResetYourResponseData() {
  response_ = {};
  ShowTheResponseOnTheButtons();
}

void DecisionToolBarControl::ShowTheResponseOnTheButtons() {
  UnpressAllPredictionButtons();
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.followsTheRecord && RecordOf(prediction.group) == prediction.value) {
      Button(prediction.key).Value(true);
    }
  }
}

void DecisionToolBarControl::UnpressAllPredictionButtons() {
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.followsTheRecord) Button(prediction.key).Value(false);
  }
}

void DecisionToolBarControl::Unpress(ButtonGroup group) {
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.group == group && prediction.followsTheRecord) Button(prediction.key).Value(false);
  }
}

// Saved properties.

// Shows the identification in a form designer at once, but, unlike ReadProperties, leaves a new bar where it has been
// dropped.
void DecisionToolBarControl::InitProperties() { ShowTheBarOrItsIdentification(); }

void DecisionToolBarControl::AmbientChanged() {
  const Weak<DecisionToolBarControl> self(this);
  ShowTheBarOrItsIdentification();
  if (self) Control::AmbientChanged();
}

void DecisionToolBarControl::ReadProperties(PropertyBag& bag) {
  const Weak<DecisionToolBarControl> self(this);
  Control::ReadProperties(bag);
  if (!self) return;
  std::int32_t alignment = Bottom;
  IgnoringErrors([&] { alignment = bag.Read(AlignmentName, Bottom).ToLong(); });
  if (self) Alignment(alignment);
  if (self) PlaceTheDecisionBAR();
}

const PropertyTable& DecisionToolBarControl::Properties() const {
  using Self = DecisionToolBarControl;
  // Restoring only stores a visibility: the buttons stay as they are until the host sets it.
  const auto into = [](ButtonGroup group) {
    return PropertyTable::SetBy([group](Self& self, Status visibility) { self.VisibilityState(group) = visibility; });
  };
  const auto saved = [&into](ButtonGroup group) {
    return SavedDifferently{.name = NameOf(group), .restore = into(group), .always = true};
  };
  static const PropertyTable table =
      PropertyTable()
          .FailedReads(OnFailedRead::TakeTheDefault)
          .FailedWrites(OnFailure::Report)
          // Saved as bottom whatever the docking is, and before all others, although it is read after them: saved forms
          // rely on it.
          .Property(AlignmentName, &Self::Alignment, &Self::Alignment)
          .Saved(Bottom, {.ways = SavedWays::SavedOnly, .value = PropertyTable::Always(Bottom), .always = true})
          .Property("HitcardButtonsVisibility", &Self::HitcardButtonsVisibility, &Self::HitcardButtonsVisibility)
          .Saved(0, saved(ButtonGroup::HitCard))
          .Property("HolecardButtonsVisibility", &Self::HolecardButtonsVisibility, &Self::HolecardButtonsVisibility)
          .Saved(0, saved(ButtonGroup::HoleCard))
          .Property("TensRatioButtonVisibility", &Self::TensRatioButtonVisibility, &Self::TensRatioButtonVisibility)
          .Saved(0, saved(ButtonGroup::TensRatio))
          .Property("DealerStrengthButtonsVisibility", &Self::DealerStrengthButtonsVisibility,
                    &Self::DealerStrengthButtonsVisibility)
          .Saved(0, saved(ButtonGroup::DealerStrength))
          .Property("StatusButtonButtonVisibility", &Self::StatusButtonButtonVisibility,
                    &Self::StatusButtonButtonVisibility)
          .Saved(0, saved(ButtonGroup::Status))
          .GetOnly("thisKelvoEdition", &Self::thisKelvoEdition)
          .Property("KelvoEdition", &Self::KelvoEdition, &Self::KelvoEdition)
          .Property("ResetPredictionButtons", &Self::ResetPredictionButtons, &Self::ResetPredictionButtons);
  return table;
}

MethodTable DecisionToolBarControl::CommonMethods() {
  using Self = DecisionToolBarControl;
  return MethodTable()
      .Method("PlugHitcardButtons", &Self::PlugHitcardButtons)
      .Method("PlugHoleCardButtons", &Self::PlugHoleCardButtons)
      .Method("PlugTensRatioButtons", &Self::PlugTensRatioButtons)
      .Method("PlugDealerStrengthButtons", &Self::PlugDealerStrengthButtons)
      .Method("PlugStatusButton", &Self::PlugStatusButton)
      .Method("TheKelvoEditionIs", &Self::TheKelvoEditionIs)
      .TakesVariant("SetupTheDecisionBAR", &Self::SetupTheDecisionBAR)
      .TakesVariant("SetupDecisionBAR", &Self::SetupDecisionBAR)
      .TakesVariant("SetupPlayButtons", &Self::SetupPlayButtons)
      .TakesVariant("HereIsTheDCB", &Self::HereIsTheDCB)
      .TakesVariant("DecodeThisDCB", &Self::DecodeThisDCB)
      .Method("GetReadyForADecision", &Self::GetReadyForADecision)
      .Method("ResetYourResponseData", &Self::ResetYourResponseData)
      .Method("GiveMeYourResponseData", &Self::GiveMeYourResponseData)
      .Method("FlashObject", &Self::FlashObject)
      .Method("BlinkTime", &Self::BlinkTime);
}

const MethodTable& DecisionToolBarControl::Methods() const {
  static const MethodTable table = CommonMethods();
  return table;
}

}  // namespace tactix
