#include "tactix/counting/CardCountDisplayBox.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

constexpr Color Peach = 0xC0E0FF;
constexpr Color Orange = 0x80C0FF;
constexpr Color White = 0xFFFFFF;
constexpr Color Yellow = 0x00FFFF;
constexpr Color DarkGrey = 0x404040;

class CardCountDisplayBoxTest : public testing::Test {
 protected:
  CardCountDisplayBoxTest() { box_.InitProperties(); }

  Label& Tag() { return box_.Children.labelCountLabel; }
  Label& Value() { return box_.Children.labelCountValue; }

  HeadlessSite site_;
  CardCountDisplayBox box_{site_};
};

TEST_F(CardCountDisplayBoxTest, HasItsDesign) {
  EXPECT_EQ(Tag().Caption(), "");
  EXPECT_EQ(Tag().Font().Name, "MS Sans Serif");
  EXPECT_EQ(Tag().BackColor(), WindowColor);
  EXPECT_EQ(Value().Caption(), "-99");
  EXPECT_EQ(Value().Font().Name, "Comic Sans MS");
  EXPECT_EQ(Value().ToolTipText(), "- is House Favorable - + is Player Favorable - against a Random Shuffle");
  EXPECT_EQ(Value().BackColor(), White);
  EXPECT_EQ(box_.CountBoxType(), TypeOfCountBox::noCountBox);
}

TEST_F(CardCountDisplayBoxTest, ItsTypeSetsTheTag) {
  struct Row {
    std::int32_t type;
    const char* text;
    Color color;
    const char* spoken;
  };
  // What is no type leaves the tag as the row before left it.
  const Row rows[] = {{1, "RC", Peach, "Running Count"}, {0, "RC", Peach, "Running Count"},
                      {2, "TC", Orange, "True Count"},   {3, "TC", Orange, "True Count"},
                      {-1, "TC", Orange, "True Count"},  {0, "TC", Orange, "True Count"},
                      {1, "RC", Peach, "Running Count"}};
  box_.CountBoxType(7);
  EXPECT_EQ(Tag().Caption(), "");
  EXPECT_EQ(Tag().BackColor(), WindowColor);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.type);
    box_.CountBoxType(row.type);
    EXPECT_EQ(box_.CountBoxType(), row.type);
    EXPECT_EQ(Tag().Caption(), row.text);
    EXPECT_EQ(Tag().BackColor(), row.color);
    EXPECT_EQ(Value().Heading(), row.spoken);
    EXPECT_EQ(Value().BackColor(), White);
  }
}

TEST_F(CardCountDisplayBoxTest, TheSameTypeRepaintsToo) {
  box_.CountBoxType(1);
  Tag().Caption("");
  Tag().BackColor(0x123456);
  box_.CountBoxType(1);
  EXPECT_EQ(Tag().Caption(), "RC");
  EXPECT_EQ(Tag().BackColor(), Peach);
  EXPECT_EQ(site_.Changes(), (Texts{"CountBoxType", "CountBoxType"}));
}

TEST_F(CardCountDisplayBoxTest, GivesNoticeBeforeItRepaints) {
  std::string atNotice;
  site_.OnPropertyChanged(
      [&](std::string_view) { atNotice = std::to_string(box_.CountBoxType().Value()) + Tag().Caption(); });
  box_.CountBoxType(2);
  EXPECT_EQ(atNotice, "2");
  EXPECT_EQ(Tag().Caption(), "TC");
}

TEST_F(CardCountDisplayBoxTest, ShowsAnyValue) {
  struct Row {
    std::int32_t value;
    const char* text;
  };
  const Row rows[] = {{-12, "-12"},
                      {7, "7"},
                      {0, "0"},
                      {-3, "-3"},
                      {100, "100"},
                      {-100, "-100"},
                      {101, "101"},
                      {12345, "12345"},
                      {std::numeric_limits<std::int32_t>::max(), "2147483647"},
                      {std::numeric_limits<std::int32_t>::min(), "-2147483648"}};
  for (const Row& row : rows) {
    box_.CountValue(row.value);
    EXPECT_EQ(Value().Caption(), row.text);
  }
  box_.CountValue(CardCountDisplayValueRanges::CardCountDisplayMinus);
  EXPECT_EQ(Value().Caption(), "-100");
}

TEST_F(CardCountDisplayBoxTest, TheShadowBoxShowsAtTheNextRepaint) {
  struct Row {
    std::int32_t status;
    Color color;
  };
  const Row rows[] = {{65535, Yellow}, {0, White}, {4210752, DarkGrey},       {16777215, White}, {0x123456, 0x123456},
                      {0, White},      {1, 1},     {WindowColor, WindowColor}};
  for (const std::int32_t type : {1, 0, 2, 9}) {
    box_.ShadowBoxStatus(0);
    box_.CountBoxType(type);
    Color before = White;
    for (const Row& row : rows) {
      SCOPED_TRACE(row.status);
      box_.ShadowBoxStatus(row.status);
      box_.CountValue(row.status);
      box_.Displayed();
      EXPECT_EQ(Value().BackColor(), before);
      box_.CountBoxType(type);
      EXPECT_EQ(Value().BackColor(), row.color);
      before = row.color;
    }
  }
}

TEST_F(CardCountDisplayBoxTest, NoTypeKeepsTheTagButAppliesTheShadowBox) {
  box_.CountBoxType(1);
  box_.ShadowBoxStatus(ShadowBoxingConstants::ShadowBoxingEnabled);
  box_.CountBoxType(TypeOfCountBox::noCountBox);
  EXPECT_EQ(Tag().Caption(), "RC");
  EXPECT_EQ(Tag().BackColor(), Peach);
  EXPECT_EQ(Value().BackColor(), Yellow);
}

TEST_F(CardCountDisplayBoxTest, ItsColorsAreTheTags) {
  box_.BackColor(0x112233);
  box_.ForeColor(0x445566);
  EXPECT_EQ(Tag().BackColor(), 0x112233);
  EXPECT_EQ(Tag().ForeColor(), 0x445566);
  EXPECT_EQ(Value().BackColor(), White);
  EXPECT_EQ(Value().ForeColor(), WindowTextColor);
  Tag().BackColor(0x102030);
  Tag().ForeColor(0x405060);
  EXPECT_EQ(box_.BackColor(), 0x102030);
  EXPECT_EQ(box_.ForeColor(), 0x405060);
  box_.CountBoxType(2);
  EXPECT_EQ(box_.BackColor(), Orange);
  EXPECT_EQ(box_.ForeColor(), 0x405060);
}

TEST_F(CardCountDisplayBoxTest, TheTagAndTheValueFillIt) {
  for (const float width : {3000.0F, 10.0F, 0.0F}) {
    box_.Extender().Place(7, 8, width, 500);
    EXPECT_EQ(Tag().Left(), 0);
    EXPECT_EQ(Tag().Width(), Value().Left());
    EXPECT_EQ(Value().Left() + Value().Width(), width);
    EXPECT_LE(Tag().Width(), Value().Width());
    EXPECT_EQ(Tag().Height(), 500);
    EXPECT_EQ(Value().Height(), 500);
  }
}

/// A bag with one value under every name.
class OneValueBag final : public PropertyBag {
 public:
  explicit OneValueBag(Variant value) : value_(std::move(value)) {}
  Variant Read(std::string_view, const Variant&) override { return value_; }
  void Write(std::string_view, const Variant&) override {}
  void Write(std::string_view, const Variant&, const Variant&) override {}

 private:
  Variant value_;
};

TEST_F(CardCountDisplayBoxTest, TakesWhatConvertsFromABag) {
  class Seat : public Object {};
  struct Row {
    const char* name;
    Variant value;
    std::int32_t type;
    const char* tag;
  };
  const Row rows[] = {
      {"running", 1, 1, "RC"},
      {"integer", std::int16_t{2}, 2, "TC"},
      {"text", " 2 ", 2, "TC"},
      {"rounds to even", 1.5, 2, "TC"},
      {"pattern", "&H1", 1, "RC"},
      {"true", true, -1, ""},
      {"no type", 77, 77, ""},
      {"huge", std::numeric_limits<std::int32_t>::max(), 2147483647, ""},
      {"empty", {}, 0, ""},
      {"beyond a long", 3e9, 0, ""},
      {"NaN", std::numeric_limits<double>::quiet_NaN(), 0, ""},
      {"word", "running", 0, ""},
      {"no text", "", 0, ""},
      {"null", Variant::Null(), 0, ""},
      {"font", Font{}, 0, ""},
      {"no object", ObjectRef(), 0, ""},
      {"object", std::make_shared<Seat>(), 0, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CardCountDisplayBox box(site_);
    OneValueBag bag(row.value);
    box.ReadProperties(bag);
    EXPECT_EQ(box.CountBoxType(), row.type);
    EXPECT_EQ(box.Children.labelCountLabel.Caption(), row.tag);
  }
}

TEST_F(CardCountDisplayBoxTest, ReadingRepaintsAndGivesNotice) {
  box_.ShadowBoxStatus(65535);
  MemoryPropertyBag bag;
  box_.ReadProperties(bag);
  EXPECT_EQ(Value().BackColor(), Yellow);
  EXPECT_EQ(site_.Changes(), Texts{"CountBoxType"});
  bag.Write("COUNTBOXTYPE", 1);
  box_.ReadProperties(bag);
  EXPECT_EQ(Tag().Caption(), "RC");
}

TEST_F(CardCountDisplayBoxTest, SavesItsTypeUnlessItIsNone) {
  MemoryPropertyBag bag;
  box_.CountBoxType(2);
  box_.WriteProperties(bag);
  EXPECT_EQ(bag.Names(), Texts{"CountBoxType"});
  EXPECT_EQ(bag.Read("CountBoxType"), 2);
  box_.CountBoxType(0);
  box_.WriteProperties(bag);
  EXPECT_EQ(bag.Names(), Texts{});
}

TEST_F(CardCountDisplayBoxTest, MayBeDestroyedByItsNotice) {
  auto box = std::make_unique<CardCountDisplayBox>(site_);
  site_.OnPropertyChanged([&box](std::string_view) { box.reset(); });
  box->CountBoxType(1);
  EXPECT_EQ(box, nullptr);
  box = std::make_unique<CardCountDisplayBox>(site_);
  MemoryPropertyBag bag;
  box->ReadProperties(bag);
  EXPECT_EQ(box, nullptr);
}

TEST_F(CardCountDisplayBoxTest, AnErrorOfANoticeEndsAReadingQuietly) {
  site_.OnPropertyChanged([](std::string_view) { throw Error(4711); });
  MemoryPropertyBag bag;
  bag.Write("CountBoxType", 2);
  box_.ReadProperties(bag);
  EXPECT_EQ(box_.CountBoxType(), 2);
}

}  // namespace
}  // namespace tactix::tests
