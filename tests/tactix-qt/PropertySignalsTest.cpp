// The NOTIFY signals and the resets of the controls' widget classes, in a sweep over all of them, and the typed
// signals.

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QMetaEnum>
#include <QPointer>
#include <QSignalSpy>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix-qt/UnitSelectionList.h"
#include "tactix/companion/CounterValue.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/PropertyTable.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Names = std::set<std::string>;
using Texts = std::vector<std::string>;

/// What never changes, or reads the same always.
const Names WithoutSignal = {"Style", "StatusButtonButtonVisibility", "Qualifier", "UseDefaultSize"};

/// What else a property is: another name for the same thing, or where what is written to it goes.
const std::map<std::string, Names> Companions = {
    {"DEFAULT", {"Enabled"}},
    {"Enabled", {"DEFAULT"}},
    {"Text", {"DefaultContent"}},
    {"CountBoxType", {"BackColor"}},  // each type has its tag's colour
    {"DefaultContent", {"Text"}},
    {"ListIndex", {"SelectThisStrategy", "CountStrategy", "Text", "DefaultContent"}},
    {"SelectThisStrategy", {"ListIndex", "Text", "DefaultContent"}},
    {"CountStrategy", {"ListIndex", "Text", "DefaultContent"}},
    {"PromptThePlayButtons", {"PlayButtonPromptStatus"}},
};

/// What a reset gives where that is not what a new control has.
QVariant AfterReset(const qt::ControlWidget& widget, const std::string& property, const QVariant& initial) {
  if (property == "Font") return AsQt(widget.ItsSite().AmbientFont(), QMetaType::fromType<QFont>());
  if (property == "Text" || property == "DefaultContent" || property == "ToolTipText") return QString();
  if (property == "CountStrategy") return 4;  // the row of the sixth system, by which it reads
  return initial;
}

/// Hears the NOTIFY signals of a widget's properties, as "Name(value)" in the order in which they come.
class Notices {
 public:
  explicit Notices(qt::ControlWidget& widget) {
    for (const QMetaProperty& property : PropertiesOf(*widget.metaObject())) {
      if (!property.hasNotifySignal()) continue;
      spies_.emplace_back(property.name(), std::make_unique<QSignalSpy>(&widget, property.notifySignal()));
    }
  }
  std::multiset<std::string> Take() {
    std::multiset<std::string> heard;
    for (auto& [name, spy] : spies_) {
      for (const QVariantList& arguments : *spy) heard.insert(name + "(" + TextOf(arguments.at(0)) + ")");
      spy->clear();
    }
    return heard;
  }

 private:
  std::vector<std::pair<std::string, std::unique_ptr<QSignalSpy>>> spies_;
};

class QtPropertySignalsTest : public testing::TestWithParam<ControlClass> {
 protected:
  QtPropertySignalsTest() { hooks_.Install(); }

  /// A new widget in which every property has something to do.
  std::unique_ptr<qt::ControlWidget> Make() const {
    auto widget = GetParam().Make();
    const auto addRows = [](auto* list) {
      for (const char* row : {"seat", "none", "first"}) {
        if (list) list->AddItem(QLatin1String(row));
      }
    };
    addRows(qobject_cast<qt::StrategyListControl*>(widget.get()));
    addRows(qobject_cast<qt::StrategyMarquix*>(widget.get()));
    return widget;
  }

  const CataloguedProperty& Catalogued(const std::string& name) const {
    for (const CataloguedProperty& property : GetParam().InTheCatalogue().properties) {
      if (property.name == name) return property;
    }
    throw std::out_of_range(name);
  }
  Variant OtherValueOf(const std::string& name) const {
    if (name == "ListIndex") return std::int16_t{1};
    if (name == "SelectThisStrategy") return std::int16_t{0};
    return Catalogued(name).other;
  }

  using Values = std::map<std::string, std::string>;
  /// What the properties with signals read.
  Values ValuesOf(qt::ControlWidget& widget) const {
    Values values;
    for (const QMetaProperty& property : PropertiesOf(meta_)) {
      // Reading this one would create an object.
      const bool creates = std::string(property.name()) == "KelvoEdition" &&
                           !static_cast<DecisionToolBarControl&>(*widget.Hosted()).HasKelvoEdition();
      if (property.hasNotifySignal()) values[property.name()] = creates ? "0" : TextOf(property.read(&widget));
    }
    return values;
  }
  /// The signals that lead from one to the other. Only the property that was written changes, and its companions.
  std::multiset<std::string> Expected(const std::string& written, const Values& before, const Values& after) const {
    std::multiset<std::string> expected;
    for (const auto& [name, value] : after) {
      if (before.at(name) == value) continue;
      expected.insert(name + "(" + value + ")");
      const auto others = Companions.find(written);
      EXPECT_TRUE(name == written || (others != Companions.end() && others->second.contains(name))) << name;
    }
    return expected;
  }

  EmptyHooks hooks_;
  const std::unique_ptr<qt::ControlWidget> untouched_ = Make();
  const QMetaObject& meta_ = *untouched_->metaObject();
};

TEST_P(QtPropertySignalsTest, EveryPropertyThatCanChangeHasASignalWithItsValue) {
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    const std::string name = property.name();
    SCOPED_TRACE(name);
    EXPECT_EQ(property.hasNotifySignal(), !WithoutSignal.contains(name));
    EXPECT_EQ(property.isConstant(), name == "Style");
    if (!property.hasNotifySignal()) continue;
    EXPECT_EQ(property.notifySignal().name().toStdString(), name + "Changed");
    ASSERT_EQ(property.notifySignal().parameterCount(), 1);
    EXPECT_EQ(property.notifySignal().parameterMetaType(0), property.metaType());
  }
}

/// Ways to write a property, each with when its signals come.
TEST_P(QtPropertySignalsTest, AChangeIsSignalledOnceAndAWriteOfTheSameValueNotAtAll) {
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    if (!property.isWritable()) continue;
    const std::string name = property.name();
    const QVariant other = AsQt(OtherValueOf(name), property.metaType());
    for (const bool byTheControl : {false, true}) {
      SCOPED_TRACE(name + (byTheControl ? " by the control" : " by the widget"));
      const auto widget = Make();
      Settle();
      Notices notices(*widget);
      const auto write = [&] {
        if (byTheControl) {
          widget->Hosted()->Properties().Find(name)->set(*widget->Hosted(), OtherValueOf(name));
          Settle();
        } else {
          EXPECT_TRUE(property.write(widget.get(), other));
        }
      };
      write();
      const auto heard = notices.Take();
      const Values after = ValuesOf(*widget);
      EXPECT_EQ(heard, Expected(name, ValuesOf(*untouched_), after));
      EXPECT_EQ(heard.empty(), WithoutSignal.contains(name)) << "nothing to signal";
      write();
      Settle();
      EXPECT_EQ(notices.Take(), std::multiset<std::string>());
      EXPECT_EQ(ValuesOf(*widget), after);
    }
  }
}

TEST_P(QtPropertySignalsTest, EveryPersistedPropertyResetsToItsDefaultAndNoOtherDoes) {
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    const std::string name = property.name();
    SCOPED_TRACE(name);
    const PropertyTable::Row& row = *untouched_->Hosted()->Properties().Find(name);
    ASSERT_EQ(property.isResettable(), !row.savedAs.empty());
    if (!property.isResettable()) continue;
    const auto widget = Make();
    property.write(widget.get(), AsQt(OtherValueOf(name), property.metaType()));
    const std::string written = TextOf(property.read(widget.get()));
    UnhandledErrors errors(*widget);
    Notices notices(*widget);
    EXPECT_TRUE(property.reset(widget.get()));
    EXPECT_EQ(errors.Take(), std::vector<int>());
    const QVariant initial = AsQt(Catalogued(name).initial, property.metaType());
    const std::string expected = TextOf(AfterReset(*widget, name, initial));
    EXPECT_EQ(TextOf(property.read(widget.get())), expected);
    EXPECT_EQ(notices.Take().count(name + "(" + expected + ")"), written == expected ? 0U : 1U);
  }
}

TEST_P(QtPropertySignalsTest, ASlotMayDestroyTheWidget) {
  for (const QMetaProperty& property : PropertiesOf(meta_)) {
    if (!property.isWritable() || !property.hasNotifySignal() ||
        property.name() == std::string("PromptThePlayButtons")) {
      continue;
    }
    SCOPED_TRACE(property.name());
    const QPointer<qt::ControlWidget> widget = Make().release();
    QAction end;
    const QMetaMethod trigger = end.metaObject()->method(end.metaObject()->indexOfMethod("trigger()"));
    ASSERT_TRUE(QObject::connect(widget, property.notifySignal(), &end, trigger));
    QObject::connect(&end, &QAction::triggered, [&] { delete widget; });
    property.write(widget, AsQt(OtherValueOf(property.name()), property.metaType()));
    EXPECT_FALSE(widget);
    Settle();
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, QtPropertySignalsTest, testing::ValuesIn(ControlClasses()), RowName());

class QtPropertyWatchTest : public testing::Test {
 protected:
  InstalledCounterValues values_;
};

TEST_F(QtPropertyWatchTest, WhatTheUserDoesIsSignalled) {
  qt::SpinCounter counter;
  QSignalSpy numbers(&counter, &qt::SpinCounter::CounterValueChanged);
  counter.control().Children.SpinButton.SpinUp();
  ASSERT_EQ(numbers.count(), 1);
  EXPECT_EQ(numbers[0][0].toInt(), 1);

  QWidget window;
  window.resize(400, 200);
  auto* const selector = new qt::CountValueSelector(&window);
  window.show();
  window.activateWindow();
  Settle();
  QSignalSpy points(selector, &qt::CountValueSelector::PointValueChanged);
  PickByMouse(*selector->findChild<QComboBox*>(), 17);
  Settle();
  ASSERT_EQ(points.count(), 1);
  EXPECT_EQ(points[0][0].toInt(), 7);
}

TEST_F(QtPropertyWatchTest, ARestoredFormIsSignalled) {
  qt::SpinCounter counter;
  QSignalSpy limits(&counter, &qt::SpinCounter::MaximumLimitChanged);
  MemoryPropertyBag bag;
  bag.Write("MaximumLimit", std::int16_t{77});
  counter.control().ReadProperties(bag);
  Settle();
  ASSERT_EQ(limits.count(), 1);
  EXPECT_EQ(limits[0][0].toInt(), 77);
}

TEST_F(QtPropertyWatchTest, SeveralChangesOfTheControlAreOne) {
  qt::SpinCounter counter;
  QSignalSpy wraps(&counter, &qt::SpinCounter::NumberWrapChanged);
  counter.control().NumberWrap(true);
  counter.control().NumberWrap(false);
  counter.control().NumberWrap(true);
  EXPECT_EQ(wraps.count(), 0);
  Settle();
  EXPECT_EQ(wraps.count(), 1);
}

TEST_F(QtPropertyWatchTest, AMethodsChangesAreSignalledAtOnce) {
  qt::DecisionRegiLOG scores;
  QSignalSpy decisions(&scores, &qt::DecisionRegisterControl::NumberOfDecisionsChanged);
  QSignalSpy correct(&scores, &qt::DecisionRegisterControl::NumberOfCorrectDecisionsChanged);
  scores.DisplayTheDrillResults(9, 8);
  ASSERT_EQ(decisions.count(), 1);
  EXPECT_EQ(decisions[0][0].toInt(), 9);
  ASSERT_EQ(correct.count(), 1);
  EXPECT_EQ(correct[0][0].toInt(), 8);
  scores.control().DisplayTheDrillResults(7, 8);
  Settle();
  EXPECT_EQ(decisions.count(), 2);
  EXPECT_EQ(correct.count(), 1);

  qt::Decision box;
  QSignalSpy prompts(&box, &qt::Decision::PromptThePlayButtonsChanged);
  QSignalSpy editions(&box, &qt::Decision::thisKelvoEditionChanged);
  box.DiddleThePromptShit();
  EXPECT_EQ(prompts.count(), 1);
  box.control().TheKelvoEditionIs(std::make_shared<PropertyObject>("thisKelvoEdition", 4));
  Settle();
  ASSERT_EQ(editions.count(), 1);
  EXPECT_EQ(editions[0][0].toInt(), 4);
}

TEST_F(QtPropertyWatchTest, WatchingCreatesNothing) {
  int made = 0;
  CounterValueObject::CreateWith([&made] {
    ++made;
    return std::make_shared<companion::CounterValue>();
  });
  qt::SpinCounter counter;
  QSignalSpy numbers(&counter, &qt::SpinCounter::CounterValueChanged);
  counter.setMaximumLimit(50);
  EXPECT_EQ(made, 0);
  EXPECT_EQ(counter.CounterValue(), 0);
  EXPECT_EQ(made, 1);
  Settle();
  EXPECT_EQ(numbers.count(), 0);

  DefaultEdition::CreateWith([&made] {
    ++made;
    return std::make_shared<PropertyObject>();
  });
  qt::DecisionBAR2 bar;
  QSignalSpy editions(&bar, &qt::DecisionBAR2::KelvoEditionChanged);
  bar.setHitcardButtonsVisibility(qt::DecisionBAR2::ButtonsArevisible);
  EXPECT_EQ(made, 1);
  const ObjectRef edition = bar.KelvoEdition();
  EXPECT_EQ(made, 2);
  Settle();
  ASSERT_EQ(editions.count(), 1);
  EXPECT_EQ(editions[0][0].value<ObjectRef>(), edition);
  DefaultEdition::CreateWith(nullptr);
}

/// A host's number that cannot be read any more.
struct FailingValue final : CounterValueObject {
  std::int16_t Value() const override {
    if (fails) throw Error(Error::InvalidPropertyValue, "no number");
    return number;
  }
  void Value(std::int16_t value) override { number = value; }
  void StepDownWrapping(std::int16_t) override {}
  void StepDownSigned() override {}
  void StepDownToZero() override {}
  void StepUpToLimit(std::int16_t) override {}

  std::int16_t number = 0;
  bool fails = false;
};

TEST_F(QtPropertyWatchTest, WhatFailsInComparingIsNoError) {
  const auto value = std::make_shared<FailingValue>();
  CounterValueObject::CreateWith([&value] { return value; });
  qt::SpinCounter counter;
  UnhandledErrors errors(counter);
  counter.setCounterValue(5);
  QSignalSpy numbers(&counter, &qt::SpinCounter::CounterValueChanged);
  value->fails = true;
  counter.setMaximumLimit(50);
  EXPECT_EQ(errors.Take(), std::vector<int>());
  ASSERT_EQ(numbers.count(), 1);
  EXPECT_EQ(numbers[0][0].toInt(), counter.CounterValue());
  EXPECT_EQ(errors.Take(), std::vector{380});
}

TEST_F(QtPropertyWatchTest, WhatChangedWhileNobodyListenedIsNotSignalledAfterwards) {
  qt::SpinCounter counter;
  int heard = 0;
  const auto listen = [&] {
    return QObject::connect(&counter, &qt::SpinCounter::MaximumLimitChanged, [&heard] { ++heard; });
  };
  const QMetaObject::Connection connection = listen();
  counter.setMaximumLimit(40);
  EXPECT_EQ(heard, 1);
  QObject::disconnect(connection);
  counter.setMaximumLimit(30);
  listen();
  counter.setMaximumLimit(30);
  EXPECT_EQ(heard, 1);
  counter.setMaximumLimit(40);
  EXPECT_EQ(heard, 2);
}

TEST_F(QtPropertyWatchTest, ASlotMayChangeWhatItHears) {
  qt::SpinCounter counter;
  Texts heard;
  QObject::connect(&counter, &qt::SpinCounter::MaximumLimitChanged, [&](int limit) {
    heard.push_back("limit " + std::to_string(limit));
    if (limit == 40) counter.setMaximumLimit(41);
    counter.setNumberWrap(true);
  });
  QObject::connect(&counter, &qt::SpinCounter::NumberWrapChanged, [&] { heard.push_back("wrap"); });
  counter.setMaximumLimit(40);
  EXPECT_EQ(heard, (Texts{"limit 40", "limit 41", "wrap"}));
}

TEST_F(QtPropertyWatchTest, TheUserModeIsSignalled) {
  qt::SpinCounter counter;
  QSignalSpy modes(&counter, &qt::ControlWidget::userModeChanged);
  counter.setUserMode(false);
  counter.setUserMode(false);
  ASSERT_EQ(modes.count(), 1);
  EXPECT_FALSE(modes[0][0].toBool());
}

TEST_F(QtPropertyWatchTest, ANoticeComesUnderThePropertysOwnNameToo) {
  qt::DecisionBAR2 bar;
  Texts names;
  QObject::connect(&bar, &qt::ControlWidget::propertyChanged,
                   [&](const QString& name) { names.push_back(name.toStdString()); });
  bar.setHitcardButtonsVisibility(qt::DecisionBAR2::ButtonsArevisible);
  bar.setHolecardButtonsVisibility(qt::DecisionBAR2::ButtonsArevisible);
  bar.setTensRatioButtonVisibility(qt::DecisionBAR2::ButtonsArevisible);
  bar.setStatusButtonButtonVisibility(qt::DecisionBAR2::ButtonsArevisible);
  EXPECT_EQ(names, (Texts{"HitcardButtonsVisibility", "HoleCardButtonsVisibility", "HolecardButtonsVisibility",
                          "TensRatioButtonsVisibility", "TensRatioButtonVisibility", "StatusButtonVisibility",
                          "StatusButtonButtonVisibility"}));
}

TEST(QtTypedSignalsTest, TheUnitsPicked) {
  qt::UnitSelectionList list;
  QSignalSpy units(&list, &qt::UnitSelectionList::unitSizePicked);
  for (int row = 0; row < UnitSelectionList::HighestUnits; ++row) {
    list.control().Children.comboBettingUnits.PickRow(row);
    ASSERT_EQ(units.count(), 1);
    EXPECT_EQ(units.takeFirst()[0].toInt(), row + 1);
  }
}

TEST(QtTypedSignalsTest, TheCountValuePicked) {
  qt::CountValueSelector selector;
  QSignalSpy values(&selector, &qt::CountValueSelector::countValuePicked);
  selector.setPointValue(qt::CountValueSelector::CardIsAPlus3);
  EXPECT_EQ(values.count(), 0) << "no row is selected";
  for (int value = -10; value <= 10; ++value) {
    selector.control().Children.cmbPointValue.PickRow(value + 10);
    ASSERT_EQ(values.count(), 1);
    EXPECT_EQ(values.takeFirst()[0].value<qt::CountValueSelector::CardPointValuePossibilities>(), value);
  }
}

TEST(QtTypedSignalsTest, TheCountSystemPicked) {
  EmptyHooks hooks;
  hooks.Install();
  qt::CountStrategyList list;
  QSignalSpy systems(&list, &qt::CountStrategyList::countSystemPicked);
  list.InputCountStrategyDescriptions();
  ListBox& box = list.control().Children.StrategyListBox;
  ASSERT_GT(box.ListCount(), 20);
  for (int row = 0; row < box.ListCount(); ++row) {
    box.PickRow(row);
    if (systems.isEmpty()) continue;  // "Not Present" rows are refused
    const QVariantList picked = systems.takeFirst();
    EXPECT_EQ(picked[0].toInt(), box.ItemData(row));
    EXPECT_EQ(list.control().Record(picked[0].toInt()).Name, picked[1].toString().toStdString());
    EXPECT_EQ(picked[1].toString().toStdString(), box.Text());
  }
}

TEST(QtTypedSignalsTest, TheCountSystemPickedInAListAsDesigned) {
  const EmptyHooks hooks;
  qt::CountStrategyList list;
  QSignalSpy systems(&list, &qt::CountStrategyList::countSystemPicked);
  ListBox& box = list.control().Children.StrategyListBox;
  for (int row = 0; row < box.ListCount(); ++row) {
    box.PickRow(row);
    ASSERT_EQ(systems.count(), 1);
    EXPECT_EQ(systems.takeFirst()[0].toInt(), row + 11);
  }
}

TEST(QtAdviceTest, ThePlaysAreAnEnumerationWithTheControlsNumbers) {
  for (const QMetaObject* meta : {&qt::Decision::staticMetaObject, &qt::DecisionToolBarControl::staticMetaObject}) {
    const int index = meta->indexOfEnumerator("AdvicePossibilities");
    ASSERT_GE(index, 0) << meta->className();
    EXPECT_STREQ(meta->enumerator(index).valueToKey(1), "HitAdvised");
    EXPECT_STREQ(meta->enumerator(index).valueToKey(2), "StandAdvised");
    EXPECT_STREQ(meta->enumerator(index).valueToKey(3), "SplitAdvised");
    EXPECT_STREQ(meta->enumerator(index).valueToKey(4), "DoubleAdvised");
    EXPECT_STREQ(meta->enumerator(index).valueToKey(5), "SurrenderAdvised");
  }
}

}  // namespace
}  // namespace tactix::tests
