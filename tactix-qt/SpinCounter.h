#pragma once

#include <QFont>
#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/SpinCounter.h"

namespace tactix::qt {

/// The spin counter as a widget: tactix::SpinCounter with its properties, signal and slots. Numbers beyond 16 bits fail
/// with 6. In a layout it keeps its width.
class TACTIX_QT_EXPORT SpinCounter : public ControlWidget {
  Q_OBJECT
  // In the order in which a form must set them: the number comes after what limits it.
  Q_PROPERTY(int MaximumLimit READ MaximumLimit WRITE MaximumLimit)
  Q_PROPERTY(bool NumberWrap READ NumberWrap WRITE NumberWrap)
  Q_PROPERTY(bool AllowNegNumbers READ AllowNegNumbers WRITE AllowNegNumbers)
  Q_PROPERTY(int CounterValue READ CounterValue WRITE CounterValue)
  Q_PROPERTY(SpinCounterPossibilities ControlHandedness READ ControlHandedness WRITE ControlHandedness)
  Q_PROPERTY(QFont Font READ Font WRITE Font)
  Q_PROPERTY(bool UseDefaultSize READ UseDefaultSize WRITE UseDefaultSize STORED false)

 public:
  /// The rows of tactix::SpinCounterPossibilities.
  enum SpinCounterPossibilities : std::int32_t {
    LeftHandSpinCounter = 1,
    RighHandSpinCounter = 2,
    TopMountSpinCounter = 3,
    BottomMountSpinCounter = 4,
  };
  Q_ENUM(SpinCounterPossibilities)

  explicit SpinCounter(QWidget* parent = nullptr);
  ~SpinCounter() override;

  tactix::SpinCounter& control() const { return *counter_; }

  int MaximumLimit() const;
  bool NumberWrap() const;
  bool AllowNegNumbers() const;
  int CounterValue() const;
  SpinCounterPossibilities ControlHandedness() const;
  QFont Font() const;
  bool UseDefaultSize() const;

 public Q_SLOTS:
  void MaximumLimit(int limit);
  void NumberWrap(bool wrap);
  void AllowNegNumbers(bool allow);
  void CounterValue(int value);
  void ControlHandedness(SpinCounterPossibilities handedness);
  void Font(const QFont& font);
  void UseDefaultSize(bool use);
  void ResetSizeToDefault();

 Q_SIGNALS:
  void CounterValueHasChanged(int newCounterValue);

 private:
  tactix::SpinCounter* counter_;
};

}  // namespace tactix::qt
