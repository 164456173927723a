#include "tactix/strategy/StrategyListData.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "tactix/platform/Error.h"
#include "tactix/platform/private/Utf8.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/Repeated.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct BufferRow {
  const char* name;
  std::string written;
  std::string text;
};

class DescriptionBufferTest : public testing::TestWithParam<BufferRow> {};

TEST_P(DescriptionBufferTest, PadsAndCutsByCharacters) {
  DescriptionBuffer buffer;
  buffer.Write("what stood there before");
  buffer.Write(GetParam().written);
  EXPECT_EQ(buffer.Text(), GetParam().text);
  EXPECT_EQ(CountUtf8(buffer.Text()), 1024U);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DescriptionBufferTest,
    testing::Values(BufferRow{"Empty", "", std::string(1024, ' ')},
                    BufferRow{"Short", "note,Basic,False True", "note,Basic,False True" + std::string(1003, ' ')},
                    BufferRow{"OneLess", std::string(1023, 'x'), std::string(1023, 'x') + " "},
                    BufferRow{"Full", std::string(1024, 'x'), std::string(1024, 'x')},
                    BufferRow{"OneMore", std::string(1024, 'x') + "y", std::string(1024, 'x')},
                    BufferRow{"PaddedAfterWideCharacters", "\xE2\x99\xA0\xF0\x9F\x82\xA1",
                              "\xE2\x99\xA0\xF0\x9F\x82\xA1" + std::string(1022, ' ')},
                    BufferRow{"CutBetweenWideCharacters", Repeated(1030, "\xF0\x9F\x82\xA1"),
                              Repeated(1024, "\xF0\x9F\x82\xA1")},
                    BufferRow{"MalformedBytesAreReplaced", "a\xFF,b", "a\xEF\xBF\xBD,b" + std::string(1020, ' ')},
                    BufferRow{"NullIsACharacter", std::string(2, '\0'), std::string(2, '\0') + std::string(1022, ' ')}),
    RowName());

TEST(DescriptionBufferTest, IsBlankAtFirst) { EXPECT_EQ(DescriptionBuffer().Text(), std::string(1024, ' ')); }

TEST(DescriptionBufferTest, IsPaddedAnewAfterEachText) {
  DescriptionBuffer buffer;
  for (const char* text : {"\xE2\x99\xA0", "a long text in ASCII", "short"}) buffer.Write(text);
  EXPECT_EQ(buffer.Text(), "short" + std::string(1019, ' '));
  for (const char* text : {"\xE2\x99\xA0\xE2\x99\xA0\xE2\x99\xA0", "x"}) buffer.Write(text);
  EXPECT_EQ(buffer.Text(), "x" + std::string(1023, ' '));
}

TEST(DescriptionBufferTest, TakesAPieceOfItself) {
  DescriptionBuffer buffer;
  buffer.Write("note,Basic");
  buffer.Write(std::string_view(buffer.Text()).substr(5));
  EXPECT_EQ(buffer.Text(), "Basic" + std::string(1019, ' '));
}

struct UnshiftRow {
  const char* name;
  std::string shifted;
  std::string text;
  std::string trimmed;
};

class UnshiftTest : public testing::TestWithParam<UnshiftRow> {};

TEST_P(UnshiftTest, LowersTheCodes) { EXPECT_EQ(UnshiftStrategyText(GetParam().shifted), GetParam().text); }

TEST_P(UnshiftTest, LowersAndTrims) { EXPECT_EQ(UnshiftAndTrimStrategyText(GetParam().shifted), GetParam().trimmed); }

INSTANTIATE_TEST_SUITE_P(
    Rows, UnshiftTest,
    testing::Values(UnshiftRow{"Empty", "", "", ""}, UnshiftRow{"Ascii", "Lk}sm", "Basic", "Basic"},
                    UnshiftRow{"Blanks", "**L*k**", "  B a  ", "B a"}, UnshiftRow{"BlanksOnly", "***", "   ", ""},
                    UnshiftRow{"OtherWhiteSpaceStays", "\x13L\x14", "\tB\n", "\tB\n"},
                    UnshiftRow{"LowestCode", "\x0A", std::string(1, '\0'), std::string(1, '\0')},
                    UnshiftRow{"StopsAtCodeZero", std::string("Lk\0}sm", 6), "Ba", "Ba"},
                    UnshiftRow{"StopsBeforeABadCode", std::string("Lk\0\x01", 4), "Ba", "Ba"},
                    UnshiftRow{"WideToNarrow", "\xC2\x80", "v", "v"},
                    UnshiftRow{"Wide", "\xC3\xB3", "\xC3\xA9", "\xC3\xA9"},
                    UnshiftRow{"BeyondTheFirstPlane", "\xF0\x9F\x82\xAB", "\xF0\x9F\x82\xA1", "\xF0\x9F\x82\xA1"},
                    UnshiftRow{"IntoTheSurrogates", "\xEE\x80\x89", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
                    UnshiftRow{"PastTheSurrogates", "\xEE\x80\x8A", "\xEE\x80\x80", "\xEE\x80\x80"},
                    UnshiftRow{"MalformedByte", "L\xFFk",
                               "B\xEF\xBF\xBD"
                               "a",
                               "B\xEF\xBF\xBD"
                               "a"},
                    UnshiftRow{"SixtyFive", std::string(65, 'k'), std::string(65, 'a'), std::string(65, 'a')},
                    UnshiftRow{"SixtySix", std::string(65, 'k') + "l", std::string(65, 'a'), std::string(65, 'a')},
                    UnshiftRow{"SixtySixWide", Repeated(66, "\xC3\xB3"), Repeated(65, "\xC3\xA9"),
                               Repeated(65, "\xC3\xA9")}),
    RowName());

TEST(UnshiftTest, FailsBelowTen) {
  EXPECT_EQ(ErrorCodeOf([] { return UnshiftStrategyText("Lk\x09"); }), 5);
  EXPECT_EQ(ErrorCodeOf([] { return UnshiftStrategyText("\x01"); }), 5);
  EXPECT_EQ(ErrorCodeOf([] { return UnshiftAndTrimStrategyText("\x09"); }), 5);
  EXPECT_EQ(ErrorCodeOf([] { return UnshiftStrategyText(std::string(65, 'k') + "\x09"); }), 5);
}

class StrategyListDataTest : public testing::Test {
 protected:
  StrategyListDataTest() { Forget(); }
  ~StrategyListDataTest() override { Forget(); }

  static void Forget() {
    StrategyListData::UseCatalogue(nullptr);
    StrategyListData::CreateCatalogueWith(nullptr);
  }
  static std::int32_t CodeOfUse() {
    return ErrorCodeOf([] { return StrategyListData::Catalogue().get(); });
  }
};

TEST_F(StrategyListDataTest, FailsWithoutAFactory) { EXPECT_EQ(CodeOfUse(), 91); }

TEST_F(StrategyListDataTest, FailsEachTimeTheFactoryMakesNone) {
  int calls = 0;
  StrategyListData::CreateCatalogueWith([&calls] {
    ++calls;
    return nullptr;
  });
  EXPECT_EQ(CodeOfUse(), 91);
  EXPECT_EQ(CodeOfUse(), 91);
  EXPECT_EQ(calls, 2);
}

TEST_F(StrategyListDataTest, CreatesOnceAtTheFirstUse) {
  int calls = 0;
  const auto made = std::make_shared<FakeCatalogue>();
  StrategyListData::CreateCatalogueWith([&] {
    ++calls;
    return made;
  });
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(StrategyListData::Catalogue().get(), made.get());
  EXPECT_EQ(StrategyListData::Catalogue().get(), made.get());
  EXPECT_EQ(calls, 1);
}

TEST_F(StrategyListDataTest, KeepsWhatWasMadeWhenTheFactoryChanges) {
  const auto made = std::make_shared<FakeCatalogue>();
  StrategyListData::CreateCatalogueWith([&] { return made; });
  StrategyListData::Catalogue();
  StrategyListData::CreateCatalogueWith(nullptr);
  EXPECT_EQ(StrategyListData::Catalogue().get(), made.get());
}

TEST_F(StrategyListDataTest, UsesTheHostsCatalogueBeforeTheFactory) {
  StrategyListData::CreateCatalogueWith([] { return std::make_shared<FakeCatalogue>(); });
  const auto own = std::make_shared<FakeCatalogue>();
  StrategyListData::UseCatalogue(own);
  EXPECT_EQ(StrategyListData::Catalogue().get(), own.get());
  StrategyListData::UseCatalogue(nullptr);
  EXPECT_NE(StrategyListData::Catalogue().get(), own.get());
}

TEST_F(StrategyListDataTest, KeepsTheCatalogueAlive) {
  std::weak_ptr<FakeCatalogue> own;
  {
    const auto made = std::make_shared<FakeCatalogue>();
    own = made;
    StrategyListData::UseCatalogue(made);
  }
  EXPECT_FALSE(own.expired());
  StrategyListData::UseCatalogue(nullptr);
  EXPECT_TRUE(own.expired());
}

TEST_F(StrategyListDataTest, PassesOnWhatTheFactoryThrows) {
  StrategyListData::CreateCatalogueWith([]() -> std::shared_ptr<StrategyCatalogue> { throw Error(321); });
  EXPECT_EQ(CodeOfUse(), 321);
}

TEST_F(StrategyListDataTest, LetsTheFactoryReplaceItself) {
  auto witness = std::make_shared<FakeCatalogue>();
  StrategyListData::CreateCatalogueWith([witness] {
    StrategyListData::CreateCatalogueWith(nullptr);
    return witness;  // the capture must have outlived the replacement
  });
  EXPECT_EQ(StrategyListData::Catalogue().get(), witness.get());
}

TEST_F(StrategyListDataTest, HasOneBuffer) {
  StrategyListData::Buffer().Write("x");
  EXPECT_EQ(StrategyListData::Buffer().Text(), "x" + std::string(1023, ' '));
}

}  // namespace
}  // namespace tactix::tests
