#pragma once

#include <QString>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/StrategyMarquix.h"

namespace tactix::qt {

/// The strategy marquee as a widget, see WidgetOf and tactix::StrategyMarquix. Numbers beyond 16 bits fail with 6.
class TACTIX_QT_EXPORT StrategyMarquix : public WidgetOf<tactix::StrategyMarquix> {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE setCaption RESET resetCaption NOTIFY CaptionChanged)
  Q_PROPERTY(TypeOfStrategyMarquixControl ControlType READ ControlType WRITE setControlType RESET resetControlType
                 NOTIFY ControlTypeChanged)
  Q_PROPERTY(bool Enabled READ Enabled WRITE setControlEnabled NOTIFY EnabledChanged)
  Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex NOTIFY ListIndexChanged STORED false DESIGNABLE false)
  Q_PROPERTY(StrategyListFormats ourStrategyListFormats READ ourStrategyListFormats WRITE setOurStrategyListFormats
                 NOTIFY ourStrategyListFormatsChanged)

 public:
  /// The rows of tactix::TypeOfStrategyMarquixControl. Other numbers are kept, too.
  enum TypeOfStrategyMarquixControl : std::int32_t {
    IsNotYetAssigned = int(tactix::TypeOfStrategyMarquixControl::IsNotYetAssigned),
    IsABettingMarquix = int(tactix::TypeOfStrategyMarquixControl::IsABettingMarquix),
    IsAPlayingMarquix = int(tactix::TypeOfStrategyMarquixControl::IsAPlayingMarquix),
    IsAnEvaluationMarquix = int(tactix::TypeOfStrategyMarquixControl::IsAnEvaluationMarquix),
    IsATableSelectionMarquix = int(tactix::TypeOfStrategyMarquixControl::IsATableSelectionMarquix),
    IsATableDepartureMarquix = int(tactix::TypeOfStrategyMarquixControl::IsATableDepartureMarquix),
  };
  Q_ENUM(TypeOfStrategyMarquixControl)
  /// The rows of tactix::StrategyListFormats. Other numbers are kept, too.
  enum StrategyListFormats : std::int32_t {
    ShowAllStrategies = int(tactix::StrategyListFormats::ShowAllStrategies),
    ShowPresentStrategiesOnly = int(tactix::StrategyListFormats::ShowPresentStrategiesOnly),
  };
  Q_ENUM(StrategyListFormats)

  explicit StrategyMarquix(QWidget* parent = nullptr);
  ~StrategyMarquix() override;

  /// The banner's caption, "Strategy Un-defined" by default.
  QString Caption() const;
  /// What the marquee chooses, IsNotYetAssigned by default. A playing marquee shows the mark.
  TypeOfStrategyMarquixControl ControlType() const;
  /// Whether the list can be used, true by default; QWidget::isEnabled() is the whole widget's.
  bool Enabled() const;
  /// The list's selected row - 1, -2 by default: none. Writing a row that there is not fails with 380; reading one past
  /// 32768 fails with 6.
  int ListIndex() const;
  /// Kept for the host, ShowAllStrategies by default. A write to the control's own member is signalled with the next
  /// change.
  StrategyListFormats ourStrategyListFormats() const;
  /// Whether a strategy numbered 1 or higher is selected.
  Q_INVOKABLE bool aStrategyExists() const;

 public Q_SLOTS:
  void setCaption(const QString& caption);
  void setControlType(TypeOfStrategyMarquixControl type);
  void setControlEnabled(bool enabled);
  void setListIndex(int strategy);
  void setOurStrategyListFormats(StrategyListFormats formats);
  void resetCaption();
  void resetControlType();
  void Caption(const QString& caption) { setCaption(caption); }
  void ControlType(TypeOfStrategyMarquixControl type) { setControlType(type); }
  void Enabled(bool enabled) { setControlEnabled(enabled); }
  void ListIndex(int strategy) { setListIndex(strategy); }
  void ourStrategyListFormats(StrategyListFormats formats) { setOurStrategyListFormats(formats); }

  /// Adds a row of the host's own at the list's end.
  void AddItem(const QString& thisItem);
  /// Refills the list from the catalogue, and ends quietly where that fails.
  void InputPlayingStrategyDescriptions();
  /// Fills the list from the catalogue; fails with 91 without one.
  void LoadStrategiesFromIniFile();
  /// Sets the mark.
  void SelectThisStrategy(bool selection);
  /// Gives the focus to the list.
  void SetFocus();
  /// Hands the host's collection to the list. Null fails with 91.
  void UseThisStrategyList(const tactix::ObjectRef& thisStrategyList);

 Q_SIGNALS:
  /// Never emitted.
  void BettingStrategySelected(int index);
  /// Never emitted.
  void PlayingStrategySelected(int index);
  /// Carries the number of the strategy, the row - 1.
  void StrategySelectionChanged(int newStrategySelected);

  /// A property has another value now, see WidgetOf.
  void CaptionChanged(const QString& value);
  void ControlTypeChanged(TypeOfStrategyMarquixControl value);
  void EnabledChanged(bool value);
  void ListIndexChanged(int value);
  void ourStrategyListFormatsChanged(StrategyListFormats value);
};

}  // namespace tactix::qt
