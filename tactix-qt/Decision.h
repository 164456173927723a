#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/Decision.h"

namespace tactix::qt {

/// The decision box as a widget, see WidgetOf and tactix::Decision. A signal has its event's name; where a method has
/// that name too, it ends in "Raised". Slots that take a block fail as the box's do; numbers beyond 16 bits fail
/// with 6. A click on the advice button and FlashObject wait for 1.6 seconds, see WidgetOf.
class TACTIX_QT_EXPORT Decision : public WidgetOf<tactix::Decision> {
  Q_OBJECT
  Q_PROPERTY(AdviceButtonAppearance AllowAdvice READ AllowAdvice WRITE setAllowAdvice NOTIFY AllowAdviceChanged)
  Q_PROPERTY(
      TypeOfDecisionBox DecisionBoxType READ DecisionBoxType WRITE setDecisionBoxType NOTIFY DecisionBoxTypeChanged)
  Q_PROPERTY(int thisKelvoEdition READ thisKelvoEdition NOTIFY thisKelvoEditionChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool PromptThePlayButtons READ PromptThePlayButtons WRITE setPromptThePlayButtons NOTIFY
                 PromptThePlayButtonsChanged STORED false)
  Q_PROPERTY(bool PlayButtonPromptStatus READ PlayButtonPromptStatus NOTIFY PlayButtonPromptStatusChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(QString ToolTip READ ToolTip WRITE setControlToolTip NOTIFY ToolTipChanged)
  // Without a signal: it never changes.
  Q_PROPERTY(QString Qualifier READ Qualifier WRITE setQualifier STORED false)

 public:
  /// The rows of tactix::AdviceButtonAppearance. Other numbers are kept, too.
  enum AdviceButtonAppearance : std::int32_t {
    SmallButton = int(tactix::AdviceButtonAppearance::SmallButton),
    MediumButton = int(tactix::AdviceButtonAppearance::MediumButton),
    LargeButton = int(tactix::AdviceButtonAppearance::LargeButton),
  };
  Q_ENUM(AdviceButtonAppearance)
  /// The rows of tactix::TypeOfDecisionBox. Other numbers are kept, too.
  enum TypeOfDecisionBox : std::int32_t {
    forUseWithDrills = int(tactix::TypeOfDecisionBox::forUseWithDrills),
    forUseWithBlackjackTable = int(tactix::TypeOfDecisionBox::forUseWithBlackjackTable),
  };
  Q_ENUM(TypeOfDecisionBox)
  /// The rows of tactix::AdvicePossibilities, for GiveAdvice.
  enum AdvicePossibilities : std::int32_t {
    HitAdvised = int(tactix::AdvicePossibilities::HitAdvised),
    StandAdvised = int(tactix::AdvicePossibilities::StandAdvised),
    SplitAdvised = int(tactix::AdvicePossibilities::SplitAdvised),
    DoubleAdvised = int(tactix::AdvicePossibilities::DoubleAdvised),
    SurrenderAdvised = int(tactix::AdvicePossibilities::SurrenderAdvised),
  };
  Q_ENUM(AdvicePossibilities)

  explicit Decision(QWidget* parent = nullptr);
  ~Decision() override;

  /// The size of the advice button, 0 until it is set.
  AdviceButtonAppearance AllowAdvice() const;
  /// The layout, forUseWithDrills by default.
  TypeOfDecisionBox DecisionBoxType() const;
  /// The edition number last read, 0 by default.
  int thisKelvoEdition() const;
  /// Reads the prompt state, false by default; what is written goes to the copied block.
  bool PromptThePlayButtons() const;
  /// What the copied block says of prompting, false by default.
  bool PlayButtonPromptStatus() const;
  /// The box's tool tip, empty by default; QWidget::toolTip() is the whole widget's.
  QString ToolTip() const;
  /// Always "07-08-2001 - 21:00"; what is written is ignored.
  QString Qualifier() const;

  /// At 12 twips to the pixel. Fail with 6 beyond 16 bits, and as the value fails to convert.
  Q_INVOKABLE std::int16_t ConvertFromPixelsToTwipsX(const tactix::Variant& cValue) const;
  Q_INVOKABLE std::int16_t ConvertFromPixelsToTwipsY(const tactix::Variant& cValue) const;
  Q_INVOKABLE std::int16_t ConvertFromTwipsToPixelsX(const tactix::Variant& cValue) const;
  Q_INVOKABLE std::int16_t ConvertFromTwipsToPixelsY(const tactix::Variant& cValue) const;

 public Q_SLOTS:
  void setAllowAdvice(AdviceButtonAppearance appearance);
  void setDecisionBoxType(TypeOfDecisionBox type);
  void setPromptThePlayButtons(bool prompt);
  void setControlToolTip(const QString& text);
  void setQualifier(const QString& ignored);
  void AllowAdvice(AdviceButtonAppearance appearance) { setAllowAdvice(appearance); }
  void DecisionBoxType(TypeOfDecisionBox type) { setDecisionBoxType(type); }
  void PromptThePlayButtons(bool prompt) { setPromptThePlayButtons(prompt); }
  void ToolTip(const QString& text) { setControlToolTip(text); }
  void Qualifier(const QString& ignored) { setQualifier(ignored); }
  /// Replaces the advised decision, a row of AdvicePossibilities; others advise nothing.
  void GiveAdvice(int recommendedAdvice);
  /// Names the strategy behind the advice in the advice button's tool tip.
  void ToolTipMessage(const QString& toolTipStrategy);

  /// Copies the block, shows the plays that it allows and its prompt.
  void SetupTheDecisionBox(const tactix::DecisionBlock& thisDCB);
  void SetupTheDecisionBox(const tactix::Variant& thisDCB);
  /// The same from the block that is handed over, and keeps the edition for Show.
  void SetupDecisionBox(const tactix::DecisionBlock& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  void SetupDecisionBox(const tactix::Variant& thisDCB, const tactix::ObjectRef& userKelvoEdition);
  /// Shows the plays that the block allows.
  void SetupPlayButtons(const tactix::DecisionBlock& thisDCB);
  void SetupPlayButtons(const tactix::Variant& thisDCB);
  /// Copy the block.
  void HereIsTheDCB(const tactix::DecisionBlock& thisDCB);
  void HereIsTheDCB(const tactix::Variant& thisDCB);
  void DecodeThisDCB(const tactix::DecisionBlock& thisDCB);
  void DecodeThisDCB(const tactix::Variant& thisDCB);
  /// Reads the edition number from an edition object.
  void TheKelvoEditionIs(const tactix::Variant& theShortKelvoEdition);

  /// Moves the widget to where a control in the middle of the screen is.
  void CenterYourSelf();
  /// Calls "Show" of the edition object, which may write to the flag. Fails with 91 without one.
  void Show(std::int16_t& modalFlag);
  /// Clears the prompt line and the description box.
  void DecisionMade();
  /// Lets the advice button blink if its settings say so.
  void HandleAdviceConsiderations();
  /// Flashes an object that has "Visible" and "DEFAULT" for 1.6 seconds, and waits for that.
  void FlashObject(const tactix::ObjectRef& buttonToFlash);
  /// Waits that many seconds; fails with 380 for a time that is negative or not finite.
  void BlinkTime(float timeAmount);
  /// Turns prompting over.
  void DiddleThePromptShit();
  /// Emits the hit-card prediction of a shift state, or shows its name.
  void PredictTheHitCard(int predictionKeys);
  void DisplayHitcardSetting(int shiftKeys);
  /// Shows the description box at a left edge in twips.
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
  /// Never emitted.
  void PlugPromptPlayHands();
  void TensRatioHiPrediction();
  void TensRatioLoPrediction();
  void WholeCardHiPrediction();
  void WholeCardLoPrediction();
  void WholeCardNeutralPrediction();
  void WholeCardUnknownPrediction();
  /// Never emitted.
  void ShowRaised();

  /// A property has another value now, see WidgetOf.
  void AllowAdviceChanged(AdviceButtonAppearance value);
  void DecisionBoxTypeChanged(TypeOfDecisionBox value);
  void thisKelvoEditionChanged(int value);
  void PromptThePlayButtonsChanged(bool value);
  void PlayButtonPromptStatusChanged(bool value);
  void ToolTipChanged(const QString& value);
};

}  // namespace tactix::qt
