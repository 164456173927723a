#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/strategy/StrategyMarquix.h"

namespace tactix::qt {

/// The strategy marquee as a widget: tactix::StrategyMarquix with its properties, signals and slots.
class TACTIX_QT_EXPORT StrategyMarquix : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE Caption)
  Q_PROPERTY(TypeOfStrategyMarquixControl ControlType READ ControlType WRITE ControlType)
  Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled)
  Q_PROPERTY(int ListIndex READ ListIndex WRITE ListIndex STORED false DESIGNABLE false)
  Q_PROPERTY(StrategyListFormats ourStrategyListFormats READ ourStrategyListFormats WRITE ourStrategyListFormats)

 public:
  /// The rows of tactix::TypeOfStrategyMarquixControl. Other numbers are kept, too.
  enum TypeOfStrategyMarquixControl : std::int32_t {
    IsNotYetAssigned = 0,
    IsABettingMarquix = 1,
    IsAPlayingMarquix = 2,
    IsAnEvaluationMarquix = 3,
    IsATableSelectionMarquix = 4,
    IsATableDepartureMarquix = 5,
  };
  Q_ENUM(TypeOfStrategyMarquixControl)

  /// The rows of tactix::StrategyListFormats. Other numbers are kept, too.
  enum StrategyListFormats : std::int32_t {
    ShowAllStrategies = 0,
    ShowPresentStrategiesOnly = 1,
  };
  Q_ENUM(StrategyListFormats)

  explicit StrategyMarquix(QWidget* parent = nullptr);
  ~StrategyMarquix() override;

  tactix::StrategyMarquix& control() const { return *marquee_; }

  QString Caption() const;
  TypeOfStrategyMarquixControl ControlType() const;
  bool Enabled() const;
  int ListIndex() const;
  StrategyListFormats ourStrategyListFormats() const;
  Q_INVOKABLE bool aStrategyExists() const;

 public Q_SLOTS:
  void Caption(const QString& caption);
  void ControlType(TypeOfStrategyMarquixControl type);
  void Enabled(bool enabled);
  void ListIndex(int strategy);
  void ourStrategyListFormats(StrategyListFormats formats);
  void AddItem(const QString& thisItem);
  void InputPlayingStrategyDescriptions();
  void LoadStrategiesFromIniFile();
  void SelectThisStrategy(bool selection);
  void SetFocus();
  void UseThisStrategyList(const tactix::ObjectRef& thisStrategyList);

 Q_SIGNALS:
  void BettingStrategySelected(int index);
  void PlayingStrategySelected(int index);
  void StrategySelectionChanged(int newStrategySelected);

 private:
  tactix::StrategyMarquix* marquee_;
};

}  // namespace tactix::qt
