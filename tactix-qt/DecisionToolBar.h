#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/DecisionToolBar.h"

namespace tactix::qt {

/// What the two decision toolbars have in common as widgets: the properties, signals and slots of
/// tactix::DecisionToolBarControl.
class TACTIX_QT_EXPORT DecisionToolBarControl : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(DecisionBARAlignment Alignment READ Alignment WRITE Alignment)
  Q_PROPERTY(
      ButtonStatusPossibilities HitcardButtonsVisibility READ HitcardButtonsVisibility WRITE HitcardButtonsVisibility)
  Q_PROPERTY(ButtonStatusPossibilities HolecardButtonsVisibility READ HolecardButtonsVisibility WRITE
                 HolecardButtonsVisibility)
  Q_PROPERTY(ButtonStatusPossibilities TensRatioButtonVisibility READ TensRatioButtonVisibility WRITE
                 TensRatioButtonVisibility)
  Q_PROPERTY(ButtonStatusPossibilities DealerStrengthButtonsVisibility READ DealerStrengthButtonsVisibility WRITE
                 DealerStrengthButtonsVisibility)
  Q_PROPERTY(ButtonStatusPossibilities StatusButtonButtonVisibility READ StatusButtonButtonVisibility WRITE
                 StatusButtonButtonVisibility)
  Q_PROPERTY(int thisKelvoEdition READ thisKelvoEdition STORED false DESIGNABLE false)
  Q_PROPERTY(tactix::ObjectRef KelvoEdition READ KelvoEdition WRITE KelvoEdition STORED false DESIGNABLE false)
  Q_PROPERTY(bool ResetPredictionButtons READ ResetPredictionButtons WRITE ResetPredictionButtons STORED false)

 public:
  /// The rows of tactix::DecisionBARAlignment. Other numbers are kept, too.
  enum DecisionBARAlignment : std::int32_t {
    DBAlignNone = 0,
    DBAlignTop = 1,
    DBAlignBottom = 2,
    DBAlignLeft = 3,
    DBAlignRight = 4
  };
  Q_ENUM(DecisionBARAlignment)
  /// The rows of tactix::ButtonStatusPossibilities that a visibility has. Any number but 0 shows.
  enum ButtonStatusPossibilities : std::int32_t { ButtonsArevisible = -1, ButtonsAreInvisible = 0 };
  Q_ENUM(ButtonStatusPossibilities)

  ~DecisionToolBarControl() override;

  DecisionBARAlignment Alignment() const;
  ButtonStatusPossibilities HitcardButtonsVisibility() const;
  ButtonStatusPossibilities HolecardButtonsVisibility() const;
  ButtonStatusPossibilities TensRatioButtonVisibility() const;
  ButtonStatusPossibilities DealerStrengthButtonsVisibility() const;
  /// Re-applies the dealer-strength buttons and reads 0 whatever was set.
  ButtonStatusPossibilities StatusButtonButtonVisibility() const;
  int thisKelvoEdition() const;
  ObjectRef KelvoEdition() const;
  bool ResetPredictionButtons() const;
  DecisionBARResponseObject GiveMeYourResponseData() const;

 public Q_SLOTS:
  void Alignment(DecisionBARAlignment alignment);
  void HitcardButtonsVisibility(ButtonStatusPossibilities visibility);
  void HolecardButtonsVisibility(ButtonStatusPossibilities visibility);
  void TensRatioButtonVisibility(ButtonStatusPossibilities visibility);
  void DealerStrengthButtonsVisibility(ButtonStatusPossibilities visibility);
  void StatusButtonButtonVisibility(ButtonStatusPossibilities visibility);
  void PlugHitcardButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugHoleCardButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugTensRatioButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugDealerStrengthButtons(ButtonStatusPossibilities buttonGroupStatus);
  void PlugStatusButton(ButtonStatusPossibilities buttonStatus);
  void KelvoEdition(const tactix::ObjectRef& edition);
  void TheKelvoEditionIs(const tactix::ObjectRef& theShortKelvoEdition);
  void ResetPredictionButtons(bool reset);

  void SetupTheDecisionBAR(const tactix::DecisionBlock& thisDCB);
  void SetupTheDecisionBAR(const tactix::Variant& thisDCB);
  void SetupDecisionBAR(const tactix::DecisionBlock& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupDecisionBAR(const tactix::Variant& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupPlayButtons(const tactix::DecisionBlock& thisDCB);
  void SetupPlayButtons(const tactix::Variant& thisDCB);
  void HereIsTheDCB(const tactix::DecisionBlock& thisDCB);
  void HereIsTheDCB(const tactix::Variant& thisDCB);
  void DecodeThisDCB(const tactix::DecisionBlock& thisDCB);
  void DecodeThisDCB(const tactix::Variant& thisDCB);
  void GetReadyForADecision();
  void ResetYourResponseData();
  void FlashObject(const tactix::ObjectRef& buttonToFlash);
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

 protected:
  using Maker = std::unique_ptr<tactix::DecisionToolBarControl>(Site& site);
  DecisionToolBarControl(Maker& make, QWidget* parent);

 private:
  tactix::DecisionToolBarControl* bar_ = nullptr;
};

}  // namespace tactix::qt
