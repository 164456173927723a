#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "tactix/decision/Blinker.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Timer.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/ImageList.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/ToolBar.h"
#include "tactix/shared/BlockReader.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/DecisionBlock.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// The groups of buttons that a host shows and hides as a whole. The statistics button is a group of its own, the only
/// one without predictions.
enum class ButtonGroup { HitCard, HoleCard, TensRatio, DealerStrength, Status };

/// What the two decision toolbars have in common: a strip of play buttons and prediction groups that the host docks to
/// an edge of its window. It reports clicks and keeps the player's predictions until the host collects them; it judges
/// nothing.
///
/// While the host runs it shows the buttons; in a form designer it shows its name instead.
///
/// Operations that take a block take a DecisionBlock, or a variant holding any object with a block's properties, and
/// fail with the same errors as those of Decision.
class TACTIX_EXPORT DecisionToolBarControl : public Control {
 public:
  ~DecisionToolBarControl() override;

  /// How thick the strip is at most, in twips. In a row the captions stand below the pictures, in a column beside them.
  static constexpr float RowThickness = 900;
  static constexpr float ColumnThickness = 1500;

  /// The docking of the toolbar, bottom by default; any number is kept, and one that is no edge puts the toolbar at the
  /// top. Saved as bottom whatever it is, deliberately.
  Coded<DecisionBARAlignment> Alignment() const;
  void Alignment(Coded<DecisionBARAlignment> alignment);
  /// Whether a group's buttons are shown: any number but 0. 0 by default, although all buttons are designed visible: a
  /// group follows its property only once that is set.
  Coded<ButtonStatusPossibilities> HitcardButtonsVisibility() const { return Visibility(ButtonGroup::HitCard); }
  void HitcardButtonsVisibility(Coded<ButtonStatusPossibilities> visibility) {
    Visibility(ButtonGroup::HitCard, visibility);
  }
  Coded<ButtonStatusPossibilities> HolecardButtonsVisibility() const { return Visibility(ButtonGroup::HoleCard); }
  void HolecardButtonsVisibility(Coded<ButtonStatusPossibilities> visibility) {
    Visibility(ButtonGroup::HoleCard, visibility);
  }
  Coded<ButtonStatusPossibilities> TensRatioButtonVisibility() const { return Visibility(ButtonGroup::TensRatio); }
  void TensRatioButtonVisibility(Coded<ButtonStatusPossibilities> visibility) {
    Visibility(ButtonGroup::TensRatio, visibility);
  }
  Coded<ButtonStatusPossibilities> DealerStrengthButtonsVisibility() const {
    return Visibility(ButtonGroup::DealerStrength);
  }
  void DealerStrengthButtonsVisibility(Coded<ButtonStatusPossibilities> visibility) {
    Visibility(ButtonGroup::DealerStrength, visibility);
  }
  /// Reading it applies the dealer-strength visibility again and gives 0 whatever was set: odd, but saved forms rely on
  /// it.
  Coded<ButtonStatusPossibilities> StatusButtonButtonVisibility();
  void StatusButtonButtonVisibility(Coded<ButtonStatusPossibilities> visibility) {
    Visibility(ButtonGroup::Status, visibility);
  }
  /// Show or hide a group's buttons, without storing anything or pressing or unpressing them. Separators stay.
  void PlugHitcardButtons(const Coded<ButtonStatusPossibilities>& buttonGroupStatus) {
    Plug(ButtonGroup::HitCard, buttonGroupStatus);
  }
  void PlugHoleCardButtons(const Coded<ButtonStatusPossibilities>& buttonGroupStatus) {
    Plug(ButtonGroup::HoleCard, buttonGroupStatus);
  }
  void PlugTensRatioButtons(const Coded<ButtonStatusPossibilities>& buttonGroupStatus) {
    Plug(ButtonGroup::TensRatio, buttonGroupStatus);
  }
  void PlugDealerStrengthButtons(const Coded<ButtonStatusPossibilities>& buttonGroupStatus) {
    Plug(ButtonGroup::DealerStrength, buttonGroupStatus);
  }
  void PlugStatusButton(const Coded<ButtonStatusPossibilities>& buttonStatus) {
    Plug(ButtonGroup::Status, buttonStatus);
  }

  /// The edition object. Reading it while it is empty creates one; fails with 91 when nothing creates editions.
  ObjectRef KelvoEdition();
  void KelvoEdition(const ObjectRef& edition) { TakeTheEdition(edition); }
  bool HasKelvoEdition() const { return edition_ != nullptr; }
  /// The edition code last read, 0 by default. Nothing in the toolbar depends on it.
  std::int16_t thisKelvoEdition() const { return shortEdition_; }
  /// Reads the object's "thisKelvoEdition"; null fails with 91.
  void TheKelvoEditionIs(const ObjectRef& theShortKelvoEdition);

  /// The one call that a host needs for each hand: copies the block, creates an edition if there is none, and does what
  /// SetupDecisionBAR does.
  void SetupTheDecisionBAR(const Variant& thisDCB);
  void SetupTheDecisionBAR(const DecisionBlock& thisDCB);
  /// Keeps the edition, enables the plays that the block allows, takes its advice and raises the prompt.
  void SetupDecisionBAR(const Variant& thisDCB, const ObjectRef& userKelvoEdition);
  void SetupDecisionBAR(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition);
  /// Under manual restrictions enables Split, Surrender and Double when they are legal, otherwise all three.
  void SetupPlayButtons(const Variant& thisDCB);
  void SetupPlayButtons(const DecisionBlock& thisDCB);
  void HereIsTheDCB(const Variant& thisDCB);
  void HereIsTheDCB(const DecisionBlock& thisDCB);
  void DecodeThisDCB(const Variant& thisDCB);
  void DecodeThisDCB(const DecisionBlock& thisDCB);
  /// The control's own copy of the last block.
  const DecisionBlock& DecodedDCB() const { return *decodedDCB_; }

  /// Whether GetReadyForADecision clears the predictions; false by default, not saved.
  bool ResetPredictionButtons() const { return resetPredictionButtons_; }
  void ResetPredictionButtons(bool reset) {
    resetPredictionButtons_ = reset;
    Touched();
  }
  void GetReadyForADecision();
  /// Clears the player's predictions and unpresses the prediction buttons, except the two "? ?" ones.
  void ResetYourResponseData();
  /// The player's predictions; 0 in a field that was not predicted.
  DecisionBARResponseObject GiveMeYourResponseData() const { return response_; }

  /// Four rounds of disabled 0.2 s and enabled 0.2 s. The object needs "Enabled" and ends enabled.
  void FlashObject(const ObjectRef& buttonToFlash);
  /// Waits that many seconds while the user interface goes on running. A negative or non-finite time fails with 380.
  void BlinkTime(const float& timeAmount);

  /// A saved property that cannot be read takes its default: bottom, and 0 for the visibilities.
  void InitProperties() override;
  void AmbientChanged() override;
  void ReadProperties(PropertyBag& bag) override;
  void Resized() override;
  /// A property that cannot be written ends the save with the bag's error.
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    Event<> HitButtonWasPressed{1, "HitButtonWasPressed"};
    Event<> StandButtonWasPressed{2, "StandButtonWasPressed"};
    Event<> SplitButtonWasPressed{3, "SplitButtonWasPressed"};
    Event<> DoubleButtonWasPressed{4, "DoubleButtonWasPressed"};
    Event<> StatsButtonWasPressed{5, "StatsButtonWasPressed"};
    /// Declared for hosts; not raised: the Advice button only flashes the advised play.
    Event<> AdviceButtonWasPressed{6, "AdviceButtonWasPressed"};
    Event<> SurrenderButtonWasPressed{7, "SurrenderButtonWasPressed"};
    /// At the end of every SetupDecisionBAR.
    Event<std::string&> HereIsThePlayersPromptMessage{8, "HereIsThePlayersPromptMessage"};
    /// Declared for hosts; not raised: the host collects predictions with GiveMeYourResponseData.
    Event<DecisionBARResponseObject&> HereIsAResponseBlock{9, "HereIsAResponseBlock"};

    auto All() {
      return std::tie(HitButtonWasPressed, StandButtonWasPressed, SplitButtonWasPressed, DoubleButtonWasPressed,
                      StatsButtonWasPressed, AdviceButtonWasPressed, SurrenderButtonWasPressed,
                      HereIsThePlayersPromptMessage, HereIsAResponseBlock);
    }
  } Events;

  /// The child widgets that both toolbars have.
  struct CommonWidgets {
    explicit CommonWidgets(Site& site) : BlinkTimer(site) {}

    ToolBar DecisionToolBar;
    tactix::ImageList ImageList;
    Timer BlinkTimer;
    Label DecisionBAR_ID;
  };

 protected:
  explicit DecisionToolBarControl(Site& site) : Control(site) {}
  /// Builds the widgets; called by the variant's constructor, which owns them.
  void Build(CommonWidgets& widgets, std::string_view identification);

  void Unpress(ButtonGroup group);
  void ReleaseTheBlock() { decodedDCB_ = std::make_shared<DecisionBlock>(); }

  /// A group's visibility as it is saved; its buttons may differ from it.
  Coded<ButtonStatusPossibilities>& VisibilityState(ButtonGroup group) {
    return visibilities_[static_cast<std::size_t>(group)];
  }
  static MethodTable CommonMethods();

 private:
  Coded<ButtonStatusPossibilities> Visibility(ButtonGroup group) const {
    return visibilities_[static_cast<std::size_t>(group)];
  }
  void Visibility(ButtonGroup group, Coded<ButtonStatusPossibilities> visibility);
  void Plug(ButtonGroup group, const Coded<ButtonStatusPossibilities>& buttonGroupStatus);
  std::int32_t RecordOf(ButtonGroup group) const;
  void Record(ButtonGroup group, std::int32_t value);
  void PlaceTheDecisionBAR();
  void ShowTheBarOrItsIdentification();
  void Arrange();
  void ButtonWasClicked(const ToolButton& button);
  void FlashTheAdvisedButton();
  void ShowTheResponseOnTheButtons();
  void UnpressAllPredictionButtons();
  /// Replaces the edition and returns the old one, whose destructor may destroy the toolbar.
  ObjectRef TakeTheEdition(ObjectRef edition) {
    Touched();
    return std::exchange(edition_, std::move(edition));
  }
  void Decode(const BlockReader& block);
  void SetupForAHand(const BlockReader& block);
  void SetupBar(const BlockReader& block);
  void SetupButtons(const BlockReader& block);
  ToolButton& Button(std::string_view key) { return widgets_->DecisionToolBar.Button(key); }

  std::array<Coded<ButtonStatusPossibilities>, 5> visibilities_;
  CommonWidgets* widgets_ = nullptr;
  std::optional<Blinker> blinker_;
  std::shared_ptr<DecisionBlock> decodedDCB_ = std::make_shared<DecisionBlock>();
  DecisionBARResponseObject response_{};
  ObjectRef edition_;
  std::string prompt_;
  std::int16_t advisedDecision_ = 0;
  std::int16_t shortEdition_ = 0;
  bool resetPredictionButtons_ = false;
};

}  // namespace tactix
