#pragma once

#include <QMetaProperty>
#include <QWidget>
#include <functional>
#include <vector>

#include "tactix-qt/ControlWidget.h"

namespace tactix::gallery {

/// The properties of a control, each with what its type is edited with.
class PropertyForm : public QWidget {
  Q_OBJECT

 public:
  explicit PropertyForm(qt::ControlWidget& widget);

  /// Shows what the properties read now.
  void Read();

 private:
  using Show = std::function<void(const QVariant& value)>;

  QWidget* EditorOf(const QMetaProperty& property);
  QWidget* MakeEditor(const QMetaProperty& property, Show& show);
  void Write(const QMetaProperty& property, const QVariant& value);

  struct Row {
    QMetaProperty property;
    Show show;
  };

  qt::ControlWidget& widget_;
  std::vector<Row> rows_;
};

}  // namespace tactix::gallery
