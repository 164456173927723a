#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/StrategyListControl.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/CountStrategyList.h"

namespace tactix::qt {

/// The count strategy list as a widget, see tactix::CountStrategyList.
class TACTIX_QT_EXPORT CountStrategyList : public WidgetOf<tactix::CountStrategyList, StrategyListControl> {
  Q_OBJECT
  // Forms do not store it: what it reads is not what was written.
  Q_PROPERTY(CountStrategyPossibilities CountStrategy READ CountStrategy WRITE setCountStrategy RESET resetCountStrategy
                 NOTIFY CountStrategyChanged STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::CountStrategyPossibilities. Other numbers are read, too.
  enum CountStrategyPossibilities : std::int32_t {
    InvalidCountStrategy = int(tactix::CountStrategyPossibilities::InvalidCountStrategy),
    UstonSPM = int(tactix::CountStrategyPossibilities::UstonSPM),
    UstonAPM = int(tactix::CountStrategyPossibilities::UstonAPM),
    UstonAPC = int(tactix::CountStrategyPossibilities::UstonAPC),
    UstonSS = int(tactix::CountStrategyPossibilities::UstonSS),
    KelvoAceFive = int(tactix::CountStrategyPossibilities::KelvoAceFive),
    KelvoAPC = int(tactix::CountStrategyPossibilities::KelvoAPC),
    KelvoAPC2 = int(tactix::CountStrategyPossibilities::KelvoAPC2),
    KelvoSS = int(tactix::CountStrategyPossibilities::KelvoSS),
    KelvoClumpCount = int(tactix::CountStrategyPossibilities::KelvoClumpCount),
    KelvoClumpTrack = int(tactix::CountStrategyPossibilities::KelvoClumpTrack),
    HIOpt1 = int(tactix::CountStrategyPossibilities::HIOpt1),
    Hiopt2 = int(tactix::CountStrategyPossibilities::Hiopt2),
    ReverePlusMinus = int(tactix::CountStrategyPossibilities::ReverePlusMinus),
    ReverePointCount = int(tactix::CountStrategyPossibilities::ReverePointCount),
    RevereAPC = int(tactix::CountStrategyPossibilities::RevereAPC),
    PattersonPLusMinus = int(tactix::CountStrategyPossibilities::PattersonPLusMinus),
    AndersonPointCount = int(tactix::CountStrategyPossibilities::AndersonPointCount),
    ScobletePointCount = int(tactix::CountStrategyPossibilities::ScobletePointCount),
    UltimateCount = int(tactix::CountStrategyPossibilities::UltimateCount),
    CanfieldExpert = int(tactix::CountStrategyPossibilities::CanfieldExpert),
    CanfieldMaster = int(tactix::CountStrategyPossibilities::CanfieldMaster),
    SnyderRedSeven = int(tactix::CountStrategyPossibilities::SnyderRedSeven),
    SnyderZenCount = int(tactix::CountStrategyPossibilities::SnyderZenCount),
    WomansCount = int(tactix::CountStrategyPossibilities::WomansCount),
    OmegaII = int(tactix::CountStrategyPossibilities::OmegaII),
    WilsonPointCount = int(tactix::CountStrategyPossibilities::WilsonPointCount),
    AguilarAceSix = int(tactix::CountStrategyPossibilities::AguilarAceSix),
    CoreRatioCount = int(tactix::CountStrategyPossibilities::CoreRatioCount),
    LowestCardCountIndex = int(tactix::CountStrategyPossibilities::LowestCardCountIndex),
    HighestCardCountIndex = int(tactix::CountStrategyPossibilities::HighestCardCountIndex),
  };
  Q_ENUM(CountStrategyPossibilities)

  explicit CountStrategyList(QWidget* parent = nullptr);
  ~CountStrategyList() override;

  /// Reads the selected row - 1, -2 by default; writing selects the row of a system, 11 to 38, and does nothing for
  /// other numbers. Fails with 380 where the system has no row.
  CountStrategyPossibilities CountStrategy() const;
  /// Always 0 for cards 1 to 4; fails with 9 for a system or a card that there is not, with 6 beyond 16 bits.
  Q_INVOKABLE int CountValue(CountStrategyPossibilities forThisCount, int andThisCard) const;

 public Q_SLOTS:
  void setCountStrategy(CountStrategyPossibilities system);
  void resetCountStrategy();
  void CountStrategy(CountStrategyPossibilities system) { setCountStrategy(system); }
  /// Refills the box from the catalogue, and ends quietly where that fails.
  void InputCountStrategyDescriptions();

 Q_SIGNALS:
  /// Carries the row + 10 and the list's text.
  void StrategySelectionChanged(int newStrategySelected, const QString& strategyDescription);
  /// The same with the number of the system itself, which rows that are missing do not move.
  void countSystemPicked(CountStrategyPossibilities system, const QString& description);

  /// A property has another value now, see WidgetOf.
  void CountStrategyChanged(CountStrategyPossibilities value);
};

}  // namespace tactix::qt
