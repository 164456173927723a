// The widget classes of the controls against the controls' own tables: properties, signals, forms.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QUiLoader>
#include <cctype>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tactix-qt/StrategyListControl.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix/platform/PropertyTable.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/ControlSketch.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/SignalLog.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Names = std::set<std::string>;
using Texts = std::vector<std::string>;

/// Whether QWidget has a setter of the usual name.
bool Collides(const std::string& property) { return Names{"Enabled", "Font", "ToolTip", "Visible"}.contains(property); }

/// The property's slot `setX`.
std::string SetterOf(const std::string& property) {
  if (Collides(property)) return "setControl" + property;
  return "set" + std::string(1, static_cast<char>(std::toupper(property[0]))) + property.substr(1);
}

std::vector<QMetaMethod> MethodsNamed(const QMetaObject& meta, QMetaMethod::MethodType type, const std::string& name) {
  std::vector<QMetaMethod> found;
  for (const QMetaMethod& method : MethodsOf(meta, type)) {
    if (method.name().toStdString() == name) found.push_back(method);
  }
  return found;
}

/// Calls the one slot of a name.
void Send(QObject& object, const std::string& slot, QVariant value) {
  const std::vector<QMetaMethod> slots = MethodsNamed(*object.metaObject(), QMetaMethod::Slot, slot);
  ASSERT_EQ(slots.size(), 1U) << slot;
  QVariantList arguments = {std::move(value)};
  Invoke(object, slots[0].methodSignature().toStdString(), arguments);
}

/// The type in which Qt has a control's value.
bool IsTypeOf(const Variant& value, const QMetaProperty& property) {
  switch (value.Type()) {
    case VariantType::Boolean:
      return property.typeId() == QMetaType::Bool;
    case VariantType::Integer:
      return property.typeId() == QMetaType::Int;
    case VariantType::Long:
      return property.isEnumType() || property.typeId() == QMetaType::QColor;
    case VariantType::Text:
      return property.typeId() == QMetaType::QString;
    case VariantType::Font:
      return property.typeId() == QMetaType::QFont;
    case VariantType::Object:
      return property.metaType() == QMetaType::fromType<ObjectRef>();
    default:
      return false;
  }
}

/// A value to write where the catalogue's needs a list with rows.
Variant OtherValueOf(const CataloguedProperty& property) {
  if (property.name == "ListIndex") return std::int16_t{1};
  if (property.name == "SelectThisStrategy") return std::int16_t{0};
  return property.other;
}
Variant ReadsAfterWriting(const CataloguedProperty& property) {
  const bool isRow = property.name == "ListIndex" || property.name == "SelectThisStrategy";
  return isRow ? OtherValueOf(property) : property.ReadsAfterWriting();
}

/// Brings a widget into a state in which every property has something to do.
void Prepare(qt::ControlWidget& widget) {
  const auto addRows = [](auto* list) {
    for (const char* row : {"seat", "none", "first"}) {
      if (list) list->AddItem(QLatin1String(row));
    }
  };
  addRows(qobject_cast<qt::StrategyListControl*>(&widget));
  addRows(qobject_cast<qt::StrategyMarquix*>(&widget));
  // Another height than the one that a default size has.
  widget.Hosted()->Extender().Height(900);
}

class QtControlClassTest : public testing::TestWithParam<ControlClass> {
 protected:
  QtControlClassTest() { hooks_.Install(); }

  const CataloguedProperty& Catalogued(const std::string& name) const {
    for (const CataloguedProperty& property : GetParam().InTheCatalogue().properties) {
      if (property.name == name) return property;
    }
    throw std::out_of_range(name);
  }

  void ExpectToReadAsTheControl(const std::string& after) {
    for (const QMetaProperty& property : PropertiesOf(*widget_->metaObject())) {
      const PropertyTable::Row* const row = widget_->Hosted()->Properties().Find(property.name());
      ASSERT_TRUE(row);
      EXPECT_EQ(TextOf(property.read(widget_.get())), TextOf(AsQt(row->get(*widget_->Hosted()), property.metaType())))
          << property.name() << " after " << after;
    }
  }

  EmptyHooks hooks_;
  std::unique_ptr<qt::ControlWidget> widget_ = GetParam().Make();
  const QMetaObject& meta_ = *widget_->metaObject();
};

TEST(QtControlClassesTest, AreThoseOfAllControls) {
  Names classes;
  for (const ControlClass& each : ControlClasses()) {
    classes.insert(each.name);
    EXPECT_EQ(each.Make()->metaObject()->className(), "tactix::qt::" + each.name);
  }
  Names controls;
  for (const CatalogueEntry& entry : Catalogue()) controls.insert(entry.name);
  EXPECT_EQ(classes, controls);
}

TEST_P(QtControlClassTest, HasTheControlsPropertiesAndNoOthers) {
  Names readable;
  for (const PropertyTable::Row& row : widget_->Hosted()->Properties().Rows()) {
    SCOPED_TRACE(row.name);
    if (!row.get) {
      EXPECT_LT(meta_.indexOfProperty(row.name.c_str()), 0);
      const std::vector<QMetaMethod> slots = MethodsNamed(meta_, QMetaMethod::Slot, row.name);
      ASSERT_EQ(slots.size(), 1U) << "a set-only property is a slot";
      EXPECT_EQ(slots[0].parameterCount(), 1);
      continue;
    }
    readable.insert(row.name);
    const QMetaProperty property = meta_.property(meta_.indexOfProperty(row.name.c_str()));
    ASSERT_TRUE(property.isValid());
    EXPECT_EQ(property.isWritable(), static_cast<bool>(row.set));
    EXPECT_TRUE(IsTypeOf(row.get(*widget_->Hosted()), property)) << property.typeName();
  }
  Names properties;
  for (const QMetaProperty& property : PropertiesOf(meta_)) properties.insert(property.name());
  EXPECT_EQ(properties, readable);
}

TEST_P(QtControlClassTest, EveryPropertyHasASetterThatIsNotOverloaded) {
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    if (!property.isWritable()) continue;
    const std::string setter = SetterOf(property.name());
    SCOPED_TRACE(setter);
    // What uic calls for a property of a form: by this name where it is the usual one, else setProperty().
    EXPECT_EQ(property.hasStdCppSet(), !Collides(property.name()));
    const std::vector<QMetaMethod> found = MethodsNamed(meta_, QMetaMethod::Slot, setter);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].parameterMetaType(0), property.metaType());
    EXPECT_LT(QWidget::staticMetaObject.indexOfMethod(found[0].methodSignature()), 0) << "QWidget's own";
  }
}

TEST_P(QtControlClassTest, ANewOneReadsAsTheControlAndAsDocumented) {
  ExpectToReadAsTheControl("construction");
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    if (std::string(property.name()) == "KelvoEdition") continue;  // the catalogue's bars have one from the start
    EXPECT_EQ(TextOf(property.read(widget_.get())),
              TextOf(AsQt(Catalogued(property.name()).initial, property.metaType())))
        << property.name();
  }
}

/// The three ways to write a property, compared with the control's own on a twin.
TEST_P(QtControlClassTest, WritingAPropertyWritesTheControls) {
  using Way = void (*)(QObject&, const QMetaProperty&, QVariant);
  const std::pair<const char*, Way> ways[] = {
      {"as a property", [](QObject& object, const QMetaProperty& property,
                           QVariant value) { EXPECT_TRUE(property.write(&object, std::move(value))); }},
      {"by its setter", [](QObject& object, const QMetaProperty& property,
                           QVariant value) { Send(object, SetterOf(property.name()), std::move(value)); }},
      {"by the slot of its own name", [](QObject& object, const QMetaProperty& property,
                                         QVariant value) { Send(object, property.name(), std::move(value)); }},
  };
  for (const PropertyTable::Row& row : widget_->Hosted()->Properties().Rows()) {
    if (!row.get || !row.set) continue;
    const CataloguedProperty& catalogued = Catalogued(row.name);
    const QMetaProperty property = meta_.property(meta_.indexOfProperty(row.name.c_str()));
    const Variant other = OtherValueOf(catalogued);
    EXPECT_NE(other, catalogued.initial) << row.name << ": a default tells nothing";
    for (const auto& [how, write] : ways) {
      SCOPED_TRACE(row.name + " " + how);
      widget_ = GetParam().Make();
      const auto twin = GetParam().Make();
      const auto untouched = GetParam().Make();
      for (qt::ControlWidget* each : {widget_.get(), twin.get(), untouched.get()}) Prepare(*each);
      SignalLog heard(*widget_);
      SignalLog expected(*twin);
      write(*widget_, property, AsQt(other, property.metaType()));
      row.set(*twin->Hosted(), other);
      Settle();  // what the control itself is told comes out later

      const Sketch sketch = SketchOf(*widget_->Hosted());
      EXPECT_EQ(Differences(SketchOf(*twin->Hosted()), sketch), Texts());
      const Texts signals = heard.Take();
      EXPECT_EQ(signals, expected.Take());
      // One is ignored on purpose.
      const bool tells = row.name != "Qualifier";
      EXPECT_EQ(sketch != SketchOf(*untouched->Hosted()) || !signals.empty(), tells);
      // Last: reading one of them acts.
      EXPECT_EQ(row.get(*widget_->Hosted()), ReadsAfterWriting(catalogued));
      ExpectToReadAsTheControl("a write of " + row.name);
    }
  }
}

TEST_P(QtControlClassTest, HasASignalForEveryEventAndNoOthers) {
  Names expected;
  for (const RelayedEvent& event : GetParam().events(*widget_)) {
    const bool isMethodsName = !MethodsNamed(meta_, QMetaMethod::Slot, event.name).empty();
    expected.insert(isMethodsName ? event.name + "Raised" : event.name);
  }
  Names signals;
  for (const QMetaMethod& signal : MethodsOf(meta_, QMetaMethod::Signal)) {
    if (!IsNotifySignal(meta_, signal) && !IsTypedSignal(signal)) signals.insert(signal.name().toStdString());
  }
  EXPECT_EQ(signals, expected);
}

TEST_P(QtControlClassTest, AnEventIsItsSignalWithItsArgumentsAndNothingElse) {
  SignalLog heard(*widget_);
  for (const RelayedEvent& event : GetParam().events(*widget_)) {
    const bool isMethodsName = !MethodsNamed(meta_, QMetaMethod::Slot, event.name).empty();
    event.raise();
    EXPECT_EQ(heard.Take(),
              Texts{event.name + (isMethodsName ? "Raised" : "") + SignalLog::TextOfAll(event.arguments)});
  }
}

TEST_P(QtControlClassTest, ComesOutOfAForm) {
  struct Loader : QUiLoader {
    QWidget* createWidget(const QString& type, QWidget* parent, const QString& name) override {
      if (type != QLatin1String("Tested")) return QUiLoader::createWidget(type, parent, name);
      QWidget* const widget = make(parent);
      widget->setObjectName(name);
      return widget;
    }
    qt::ControlWidget* (*make)(QWidget*) = nullptr;
  } loader;
  loader.make = GetParam().make;
  QByteArray form =
      "<ui version='4.0'><class>Form</class><widget class='QWidget' name='Form'><widget class='Tested' name='tested'>"
      "<property name='geometry'><rect><x>10</x><y>20</y><width>200</width><height>100</height></rect></property>"
      "</widget></widget></ui>";
  QBuffer buffer(&form);
  const std::unique_ptr<QWidget> window(loader.load(&buffer));
  ASSERT_TRUE(window);
  auto* const widget = window->findChild<qt::ControlWidget*>(QStringLiteral("tested"));
  ASSERT_TRUE(widget);
  window->show();
  Settle();
  EXPECT_EQ(widget->geometry(), QRect(QPoint(10, 20), GetParam().sizeInAForm));
  EXPECT_EQ(widget->Hosted()->Extender().Width(), GetParam().sizeInAForm.width() * 15);
}

INSTANTIATE_TEST_SUITE_P(Classes, QtControlClassTest, testing::ValuesIn(ControlClasses()), RowName());

}  // namespace
}  // namespace tactix::tests
