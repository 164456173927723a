#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/Decision.h"

namespace tactix::qt {

/// The decision box as a widget: tactix::Decision with its properties, signals and slots. A signal has its event's
/// name; where a method has that name too, it ends in "Raised".
class TACTIX_QT_EXPORT Decision : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(AdviceButtonAppearance AllowAdvice READ AllowAdvice WRITE AllowAdvice)
  Q_PROPERTY(TypeOfDecisionBox DecisionBoxType READ DecisionBoxType WRITE DecisionBoxType)
  Q_PROPERTY(int thisKelvoEdition READ thisKelvoEdition STORED false DESIGNABLE false)
  Q_PROPERTY(bool PromptThePlayButtons READ PromptThePlayButtons WRITE PromptThePlayButtons STORED false)
  Q_PROPERTY(bool PlayButtonPromptStatus READ PlayButtonPromptStatus STORED false DESIGNABLE false)
  Q_PROPERTY(QString ToolTip READ ToolTip WRITE ToolTip)
  Q_PROPERTY(QString Qualifier READ Qualifier WRITE Qualifier STORED false)

 public:
  /// The rows of tactix::AdviceButtonAppearance. Other numbers are kept, too.
  enum AdviceButtonAppearance : std::int32_t { SmallButton = 1, MediumButton = 2, LargeButton = 3 };
  Q_ENUM(AdviceButtonAppearance)
  /// The rows of tactix::TypeOfDecisionBox. Other numbers are kept, too.
  enum TypeOfDecisionBox : std::int32_t { forUseWithDrills = 0, forUseWithBlackjackTable = 1 };
  Q_ENUM(TypeOfDecisionBox)

  explicit Decision(QWidget* parent = nullptr);
  ~Decision() override;

  tactix::Decision& control() const { return *decision_; }

  AdviceButtonAppearance AllowAdvice() const;
  TypeOfDecisionBox DecisionBoxType() const;
  int thisKelvoEdition() const;
  bool PromptThePlayButtons() const;
  bool PlayButtonPromptStatus() const;
  QString ToolTip() const;
  QString Qualifier() const;

  std::int16_t ConvertFromPixelsToTwipsX(const Variant& cValue) const;
  std::int16_t ConvertFromPixelsToTwipsY(const Variant& cValue) const;
  std::int16_t ConvertFromTwipsToPixelsX(const Variant& cValue) const;
  std::int16_t ConvertFromTwipsToPixelsY(const Variant& cValue) const;

 public Q_SLOTS:
  void AllowAdvice(AdviceButtonAppearance appearance);
  void DecisionBoxType(TypeOfDecisionBox type);
  void PromptThePlayButtons(bool prompt);
  void ToolTip(const QString& text);
  void Qualifier(const QString& ignored);
  void GiveAdvice(int recommendedAdvice);
  void ToolTipMessage(const QString& toolTipStrategy);

  void SetupTheDecisionBox(const tactix::DecisionBlock& thisDCB);
  void SetupTheDecisionBox(const tactix::Variant& thisDCB);
  void SetupDecisionBox(const tactix::DecisionBlock& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupDecisionBox(const tactix::Variant& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupPlayButtons(const tactix::DecisionBlock& thisDCB);
  void SetupPlayButtons(const tactix::Variant& thisDCB);
  void HereIsTheDCB(const tactix::DecisionBlock& thisDCB);
  void HereIsTheDCB(const tactix::Variant& thisDCB);
  void DecodeThisDCB(const tactix::DecisionBlock& thisDCB);
  void DecodeThisDCB(const tactix::Variant& thisDCB);
  void TheKelvoEditionIs(const tactix::Variant& theShortKelvoEdition);
  void CenterYourSelf();
  void Show(std::int16_t& modalFlag);
  void DecisionMade();
  void HandleAdviceConsiderations();
  void FlashObject(const tactix::ObjectRef& buttonToFlash);
  void BlinkTime(float timeAmount);
  void DiddleThePromptShit();
  void PredictTheHitCard(int predictionKeys);
  void DisplayHitcardSetting(int shiftKeys);
  void SetDescriptionBoxState(int buttonNumber, int shiftKeys, int leftPosition, const QString& buttonText);
  void ClearButtonDescriptionBox();

 Q_SIGNALS:
  void AdviceRequested();
  void BurnACardRequested();
  /// Carries the number of the strategy.
  void EvaluationStrategySelected(int strategy);
  void HitCardHiPrediction();
  void HitCardLoPrediction();
  void HitCardNeutralPrediction();
  void HitCardUnknownPrediction();
  void PlayerDoublesDown();
  void PlayerHits();
  void PlayerSplits();
  void PlayerStands();
  void PlayerSurrenders();
  void PlugHandCardsInClipboard();
  void PlugPromptPlayHands();
  void TensRatioHiPrediction();
  void TensRatioLoPrediction();
  void WholeCardHiPrediction();
  void WholeCardLoPrediction();
  void WholeCardNeutralPrediction();
  void WholeCardUnknownPrediction();
  void ShowRaised();

 private:
  tactix::Decision* decision_;
};

}  // namespace tactix::qt
