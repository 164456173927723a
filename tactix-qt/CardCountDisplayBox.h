#pragma once

#include <QColor>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/CardCountDisplayBox.h"

namespace tactix::qt {

/// The count box as a widget, see WidgetOf and tactix::CardCountDisplayBox. A colour that is not valid is the system's.
class TACTIX_QT_EXPORT CardCountDisplayBox : public WidgetOf<tactix::CardCountDisplayBox> {
  Q_OBJECT
  Q_PROPERTY(TypeOfCountBox CountBoxType READ CountBoxType WRITE setCountBoxType RESET resetCountBoxType NOTIFY
                 CountBoxTypeChanged)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor NOTIFY BackColorChanged STORED false)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor NOTIFY ForeColorChanged STORED false)

 public:
  /// The rows of tactix::TypeOfCountBox. Other numbers are kept, too.
  enum TypeOfCountBox : std::int32_t {
    noCountBox = int(tactix::TypeOfCountBox::noCountBox),
    CountBoxIsRunningCount = int(tactix::TypeOfCountBox::CountBoxIsRunningCount),
    CountBoxIsTrueCount = int(tactix::TypeOfCountBox::CountBoxIsTrueCount),
  };
  Q_ENUM(TypeOfCountBox)
  /// The rows of tactix::ShadowBoxingConstants, for ShadowBoxStatus; it takes any colour.
  enum ShadowBoxingConstants : std::int32_t {
    ShadowBoxingDisabled = int(tactix::ShadowBoxingConstants::ShadowBoxingDisabled),
    ShadowBoxYellowColor = int(tactix::ShadowBoxingConstants::ShadowBoxYellowColor),
    ShadowBoxBlackColor = int(tactix::ShadowBoxingConstants::ShadowBoxBlackColor),
    ShadowBoxWhiteColor = int(tactix::ShadowBoxingConstants::ShadowBoxWhiteColor),
    ShadowBoxingEnabled = int(tactix::ShadowBoxingConstants::ShadowBoxingEnabled),
    ShadowBoxingDisEnabled = int(tactix::ShadowBoxingConstants::ShadowBoxingDisEnabled),
  };
  Q_ENUM(ShadowBoxingConstants)

  explicit CardCountDisplayBox(QWidget* parent = nullptr);
  ~CardCountDisplayBox() override;

  /// Which count it is, noCountBox by default.
  TypeOfCountBox CountBoxType() const;
  /// The tag's colours, the system's by default.
  QColor BackColor() const;
  QColor ForeColor() const;

 public Q_SLOTS:
  void setCountBoxType(TypeOfCountBox type);
  void setBackColor(const QColor& color);
  void setForeColor(const QColor& color);
  void resetCountBoxType();
  void CountBoxType(TypeOfCountBox type) { setCountBoxType(type); }
  void BackColor(const QColor& color) { setBackColor(color); }
  void ForeColor(const QColor& color) { setForeColor(color); }
  /// Shows a value.
  void CountValue(int value);
  /// The colour behind the value, 0x00BBGGRR, from the next repaint on; white for 0.
  void ShadowBoxStatus(int status);

 Q_SIGNALS:
  /// A property has another value now, see WidgetOf.
  void CountBoxTypeChanged(TypeOfCountBox value);
  void BackColorChanged(const QColor& value);
  void ForeColorChanged(const QColor& value);
};

}  // namespace tactix::qt
