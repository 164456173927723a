// The value entry controls as widgets: enumerations, signals, numbers beyond 16 bits, and saved forms.

#include <gtest/gtest.h>

#include <QMetaEnum>
#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/QSettingsBag.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/UnitSelectionList.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/InstalledCounterValues.h"

namespace tactix::tests {
namespace {

QMetaEnum RowsOf(const QWidget& widget, const char* property) {
  return widget.metaObject()->property(widget.metaObject()->indexOfProperty(property)).enumerator();
}

TEST(QtValueEntryTest, EnumerationsShowTheirRowsByName) {
  const qt::SpinCounter counter;
  EXPECT_STREQ(RowsOf(counter, "ControlHandedness").valueToKey(2), "RighHandSpinCounter");
  EXPECT_EQ(RowsOf(counter, "ControlHandedness").keyCount(), 4);
  const qt::CountValueSelector selector;
  EXPECT_STREQ(RowsOf(selector, "CardValue").valueToKey(8), "theCardValueIsAnEight");
  EXPECT_EQ(RowsOf(selector, "CardValue").keyCount(), 10);
  EXPECT_STREQ(RowsOf(selector, "PointValue").valueToKey(-10), "CardIsAMinus10");
  EXPECT_EQ(RowsOf(selector, "PointValue").keyToValue("CardIsAPlus7"), 7);
  EXPECT_EQ(RowsOf(selector, "PointValue").keyCount(), 24);
  const qt::ClumpCardList list;
  EXPECT_STREQ(RowsOf(list, "CardValue").valueToKey(1), "theClumpCardValueIsAnAce");
  EXPECT_STREQ(RowsOf(list, "ClumpValue").valueToKey(0), "NeutralClumpValue");
}

TEST(QtValueEntryTest, ASpinCounterSignalsByValue) {
  const InstalledCounterValues installed;
  qt::SpinCounter counter;
  QSignalSpy spy(&counter, &qt::SpinCounter::CounterValueHasChanged);
  counter.CounterValue(7);
  counter.control().Children.SpinButton.SpinUp();
  ASSERT_EQ(spy.count(), 2);
  EXPECT_EQ(spy[0][0].toInt(), 7);
  EXPECT_EQ(spy[1][0].toInt(), 8);
  EXPECT_EQ(counter.CounterValue(), 8);
}

TEST(QtValueEntryTest, NumbersBeyond16BitsFail) {
  const InstalledCounterValues installed;
  qt::SpinCounter counter;
  UnhandledErrors errors(counter);
  counter.CounterValue(70000);
  EXPECT_EQ(errors.Take(), std::vector{6});
  counter.MaximumLimit(-70000);
  EXPECT_EQ(errors.Take(), std::vector{6});
  EXPECT_EQ(counter.MaximumLimit(), 999);
  counter.MaximumLimit(52);
  counter.CounterValue(53);
  EXPECT_EQ(counter.CounterValue(), 0);
  counter.AllowNegNumbers(true);
  counter.CounterValue(-3);
  EXPECT_EQ(counter.property("CounterValue").toInt(), -3);
  counter.NumberWrap(true);
  EXPECT_TRUE(counter.control().NumberWrap());
  EXPECT_TRUE(errors.Take().empty());
}

TEST(QtValueEntryTest, TheSizesSlotsActAtOnce) {
  qt::SpinCounter counter;
  counter.control().Extender().Height(900);
  EXPECT_EQ(counter.height(), 60);
  counter.UseDefaultSize(true);
  EXPECT_EQ(counter.height(), 24);
  counter.control().Extender().Height(900);
  counter.ResetSizeToDefault();
  EXPECT_EQ(counter.height(), 24);
}

TEST(QtValueEntryTest, SelectorsAndTheListOfUnitsSignalByValue) {
  qt::CountValueSelector selector;
  QSignalSpy values(&selector, &qt::CountValueSelector::CountValueSelected);
  selector.control().Children.cmbPointValue.PickRow(0);
  selector.PointValue(qt::CountValueSelector::CardIsAPlus3);
  ASSERT_EQ(values.count(), 3);
  for (const auto& arguments : values) EXPECT_EQ(arguments[0].toInt(), -10);
  EXPECT_EQ(selector.PointValue(), -10);
  selector.CardValue(qt::CountValueSelector::theCardValueIsATen);
  EXPECT_EQ(selector.CardValue(), 10);

  qt::ClumpCardList clumps;
  QSignalSpy clumpValues(&clumps, &qt::ClumpCardList::ClumpValueSelected);
  clumps.ClumpValue(static_cast<qt::ClumpCardList::CardClumpValuePossibilities>(1));
  ASSERT_EQ(clumpValues.count(), 1);
  EXPECT_EQ(clumpValues[0][0].toInt(), -11);

  qt::UnitSelectionList units;
  QSignalSpy rows(&units, &qt::UnitSelectionList::UnitSizeSelected);
  units.control().Children.comboBettingUnits.PickRow(4);
  ASSERT_EQ(rows.count(), 1);
  EXPECT_EQ(rows[0][0].toInt(), 4);
}

/// Saves one control and restores another through a settings file that is closed in between.
void ThroughSettings(Control& saved, Control& restored) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("form.ini"));
  {
    QSettings settings(path, QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("form/control"));
    saved.WriteProperties(bag);
  }
  QSettings settings(path, QSettings::IniFormat);
  qt::QSettingsBag bag(settings, QStringLiteral("form/control"));
  restored.ReadProperties(bag);
}

TEST(QtValueEntryTest, ASpinCounterComesBackFromSettings) {
  const InstalledCounterValues installed;
  qt::SpinCounter saved;
  saved.AllowNegNumbers(true);
  saved.MaximumLimit(52);
  saved.CounterValue(-12);
  saved.ControlHandedness(qt::SpinCounter::LeftHandSpinCounter);
  saved.control().Font({"Serif", 9, true});
  saved.resize(100, 41);
  saved.control().Extender().Height(615);
  qt::SpinCounter restored;
  ThroughSettings(saved.control(), restored.control());
  EXPECT_EQ(restored.CounterValue(), -12);
  EXPECT_TRUE(restored.AllowNegNumbers());
  EXPECT_EQ(restored.MaximumLimit(), 52);
  EXPECT_EQ(restored.ControlHandedness(), qt::SpinCounter::LeftHandSpinCounter);
  EXPECT_EQ(restored.control().Font(), (Font{"Serif", 9, true}));
  EXPECT_EQ(restored.size(), QSize(100, 41));
}

template <class W>
class QtCardValueTest : public testing::Test {};
using Selectors = testing::Types<qt::CountValueSelector, qt::ClumpCardList>;
TYPED_TEST_SUITE(QtCardValueTest, Selectors);

TYPED_TEST(QtCardValueTest, ComesBackFromSettings) {
  TypeParam saved;
  saved.setProperty("CardValue", 10);
  const auto list = [](TypeParam& widget) -> ListBox& {
    if constexpr (std::is_same_v<TypeParam, qt::CountValueSelector>) {
      return widget.control().Children.cmbPointValue;
    } else {
      return widget.control().Children.cmbClumpValue;
    }
  };
  list(saved).PickRow(3);
  TypeParam restored;
  ThroughSettings(saved.control(), restored.control());
  EXPECT_EQ(list(restored).ListIndex(), 3);
  EXPECT_EQ(restored.CardValue(), 10);
  EXPECT_EQ(restored.control().Children.lblCardValue.Caption(), "10");
}

}  // namespace
}  // namespace tactix::tests
