#include "tactix/decision/DecisionToolBar.h"

#include <algorithm>
#include <utility>

#include "tactix/decision/DecisionToolButtons.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/Tolerance.h"

namespace tactix {

namespace {

using Status = Coded<ButtonStatusPossibilities>;

// Twips.
constexpr float DesignWidth = 12600;
constexpr float DesignHeight = 900;
constexpr float Thickness = 900;

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
  widgets.DecisionToolBar.ButtonClicked.Connect([this](const ToolButton& button) { ButtonWasClicked(button); });
  Arrange();
}

// Layout.

Coded<DecisionBARAlignment> DecisionToolBarControl::Alignment() const { return widgets_->DecisionToolBar.Align(); }

void DecisionToolBarControl::Alignment(Coded<DecisionBARAlignment> alignment) {
  widgets_->DecisionToolBar.Align(alignment.Value());
  Arrange();
  NotifyChanged("Alignment");
}

void DecisionToolBarControl::Arrange() {
  const float width = Extender().ScaleWidth();
  const float height = Extender().ScaleHeight();
  ToolBar& bar = widgets_->DecisionToolBar;
  switch (Alignment().Row()) {
    case DecisionBARAlignment::DBAlignBottom:
      bar.Place(0, std::max(height - Thickness, 0.0F), width, std::min(Thickness, height));
      break;
    case DecisionBARAlignment::DBAlignLeft:
      bar.Place(0, 0, std::min(Thickness, width), height);
      break;
    case DecisionBARAlignment::DBAlignRight:
      bar.Place(std::max(width - Thickness, 0.0F), 0, std::min(Thickness, width), height);
      break;
    default:
      bar.Place(0, 0, width, std::min(Thickness, height));
  }
  widgets_->DecisionBAR_ID.Place(0, 0, width, height);
}

void DecisionToolBarControl::Resized() { Arrange(); }

void DecisionToolBarControl::PlaceTheDecisionBAR() {
  const Weak<DecisionToolBarControl> self(this);
  Extender().Top(0);
  if (!self) return;
  Extender().Left(0);
  if (!self) return;
  const bool running = ItsSite().UserMode();
  widgets_->DecisionBAR_ID.Visible(!running);
  widgets_->DecisionToolBar.Visible(running);
}

// The groups.

void DecisionToolBarControl::Plug(PredictionGroup group, bool shown) {
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.group == group) Button(prediction.key).Visible(shown);
  }
}

void DecisionToolBarControl::PlugHitcardButtons(const Status& buttonGroupStatus) {
  Plug(PredictionGroup::HitCard, IsShown(buttonGroupStatus));
}
void DecisionToolBarControl::PlugHoleCardButtons(const Status& buttonGroupStatus) {
  Plug(PredictionGroup::HoleCard, IsShown(buttonGroupStatus));
}
void DecisionToolBarControl::PlugTensRatioButtons(const Status& buttonGroupStatus) {
  Plug(PredictionGroup::TensRatio, IsShown(buttonGroupStatus));
}
void DecisionToolBarControl::PlugDealerStrengthButtons(const Status& buttonGroupStatus) {
  Plug(PredictionGroup::DealerStrength, IsShown(buttonGroupStatus));
}
void DecisionToolBarControl::PlugStatusButton(const Status& buttonStatus) {
  Button(StatisticsKey).Visible(IsShown(buttonStatus));
}

// The notices' names differ from some of the members': saved forms know them.
void DecisionToolBarControl::HitcardButtonsVisibility(Status visibility) {
  hitcardVisibility_ = visibility;
  PlugHitcardButtons(visibility);
  NotifyChanged("HitcardButtonsVisibility");
}
void DecisionToolBarControl::HolecardButtonsVisibility(Status visibility) {
  holecardVisibility_ = visibility;
  PlugHoleCardButtons(visibility);
  NotifyChanged("HoleCardButtonsVisibility");
}
void DecisionToolBarControl::TensRatioButtonVisibility(Status visibility) {
  tensRatioVisibility_ = visibility;
  PlugTensRatioButtons(visibility);
  NotifyChanged("TensRatioButtonsVisibility");
}
void DecisionToolBarControl::DealerStrengthButtonsVisibility(Status visibility) {
  dealerStrengthVisibility_ = visibility;
  PlugDealerStrengthButtons(visibility);
  NotifyChanged("DealerStrengthButtonsVisibility");
}
void DecisionToolBarControl::StatusButtonButtonVisibility(Status visibility) {
  statusVisibility_ = visibility;
  PlugStatusButton(visibility);
  NotifyChanged("StatusButtonVisibility");
}

Status DecisionToolBarControl::StatusButtonButtonVisibility() {
  DealerStrengthButtonsVisibility(dealerStrengthVisibility_);
  return ButtonStatusPossibilities::ButtonsAreInvisible;
}

// The edition.

const ObjectRef& DecisionToolBarControl::KelvoEdition() {
  if (!edition_) edition_ = DefaultEdition::Create();
  return edition_;
}

void DecisionToolBarControl::TheKelvoEditionIs(const ObjectRef& theShortKelvoEdition) {
  if (!theShortKelvoEdition) throw Error(Error::ObjectNotSet);
  const Weak<DecisionToolBarControl> self(this);
  const ObjectRef kept = theShortKelvoEdition;
  const std::int16_t edition = kept->Get("thisKelvoEdition").ToInteger();
  if (self) shortEdition_ = edition;
}

// Setting up for a hand.

void DecisionToolBarControl::SetupTheDecisionBAR(const Variant& thisDCB) {
  const BlockReader block(thisDCB);
  DecodeBlock(block, decodedDCB_);
  SetupBar(block, KelvoEdition());
}
void DecisionToolBarControl::SetupTheDecisionBAR(const DecisionBlock& thisDCB) {
  const BlockReader block(thisDCB);
  DecodeBlock(block, decodedDCB_);
  SetupBar(block, KelvoEdition());
}
void DecisionToolBarControl::SetupDecisionBAR(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  SetupBar(BlockReader(thisDCB), userKelvoEdition);
}
void DecisionToolBarControl::SetupDecisionBAR(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  SetupBar(BlockReader(thisDCB), userKelvoEdition);
}

void DecisionToolBarControl::SetupBar(const BlockReader& block, const ObjectRef& edition) {
  edition_ = edition;
  SetupButtons(block);
  advisedDecision_ = block.Value(BlockField::StrategyAdvice).ToInteger();
  // Out of the member while it is raised: a handler may set up the next hand.
  std::string prompt = std::exchange(prompt_, {});
  prompt.clear();
  AppendDecisionPrompt(block, prompt);
  const Weak<DecisionToolBarControl> self(this);
  Events.HereIsThePlayersPromptMessage.Raise(prompt);
  if (self) prompt_ = std::move(prompt);
}

void DecisionToolBarControl::SetupPlayButtons(const Variant& thisDCB) { SetupButtons(BlockReader(thisDCB)); }
void DecisionToolBarControl::SetupPlayButtons(const DecisionBlock& thisDCB) { SetupButtons(BlockReader(thisDCB)); }

void DecisionToolBarControl::SetupButtons(const BlockReader& block) {
  const bool restricted = block.Value(BlockField::ManualPlayerRestrictions).CountsAsTrue();
  const auto legal = [&](BlockField field) { return !restricted || block.Value(field).ToBoolean(); };
  Button("Split").Enabled(legal(BlockField::SplitIsValid));
  Button("Surrender").Enabled(legal(BlockField::SurrenderIsValid));
  // Both are read: an object that lacks the second fails even where the first allows the play.
  const bool hardDouble = legal(BlockField::HardDoubleIsValid);
  const bool softDouble = legal(BlockField::SoftDoubleIsValid);
  Button("Double").Enabled(hardDouble || softDouble);
}

void DecisionToolBarControl::HereIsTheDCB(const Variant& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::HereIsTheDCB(const DecisionBlock& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::DecodeThisDCB(const Variant& thisDCB) { DecodeBlock(BlockReader(thisDCB), decodedDCB_); }
void DecisionToolBarControl::DecodeThisDCB(const DecisionBlock& thisDCB) {
  DecodeBlock(BlockReader(thisDCB), decodedDCB_);
}

// What the player does.

void DecisionToolBarControl::ButtonWasClicked(const ToolButton& button) {
  for (const ToolBarPlay& play : ToolBarPlays) {
    if (button.Key() == play.key) return (Events.*play.event).Raise();
  }
  if (button.Key() == AdviceKey) return FlashTheAdvisedButton();
  if (button.Key() == StatisticsKey) return Events.StatsButtonWasPressed.Raise();
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (button.Key() == prediction.key) return Record(prediction.group, prediction.value);
  }
}

void DecisionToolBarControl::FlashTheAdvisedButton() {
  for (const ToolBarPlay& play : ToolBarPlays) {
    if (play.code == advisedDecision_) return FlashObject(Button(play.key).Handle());
  }
}

void DecisionToolBarControl::FlashObject(const ObjectRef& buttonToFlash) { blinker_->FlashEnabled(buttonToFlash); }

void DecisionToolBarControl::BlinkTime(const float& timeAmount) { blinker_->Wait(timeAmount); }

// The record.

std::int32_t DecisionToolBarControl::RecordOf(PredictionGroup group) const {
  switch (group) {
    case PredictionGroup::HitCard:
      return response_.HitCardIs.Value();
    case PredictionGroup::HoleCard:
      return response_.HoleCardIs.Value();
    case PredictionGroup::TensRatio:
      return response_.TensRatioIs.Value();
    case PredictionGroup::DealerStrength:
      break;
  }
  return response_.DealerHandIs.Value();
}

void DecisionToolBarControl::Record(PredictionGroup group, std::int32_t value) {
  switch (group) {
    case PredictionGroup::HitCard:
      response_.HitCardIs = value;
      return;
    case PredictionGroup::HoleCard:
      response_.HoleCardIs = value;
      return;
    case PredictionGroup::TensRatio:
      response_.TensRatioIs = value;
      return;
    case PredictionGroup::DealerStrength:
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

void DecisionToolBarControl::Unpress(PredictionGroup group) {
  for (const ToolBarPrediction& prediction : ToolBarPredictions) {
    if (prediction.group == group && prediction.followsTheRecord) Button(prediction.key).Value(false);
  }
}

// Saved properties.

void DecisionToolBarControl::ReadProperties(PropertyBag& bag) {
  // The buttons stay as they are until the host sets a visibility.
  const auto restore = [&bag](std::string_view name, Status& status) {
    IgnoringErrors([&] { status = bag.Read(name, 0).ToLong(); });
  };
  restore("HitcardButtonsVisibility", hitcardVisibility_);
  restore("HoleCardButtonsVisibility", holecardVisibility_);
  restore("TensRatioButtonsVisibility", tensRatioVisibility_);
  restore("DealerStrengthButtonsVisibility", dealerStrengthVisibility_);
  restore("StatusButtonVisibility", statusVisibility_);
  constexpr auto bottom = static_cast<std::int32_t>(DecisionBARAlignment::DBAlignBottom);
  Coded<DecisionBARAlignment> alignment = bottom;
  IgnoringErrors([&] { alignment = bag.Read("Alignment", bottom).ToLong(); });
  const Weak<DecisionToolBarControl> self(this);
  Alignment(alignment);
  if (self) PlaceTheDecisionBAR();
}

void DecisionToolBarControl::WriteProperties(PropertyBag& bag) {
  // Saved as bottom whatever the docking is: saved forms rely on it.
  bag.Write("Alignment", static_cast<std::int32_t>(DecisionBARAlignment::DBAlignBottom));
  bag.Write("HitcardButtonsVisibility", HitcardButtonsVisibility().Value());
  bag.Write("HoleCardButtonsVisibility", HolecardButtonsVisibility().Value());
  bag.Write("TensRatioButtonsVisibility", TensRatioButtonVisibility().Value());
  bag.Write("DealerStrengthButtonsVisibility", DealerStrengthButtonsVisibility().Value());
  const Weak<DecisionToolBarControl> self(this);
  const std::int32_t status = StatusButtonButtonVisibility().Value();
  if (self) bag.Write("StatusButtonVisibility", status);
}

const PropertyTable& DecisionToolBarControl::Properties() const {
  using Self = DecisionToolBarControl;
  static const PropertyTable table =
      PropertyTable()
          .Property<Self>("Alignment", &Self::Alignment, &Self::Alignment)
          .Property<Self>("HitcardButtonsVisibility", &Self::HitcardButtonsVisibility, &Self::HitcardButtonsVisibility)
          .Property<Self>("HolecardButtonsVisibility", &Self::HolecardButtonsVisibility,
                          &Self::HolecardButtonsVisibility)
          .Property<Self>("TensRatioButtonVisibility", &Self::TensRatioButtonVisibility,
                          &Self::TensRatioButtonVisibility)
          .Property<Self>("DealerStrengthButtonsVisibility", &Self::DealerStrengthButtonsVisibility,
                          &Self::DealerStrengthButtonsVisibility)
          .Property<Self>("StatusButtonButtonVisibility", &Self::StatusButtonButtonVisibility,
                          &Self::StatusButtonButtonVisibility)
          .GetOnly<Self>("thisKelvoEdition", &Self::thisKelvoEdition)
          .Property<Self>("KelvoEdition", &Self::KelvoEdition, &Self::KelvoEdition)
          .Property<Self>("ResetPredictionButtons", &Self::ResetPredictionButtons, &Self::ResetPredictionButtons);
  return table;
}

}  // namespace tactix
