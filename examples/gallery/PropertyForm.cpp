#include "examples/gallery/PropertyForm.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <limits>

#include "examples/gallery/ValueText.h"

namespace tactix::gallery {

namespace {

/// A button that shows a value and asks for another one, which is invalid where the user does not want to.
QPushButton* AskingButton(const std::function<QVariant(const QVariant& now)>& ask,
                          const std::function<QVariant()>& read, const std::function<void(const QVariant&)>& write) {
  auto* const button = new QPushButton;
  QObject::connect(button, &QPushButton::clicked, button, [=] {
    const QVariant chosen = ask(read());
    if (chosen.isValid()) write(chosen);
  });
  return button;
}

QVariant AskForAColor(QWidget* parent, const QVariant& now) {
  const QColor color = QColorDialog::getColor(now.value<QColor>(), parent);
  return color.isValid() ? QVariant(color) : QVariant();
}

QVariant AskForAFont(QWidget* parent, const QVariant& now) {
  bool chosen = false;
  const QFont font = QFontDialog::getFont(&chosen, now.value<QFont>(), parent);
  return chosen ? QVariant(font) : QVariant();
}

}  // namespace

PropertyForm::PropertyForm(qt::ControlWidget& widget) : widget_(widget) {
  auto* const layout = new QFormLayout(this);
  layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
  layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  const QMetaObject& meta = *widget.metaObject();
  for (int i = qt::ControlWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    layout->addRow(QString::fromLatin1(meta.property(i).name()), EditorOf(meta.property(i)));
  }
  if (rows_.empty()) layout->addRow(new QLabel(tr("It has no properties.")));
  Read();
}

void PropertyForm::Read() {
  for (const Row& row : rows_) row.show(row.property.read(&widget_));
}

void PropertyForm::Write(const QMetaProperty& property, const QVariant& value) {
  property.write(&widget_, value);
  Read();
}

QWidget* PropertyForm::EditorOf(const QMetaProperty& property) {
  Show show;
  QWidget* const editor = MakeEditor(property, show);
  editor->setObjectName(QString::fromLatin1(property.name()));
  editor->setAccessibleName(QString::fromLatin1(property.name()));
  editor->setEnabled(property.isWritable());
  if (show) {
    rows_.push_back({property, [editor, show](const QVariant& value) {
                       const QSignalBlocker quiet(editor);
                       show(value);
                     }});
  }
  return editor;
}

QWidget* PropertyForm::MakeEditor(const QMetaProperty& property, Show& show) {
  const auto write = [this, property](const QVariant& value) { Write(property, value); };
  const auto read = [this, property] { return property.read(&widget_); };
  if (property.isEnumType()) {
    auto* const box = new QComboBox;
    const QMetaEnum rows = property.enumerator();
    for (int i = 0; i < rows.keyCount(); ++i) box->addItem(QString::fromLatin1(rows.key(i)), rows.value(i));
    box->setMinimumWidth(box->sizeHint().width());
    connect(box, &QComboBox::activated, this, [write, box] { write(box->currentData()); });
    show = [box](const QVariant& value) {
      // A number that is no row's is shown as such.
      box->setPlaceholderText(QString::number(value.toInt()));
      box->setCurrentIndex(box->findData(value.toInt()));
    };
    return box;
  }
  switch (property.typeId()) {
    case QMetaType::Bool: {
      auto* const box = new QCheckBox;
      connect(box, &QCheckBox::toggled, this, write);
      show = [box](const QVariant& value) { box->setChecked(value.toBool()); };
      return box;
    }
    case QMetaType::Int: {
      auto* const box = new QSpinBox;
      box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
      box->setKeyboardTracking(false);
      connect(box, &QSpinBox::valueChanged, this, write);
      show = [box](const QVariant& value) { box->setValue(value.toInt()); };
      return box;
    }
    case QMetaType::QString: {
      auto* const line = new QLineEdit;
      connect(line, &QLineEdit::editingFinished, this, [write, read, line] {
        if (line->text() != read().toString()) write(line->text());
      });
      show = [line](const QVariant& value) { line->setText(value.toString()); };
      return line;
    }
    case QMetaType::QColor:
    case QMetaType::QFont: {
      const auto ask = property.typeId() == QMetaType::QColor ? AskForAColor : AskForAFont;
      auto* const button = AskingButton([this, ask](const QVariant& now) { return ask(this, now); }, read, write);
      show = [button](const QVariant& value) { button->setText(TextOf(value)); };
      return button;
    }
    default:
      // Reading it may make one.
      return new QLabel(tr("an object of the host's"));
  }
}

}  // namespace tactix::gallery
