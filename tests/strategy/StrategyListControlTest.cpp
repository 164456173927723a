// What the four lists share, each as far as it goes for it.

#include "tactix/strategy/StrategyListControl.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/BareSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/ListKinds.h"
#include "tests/support/LoggingBag.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class StrategyListControlTest : public testing::TestWithParam<ListKind> {
 protected:
  StrategyListControlTest() { StartOver(); }

  void StartOver() {
    recorder_ = std::make_unique<EventRecorder>();
    list_ = GetParam().make(site_);
    GetParam().watch(*recorder_, *list_);
  }
  ListBox& Box() { return GetParam().box(*list_); }
  Texts Rows() {
    Texts rows;
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) rows.push_back(Box().List(row));
    return rows;
  }
  /// Rows "row 0", "row 1" and so on instead of what the list has.
  void SetRows(int count) {
    Box().Clear();
    for (int row = 0; row < count; ++row) list_->AddItem("row " + std::to_string(row));
  }
  std::string Reported(std::int32_t row) { return GetParam().reported(row, Box().List(row)); }
  void Fill() { GetParam().fill(*list_); }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<StrategyListControl> list_;
  std::unique_ptr<EventRecorder> recorder_;
};

TEST_P(StrategyListControlTest, StartsAsDesigned) {
  EXPECT_EQ(Box().Name(), GetParam().boxName);
  EXPECT_EQ(list_->Text(), GetParam().text);
  EXPECT_EQ(list_->ToolTipText(), GetParam().toolTip);
  EXPECT_EQ(list_->Font().Name, GetParam().fontName);
  EXPECT_EQ(list_->BackColor(), WindowColor);
  EXPECT_EQ(list_->ForeColor(), WindowTextColor);
  EXPECT_TRUE(list_->Enabled());
  EXPECT_TRUE(list_->Visible());
  EXPECT_EQ(list_->ControlType(), TypeOfStrategyControl::IsNotYetAssigned);
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(list_->Style(), 0);
  EXPECT_EQ(list_->StrategyCount(), 0);
  EXPECT_EQ(list_->LastGoodListIndex(), 0);
}

TEST_P(StrategyListControlTest, ItsPropertiesAreTheBoxesAndAreAnnounced) {
  // A second write of the same value is announced too.
  for (int time = 0; time < 2; ++time) {
    site_.ForgetRecords();
    list_->BackColor(0x123456);
    list_->ForeColor(0x654321);
    list_->Enabled(false);
    list_->Font({"Serif", 9});
    list_->ToolTipText("tip");
    list_->Text("text");
    list_->DefaultContent("content");
    list_->Visible(false);
    list_->ControlType(99);
    list_->ListIndex(-2);
    EXPECT_EQ(site_.Changes(),
              (Texts{"BackColor", "ForeColor", "Enabled", "Font", "ToolTipText", "Text", "DefaultContent"}));
  }
  EXPECT_EQ(Box().BackColor(), 0x123456);
  EXPECT_EQ(Box().ForeColor(), 0x654321);
  EXPECT_FALSE(Box().Enabled());
  EXPECT_EQ(Box().Font().Name, "Serif");
  EXPECT_EQ(Box().ToolTipText(), "tip");
  EXPECT_EQ(Box().Text(), "content");
  EXPECT_FALSE(Box().Visible());
  EXPECT_TRUE(list_->Extender().Visible()) << "the control itself stays";
  EXPECT_TRUE(list_->Extender().Enabled());
  EXPECT_EQ(list_->ControlType(), 99);
}

TEST_P(StrategyListControlTest, AddsRowsOfTheHosts) {
  SetRows(0);
  list_->AddItem("a");
  list_->AddItem("c");
  list_->AddItem("b", 1);
  EXPECT_EQ(Rows(), (Texts{"a", "b", "c"}));
  EXPECT_EQ(ErrorCodeOf([&] { list_->AddItem("d", 4); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { list_->AddItem("d", -1); }), 5);
}

// Selecting.

TEST_P(StrategyListControlTest, ReportsRowsUpToItsCap) {
  SetRows(60);
  const std::int32_t highest = GetParam().highestReportedRow;
  for (const std::int32_t row : {0, 1, highest, highest + 1, 59}) {
    Box().PickRow(row);
    EXPECT_EQ(recorder_->Take(), row <= highest ? Texts{Reported(row)} : Texts{});
    EXPECT_EQ(list_->ListIndex(), row - 1);
    EXPECT_EQ(list_->LastGoodListIndex(), std::min(row, highest));
  }
}

TEST_P(StrategyListControlTest, ReportsWhatIsSelectedFromCode) {
  SetRows(4);
  for (int time = 0; time < 2; ++time) {
    list_->ListIndex(2);
    EXPECT_EQ(recorder_->Take(), Texts{Reported(3)});
  }
  list_->ListIndex(-2);
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(3); }), 380);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(-3); }), 380);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(32766); }), 380);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(32767); }), GetParam().failureOfTheHighestNumber);
  EXPECT_EQ(recorder_->Take(), Texts{});
}

TEST_P(StrategyListControlTest, RefusesAnUnusableRow) {
  SetRows(3);
  list_->AddItem("Not Present");
  Box().PickRow(3);
  EXPECT_EQ(list_->ListIndex(), -1) << "to the first row when none was accepted yet";
  Box().PickRow(2);
  EXPECT_EQ(recorder_->Take(), Texts{Reported(2)});
  Box().PickRow(3);
  EXPECT_EQ(list_->ListIndex(), 1);
  EXPECT_EQ(list_->LastGoodListIndex(), 2);
  EXPECT_EQ(site_.Beeps(), 2);
  EXPECT_EQ(recorder_->Take(), Texts{});
}

TEST_P(StrategyListControlTest, AnUnusableRowPastItsCapIsNotRefused) {
  SetRows(58);
  const std::int32_t past = GetParam().highestReportedRow + 1;
  list_->AddItem("Not Present", past);
  Box().PickRow(past);
  EXPECT_EQ(list_->ListIndex(), past - 1);
  EXPECT_EQ(site_.Beeps(), 0);
}

TEST_P(StrategyListControlTest, ALastGoodRowThatIsGoneFailsAfterTheBeep) {
  SetRows(6);
  list_->ListIndex(4);
  SetRows(2);
  list_->AddItem("Not Present");
  recorder_->Forget();
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(1); }), 380);
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(recorder_->Take(), Texts{});
  // It still reports and refuses.
  list_->ListIndex(0);
  EXPECT_EQ(recorder_->Take(), Texts{Reported(1)});
  list_->ListIndex(1);
  EXPECT_EQ(list_->ListIndex(), 0);
}

TEST_P(StrategyListControlTest, GoesBackSilentlyToARowThatIsUnusableItself) {
  SetRows(2);
  list_->ListIndex(0);
  SetRows(1);
  list_->AddItem("Not Present");
  list_->AddItem("Not Present");
  recorder_->Forget();
  list_->ListIndex(1);
  EXPECT_EQ(list_->ListIndex(), 0);
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(recorder_->Take(), Texts{});
}

TEST_P(StrategyListControlTest, ABeepMayDestroyIt) {
  BareSite site;
  list_ = GetParam().make(site);
  site.OnBeep = [this] { list_.reset(); };
  list_->AddItem("Not Present", 0);
  list_->ListIndex(-1);
  EXPECT_EQ(list_, nullptr);
}

TEST_P(StrategyListControlTest, GoingBackMayDestroyIt) {
  SetRows(2);
  list_->AddItem("Not Present");
  Box().Clicked.Connect([this] {
    if (Box().ListIndex() == 0) list_.reset();
  });
  list_->ListIndex(1);
  EXPECT_EQ(list_, nullptr);
}

TEST_P(StrategyListControlTest, LosingTheFocusMayDestroyIt) {
  BareSite site;
  list_ = GetParam().make(site);
  site.Focused = &Box();
  site.OnSetFocus = [&] {
    site.Focused = nullptr;
    list_.reset();
  };
  list_->Enabled(false);
  EXPECT_EQ(list_, nullptr);
}

TEST_P(StrategyListControlTest, AChangeOfItsTextMayDestroyIt) {
  using Setter = void (StrategyListControl::*)(std::string_view);
  for (const Setter set : {Setter{&StrategyListControl::Text}, Setter{&StrategyListControl::DefaultContent}}) {
    StartOver();
    Box().Changed.Connect([this] { list_.reset(); });
    (list_.get()->*set)("x");
    EXPECT_EQ(list_, nullptr);
  }
}

// Saving.

TEST_P(StrategyListControlTest, ReadsAndWritesInOrder) {
  LoggingBag bag;
  list_->WriteProperties(bag);
  Texts expected;
  for (const std::string& name : GetParam().saved) expected.push_back("write " + name);
  EXPECT_EQ(bag.log, expected);
  bag.log.clear();
  expected.clear();
  for (const std::string& name : GetParam().saved) {
    if (name != "DefaultContent") expected.push_back("read " + name);
  }
  list_->ReadProperties(bag);
  EXPECT_EQ(bag.log, expected);
}

TEST_P(StrategyListControlTest, WritesItsDefaultsAlong) {
  LoggingBag bag;
  list_->WriteProperties(bag);
  const Texts known = {"Enabled=True", "BackColor=-2147483643", "ForeColor=-2147483640",
                       "Text=",        "ToolTipText=",          "DefaultContent=",
                       "Font=font",    "CountStrategy=16"};
  EXPECT_EQ(bag.defaults.size(), GetParam().saved.size());
  for (const std::string& each : bag.defaults) {
    EXPECT_NE(std::find(known.begin(), known.end(), each), known.end()) << each;
  }
}

TEST_P(StrategyListControlTest, AnEmptyBagGivesTheDefaults) {
  site_.AmbientFont({"Ambient", 11});
  list_->BackColor(1);
  list_->ForeColor(2);
  list_->Enabled(false);
  list_->ToolTipText("tip");
  list_->Text("before");
  MemoryPropertyBag empty;
  list_->ReadProperties(empty);
  EXPECT_EQ(list_->BackColor(), WindowColor);
  EXPECT_EQ(list_->ForeColor(), WindowTextColor);
  EXPECT_TRUE(list_->Enabled());
  EXPECT_EQ(list_->ToolTipText(), "");
  EXPECT_EQ(list_->Font(), (Font{"Ambient", 11}));
  EXPECT_NE(list_->Text(), "") << "an empty stored text leaves the text that is there";
}

TEST_P(StrategyListControlTest, TheDefaultContentIsWrittenAndNotRead) {
  list_->DefaultContent("content");
  MemoryPropertyBag bag;
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.Read("DefaultContent"), Variant("content"));
  bag.Remove("Text");
  StartOver();
  list_->Text("before");
  list_->ReadProperties(bag);
  EXPECT_NE(list_->DefaultContent(), "content");
}

TEST_P(StrategyListControlTest, ReadingIsNotAnnounced) {
  GetParam().describe(*catalogue_);
  MemoryPropertyBag bag;
  bag.Write("Text", "text");
  bag.Write("CountStrategy", 0);
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->Text(), "text");
  EXPECT_EQ(site_.Changes(), Texts{});
  EXPECT_EQ(recorder_->Take(), Texts{});
}

TEST_P(StrategyListControlTest, AFailingEntryIsSkippedOrEndsTheLoad) {
  // Values that a conversion refuses count as failures, too.
  for (const bool failsToConvert : {false, true}) {
    for (const std::string& failing : GetParam().saved) {
      if (failing == "DefaultContent") continue;
      StartOver();
      LoggingBag bag;
      bag.stored.Write("Enabled", false);
      bag.stored.Write("BackColor", 11);
      bag.stored.Write("ForeColor", 12);
      bag.stored.Write("Text", "text");
      bag.stored.Write("ToolTipText", "tip");
      bag.stored.Write("Font", Font{"Stored", 5});
      if (failsToConvert) {
        bag.stored.Write(failing, Variant::Null());
      } else {
        bag.failing = failing;
      }
      const int conversion = failing == "Font" ? 13 : 94;
      const int code = failsToConvert ? conversion : 1234;
      EXPECT_EQ(ErrorCodeOf([&] { list_->ReadProperties(bag); }), GetParam().reportsFailedRead ? code : 0) << failing;
      const auto isRead = [&](const std::string& name) {
        const Texts& all = GetParam().saved;
        if (name == failing) return false;
        return !GetParam().reportsFailedRead ||
               std::find(all.begin(), all.end(), name) < std::find(all.begin(), all.end(), failing);
      };
      EXPECT_EQ(list_->Enabled(), !isRead("Enabled")) << failing;
      EXPECT_EQ(list_->BackColor() == 11, isRead("BackColor")) << failing;
      EXPECT_EQ(list_->ForeColor() == 12, isRead("ForeColor")) << failing;
      EXPECT_EQ(list_->Text() == "text", isRead("Text")) << failing;
      EXPECT_EQ(list_->ToolTipText() == "tip", isRead("ToolTipText")) << failing;
      EXPECT_EQ(list_->Font().Name == "Stored", isRead("Font")) << failing;
    }
  }
}

TEST_P(StrategyListControlTest, AnEntryThatCannotBeWrittenIsSkippedOrEndsTheSave) {
  const Texts& saved = GetParam().saved;
  for (std::size_t i = 0; i < saved.size(); ++i) {
    LoggingBag bag;
    bag.failing = saved[i];
    EXPECT_EQ(ErrorCodeOf([&] { list_->WriteProperties(bag); }), GetParam().reportsFailedWrite ? 1234 : 0);
    EXPECT_EQ(bag.log.size(), GetParam().reportsFailedWrite ? i + 1 : saved.size()) << saved[i];
  }
}

TEST_P(StrategyListControlTest, ABagMayDestroyItAtEveryAccess) {
  for (const bool writes : {false, true}) {
    for (const std::string& when : GetParam().saved) {
      if (!writes && when == "DefaultContent") continue;
      StartOver();
      LoggingBag bag;
      bag.onAccess = [&](std::string_view name) {
        if (name == when) list_.reset();
      };
      writes ? list_->WriteProperties(bag) : list_->ReadProperties(bag);
      EXPECT_EQ(list_, nullptr) << when;
      EXPECT_EQ(bag.log.back(), (writes ? "write " : "read ") + when);
    }
  }
}

TEST_P(StrategyListControlTest, ASavedValueMayBeAnObjectAndDestroyItWhenItIsAsked) {
  for (const std::string& when : GetParam().saved) {
    if (when == "DefaultContent" || when == "CountStrategy") continue;
    StartOver();
    const auto value = std::make_shared<PropertyObject>("", when == "Font" ? Variant(Font{"Small", 7}) : Variant(1));
    LoggingBag bag;
    bag.stored.Write(when, value);
    list_->ReadProperties(bag);
    value->OnUse = [this](const std::string&) { list_.reset(); };
    list_->ReadProperties(bag);
    EXPECT_EQ(list_, nullptr) << when;
    EXPECT_EQ(bag.log.back(), "read " + when);
  }
}

// Being resized.

TEST_P(StrategyListControlTest, TheBoxTakesTheControlsWidthAndKeepsItsHeight) {
  EXPECT_EQ(Box().Height(), 390);
  for (const float width : {3000.0F, 10.0F, 0.0F}) {
    list_->Extender().Place(0, 0, width, 500 + width);
    EXPECT_EQ(Box().Width(), width);
    EXPECT_EQ(Box().Height(), 390);
  }
  Box().Place(30, 40, 50, 60);
  list_->Extender().Place(0, 0, 700, 200);
  EXPECT_EQ(Box().Left(), 30);
  EXPECT_EQ(Box().Top(), 40);
  EXPECT_EQ(Box().Width(), 700);
  EXPECT_EQ(Box().Height(), 60);
}

TEST_P(StrategyListControlTest, AFailureOfTheBoxInAResizeIsIgnoredOrReported) {
  class FailingObserver final : public WidgetObserver {
   public:
    void Changed(Widget&, Aspect) override { throw Error(1234); }
    void Gone(Widget&) override {}
  } observer;
  Box().Observe(&observer);
  EXPECT_EQ(ErrorCodeOf([&] { list_->Extender().Width(700); }), GetParam().reportsFailedResize ? 1234 : 0);
  Box().Observe(nullptr);
}

// The host's collection.

TEST_P(StrategyListControlTest, StoresTheCountOfTheCollection) {
  auto collection = std::make_shared<FakeCollection>("12");
  list_->UseThisStrategyList(collection);
  EXPECT_EQ(list_->StrategyCount(), 12);
  EXPECT_EQ(collection.use_count(), 2);
  list_->Terminated();
  EXPECT_EQ(collection.use_count(), GetParam().releasesTheCollection ? 1 : 2);
  list_.reset();
  EXPECT_EQ(collection.use_count(), 1);
}

TEST_P(StrategyListControlTest, AFillTakesNothingFromTheCollection) {
  GetParam().describe(*catalogue_);
  list_->LoadStrategiesFromIniFile();
  const Texts rows = Rows();
  list_->UseThisStrategyList(std::make_shared<FakeCollection>(2));
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), rows);
  EXPECT_GT(rows.size(), 2U);
}

TEST_P(StrategyListControlTest, ACollectionThatIsNoneFailsAndLeavesTheCount) {
  list_->UseThisStrategyList(std::make_shared<FakeCollection>(7));
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(std::make_shared<FakeCollection>(32768)); }), 6);
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(std::make_shared<FakeCollection>("many")); }), 13);
  EXPECT_EQ(list_->StrategyCount(), 7);
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(nullptr); }), 91);
}

TEST_P(StrategyListControlTest, ACollectionMayDestroyIt) {
  auto counted = std::make_shared<FakeCollection>(3);
  counted->OnCount = [this] { list_.reset(); };
  list_->UseThisStrategyList(counted);
  EXPECT_EQ(list_, nullptr);

  /// Takes its list along when it is let go.
  class Parting final : public Object {
   public:
    explicit Parting(std::unique_ptr<StrategyListControl>& list) : list_(list) {}
    ~Parting() override { list_.reset(); }
    Variant Get(std::string_view) override { return 1; }

   private:
    std::unique_ptr<StrategyListControl>& list_;
  };
  StartOver();
  list_->UseThisStrategyList(std::make_shared<Parting>(list_));
  list_->UseThisStrategyList(std::make_shared<FakeCollection>(3));
  EXPECT_EQ(list_, nullptr);
}

// The catalogue.

TEST_P(StrategyListControlTest, ALoadFailsWithoutACatalogue) {
  StrategyListData::UseCatalogue(nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 91);
}

TEST_P(StrategyListControlTest, AFailingRangeEndsTheLoadBeforeItFills) {
  GetParam().describe(*catalogue_);
  SetRows(3);
  catalogue_->OnCall = [](const std::string&) { throw Error(1234); };
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 1234);
  EXPECT_EQ(Rows().size(), 3U);
}

TEST_P(StrategyListControlTest, AFillStartsOverAndReportsNothing) {
  GetParam().describe(*catalogue_);
  list_->LoadStrategiesFromIniFile();
  const Texts rows = Rows();
  EXPECT_GE(rows.size(), 5U);
  list_->ListIndex(2);
  recorder_->Forget();
  Fill();
  EXPECT_EQ(Rows(), rows);
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(list_->LastGoodListIndex(), 3);
  EXPECT_EQ(recorder_->Take(), Texts{});
}

TEST_P(StrategyListControlTest, AFailureOfTheBoxEndsTheFill) {
  class FailingObserver final : public WidgetObserver {
   public:
    void Changed(Widget&, Aspect) override {}
    void RowInserted(ListBox&, std::int32_t) override { throw Error(1234); }
    void Gone(Widget&) override {}
  } observer;
  GetParam().describe(*catalogue_);
  list_->Text("before");
  Box().Observe(&observer);
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), GetParam().reportsFailedFill ? 1234 : 0);
  Box().Observe(nullptr);
  EXPECT_EQ(list_->Text(), "before");
  EXPECT_GE(Rows().size(), 1U) << "rows that were added stay";
}

TEST_P(StrategyListControlTest, ACatalogueMayBeReplacedInEachOfItsCalls) {
  for (const std::string& when : GetParam().calls) {
    StartOver();
    auto catalogue = std::make_shared<FakeCatalogue>();
    GetParam().describe(*catalogue);
    const std::weak_ptr<FakeCatalogue> alive = catalogue;
    bool isReplaced = false;
    catalogue->OnCall = [&](const std::string& call) {
      if (call != when) return;
      isReplaced = true;
      StrategyListData::UseCatalogue(nullptr);
      EXPECT_FALSE(alive.expired()) << "as long as it runs";
    };
    StrategyListData::UseCatalogue(std::move(catalogue));
    ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); });
    EXPECT_TRUE(isReplaced) << when;
    EXPECT_TRUE(alive.expired());
  }
}

TEST_P(StrategyListControlTest, ACatalogueMayDestroyItInEachOfItsCalls) {
  for (const bool fails : {false, true}) {
    for (const std::string& when : GetParam().calls) {
      for (int time = 1; time <= 2; ++time) {
        catalogue_->OnCall = nullptr;
        StartOver();
        GetParam().describe(*catalogue_);
        int seen = 0;
        std::size_t callsAfter = 0;
        catalogue_->OnCall = [&](const std::string& call) {
          if (!list_) ++callsAfter;
          if (call != when || ++seen != time) return;
          list_.reset();
          if (fails) throw Error(Error::ObjectNotSet);
        };
        ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); });
        if (seen < time) continue;  // called once only
        EXPECT_EQ(list_, nullptr) << when;
        EXPECT_EQ(callsAfter, 0U) << when;
      }
    }
  }
}

TEST_P(StrategyListControlTest, ANoticeMayDestroyIt) {
  site_.OnPropertyChanged([this](std::string_view) { list_.reset(); });
  list_->Text("text");
  EXPECT_EQ(list_, nullptr);
  StartOver();
  list_->Enabled(false);
  EXPECT_EQ(list_, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Kinds, StrategyListControlTest, testing::ValuesIn(ListKinds()), RowName());

}  // namespace
}  // namespace tactix::tests
