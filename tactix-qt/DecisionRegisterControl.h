#pragma once

#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/shared/Enumerations.h"

namespace tactix::qt {

/// What the two decision registers have in common as widgets, see WidgetOf and tactix::DecisionRegister. Numbers beyond
/// 16 bits fail with 6.
class TACTIX_QT_EXPORT DecisionRegisterControl : public WidgetOf<Control> {
  Q_OBJECT
  Q_PROPERTY(int NumberOfDecisions READ NumberOfDecisions WRITE setNumberOfDecisions NOTIFY NumberOfDecisionsChanged
                 STORED false)
  Q_PROPERTY(int NumberOfCorrectDecisions READ NumberOfCorrectDecisions WRITE setNumberOfCorrectDecisions NOTIFY
                 NumberOfCorrectDecisionsChanged STORED false)
  Q_PROPERTY(int NumberOfBreakDecisions READ NumberOfBreakDecisions WRITE setNumberOfBreakDecisions NOTIFY
                 NumberOfBreakDecisionsChanged STORED false)
  Q_PROPERTY(DecisionRegisterType TypeOfDecisionRegister READ TypeOfDecisionRegister WRITE setTypeOfDecisionRegister
                 NOTIFY TypeOfDecisionRegisterChanged)

 public:
  /// The rows of tactix::DecisionRegisterType. Other numbers are kept, too.
  enum DecisionRegisterType : std::int32_t {
    StandardDecisionRegister = int(tactix::DecisionRegisterType::StandardDecisionRegister),
    AfterAdviceDecisionRegister = int(tactix::DecisionRegisterType::AfterAdviceDecisionRegister),
  };
  Q_ENUM(DecisionRegisterType)
  /// The rows of tactix::AfterAdvicePossibilities.
  enum AfterAdvicePossibilities : std::int32_t {
    afterNoAdvice = int(tactix::AfterAdvicePossibilities::afterNoAdvice),
    afterYouShouldaHit = int(tactix::AfterAdvicePossibilities::afterYouShouldaHit),
    afterYouShouldaStood = int(tactix::AfterAdvicePossibilities::afterYouShouldaStood),
    afterYouShouldaSplit = int(tactix::AfterAdvicePossibilities::afterYouShouldaSplit),
    afterYouShouldaDoubled = int(tactix::AfterAdvicePossibilities::afterYouShouldaDoubled),
    afterYouShouldaSurrendered = int(tactix::AfterAdvicePossibilities::afterYouShouldaSurrendered),
    afterYourPlayWasCorrect = int(tactix::AfterAdvicePossibilities::afterYourPlayWasCorrect),
  };
  Q_ENUM(AfterAdvicePossibilities)

  ~DecisionRegisterControl() override;

  /// The counts, 0 by default. Writing one shows nothing, see DisplayTheDrillResults.
  int NumberOfDecisions() const;
  int NumberOfCorrectDecisions() const;
  int NumberOfBreakDecisions() const;
  /// StandardDecisionRegister by default. Decides how high the register is from the next time it is displayed.
  DecisionRegisterType TypeOfDecisionRegister() const;

 public Q_SLOTS:
  void setNumberOfDecisions(int count);
  void setNumberOfCorrectDecisions(int count);
  void setNumberOfBreakDecisions(int count);
  void setTypeOfDecisionRegister(DecisionRegisterType type);
  void NumberOfDecisions(int count) { setNumberOfDecisions(count); }
  void NumberOfCorrectDecisions(int count) { setNumberOfCorrectDecisions(count); }
  void NumberOfBreakDecisions(int count) { setNumberOfBreakDecisions(count); }
  void TypeOfDecisionRegister(DecisionRegisterType type) { setTypeOfDecisionRegister(type); }

  /// Shows the verdict on the last play.
  void AfterAdvice(AfterAdvicePossibilities verdict);
  /// Takes both counts over and shows them.
  void DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions);
  /// Shows both counts as 0.
  void ResetDecisionData();
  /// Arranges the panel with or without the line of breaks.
  void SetupStatisticsBox(bool breakDecisions);

 Q_SIGNALS:
  /// A property has another value now, see WidgetOf.
  void NumberOfDecisionsChanged(int value);
  void NumberOfCorrectDecisionsChanged(int value);
  void NumberOfBreakDecisionsChanged(int value);
  void TypeOfDecisionRegisterChanged(DecisionRegisterType value);

 protected:
  DecisionRegisterControl(Maker make, QWidget* parent);
};

}  // namespace tactix::qt
