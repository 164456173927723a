#pragma once

#include <QPointer>
#include <QSizeF>
#include <QWidget>
#include <memory>
#include <string_view>

#include "tactix-qt/Export.h"
#include "tactix-qt/QtSite.h"
#include "tactix/platform/Control.h"

namespace tactix::qt {

class PropertyWatch;
class RootPeer;

/// A QWidget that shows a control. The classes named after the controls derive from it and own theirs; it also hosts a
/// control that somebody else owns, made on ItsSite().
///
/// Errors that a user's action raises come out of unhandledError, and so do those of the derived classes' properties,
/// slots and invokables; those of a direct call of the control are the caller's. The child widgets are found by their
/// names as object names.
class TACTIX_QT_EXPORT ControlWidget : public QWidget {
  Q_OBJECT
  /// True by default: the control runs. False in a form designer.
  Q_PROPERTY(bool userMode READ userMode WRITE setUserMode NOTIFY userModeChanged STORED false DESIGNABLE false)

 public:
  explicit ControlWidget(QWidget* parent = nullptr);
  ~ControlWidget() override;

  QtSite& ItsSite() const { return *site_; }
  /// Null before Host, and once the control is gone.
  Control* Hosted() const { return control_; }

  /// Draws a control that was made on this widget's site. The control must end before the widget, or with it in a
  /// handler.
  void Host(Control& control);

  bool userMode() const { return site_->UserMode(); }
  void setUserMode(bool running);

  /// Takes the control's saved properties from a bag, such as a QSettingsBag or a MemoryBag, or puts them into it. What
  /// fails comes out of unhandledError. The bag may destroy the widget.
  void readProperties(PropertyBag& bag);
  void writeProperties(PropertyBag& bag);

  /// The size that the control asks for: as designed, or as it has last set its own; larger where letters are larger
  /// than those it is designed for, see TextGrowth. Half of it is the least, as captions shrink before they are cut.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// A persisted property has been set, perhaps to the value that it had. Carries the name under which it is saved;
  /// where that is spelled otherwise than the property's own, a second signal carries the own one.
  void propertyChanged(const QString& name);
  void userModeChanged(bool value);
  /// An error that a user's action, a timer, a property or a slot has raised. Where nothing is connected it is logged
  /// as a warning.
  void unhandledError(const QString& text, int code);

 protected:
  /// Makes the control of a derived class.
  using Maker = std::unique_ptr<Control> (*)(Site& site);
  ControlWidget(Maker make, QWidget* parent);

  /// Takes a new control over, gives it its initial properties, and hosts it.
  void Own(std::unique_ptr<Control> control);
  /// How a property is reset to the value that it has where a saved form lacks it: as a host sets it, or as a form
  /// restores it, for setters that do not take that value.
  enum class ResetBy { Setting, Restoring };
  void Reset(std::string_view property, ResetBy way = ResetBy::Setting);
  /// Emits the NOTIFY signals of the properties that have changed. May destroy the widget.
  void CompareProperties() const;
  /// Whether reading this property now would create what it reads, which only a host's own read may do.
  virtual bool ReadingCreates(std::string_view /*property*/) const { return false; }

  /// Ends the control. Destructors of derived classes call it first, while their signals are still there.
  void EndControl();

  void connectNotify(const QMetaMethod& signal) override;
  void disconnectNotify(const QMetaMethod& signal) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  friend class PropertyWatch;
  friend class QtSite;
  friend class RootPeer;
  void ControlAttached(Control& control);
  void ControlDetached(Control& control);
  void NotifyPropertyChanged(std::string_view name);
  void NotifyUnhandled(const Error& error);
  void NotifyTouched();
  void ExtenderMoved();
  void AdoptGeometry();
  void FontsChanged();
  void FindFocusEntry();
  void RetireNatives();

  std::unique_ptr<QtSite> site_;
  std::unique_ptr<PropertyWatch> watch_;
  std::unique_ptr<Control> owned_;
  Control* control_ = nullptr;
  RootPeer* root_ = nullptr;
  QPointer<QWidget> window_;
  QSizeF hint_;  // in fractions of a pixel, so that growing and shrinking again gives the same size
  QSizeF growth_{1, 1};
  QPoint place_;
  bool adopting_ = false;
};

}  // namespace tactix::qt
