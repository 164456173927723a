#pragma once

#include <QColor>
#include <cstdint>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/CardCountDisplayBox.h"

namespace tactix::qt {

/// The count box as a widget: tactix::CardCountDisplayBox with its properties and slots. A colour that is not valid is
/// the system's.
class TACTIX_QT_EXPORT CardCountDisplayBox : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(TypeOfCountBox CountBoxType READ CountBoxType WRITE CountBoxType)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE BackColor STORED false)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE ForeColor STORED false)

 public:
  /// The rows of tactix::TypeOfCountBox. Other numbers are kept, too.
  enum TypeOfCountBox : std::int32_t { noCountBox = 0, CountBoxIsRunningCount = 1, CountBoxIsTrueCount = 2 };
  Q_ENUM(TypeOfCountBox)
  /// The rows of tactix::ShadowBoxingConstants, for ShadowBoxStatus; it takes any colour.
  enum ShadowBoxingConstants : std::int32_t {
    ShadowBoxingDisabled = 0,
    ShadowBoxYellowColor = 65535,
    ShadowBoxBlackColor = 4210752,
    ShadowBoxWhiteColor = 16777215,
    ShadowBoxingEnabled = 65535,
    ShadowBoxingDisEnabled = 16777215,
  };
  Q_ENUM(ShadowBoxingConstants)

  explicit CardCountDisplayBox(QWidget* parent = nullptr);
  ~CardCountDisplayBox() override;

  tactix::CardCountDisplayBox& control() const { return *box_; }

  TypeOfCountBox CountBoxType() const;
  QColor BackColor() const;
  QColor ForeColor() const;

 public Q_SLOTS:
  void CountBoxType(TypeOfCountBox type);
  void CountValue(int value);
  void ShadowBoxStatus(int status);
  void BackColor(const QColor& color);
  void ForeColor(const QColor& color);

 private:
  tactix::CardCountDisplayBox* box_;
};

}  // namespace tactix::qt
