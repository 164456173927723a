#include "tactix/companion/IniFile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::IniEntry;
using companion::IniError;
using companion::IniFile;
using companion::IniSection;

/// Everything that was read, one line each: "[name]@line", "key=<value>@line".
std::string Listed(const IniFile& file) {
  std::string list;
  for (const IniSection& section : file.Sections()) {
    list += "[" + section.name + "]@" + std::to_string(section.line) + "\n";
    for (const IniEntry& entry : section.entries) {
      list += entry.key + "=<" + entry.value + ">@" + std::to_string(entry.line) + "\n";
    }
  }
  return list;
}

struct ReadRow {
  const char* name;
  std::string text;
  std::string listed;
};

class IniFileReadTest : public testing::TestWithParam<ReadRow> {};

TEST_P(IniFileReadTest, ReadsTheLines) { EXPECT_EQ(Listed(IniFile(GetParam().text, "a.ini")), GetParam().listed); }

INSTANTIATE_TEST_SUITE_P(
    Rows, IniFileReadTest,
    testing::Values(
        ReadRow{"Empty", "", ""}, ReadRow{"BlankLines", "\n \n\t\n", ""},
        ReadRow{"Comments", "; one\n # [two]\n\t;three = 3\n[a]\n#x=1\n", "[a]@4\n"},
        ReadRow{"SectionAndKey", "[a]\nkey=value\n", "[a]@1\nkey=<value>@2\n"},
        ReadRow{"NoLineEndAtTheEnd", "[a]\nkey=value", "[a]@1\nkey=<value>@2\n"},
        ReadRow{"CarriageReturns", "[a]\r\nkey = value\r\n\r\nb = 2\r\n", "[a]@1\nkey=<value>@2\nb=<2>@4\n"},
        ReadRow{"ByteOrderMark", "\xEF\xBB\xBF[a]\nk=v\n", "[a]@1\nk=<v>@2\n"},
        ReadRow{"BlanksAround", "  [ a b ] \n \tkey one \t=\t value two \n", "[a b]@1\nkey one=<value two>@2\n"},
        ReadRow{"EmptyValue", "[a]\nk=\nl = \n", "[a]@1\nk=<>@2\nl=<>@3\n"},
        ReadRow{"EqualsInTheValue", "[a]\nk=x=y==\n", "[a]@1\nk=<x=y==>@2\n"},
        ReadRow{"CommentSignsInTheValue", "[a]\nk=x ; y # z\n", "[a]@1\nk=<x ; y # z>@2\n"},
        ReadRow{"BracketsInTheValue", "[a]\nk=[x]\n", "[a]@1\nk=<[x]>@2\n"},
        ReadRow{"QuotesKeepBlanks", "[a]\nk = \" x  \" \n", "[a]@1\nk=< x  >@2\n"},
        ReadRow{"QuotesAroundNothing", "[a]\nk=\"\"\n", "[a]@1\nk=<>@2\n"},
        ReadRow{"QuotesInsideQuotes", "[a]\nk=\"USTON \"SS\"\"\n", "[a]@1\nk=<USTON \"SS\">@2\n"},
        ReadRow{"QuotesInsideOnly", "[a]\nk=USTON \"SS\"\n", "[a]@1\nk=<USTON \"SS\">@2\n"},
        ReadRow{"SameKeyInTwoSections", "[a]\nk=1\n[b]\nk=2\n", "[a]@1\nk=<1>@2\n[b]@3\nk=<2>@4\n"},
        ReadRow{"BeyondAscii", "[\xC3\xA9]\n\xC3\xA9=\xE2\x99\xA0\n", "[\xC3\xA9]@1\n\xC3\xA9=<\xE2\x99\xA0>@2\n"}),
    RowName());

struct RefusedRow {
  const char* name;
  std::string text;
  int line;
  std::string what;
};

class IniFileRefusalTest : public testing::TestWithParam<RefusedRow> {};

TEST_P(IniFileRefusalTest, NamesFileAndLine) {
  const RefusedRow& row = GetParam();
  try {
    const IniFile file(row.text, "my strategies.ini");
    FAIL() << "read as\n" << Listed(file);
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), "my strategies.ini:" + std::to_string(row.line) + ": " + row.what);
    EXPECT_EQ(error.Line(), row.line);
    EXPECT_EQ(error.File(), "my strategies.ini");
    EXPECT_EQ(error.Code(), 321);
    EXPECT_NE(std::string(error.what()).find(error.Description()), std::string::npos);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IniFileRefusalTest,
    testing::Values(
        RefusedRow{"Junk", "[a]\n\njunk\n", 3, "expected 'key = value'"},
        RefusedRow{"NoKey", "[a]\n = value\n", 2, "expected 'key = value'"},
        RefusedRow{"JunkOnTheLastLine", "[a]\r\nk=1\r\njunk", 3, "expected 'key = value'"},
        RefusedRow{"KeyBeforeTheFirstSection", "; x\nk=1\n", 2, "expected a '[section]' before the first key"},
        RefusedRow{"SectionNotClosed", "[a\n", 1, "expected '[section]'"},
        RefusedRow{"SectionWithoutName", "[a]\n[ ]\n", 2, "expected '[section]'"},
        RefusedRow{"SectionClosedTwice", "[a]]\n", 1, "expected '[section]'"},
        RefusedRow{"SectionOpenedTwice", "[[a]\n", 1, "expected '[section]'"},
        RefusedRow{"TextBehindTheSection", "[a] ; first\n", 1, "expected '[section]'"},
        RefusedRow{"SectionTwice", "[Table a]\n\n[table A]\n", 3, "section 'table A' was given in line 1"},
        RefusedRow{"KeyTwice", "[a]\nkey=1\nb=2\nKEY=3\n", 4, "key 'KEY' was given in line 2"},
        RefusedRow{"QuoteNotClosed", "[a]\nk=\"x\n", 2, "expected a closing '\"' at the end of the line"},
        RefusedRow{"QuoteAlone", "[a]\nk=\"\n", 2, "expected a closing '\"' at the end of the line"},
        RefusedRow{"TextBehindTheQuote", "[a]\nk=\"x\" y\n", 2, "expected a closing '\"' at the end of the line"},
        RefusedRow{"Null", std::string("[a]\nk=\0x\n", 9), 2, "holds a control character"},
        RefusedRow{"NullInAComment", std::string("[a]\n;\0\n", 7), 2, "holds a control character"},
        RefusedRow{"Delete", "[a]\nk=\x7F\n", 2, "holds a control character"},
        RefusedRow{"CarriageReturnInTheLine", "[a]\nk=1\r2\n", 2, "holds a control character"},
        RefusedRow{"NotUtf8", "[a]\nk=\xE9\n", 2, "not UTF-8"},
        RefusedRow{"CutOffUtf8", "[a]\nk=\xE2\x99\n", 2, "not UTF-8"},
        RefusedRow{"Utf16", std::string("\xFF\xFE[\0a\0]\0", 8), 1, "not UTF-8"},
        RefusedRow{"SecondByteOrderMark", "\xEF\xBB\xBF\xEF\xBB\xBF[a]\n", 1, "expected 'key = value'"},
        RefusedRow{"LongNameIsCut", "[a]\n" + std::string(1000, 'x') + "=1\n" + std::string(1000, 'x') + "=1\n", 3,
                   "key '" + std::string(40, 'x') + "...' was given in line 2"}),
    RowName());

TEST(IniFileTest, FindsKeysWithoutCase) {
  const IniFile file("[a]\nKey=1\n", "a.ini");
  const IniSection& section = file.Sections().front();
  ASSERT_NE(section.Find("kEY"), nullptr);
  EXPECT_EQ(section.Find("kEY")->value, "1");
  EXPECT_EQ(section.Find("ke"), nullptr);
}

TEST(IniFileTest, TakesOneMebibyteAndNoMore) {
  std::string text = "[a]\n;";
  text.resize(IniFile::LargestSize, 'x');
  EXPECT_EQ(IniFile(text, "a.ini").Sections().size(), 1U);
  text += 'x';
  try {
    const IniFile file(text, "a.ini");
    FAIL();
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), "a.ini: larger than 1 MiB");
    EXPECT_EQ(error.Line(), 0);
  }
}

TEST(IniFileTest, TakesManySections) {
  std::string text;
  for (int i = 0; i < 60'000; ++i) text += "[" + std::to_string(i) + "]\nk=v\n";
  EXPECT_EQ(IniFile(text, "a.ini").Sections().size(), 60'000U);
}

TEST(IniFileTest, AnErrorOutlivesItsFileAndIsCopied) {
  IniError kept("x", 1, "y");
  try {
    const IniFile file("junk", std::string("gone.ini"));
  } catch (const IniError& error) {
    kept = error;
  }
  // The copy is what is tested, so it must not become a reference.
  const IniError copy(kept);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.Description(), "gone.ini:1: expected 'key = value'");
  EXPECT_EQ(copy.File(), "gone.ini");
}

class IniFileOnDiskTest : public testing::Test {
 protected:
  IniFileOnDiskTest() {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::path(testing::TempDir()) /
              ("tactix-ini-" + std::to_string(std::random_device()()) + "-" + test.name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~IniFileOnDiskTest() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path Written(const std::string& text) const {
    // A name beyond ASCII, which errors tell in UTF-8.
    const std::filesystem::path path = folder_ / std::filesystem::path(u8"str\u00E4tegies.ini");
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  static std::string NameOf(const std::filesystem::path& path) {
    const auto name = path.u8string();
    return {name.begin(), name.end()};
  }
  static std::string WhyNot(const std::filesystem::path& path) {
    try {
      IniFile::Read(path);
      return "";
    } catch (const IniError& error) {
      return error.Description();
    }
  }

  std::filesystem::path folder_;
};

TEST_F(IniFileOnDiskTest, ReadsAFile) {
  EXPECT_EQ(Listed(IniFile::Read(Written("\xEF\xBB\xBF[a]\r\nk=v\r\n"))), "[a]@1\nk=<v>@2\n");
  EXPECT_EQ(Listed(IniFile::Read(Written(""))), "");
}

TEST_F(IniFileOnDiskTest, NamesThePathAndTheLine) {
  const auto path = Written("[a]\njunk\n");
  EXPECT_EQ(WhyNot(path), NameOf(path) + ":2: expected 'key = value'");
}

TEST_F(IniFileOnDiskTest, RefusesWhatItCannotRead) {
  EXPECT_EQ(WhyNot(folder_ / "none.ini"), NameOf(folder_ / "none.ini") + ": cannot be read");
  EXPECT_EQ(WhyNot(folder_), NameOf(folder_) + ": cannot be read");
}

TEST_F(IniFileOnDiskTest, RefusesAFileThatIsTooLarge) {
  const auto path = Written(std::string(IniFile::LargestSize + 1, '\n'));
  EXPECT_EQ(WhyNot(path), NameOf(path) + ": larger than 1 MiB");
  EXPECT_EQ(WhyNot(Written(std::string(IniFile::LargestSize, '\n'))), "");
}

#if defined(__unix__)
TEST_F(IniFileOnDiskTest, RefusesAFileThatNeverEnds) { EXPECT_EQ(WhyNot("/dev/zero"), "/dev/zero: larger than 1 MiB"); }
#endif

}  // namespace
}  // namespace tactix::tests
