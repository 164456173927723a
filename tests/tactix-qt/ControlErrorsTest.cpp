// No exception leaves a property, a slot or an invokable of the controls' widget classes: it comes out of
// unhandledError.

#include <gtest/gtest.h>

#include <QPoint>
#include <QPointer>
#include <QSpinBox>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/StrategyList.h"
#include "tactix/companion/CounterValue.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/QtWarnings.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Codes = std::vector<int>;

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

/// A host's values that few properties take.
QVariantList Values() {
  return {Lowest, -1,           0,   1,         32767, 32768, Highest, QString(), QString(20000, QLatin1Char('x')),
          true,   QPoint(1, 2), 2.5, QVariant()};
}

/// For messages of failed tests.
std::string Named(const QVariant& value) {
  return value.isValid() ? std::string(value.typeName()) + " " + TextOf(value).substr(0, 12) : "nothing";
}

/// Whether Qt itself makes another type of a value, without a warning.
bool Takes(QMetaType type, const QVariant& value) {
  if (value.metaType() == type) return true;
  const bool isText = value.typeId() == QMetaType::QString;
  if (isText && (type.id() == QMetaType::QColor || type.id() == QMetaType::QFont)) return false;
  return QMetaType::canConvert(value.metaType(), type);
}

enum class HooksAre { Empty, Installed };

struct SweepRow {
  std::string name;
  ControlClass tested;
  HooksAre hooks;

  friend std::ostream& operator<<(std::ostream& out, const SweepRow& row) { return out << row.name; }
};

std::vector<SweepRow> SweepRows() {
  std::vector<SweepRow> rows;
  for (const ControlClass& each : ControlClasses()) {
    rows.push_back({each.name, each, HooksAre::Empty});
    rows.push_back({each.name + "Installed", each, HooksAre::Installed});
  }
  return rows;
}

class QtErrorSweepTest : public testing::TestWithParam<SweepRow> {
 protected:
  QtErrorSweepTest() {
    if (GetParam().hooks == HooksAre::Installed) hooks_.Install();
  }

  /// Runs what Qt may do, and gives the errors that come out.
  template <class Action>
  Codes ErrorsOf(const Action& action) {
    errors_.Take();
    try {
      action();
    } catch (...) {
      ADD_FAILURE() << "an exception";
    }
    return errors_.Take();
  }

  EmptyHooks hooks_;
  const std::unique_ptr<qt::ControlWidget> widget_ = GetParam().tested.Make();
  UnhandledErrors errors_{*widget_};
};

TEST_P(QtErrorSweepTest, ReadingFailsQuietlyAndGivesTheDefault) {
  for (const QMetaProperty& property : PropertiesOf(*widget_->metaObject())) {
    const std::string name = property.name();
    QVariant value;
    const Codes errors = ErrorsOf([&] { value = property.read(widget_.get()); });
    const bool needsAHook = name == "CounterValue" || name == "KelvoEdition";
    const bool fails = needsAHook && GetParam().hooks == HooksAre::Empty;
    EXPECT_EQ(errors, fails ? Codes{Error::ObjectNotSet} : Codes()) << name;
    if (name == "KelvoEdition") {
      EXPECT_EQ(value.value<ObjectRef>() == nullptr, fails);
      continue;
    }
    for (const CataloguedProperty& catalogued : GetParam().tested.InTheCatalogue().properties) {
      if (catalogued.name != name) continue;
      EXPECT_EQ(TextOf(value), TextOf(AsQt(catalogued.initial, property.metaType()))) << name;
    }
  }
}

TEST_P(QtErrorSweepTest, AWriteThatFailsLeavesTheValue) {
  for (const QMetaProperty& property : PropertiesOf(*widget_->metaObject())) {
    if (!property.isWritable()) continue;
    for (const QVariant& value : Values()) {
      SCOPED_TRACE(std::string(property.name()) + " = " + Named(value));
      const bool takes = !value.isValid() || Takes(property.metaType(), value);
      if (!takes && value.typeId() == QMetaType::QString) continue;  // Qt would warn
      std::string before;
      ErrorsOf([&] { before = TextOf(property.read(widget_.get())); });
      const Codes errors = ErrorsOf([&] { property.write(widget_.get(), value); });
      const bool isTooLarge = value.typeId() == QMetaType::Int && std::abs(value.toLongLong()) > 32767;
      if (isTooLarge && property.typeId() == QMetaType::Int) {
        EXPECT_EQ(errors, Codes{Error::Overflow});
      }
      EXPECT_LE(errors.size(), 1U) << "more than once";
      EXPECT_TRUE(takes || errors.empty()) << "it never came to the control";
      std::string after;
      ErrorsOf([&] { after = TextOf(property.read(widget_.get())); });
      EXPECT_TRUE((errors.empty() && takes) || after == before) << after << " was " << before;
    }
  }
}

TEST_P(QtErrorSweepTest, ASlotThatFailsSaysSoOnce) {
  const QMetaObject& meta = *widget_->metaObject();
  for (const QMetaMethod::MethodType type : {QMetaMethod::Slot, QMetaMethod::Method}) {
    for (const QMetaMethod& method : MethodsOf(meta, type)) {
      for (const QVariant& value : Values()) {
        SCOPED_TRACE(method.methodSignature().toStdString() + " with " + Named(value));
        QVariantList arguments;
        for (int i = 0; i < method.parameterCount(); ++i) {
          QMetaType taken = method.parameterMetaType(i);
          if (method.parameterTypeName(i).endsWith('&')) taken = QMetaType::fromType<std::int16_t>();
          QVariant argument(taken);
          if (value.isValid() && Takes(taken, value)) {
            argument = value;
            argument.convert(taken);
          }
          // A wait would be one: of years, or for ever.
          if (taken.id() == QMetaType::Float && argument.toFloat() > 0) argument = -argument.toFloat();
          arguments.push_back(argument);
        }
        const Codes errors = ErrorsOf([&] { Invoke(*widget_, method.methodSignature().toStdString(), arguments); });
        EXPECT_LE(errors.size(), 1U) << "more than once";
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, QtErrorSweepTest, testing::ValuesIn(SweepRows()), RowName());

// What it is for.

class QtControlErrorsTest : public testing::Test {
 protected:
  EmptyHooks hooks_;
};

TEST_F(QtControlErrorsTest, ASpinBoxMayBeConnectedToACounter) {
  hooks_.Install();
  QSpinBox box;
  box.setMaximum(99999);
  qt::SpinCounter counter;
  QObject::connect(&box, &QSpinBox::valueChanged, &counter, &qt::SpinCounter::setCounterValue);
  UnhandledErrors errors(counter);
  box.setValue(81);
  EXPECT_EQ(errors.Take(), Codes());
  box.setValue(99999);
  EXPECT_EQ(errors.Take(), Codes{Error::Overflow});
  EXPECT_EQ(counter.CounterValue(), 81);
}

TEST_F(QtControlErrorsTest, AnOverloadFailsAsItsSetter) {
  qt::StrategyList list;
  list.AddItem(QStringLiteral("seat"));
  list.AddItem(QStringLiteral("first"));
  UnhandledErrors errors(list);
  list.ListIndex(0);
  EXPECT_EQ(errors.Take(), Codes());
  for (void (*write)(qt::StrategyList&) : {
           +[](qt::StrategyList& each) { each.ListIndex(81); },
           +[](qt::StrategyList& each) { each.setListIndex(81); },
           +[](qt::StrategyList& each) { each.setProperty("ListIndex", 81); },
           +[](qt::StrategyList& each) { each.SelectThisStrategy(2); },
       }) {
    write(list);
    EXPECT_EQ(errors.Take(), Codes{Error::InvalidPropertyValue});
    EXPECT_EQ(list.ListIndex(), 0);
  }
  list.setProperty("ListIndex", 70000);
  EXPECT_EQ(errors.Take(), Codes{Error::Overflow});
}

TEST_F(QtControlErrorsTest, TheControlThrows) {
  qt::SpinCounter counter;
  UnhandledErrors errors(counter);
  EXPECT_THROW(counter.control().CounterValue(), Error);
  EXPECT_EQ(errors.Take(), Codes());
}

TEST_F(QtControlErrorsTest, WithoutAHandlerItIsAWarning) {
  qt::SpinCounter counter;
  ExpectWarning(QStringLiteral("SpinCounter: error 91"));
  EXPECT_EQ(counter.property("CounterValue").toInt(), 0);
}

TEST_F(QtControlErrorsTest, WhatIsNoErrorComesOutAsOne) {
  qt::SpinCounter counter;
  UnhandledErrors errors(counter);
  CounterValueObject::CreateWith([]() -> std::shared_ptr<CounterValueObject> { throw std::runtime_error("no luck"); });
  EXPECT_EQ(counter.CounterValue(), 0);
  EXPECT_EQ(errors.Take(), Codes{Error::InvalidProcedureCall});
  EXPECT_EQ(errors.Text(), "no luck");
  CounterValueObject::CreateWith([]() -> std::shared_ptr<CounterValueObject> { throw 7; });
  counter.setCounterValue(5);
  EXPECT_EQ(errors.Take(), Codes{Error::InvalidProcedureCall});
}

TEST_F(QtControlErrorsTest, AnErrorThatAHostsHandlerThrowsComesOutOnce) {
  hooks_.Install();
  qt::SpinCounter counter;
  UnhandledErrors errors(counter);
  counter.control().Events.CounterValueHasChanged.Connect([](const std::int16_t&) { throw Error(1234); });
  counter.setProperty("CounterValue", 5);
  EXPECT_EQ(errors.Take(), Codes{1234});
}

TEST_F(QtControlErrorsTest, AWidgetMayEndInItsOwnSlots) {
  const std::function<void(qt::SpinCounter&)> calls[] = {
      [](qt::SpinCounter& counter) { counter.setProperty("CounterValue", 5); },
      [](qt::SpinCounter& counter) { counter.CounterValue(5); },
      [](qt::SpinCounter& counter) { EXPECT_EQ(counter.property("CounterValue").toInt(), 0); },
  };
  for (const auto& call : calls) {
    for (const bool thenFails : {false, true}) {
      QPointer<qt::SpinCounter> counter = new qt::SpinCounter;
      CounterValueObject::CreateWith([&counter, thenFails]() -> std::shared_ptr<CounterValueObject> {
        delete counter;
        if (thenFails) throw Error(Error::InvalidProcedureCall);
        return std::make_shared<companion::CounterValue>();
      });
      call(*counter);
      EXPECT_FALSE(counter);
    }
  }
}

TEST_F(QtControlErrorsTest, AWidgetMayEndInItsOwnError) {
  QPointer<qt::SpinCounter> counter = new qt::SpinCounter;
  QObject::connect(counter, &qt::ControlWidget::unhandledError, [&counter] { delete counter; });
  EXPECT_EQ(counter->property("CounterValue").toInt(), 0);
  EXPECT_FALSE(counter);
}

/// Does something when it ends.
class Last {
 public:
  explicit Last(std::function<void()> look) : look_(std::move(look)) {}
  ~Last() { look_(); }
  Last(const Last&) = delete;
  Last& operator=(const Last&) = delete;

 private:
  std::function<void()> look_;
};

TEST_F(QtControlErrorsTest, WhatEndsWithTheControlFindsItsWidgetQuiet) {
  auto counter = std::make_unique<qt::SpinCounter>();
  qt::SpinCounter& itself = *counter;
  int looks = 0;
  // Kept by a handler, so it ends with the control and not before.
  auto kept = std::make_shared<Last>([&] {
    ++looks;
    itself.setMaximumLimit(50);
    EXPECT_EQ(itself.MaximumLimit(), 0);
  });
  itself.control().Events.CounterValueHasChanged.Connect([kept](const std::int16_t&) {});
  kept.reset();
  UnhandledErrors errors(itself);
  counter.reset();
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(errors.Take(), Codes());
}

}  // namespace
}  // namespace tactix::tests
