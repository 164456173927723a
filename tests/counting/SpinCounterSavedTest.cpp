// How a spin counter is saved and restored.

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tests/counting/SpinCounterFixture.h"
#include "tests/support/NotingBag.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class SpinCounterSavedTest : public SpinCounterFixture {};

TEST_F(SpinCounterSavedTest, ReadsAndWritesInOrderWithTheseDefaults) {
  site_->AmbientFont({"Ambient", 11});
  NotingBag bag;
  counter_->ReadProperties(bag);
  EXPECT_EQ(bag.Log, (Texts{"read CounterValue=0", "read AllowNegNumbers=False", "read MaximumLimit=999",
                            "read Height=360", "read ControlHandedness=2", "read Font=Ambient"}));
  bag.Log.clear();
  counter_->WriteProperties(bag);
  EXPECT_EQ(bag.Log, (Texts{"write CounterValue=0", "write AllowNegNumbers=False", "write MaximumLimit=999",
                            "write Height=360", "write ControlHandedness=2", "write Font=Ambient"}));
}

TEST_F(SpinCounterSavedTest, ComesBack) {
  counter_->AllowNegNumbers(true);
  counter_->CounterValue(-12);
  counter_->MaximumLimit(52);
  counter_->ControlHandedness(4);
  counter_->Font({"Serif", 9});
  counter_->Extender().Height(615);
  counter_->NumberWrap(true);
  MemoryPropertyBag bag;
  counter_->WriteProperties(bag);
  EXPECT_EQ(bag.Names(),
            (Texts{"CounterValue", "AllowNegNumbers", "MaximumLimit", "Height", "ControlHandedness", "Font"}));
  SpinCounter restored(*site_);
  restored.ReadProperties(bag);
  EXPECT_EQ(restored.CounterValue(), -12);
  EXPECT_TRUE(restored.AllowNegNumbers());
  EXPECT_EQ(restored.MaximumLimit(), 52);
  EXPECT_EQ(restored.ControlHandedness(), 4);
  EXPECT_EQ(restored.Font(), (Font{"Serif", 9}));
  EXPECT_EQ(restored.Extender().Height(), 615);
  EXPECT_EQ(restored.Children.SpinButton.Height(), 41);
  EXPECT_EQ(restored.Children.SpinButton.Width(), 67) << "laid out";
  EXPECT_FALSE(restored.NumberWrap());
}

TEST_F(SpinCounterSavedTest, RestoringRaisesNothingAndShowsNoNumber) {
  MemoryPropertyBag bag;
  bag.Write("CounterValue", 7);
  bag.Write("MaximumLimit", 52);
  bag.Write("ControlHandedness", 1);
  bag.Write("AllowNegNumbers", true);
  counter_->ReadProperties(bag);
  EXPECT_EQ(recorder_.Take(), Texts{"notice AllowNegNumbers"});
  EXPECT_EQ(TheLabel().Caption(), "(###)");
  Spin().SpinUp();
  EXPECT_EQ(TheLabel().Caption(), "(008)");
}

TEST_F(SpinCounterSavedTest, WhatConvertsIsTakenAsItIs) {
  MemoryPropertyBag bag;
  bag.Write("CounterValue", 1500);
  bag.Write("MaximumLimit", -7);
  bag.Write("ControlHandedness", 99);
  counter_->ReadProperties(bag);
  EXPECT_EQ(counter_->CounterValue(), 1500);
  EXPECT_EQ(counter_->MaximumLimit(), -7);
  EXPECT_EQ(counter_->ControlHandedness(), 99);
  EXPECT_EQ(Spin().Left(), 67) << "a number that is no handedness lays nothing out";
  EXPECT_EQ(site_->Beeps(), 0);
  counter_->CounterValue(0);
  EXPECT_EQ(counter_->CounterValue(), 1500) << "no number is accepted under a limit below zero";
}

struct HostileRow {
  const char* name;
  Variant value;
  /// What becomes of each property; the default where the value does not convert.
  int number;
  bool negatives;
  int limit;
  float height;
  int handedness;
};

class SpinCounterHostileTest : public SpinCounterSavedTest, public testing::WithParamInterface<HostileRow> {};

TEST_P(SpinCounterHostileTest, TakesWhatConvertsAndKeepsTheDefaultOtherwise) {
  const HostileRow& row = GetParam();
  MemoryPropertyBag bag;
  for (const char* name : {"CounterValue", "AllowNegNumbers", "MaximumLimit", "Height", "ControlHandedness", "Font"}) {
    bag.Write(name, row.value);
  }
  counter_->ReadProperties(bag);
  EXPECT_EQ(counter_->CounterValue(), row.number);
  EXPECT_EQ(counter_->AllowNegNumbers(), row.negatives);
  EXPECT_EQ(counter_->MaximumLimit(), row.limit);
  EXPECT_EQ(counter_->Extender().Height(), row.height);
  EXPECT_EQ(counter_->Extender().Width(), 1500);
  EXPECT_EQ(counter_->ControlHandedness(), row.handedness);
  EXPECT_EQ(counter_->Font().Name, "Comic Sans MS");
  EXPECT_TRUE(site_->Errors().empty());
  EXPECT_EQ(site_->Beeps(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterHostileTest,
                         testing::Values(HostileRow{"Empty", {}, 0, false, 0, 0, 0},
                                         HostileRow{"Null", Variant::Null(), 0, false, 999, 360, 2},
                                         HostileRow{"Words", "three", 0, false, 999, 360, 2},
                                         HostileRow{"Numeral", "3", 3, true, 3, 3, 3},
                                         HostileRow{"True", true, -1, true, -1, -1, -1},
                                         HostileRow{"Fraction", 2.5, 2, true, 2, 2.5F, 2},
                                         HostileRow{"TooBigFor16Bits", 40000, 0, true, 999, 40000, 40000},
                                         HostileRow{"TooBigFor32Bits", 4e9, 0, true, 999, 4e9F, 2},
                                         HostileRow{"TooBigForASingle", 1e200, 0, true, 999, 360, 2},
                                         HostileRow{"Object", Variant(ObjectRef()), 0, false, 999, 360, 2}),
                         RowName());

TEST_F(SpinCounterSavedTest, HeightsThatAreNoNumbersDoNoHarm) {
  for (const float height : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                             std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::max()}) {
    for (const int handedness : {1, 2, 3, 4}) {
      MemoryPropertyBag bag;
      bag.Write("Height", height);
      bag.Write("ControlHandedness", handedness);
      SpinCounter restored(*site_);
      restored.ReadProperties(bag);
      EXPECT_EQ(restored.ControlHandedness(), handedness);
      EXPECT_EQ(restored.Extender().Width(), 1500);
    }
  }
}

TEST_F(SpinCounterSavedTest, EachEntryThatFailsIsSkippedAlone) {
  const Texts names = {"CounterValue", "AllowNegNumbers", "MaximumLimit", "Height", "ControlHandedness", "Font"};
  for (const std::string& failing : names) {
    NotingBag bag;
    bag.Stored.Write("CounterValue", 7);
    bag.Stored.Write("AllowNegNumbers", true);
    bag.Stored.Write("MaximumLimit", 52);
    bag.Stored.Write("Height", 615);
    bag.Stored.Write("ControlHandedness", 1);
    bag.Stored.Write("Font", Font{"Stored", 5});
    bag.Failing = failing;
    SpinCounter restored(*site_);
    restored.ReadProperties(bag);
    EXPECT_EQ(restored.CounterValue(), failing == "CounterValue" ? 0 : 7);
    EXPECT_EQ(restored.AllowNegNumbers(), failing != "AllowNegNumbers");
    EXPECT_EQ(restored.MaximumLimit(), failing == "MaximumLimit" ? 999 : 52);
    EXPECT_EQ(restored.Extender().Height(), failing == "Height" ? 360 : 615);
    EXPECT_EQ(restored.ControlHandedness(), failing == "ControlHandedness" ? 2 : 1);
    EXPECT_EQ(restored.Font().Name, failing == "Font" ? "Comic Sans MS" : "Stored");
    bag.Log.clear();
    restored.WriteProperties(bag);
    EXPECT_EQ(bag.Log.size(), names.size()) << failing;
  }
}

TEST_F(SpinCounterSavedTest, WithoutAValueTheRestIsSavedAndRestored) {
  CounterValueObject::CreateWith(nullptr);
  NotingBag bag;
  bag.Stored.Write("MaximumLimit", 52);
  counter_->ReadProperties(bag);
  EXPECT_EQ(counter_->MaximumLimit(), 52);
  bag.Log.clear();
  counter_->WriteProperties(bag);
  EXPECT_EQ(bag.Log.size(), 5U);
  EXPECT_EQ(bag.Log[0], "write AllowNegNumbers=False");
}

TEST_F(SpinCounterSavedTest, ReadingAgainRestoresWhatIsNotStored) {
  counter_->CounterValue(7);
  counter_->MaximumLimit(52);
  counter_->ControlHandedness(1);
  counter_->Extender().Height(900);
  MemoryPropertyBag empty;
  counter_->ReadProperties(empty);
  EXPECT_EQ(counter_->CounterValue(), 0);
  EXPECT_EQ(counter_->MaximumLimit(), 999);
  EXPECT_EQ(counter_->Extender().Height(), 360);
  EXPECT_EQ(Spin().Left(), 67);
  EXPECT_EQ(TheLabel().Caption(), "(007)") << "the first change will show it";
}

}  // namespace
}  // namespace tactix::tests
