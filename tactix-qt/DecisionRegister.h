#pragma once

#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/scoring/DecisionRegister.h"

namespace tactix::qt {

/// The decision register as a widget: tactix::DecisionRegister with its properties and slots.
class TACTIX_QT_EXPORT DecisionRegister : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(int NumberOfDecisions READ NumberOfDecisions WRITE NumberOfDecisions STORED false)
  Q_PROPERTY(int NumberOfCorrectDecisions READ NumberOfCorrectDecisions WRITE NumberOfCorrectDecisions STORED false)
  Q_PROPERTY(int NumberOfBreakDecisions READ NumberOfBreakDecisions WRITE NumberOfBreakDecisions STORED false)
  Q_PROPERTY(DecisionRegisterType TypeOfDecisionRegister READ TypeOfDecisionRegister WRITE TypeOfDecisionRegister)

 public:
  /// The rows of tactix::DecisionRegisterType. Other numbers are kept, too.
  enum DecisionRegisterType : std::int32_t { StandardDecisionRegister = 1, AfterAdviceDecisionRegister = 2 };
  Q_ENUM(DecisionRegisterType)
  /// The rows of tactix::AfterAdvicePossibilities.
  enum AfterAdvicePossibilities : std::int32_t {
    afterNoAdvice = 0,
    afterYouShouldaHit = 1,
    afterYouShouldaStood = 2,
    afterYouShouldaSplit = 3,
    afterYouShouldaDoubled = 4,
    afterYouShouldaSurrendered = 5,
    afterYourPlayWasCorrect = 100,
  };
  Q_ENUM(AfterAdvicePossibilities)

  explicit DecisionRegister(QWidget* parent = nullptr);
  ~DecisionRegister() override;

  tactix::DecisionRegister& control() const { return *register_; }

  int NumberOfDecisions() const;
  int NumberOfCorrectDecisions() const;
  int NumberOfBreakDecisions() const;
  DecisionRegisterType TypeOfDecisionRegister() const;

 public Q_SLOTS:
  void NumberOfDecisions(int count);
  void NumberOfCorrectDecisions(int count);
  void NumberOfBreakDecisions(int count);
  void TypeOfDecisionRegister(DecisionRegisterType type);
  void AfterAdvice(AfterAdvicePossibilities verdict);
  void DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions);
  void ResetDecisionData();
  void SetupStatisticsBox(bool breakDecisions);

 private:
  tactix::DecisionRegister* register_;
};

}  // namespace tactix::qt
