#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/StrategyListControl.h"
#include "tactix/strategy/CountStrategyList.h"

namespace tactix::qt {

/// The count strategy list as a widget: tactix::CountStrategyList with its properties, signals and slots. Forms do not
/// store its system: what it reads is not what was written.
class TACTIX_QT_EXPORT CountStrategyList : public StrategyListControl {
  Q_OBJECT
  Q_PROPERTY(
      CountStrategyPossibilities CountStrategy READ CountStrategy WRITE CountStrategy STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::CountStrategyPossibilities. Other numbers are read, too.
  enum CountStrategyPossibilities : std::int32_t {
    InvalidCountStrategy = 0,
    UstonSPM = 11,
    UstonAPM = 12,
    UstonAPC = 13,
    UstonSS = 14,
    KelvoAceFive = 15,
    KelvoAPC = 16,
    KelvoAPC2 = 17,
    KelvoSS = 18,
    KelvoClumpCount = 19,
    KelvoClumpTrack = 20,
    HIOpt1 = 21,
    Hiopt2 = 22,
    ReverePlusMinus = 23,
    ReverePointCount = 24,
    RevereAPC = 25,
    PattersonPLusMinus = 26,
    AndersonPointCount = 27,
    ScobletePointCount = 28,
    UltimateCount = 29,
    CanfieldExpert = 30,
    CanfieldMaster = 31,
    SnyderRedSeven = 32,
    SnyderZenCount = 33,
    WomansCount = 34,
    OmegaII = 35,
    WilsonPointCount = 36,
    AguilarAceSix = 37,
    CoreRatioCount = 38,
    LowestCardCountIndex = 11,
    HighestCardCountIndex = 38,
  };
  Q_ENUM(CountStrategyPossibilities)

  explicit CountStrategyList(QWidget* parent = nullptr);
  ~CountStrategyList() override;

  tactix::CountStrategyList& control() const { return *list_; }

  CountStrategyPossibilities CountStrategy() const;
  /// Fails with 9 for a system or a card that there is not.
  Q_INVOKABLE int CountValue(CountStrategyPossibilities forThisCount, int andThisCard) const;

 public Q_SLOTS:
  void CountStrategy(CountStrategyPossibilities system);
  void InputCountStrategyDescriptions();

 Q_SIGNALS:
  void StrategySelectionChanged(int newStrategySelected, const QString& strategyDescription);

 private:
  tactix::CountStrategyList* list_;
};

}  // namespace tactix::qt
