#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/DecisionToolBar.h"

namespace tactix::qt {

/// What the two decision toolbars have in common as widgets, see WidgetOf and tactix::DecisionToolBarControl. Slots
/// that take a block fail as the toolbar's do. A click on Advice and FlashObject wait for 1.6 seconds, see WidgetOf.
class TACTIX_QT_EXPORT DecisionToolBarControl : public WidgetOf<tactix::DecisionToolBarControl> {
  Q_OBJECT
  Q_PROPERTY(
      DecisionBARAlignment Alignment READ Alignment WRITE setAlignment RESET resetAlignment NOTIFY AlignmentChanged)
  Q_PROPERTY(ButtonStatusPossibilities HitcardButtonsVisibility READ HitcardButtonsVisibility WRITE
                 setHitcardButtonsVisibility RESET resetHitcardButtonsVisibility NOTIFY HitcardButtonsVisibilityChanged)
  Q_PROPERTY(
      ButtonStatusPossibilities HolecardButtonsVisibility READ HolecardButtonsVisibility WRITE
          setHolecardButtonsVisibility RESET resetHolecardButtonsVisibility NOTIFY HolecardButtonsVisibilityChanged)
  Q_PROPERTY(
      ButtonStatusPossibilities TensRatioButtonVisibility READ TensRatioButtonVisibility WRITE
          setTensRatioButtonVisibility RESET resetTensRatioButtonVisibility NOTIFY TensRatioButtonVisibilityChanged)
  Q_PROPERTY(ButtonStatusPossibilities DealerStrengthButtonsVisibility READ DealerStrengthButtonsVisibility WRITE
                 setDealerStrengthButtonsVisibility RESET resetDealerStrengthButtonsVisibility NOTIFY
                     DealerStrengthButtonsVisibilityChanged)
  // Without a signal: it always reads 0.
  Q_PROPERTY(ButtonStatusPossibilities StatusButtonButtonVisibility READ StatusButtonButtonVisibility WRITE
                 setStatusButtonButtonVisibility RESET resetStatusButtonButtonVisibility)
  Q_PROPERTY(int thisKelvoEdition READ thisKelvoEdition NOTIFY thisKelvoEditionChanged STORED false DESIGNABLE false)
  Q_PROPERTY(tactix::ObjectRef KelvoEdition READ KelvoEdition WRITE setKelvoEdition NOTIFY KelvoEditionChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(bool ResetPredictionButtons READ ResetPredictionButtons WRITE setResetPredictionButtons NOTIFY
                 ResetPredictionButtonsChanged STORED false)

 public:
  /// The rows of tactix::DecisionBARAlignment. Other numbers are kept, too.
  enum DecisionBARAlignment : std::int32_t {
    DBAlignNone = int(tactix::DecisionBARAlignment::DBAlignNone),
    DBAlignTop = int(tactix::DecisionBARAlignment::DBAlignTop),
    DBAlignBottom = int(tactix::DecisionBARAlignment::DBAlignBottom),
    DBAlignLeft = int(tactix::DecisionBARAlignment::DBAlignLeft),
    DBAlignRight = int(tactix::DecisionBARAlignment::DBAlignRight),
  };
  Q_ENUM(DecisionBARAlignment)
  /// The rows of tactix::ButtonStatusPossibilities that a visibility has. Any number but 0 shows.
  enum ButtonStatusPossibilities : std::int32_t {
    ButtonsArevisible = int(tactix::ButtonStatusPossibilities::ButtonsArevisible),
    ButtonsAreInvisible = int(tactix::ButtonStatusPossibilities::ButtonsAreInvisible),
  };
  Q_ENUM(ButtonStatusPossibilities)
  /// The rows of tactix::AdvicePossibilities, for a block's advice.
  enum AdvicePossibilities : std::int32_t {
    HitAdvised = int(tactix::AdvicePossibilities::HitAdvised),
    StandAdvised = int(tactix::AdvicePossibilities::StandAdvised),
    SplitAdvised = int(tactix::AdvicePossibilities::SplitAdvised),
    DoubleAdvised = int(tactix::AdvicePossibilities::DoubleAdvised),
    SurrenderAdvised = int(tactix::AdvicePossibilities::SurrenderAdvised),
  };
  Q_ENUM(AdvicePossibilities)

  ~DecisionToolBarControl() override;

  /// The docking, DBAlignBottom by default.
  DecisionBARAlignment Alignment() const;
  /// Whether a group's buttons are shown, ButtonsAreInvisible by default; a group follows from the first write on.
  ButtonStatusPossibilities HitcardButtonsVisibility() const;
  ButtonStatusPossibilities HolecardButtonsVisibility() const;
  ButtonStatusPossibilities TensRatioButtonVisibility() const;
  ButtonStatusPossibilities DealerStrengthButtonsVisibility() const;
  /// Re-applies the dealer-strength buttons and reads 0 whatever was set.
  ButtonStatusPossibilities StatusButtonButtonVisibility() const;
  /// The edition code last read, 0 by default.
  int thisKelvoEdition() const;
  /// The edition object. Reading it while there is none creates one, and fails with 91 where nothing creates editions,
  /// see tactix::DefaultEdition; KelvoEditionChanged tells of the new one, and being connected to it creates none.
  tactix::ObjectRef KelvoEdition() const;
  /// Whether GetReadyForADecision clears the predictions, false by default.
  bool ResetPredictionButtons() const;
  /// The player's predictions.
  Q_INVOKABLE tactix::DecisionBARResponseObject GiveMeYourResponseData() const;

 public Q_SLOTS:
  void setAlignment(DecisionBARAlignment alignment);
  void setHitcardButtonsVisibility(ButtonStatusPossibilities visibility);
  void setHolecardButtonsVisibility(ButtonStatusPossibilities visibility);
  void setTensRatioButtonVisibility(ButtonStatusPossibilities visibility);
  void setDealerStrengthButtonsVisibility(ButtonStatusPossibilities visibility);
  void setStatusButtonButtonVisibility(ButtonStatusPossibilities visibility);
  void setKelvoEdition(const tactix::ObjectRef& edition);
  void setResetPredictionButtons(bool reset);
  void resetAlignment();
  void resetHitcardButtonsVisibility();
  void resetHolecardButtonsVisibility();
  void resetTensRatioButtonVisibility();
  void resetDealerStrengthButtonsVisibility();
  void resetStatusButtonButtonVisibility();
  void Alignment(DecisionBARAlignment alignment) { setAlignment(alignment); }
  void HitcardButtonsVisibility(ButtonStatusPossibilities visibility) { setHitcardButtonsVisibility(visibility); }
  void HolecardButtonsVisibility(ButtonStatusPossibilities visibility) { setHolecardButtonsVisibility(visibility); }
  void TensRatioButtonVisibility(ButtonStatusPossibilities visibility) { setTensRatioButtonVisibility(visibility); }
  void DealerStrengthButtonsVisibility(ButtonStatusPossibilities visibility) {
    setDealerStrengthButtonsVisibility(visibility);
  }
  void StatusButtonButtonVisibility(ButtonStatusPossibilities visibility) {
    setStatusButtonButtonVisibility(visibility);
  }
  void KelvoEdition(const tactix::ObjectRef& edition) { setKelvoEdition(edition); }
  void ResetPredictionButtons(bool reset) { setResetPredictionButtons(reset); }

  /// Show or hide a group's buttons, without storing anything.
  void PlugHitcardButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugHoleCardButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugTensRatioButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugDealerStrengthButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugStatusButton(ButtonStatusPossibilities buttonStatus);
  /// Reads the edition's code. Null fails with 91.
  void TheKelvoEditionIs(const tactix::ObjectRef& theShortKelvoEdition);

  /// Copies the block, sees to it that there is an edition, and does what SetupDecisionBAR does.
  void SetupTheDecisionBAR(const tactix::DecisionBlock& thisDCB);
  void SetupTheDecisionBAR(const tactix::Variant& thisDCB);
  /// Keeps the edition, enables the plays that the block allows, takes its advice and emits the prompt.
  void SetupDecisionBAR(const tactix::DecisionBlock& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupDecisionBAR(const tactix::Variant& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  /// Enables the plays that the block allows.
  void SetupPlayButtons(const tactix::DecisionBlock& thisDCB);
  void SetupPlayButtons(const tactix::Variant& thisDCB);
  /// Copy the block.
  void HereIsTheDCB(const tactix::DecisionBlock& thisDCB);
  void HereIsTheDCB(const tactix::Variant& thisDCB);
  void DecodeThisDCB(const tactix::DecisionBlock& thisDCB);
  void DecodeThisDCB(const tactix::Variant& thisDCB);
  void GetReadyForADecision();
  /// Clears the predictions.
  void ResetYourResponseData();
  /// Flashes an object that has "Enabled" for 1.6 seconds, and waits for that.
  void FlashObject(const tactix::ObjectRef& buttonToFlash);
  /// Waits that many seconds; fails with 380 for a time that is negative or not finite.
  void BlinkTime(float timeAmount);

 Q_SIGNALS:
  void HitButtonWasPressed();
  void StandButtonWasPressed();
  void SplitButtonWasPressed();
  void DoubleButtonWasPressed();
  void StatsButtonWasPressed();
  /// Never emitted: the Advice button only flashes the advised play.
  void AdviceButtonWasPressed();
  void SurrenderButtonWasPressed();
  void HereIsThePlayersPromptMessage(const QString& promptMessageText);
  /// Never emitted: the host collects predictions with GiveMeYourResponseData.
  void HereIsAResponseBlock(const tactix::DecisionBARResponseObject& responseBlock);

  /// A property has another value now, see WidgetOf.
  void AlignmentChanged(DecisionBARAlignment value);
  void HitcardButtonsVisibilityChanged(ButtonStatusPossibilities value);
  void HolecardButtonsVisibilityChanged(ButtonStatusPossibilities value);
  void TensRatioButtonVisibilityChanged(ButtonStatusPossibilities value);
  void DealerStrengthButtonsVisibilityChanged(ButtonStatusPossibilities value);
  void thisKelvoEditionChanged(int value);
  void KelvoEditionChanged(const tactix::ObjectRef& value);
  void ResetPredictionButtonsChanged(bool value);

 protected:
  DecisionToolBarControl(Maker make, QWidget* parent);
  bool ReadingCreates(std::string_view property) const override;
};

}  // namespace tactix::qt
