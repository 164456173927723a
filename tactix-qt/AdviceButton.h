#pragma once

#include <QString>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/AdviceButton.h"

namespace tactix::qt {

/// The advice button as a widget, see WidgetOf and tactix::AdviceButton. Numbers beyond 16 bits fail with 6.
/// Where it blinks, the focus coming to it, like FlashObject, waits for 1.6 seconds, see WidgetOf.
class TACTIX_QT_EXPORT AdviceButton : public WidgetOf<tactix::AdviceButton> {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE setCaption NOTIFY CaptionChanged)
  Q_PROPERTY(bool DEFAULT READ DEFAULT WRITE setDEFAULT NOTIFY DEFAULTChanged)
  Q_PROPERTY(bool Enabled READ Enabled WRITE setControlEnabled NOTIFY EnabledChanged STORED false)
  Q_PROPERTY(
      int WhichStrategyToUse READ WhichStrategyToUse WRITE setWhichStrategyToUse NOTIFY WhichStrategyToUseChanged)

 public:
  explicit AdviceButton(QWidget* parent = nullptr);
  ~AdviceButton() override;

  /// The button's caption, "&Ask Kelvo for Advice" by default.
  QString Caption() const;
  /// Whether Enter presses the button, false by default.
  bool DEFAULT() const;
  /// The same flag as DEFAULT; QWidget::isEnabled() is another matter.
  bool Enabled() const;
  /// A number that the button keeps for the host, 0 by default.
  int WhichStrategyToUse() const;
  /// Hands strategies to the list inside and returns them. Null fails with 91.
  Q_INVOKABLE tactix::ObjectRef AdviceStrategyList(const tactix::ObjectRef& thisStrategyList);

 public Q_SLOTS:
  void setCaption(const QString& caption);
  void setDEFAULT(bool isDefault);
  void setControlEnabled(bool enabled);
  void setWhichStrategyToUse(int strategy);
  void Caption(const QString& caption) { setCaption(caption); }
  void DEFAULT(bool isDefault) { setDEFAULT(isDefault); }
  void Enabled(bool enabled) { setControlEnabled(enabled); }
  void WhichStrategyToUse(int strategy) { setWhichStrategyToUse(strategy); }

  /// Flashes the button where its menu says so.
  void BlinkIfNecessary();
  /// Waits that many seconds; fails with 380 for a time that is negative or not finite.
  void BlinkTime(float timeAmount);
  /// Flashes an object that has "Visible" and "DEFAULT" for 1.6 seconds, and waits for that.
  void FlashObject(const tactix::ObjectRef& buttonToFlash);

 Q_SIGNALS:
  void Click();
  /// Never emitted.
  void AdviceRecommendation(bool recommendation);
  /// Carries the number of the strategy that was picked from the list.
  void AdviceStrategySelected(int adviceStrategy);
  /// The list is open.
  void StrategyListBoxVisibilityChanged(bool strategyListBoxStatus);

  /// A property has another value now, see WidgetOf.
  void CaptionChanged(const QString& value);
  void DEFAULTChanged(bool value);
  void EnabledChanged(bool value);
  void WhichStrategyToUseChanged(int value);
};

}  // namespace tactix::qt
