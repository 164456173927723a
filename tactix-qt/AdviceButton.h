#pragma once

#include <QString>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/AdviceButton.h"

namespace tactix::qt {

/// The advice button as a widget: tactix::AdviceButton with its properties, signals and slots.
class TACTIX_QT_EXPORT AdviceButton : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE Caption)
  Q_PROPERTY(bool DEFAULT READ DEFAULT WRITE DEFAULT)
  Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled STORED false)
  Q_PROPERTY(int WhichStrategyToUse READ WhichStrategyToUse WRITE WhichStrategyToUse)

 public:
  explicit AdviceButton(QWidget* parent = nullptr);
  ~AdviceButton() override;

  tactix::AdviceButton& control() const { return *button_; }

  QString Caption() const;
  bool DEFAULT() const;
  /// The default-button flag, as DEFAULT; QWidget::isEnabled() is another matter.
  bool Enabled() const;
  int WhichStrategyToUse() const;
  ObjectRef AdviceStrategyList(const ObjectRef& thisStrategyList);

 public Q_SLOTS:
  void Caption(const QString& caption);
  void DEFAULT(bool isDefault);
  void Enabled(bool enabled);
  void WhichStrategyToUse(int strategy);
  void BlinkIfNecessary();
  void BlinkTime(float timeAmount);
  void FlashObject(const tactix::ObjectRef& buttonToFlash);

 Q_SIGNALS:
  void Click();
  void AdviceRecommendation(bool recommendation);
  /// Carries the number of the strategy.
  void AdviceStrategySelected(int adviceStrategy);
  void StrategyListBoxVisibilityChanged(bool strategyListBoxStatus);

 private:
  tactix::AdviceButton* button_;
};

}  // namespace tactix::qt
