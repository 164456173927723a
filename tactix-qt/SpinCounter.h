#pragma once

#include <QFont>
#include <cstdint>
#include <string_view>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/SpinCounter.h"

namespace tactix::qt {

/// The spin counter as a widget, see WidgetOf and tactix::SpinCounter. Numbers beyond 16 bits fail with 6. In a layout
/// it keeps its width. CounterValueChanged is the property's, CounterValueHasChanged the control's event, which also
/// comes where a step changes nothing.
class TACTIX_QT_EXPORT SpinCounter : public WidgetOf<tactix::SpinCounter> {
  Q_OBJECT
  // In the order in which a form must set them: the number comes after what limits it.
  Q_PROPERTY(
      int MaximumLimit READ MaximumLimit WRITE setMaximumLimit RESET resetMaximumLimit NOTIFY MaximumLimitChanged)
  Q_PROPERTY(bool NumberWrap READ NumberWrap WRITE setNumberWrap NOTIFY NumberWrapChanged)
  Q_PROPERTY(bool AllowNegNumbers READ AllowNegNumbers WRITE setAllowNegNumbers RESET resetAllowNegNumbers NOTIFY
                 AllowNegNumbersChanged)
  Q_PROPERTY(
      int CounterValue READ CounterValue WRITE setCounterValue RESET resetCounterValue NOTIFY CounterValueChanged)
  Q_PROPERTY(SpinCounterPossibilities ControlHandedness READ ControlHandedness WRITE setControlHandedness RESET
                 resetControlHandedness NOTIFY ControlHandednessChanged)
  Q_PROPERTY(QFont Font READ Font WRITE setControlFont RESET resetFont NOTIFY FontChanged)
  // Without a signal: it always reads false.
  Q_PROPERTY(bool UseDefaultSize READ UseDefaultSize WRITE setUseDefaultSize STORED false)

 public:
  /// The rows of tactix::SpinCounterPossibilities.
  enum SpinCounterPossibilities : std::int32_t {
    LeftHandSpinCounter = int(tactix::SpinCounterPossibilities::LeftHandSpinCounter),
    RighHandSpinCounter = int(tactix::SpinCounterPossibilities::RighHandSpinCounter),
    TopMountSpinCounter = int(tactix::SpinCounterPossibilities::TopMountSpinCounter),
    BottomMountSpinCounter = int(tactix::SpinCounterPossibilities::BottomMountSpinCounter),
  };
  Q_ENUM(SpinCounterPossibilities)

  explicit SpinCounter(QWidget* parent = nullptr);
  ~SpinCounter() override;

  /// The highest number, 1 to 999; 999 by default.
  int MaximumLimit() const;
  /// Whether spinning down below the lower end goes on from the highest number; false by default.
  bool NumberWrap() const;
  /// Whether numbers below 0 are allowed; false by default.
  bool AllowNegNumbers() const;
  /// The number, 0 by default. Reading and writing it fail with 91 where nothing creates counter values, see
  /// tactix::CounterValueObject.
  int CounterValue() const;
  /// Where the number and its buttons stand, RighHandSpinCounter by default.
  SpinCounterPossibilities ControlHandedness() const;
  /// The number's font, "Comic Sans MS" of 12 points by default; QWidget::font() is another one.
  QFont Font() const;
  /// Always false: writing true runs ResetSizeToDefault.
  bool UseDefaultSize() const;

 public Q_SLOTS:
  void setMaximumLimit(int limit);
  void setNumberWrap(bool wrap);
  void setAllowNegNumbers(bool allow);
  void setCounterValue(int value);
  void setControlHandedness(SpinCounterPossibilities handedness);
  void setControlFont(const QFont& font);
  void setUseDefaultSize(bool use);
  void resetMaximumLimit();
  void resetAllowNegNumbers();
  void resetCounterValue();
  void resetControlHandedness();
  void resetFont();
  void MaximumLimit(int limit) { setMaximumLimit(limit); }
  void NumberWrap(bool wrap) { setNumberWrap(wrap); }
  void AllowNegNumbers(bool allow) { setAllowNegNumbers(allow); }
  void CounterValue(int value) { setCounterValue(value); }
  void ControlHandedness(SpinCounterPossibilities handedness) { setControlHandedness(handedness); }
  void Font(const QFont& font) { setControlFont(font); }
  void UseDefaultSize(bool use) { setUseDefaultSize(use); }
  /// Makes the control 24 pixels high.
  void ResetSizeToDefault();

 Q_SIGNALS:
  /// After each accepted change and each step.
  void CounterValueHasChanged(int newCounterValue);

  /// A property has another value now, see WidgetOf.
  void MaximumLimitChanged(int value);
  void NumberWrapChanged(bool value);
  void AllowNegNumbersChanged(bool value);
  void CounterValueChanged(int value);
  void ControlHandednessChanged(SpinCounterPossibilities value);
  void FontChanged(const QFont& value);

 protected:
  bool ReadingCreates(std::string_view property) const override;
};

}  // namespace tactix::qt
