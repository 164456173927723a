// The properties, their notices, and how they are saved.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tests/platform/ErrorCode.h"
#include "tests/strategy/StrategyListFixture.h"
#include "tests/support/LoggingBag.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class StrategyListPropertiesTest : public StrategyListFixture {};

struct NoticeRow {
  const char* name;
  void (*write)(StrategyList&);
  Texts notices;
};

class StrategyListNoticeTest : public StrategyListPropertiesTest, public testing::WithParamInterface<NoticeRow> {};

TEST_P(StrategyListNoticeTest, Notifies) {
  // A second write of the same value is announced too.
  for (int time = 0; time < 2; ++time) {
    site_.ForgetRecords();
    GetParam().write(*list_);
    EXPECT_EQ(site_.Changes(), GetParam().notices);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrategyListNoticeTest,
    testing::Values(NoticeRow{"BackColor", [](StrategyList& list) { list.BackColor(255); }, {"BackColor"}},
                    NoticeRow{"ForeColor", [](StrategyList& list) { list.ForeColor(255); }, {"ForeColor"}},
                    NoticeRow{"Enabled", [](StrategyList& list) { list.Enabled(false); }, {"Enabled"}},
                    NoticeRow{"Font",
                              [](StrategyList& list) {
                                list.Font({"Serif", 9});
                              },
                              {"Font"}},
                    NoticeRow{"Text", [](StrategyList& list) { list.Text("x"); }, {"Text"}},
                    NoticeRow{"ToolTipText", [](StrategyList& list) { list.ToolTipText("x"); }, {"ToolTipText"}},
                    NoticeRow{
                        "DefaultContent", [](StrategyList& list) { list.DefaultContent("x"); }, {"DefaultContent"}},
                    NoticeRow{"Visible", [](StrategyList& list) { list.Visible(false); }, {}},
                    NoticeRow{"ControlType", [](StrategyList& list) { list.ControlType(2); }, {}},
                    NoticeRow{"ListIndex", [](StrategyList& list) { list.ListIndex(-2); }, {}}),
    RowName());

TEST_F(StrategyListPropertiesTest, ItsPropertiesAreTheBoxes) {
  list_->BackColor(0x123456);
  list_->ForeColor(0x654321);
  list_->Enabled(false);
  list_->Font({"Serif", 9});
  list_->ToolTipText("tip");
  list_->Visible(false);
  list_->DefaultContent("content");
  EXPECT_EQ(Box().BackColor(), 0x123456);
  EXPECT_EQ(Box().ForeColor(), 0x654321);
  EXPECT_FALSE(Box().Enabled());
  EXPECT_EQ(Box().Font().Name, "Serif");
  EXPECT_EQ(Box().ToolTipText(), "tip");
  EXPECT_FALSE(Box().Visible());
  EXPECT_TRUE(list_->Extender().Visible()) << "the control itself stays";
  EXPECT_TRUE(list_->Extender().Enabled());
  EXPECT_EQ(Box().Text(), "content");
  EXPECT_EQ(list_->Text(), "content");
  list_->ControlType(99);
  EXPECT_EQ(list_->ControlType(), 99);
}

TEST_F(StrategyListPropertiesTest, ReadsAndWritesInOrder) {
  LoggingBag bag;
  list_->ReadProperties(bag);
  EXPECT_EQ(bag.log,
            (Texts{"read Enabled", "read BackColor", "read ForeColor", "read Text", "read ToolTipText", "read Font"}));
  bag.log.clear();
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.log, (Texts{"write Enabled", "write BackColor", "write ForeColor", "write Text", "write ToolTipText",
                            "write DefaultContent", "write Font"}));
  EXPECT_EQ(bag.defaults, (Texts{"Enabled=True", "BackColor=-2147483643", "ForeColor=-2147483640",
                                 "Text=", "ToolTipText=", "DefaultContent=", "Font=font"}));
}

TEST_F(StrategyListPropertiesTest, ANewListReadsItsDefaults) {
  site_.AmbientFont({"Ambient", 11});
  list_->Text("before");
  list_->BackColor(1);
  list_->ForeColor(2);
  list_->Enabled(false);
  list_->ToolTipText("tip");
  MemoryPropertyBag empty;
  list_->ReadProperties(empty);
  EXPECT_TRUE(list_->Enabled());
  EXPECT_EQ(list_->BackColor(), WindowColor);
  EXPECT_EQ(list_->ForeColor(), WindowTextColor);
  EXPECT_EQ(list_->ToolTipText(), "");
  EXPECT_EQ(list_->Font(), (Font{"Ambient", 11}));
  EXPECT_EQ(list_->Text(), "before") << "an empty stored text leaves the text that is there";
}

TEST_F(StrategyListPropertiesTest, AnEmptyStoredTextLeavesTheDesignText) {
  MemoryPropertyBag bag;
  bag.Write("Text", "");
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->Text(), "Select a Strategy");
}

TEST_F(StrategyListPropertiesTest, TheDefaultContentIsWrittenAndNotRead) {
  list_->DefaultContent("content");
  MemoryPropertyBag bag;
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.Read("DefaultContent"), Variant("content"));
  bag.Remove("Text");
  StrategyList other(site_);
  other.ReadProperties(bag);
  EXPECT_EQ(other.DefaultContent(), "Select a Strategy");
}

TEST_F(StrategyListPropertiesTest, EachFailingBagEntryIsSkippedAlone) {
  const Texts names = {"Enabled", "BackColor", "ForeColor", "Text", "ToolTipText", "Font"};
  for (const std::string& failing : names) {
    for (const bool failsToConvert : {false, true}) {
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
      StrategyList list(site_);
      list.ReadProperties(bag);
      EXPECT_EQ(list.Enabled(), failing == "Enabled") << failing;
      EXPECT_EQ(list.BackColor(), failing == "BackColor" ? WindowColor : 11) << failing;
      EXPECT_EQ(list.ForeColor(), failing == "ForeColor" ? WindowTextColor : 12) << failing;
      EXPECT_EQ(list.Text(), failing == "Text" ? "Select a Strategy" : "text") << failing;
      EXPECT_EQ(list.ToolTipText(), failing == "ToolTipText" ? "" : "tip") << failing;
      EXPECT_EQ(list.Font().Name, failing == "Font" ? "Comic Sans MS" : "Stored") << failing;
      EXPECT_EQ(bag.log.size(), names.size());
    }
  }
}

TEST_F(StrategyListPropertiesTest, EachEntryThatCannotBeWrittenIsSkippedAlone) {
  for (const char* failing : {"Enabled", "BackColor", "ForeColor", "Text", "ToolTipText", "DefaultContent", "Font"}) {
    LoggingBag bag;
    bag.failing = failing;
    list_->WriteProperties(bag);
    EXPECT_EQ(bag.log.size(), 7U) << failing;
    EXPECT_EQ(bag.defaults.size(), 6U) << failing;
  }
}

TEST_F(StrategyListPropertiesTest, ReadingIsNotAnnounced) {
  MemoryPropertyBag bag;
  bag.Write("Text", "text");
  list_->ReadProperties(bag);
  EXPECT_EQ(site_.Changes(), Texts{});
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyListPropertiesTest, TheBoxTakesTheControlsWidth) {
  for (const float width : {3000.0F, 10.0F, 0.0F}) {
    list_->Extender().Width(width);
    EXPECT_EQ(Box().Width(), width);
  }
}

}  // namespace
}  // namespace tactix::tests
