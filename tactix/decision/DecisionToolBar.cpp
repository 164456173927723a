#include "tactix/decision/DecisionToolBar.h"

#include <algorithm>
#include <utility>

#include "tactix/decision/DecisionToolButtons.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/SavedProperties.h"

namespace tactix {

namespace {

using Status = Coded<ButtonStatusPossibilities>;

// Twips. The captions stand below the pictures in a row, and beside them in a column.
constexpr float DesignWidth = 14400;
constexpr float DesignHeight = 900;
constexpr float RowThickness = 900;
constexpr float ColumnThickness = 1500;

constexpr auto Bottom = static_cast<std::int32_t>(DecisionBARAlignment::DBAlignBottom);

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
  NotifyChanged("Alignment");
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
  if (self) shortEdition_ = edition;
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
  // Any read may run code of the host's: it may destroy the bar, or set it up for another hand.
  const Weak<DecisionToolBarControl> self(this);
  SetupButtons(block);
  if (!self) return;
  const std::int16_t advice = block.Value(BlockField::StrategyAdvice).ToInteger();
  if (!self) return;
  advisedDecision_ = advice;
  // Out of the member while it is raised: a handler may set up the next hand.
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
  if (self) Button("Split").Enabled(split);
  const bool surrender = legal(BlockField::SurrenderIsValid);
  if (self) Button("Surrender").Enabled(surrender);
  // Both are read: an object that lacks the second fails even where the first allows the play.
  const bool hardDouble = legal(BlockField::HardDoubleIsValid);
  const bool softDouble = legal(BlockField::SoftDoubleIsValid);
  if (self) Button("Double").Enabled(hardDouble || softDouble);
}

void DecisionToolBarControl::HereIsTheDCB(const Variant& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::HereIsTheDCB(const DecisionBlock& thisDCB) { DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::DecodeThisDCB(const Variant& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::DecodeThisDCB(const DecisionBlock& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void DecisionToolBarControl::Decode(const BlockReader& block) {
  // Kept, since reading a host's object may destroy the bar.
  const std::shared_ptr<DecisionBlock> copy = decodedDCB_;
  DecodeBlock(block, *copy);
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

constexpr DecisionToolBarControl::SavedVisibility DecisionToolBarControl::SavedVisibilities[] = {
    {"HitcardButtonsVisibility", &DecisionToolBarControl::hitcardVisibility_},
    {"HoleCardButtonsVisibility", &DecisionToolBarControl::holecardVisibility_},
    {"TensRatioButtonsVisibility", &DecisionToolBarControl::tensRatioVisibility_},
    {"DealerStrengthButtonsVisibility", &DecisionToolBarControl::dealerStrengthVisibility_},
    {"StatusButtonVisibility", &DecisionToolBarControl::statusVisibility_},
};

void DecisionToolBarControl::ReadProperties(PropertyBag& bag) {
  const Weak<DecisionToolBarControl> self(this);
  SavedProperties saved(*this, bag);
  const auto read = [&saved](std::string_view name, std::int32_t value) {
    saved.Read(name, value, [&value](const Variant& stored) { value = stored.ToLong(); });
    return value;
  };
  // The buttons stay as they are until the host sets a visibility.
  for (const auto& [name, state] : SavedVisibilities) {
    const std::int32_t visibility = read(name, 0);
    if (!self) return;
    this->*state = visibility;
  }
  const std::int32_t alignment = read("Alignment", Bottom);
  if (self) Alignment(alignment);
  if (self) PlaceTheDecisionBAR();
}

void DecisionToolBarControl::WriteProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag, OnFailure::Report);
  // Saved as bottom whatever the docking is: saved forms rely on it.
  saved.Write("Alignment", [] { return Bottom; });
  for (const auto& [name, visibility] : SavedVisibilities) {
    saved.Write(name, [this, state = visibility] {
      const bool isStatus = state == &DecisionToolBarControl::statusVisibility_;
      return (isStatus ? StatusButtonButtonVisibility() : this->*state).Value();
    });
  }
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
