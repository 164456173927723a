#pragma once

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/Export.h"
#include "tactix/scoring/DecisionRegiLOG.h"

namespace tactix::qt {

/// The decision register with a log as a widget: tactix::DecisionRegiLOG with its properties and slots.
class TACTIX_QT_EXPORT DecisionRegiLOG : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(int NumberOfDecisions READ NumberOfDecisions WRITE NumberOfDecisions STORED false)
  Q_PROPERTY(int NumberOfCorrectDecisions READ NumberOfCorrectDecisions WRITE NumberOfCorrectDecisions STORED false)
  Q_PROPERTY(int NumberOfBreakDecisions READ NumberOfBreakDecisions WRITE NumberOfBreakDecisions STORED false)
  Q_PROPERTY(tactix::qt::DecisionRegister::DecisionRegisterType TypeOfDecisionRegister READ TypeOfDecisionRegister WRITE
                 TypeOfDecisionRegister)

 public:
  using DecisionRegisterType = DecisionRegister::DecisionRegisterType;
  using AfterAdvicePossibilities = DecisionRegister::AfterAdvicePossibilities;

  explicit DecisionRegiLOG(QWidget* parent = nullptr);
  ~DecisionRegiLOG() override;

  tactix::DecisionRegiLOG& control() const { return *log_; }

  int NumberOfDecisions() const;
  int NumberOfCorrectDecisions() const;
  int NumberOfBreakDecisions() const;
  DecisionRegisterType TypeOfDecisionRegister() const;

 public Q_SLOTS:
  void NumberOfDecisions(int count);
  void NumberOfCorrectDecisions(int count);
  void NumberOfBreakDecisions(int count);
  void TypeOfDecisionRegister(tactix::qt::DecisionRegister::DecisionRegisterType type);
  void AfterAdvice(tactix::qt::DecisionRegister::AfterAdvicePossibilities verdict);
  void DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions);
  void ResetDecisionData();
  void SetupStatisticsBox(bool breakDecisions);

 private:
  tactix::DecisionRegiLOG* log_;
};

}  // namespace tactix::qt
