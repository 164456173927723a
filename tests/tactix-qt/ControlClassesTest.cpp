#include <gtest/gtest.h>

#include <QBuffer>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QUiLoader>
#include <memory>
#include <set>
#include <string>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CardCountDisplayBox.h"
#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/DualCardCountDisplay.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/StrategyList.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix-qt/UnitSelectionList.h"
#include "tactix/platform/PropertyTable.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

template <class W>
qt::ControlWidget* Make(QWidget* parent) {
  return new W(parent);
}

template <class C>
std::set<std::string> EventNames(qt::ControlWidget& widget) {
  std::set<std::string> names;
  std::apply([&names](auto&... events) { (names.emplace(events.Name()), ...); },
             static_cast<C&>(*widget.Hosted()).Events.All());
  return names;
}

struct ClassRow {
  const char* name;
  qt::ControlWidget* (*make)(QWidget*);
  std::set<std::string> (*events)(qt::ControlWidget&);
  /// In a form that gives it 200 by 100 pixels.
  int width = 200;
  int height = 100;
};

/// Properties that read something else than was written.
bool ReadsOtherwise(const std::string& property) {
  for (const char* name : {"PromptThePlayButtons", "Qualifier", "UseDefaultSize", "PointValue", "ClumpValue"}) {
    if (property == name) return true;
  }
  return false;
}

class QtControlClassTest : public testing::TestWithParam<ClassRow> {
 protected:
  const InstalledCounterValues counterValues_;
  std::unique_ptr<qt::ControlWidget> widget_{GetParam().make(nullptr)};
};

TEST_P(QtControlClassTest, HasTheControlsReadableProperties) {
  for (const PropertyTable::Row& row : widget_->Hosted()->Properties().Rows()) {
    if (!row.get) continue;
    const int index = widget_->metaObject()->indexOfProperty(row.name.c_str());
    ASSERT_GE(index, 0) << row.name;
    const QMetaProperty property = widget_->metaObject()->property(index);
    EXPECT_TRUE(property.read(widget_.get()).isValid()) << row.name;
    EXPECT_EQ(property.isWritable(), static_cast<bool>(row.set)) << row.name;
  }
}

TEST_P(QtControlClassTest, PropertiesReadAndWriteTheControls) {
  for (const PropertyTable::Row& row : widget_->Hosted()->Properties().Rows()) {
    if (!row.get || !row.set) continue;
    const char* const name = row.name.c_str();
    const QVariant before = widget_->property(name);
    if (before.typeId() == QMetaType::Bool) {
      EXPECT_EQ(before.toBool(), row.get(*widget_->Hosted()).ToBoolean()) << row.name;
      if (ReadsOtherwise(row.name)) continue;
      widget_->setProperty(name, !before.toBool());
      EXPECT_EQ(row.get(*widget_->Hosted()).ToBoolean(), !before.toBool()) << row.name;
    } else if (before.typeId() == QMetaType::QString) {
      EXPECT_EQ(before.toString().toStdString(), row.get(*widget_->Hosted()).ToText()) << row.name;
      if (ReadsOtherwise(row.name)) continue;
      widget_->setProperty(name, QStringLiteral("\u00C4 text"));
      EXPECT_EQ(row.get(*widget_->Hosted()).ToText(), "\xC3\x84 text") << row.name;
    } else if ((before.metaType().flags() & QMetaType::IsEnumeration) && !ReadsOtherwise(row.name)) {
      if (row.name == "CountStrategy") continue;  // has no system of that number
      widget_->setProperty(name, 1);
      EXPECT_EQ(row.get(*widget_->Hosted()).ToLong(), 1) << row.name;
    }
  }
}

TEST_P(QtControlClassTest, HasASignalForEveryEvent) {
  for (const std::string& event : GetParam().events(*widget_)) {
    bool found = false;
    for (int i = 0; i < widget_->metaObject()->methodCount(); ++i) {
      const QMetaMethod method = widget_->metaObject()->method(i);
      const std::string name = method.name().toStdString();
      if (method.methodType() == QMetaMethod::Signal && (name == event || name == event + "Raised")) found = true;
    }
    EXPECT_TRUE(found) << event;
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
  EXPECT_EQ(widget->geometry(), QRect(10, 20, GetParam().width, GetParam().height));
  EXPECT_EQ(widget->Hosted()->Extender().Width(), GetParam().width * 15);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, QtControlClassTest,
    testing::Values(ClassRow{"StrategyList", Make<qt::StrategyList>, EventNames<StrategyList>},
                    ClassRow{"AdviceButton", Make<qt::AdviceButton>, EventNames<AdviceButton>},
                    ClassRow{"Decision", Make<qt::Decision>, EventNames<Decision>},
                    ClassRow{"DecisionRegister", Make<qt::DecisionRegister>, EventNames<DecisionRegister>, 200, 95},
                    ClassRow{"DecisionRegiLOG", Make<qt::DecisionRegiLOG>, EventNames<DecisionRegiLOG>},
                    ClassRow{"CardCountDisplayBox", Make<qt::CardCountDisplayBox>, EventNames<CardCountDisplayBox>},
                    ClassRow{"DualCardCountDisplay", Make<qt::DualCardCountDisplay>, EventNames<DualCardCountDisplay>},
                    ClassRow{"StrategyDataPanel", Make<qt::StrategyDataPanel>, EventNames<StrategyDataPanel>},
                    ClassRow{"SpinCounter", Make<qt::SpinCounter>, EventNames<SpinCounter>, 100},
                    ClassRow{"CountValueSelector", Make<qt::CountValueSelector>, EventNames<CountValueSelector>},
                    ClassRow{"ClumpCardList", Make<qt::ClumpCardList>, EventNames<ClumpCardList>},
                    ClassRow{"UnitSelectionList", Make<qt::UnitSelectionList>, EventNames<UnitSelectionList>},
                    ClassRow{"StrategyListLITE", Make<qt::StrategyListLITE>, EventNames<StrategyListLITE>},
                    ClassRow{"BetStrategyList", Make<qt::BetStrategyList>, EventNames<BetStrategyList>},
                    ClassRow{"CountStrategyList", Make<qt::CountStrategyList>, EventNames<CountStrategyList>},
                    ClassRow{"StrategyMarquix", Make<qt::StrategyMarquix>, EventNames<StrategyMarquix>}),
    RowName());

TEST(QtDecisionClassTest, EnumerationsShowTheirRowsByName) {
  const qt::Decision widget;
  const QMetaObject& meta = *widget.metaObject();
  const QMetaProperty property = meta.property(meta.indexOfProperty("DecisionBoxType"));
  ASSERT_TRUE(property.isEnumType());
  EXPECT_STREQ(property.enumerator().valueToKey(1), "forUseWithBlackjackTable");
}

TEST(QtDecisionClassTest, SignalsWhatTheControlRaises) {
  qt::Decision widget;
  int row = 0;
  const auto raise = [&](auto& event, auto signal) {
    QSignalSpy spy(&widget, signal);
    event.Raise();
    EXPECT_EQ(spy.count(), 1) << event.Name();
    ++row;
  };
  auto& events = widget.control().Events;
  raise(events.PlayerHits, &qt::Decision::PlayerHits);
  raise(events.PlayerStands, &qt::Decision::PlayerStands);
  raise(events.BurnACardRequested, &qt::Decision::BurnACardRequested);
  raise(events.Show, &qt::Decision::ShowRaised);
  EXPECT_EQ(row, 4);
}

TEST(QtStrategyListClassTest, SignalsTheNumberByValueAndFailsAsTheControlDoes) {
  qt::StrategyList widget;
  QSignalSpy spy(&widget, &qt::StrategyList::StrategySelectionChanged);
  widget.AddItem(QStringLiteral("seat"));
  widget.AddItem(QStringLiteral("first"));
  widget.ListIndex(0);
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toInt(), 0);
  EXPECT_EQ(ErrorCodeOf([&] { return widget.ListIndex(7), 0; }), Error::InvalidPropertyValue);
  EXPECT_EQ(ErrorCodeOf([&] { return widget.ListIndex(70000), 0; }), Error::Overflow);
}

TEST(QtBetStrategyListClassTest, SelectsQuietly) {
  qt::BetStrategyList widget;
  QSignalSpy spy(&widget, &qt::BetStrategyList::StrategySelectionChanged);
  widget.AddItem(QStringLiteral("seat"));
  widget.AddItem(QStringLiteral("first"));
  widget.SelectThisStrategy(0);
  EXPECT_EQ(spy.count(), 0);
  EXPECT_EQ(widget.ListIndex(), 0);
  widget.ListIndex(-1);
  EXPECT_EQ(spy.count(), 1);
}

TEST(QtCountStrategyListClassTest, SignalsTheNumberAndTheText) {
  qt::CountStrategyList widget;
  QSignalSpy spy(&widget, &qt::CountStrategyList::StrategySelectionChanged);
  widget.ListIndex(4);
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toInt(), 15);
  EXPECT_EQ(spy[0][1].toString(), QStringLiteral("Kelvo' APC"));
  EXPECT_EQ(widget.CountStrategy(), 4);
  EXPECT_EQ(widget.CountValue(qt::CountStrategyList::KelvoAPC, 4), 0);
  EXPECT_EQ(ErrorCodeOf([&] { return widget.CountValue(qt::CountStrategyList::KelvoAPC, 5); }),
            Error::SubscriptOutOfRange);
  const QMetaObject& meta = *widget.metaObject();
  EXPECT_STREQ(meta.property(meta.indexOfProperty("CountStrategy")).enumerator().valueToKey(20), "KelvoClumpTrack");
}

TEST(QtStrategyMarquixClassTest, ForwardsAndSignals) {
  qt::StrategyMarquix widget;
  QSignalSpy spy(&widget, &qt::StrategyMarquix::StrategySelectionChanged);
  for (const char* item : {"seat", "none", "first"}) widget.AddItem(QLatin1String(item));
  widget.ListIndex(1);
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toInt(), 1);
  EXPECT_TRUE(widget.aStrategyExists());
  widget.SelectThisStrategy(true);
  EXPECT_TRUE(widget.control().Children.optStrategySelected.Value());
  widget.ControlType(qt::StrategyMarquix::IsAPlayingMarquix);
  EXPECT_TRUE(widget.control().Children.optStrategySelected.Visible());
}

}  // namespace
}  // namespace tactix::tests
