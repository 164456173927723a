#include "tactix-qt/QSettingsBag.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <limits>
#include <memory>

#include "tactix/platform/Error.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class QSettingsBagTest : public testing::Test {
 protected:
  QString Path() const { return folder_.filePath(QStringLiteral("controls.ini")); }
  /// Another object on the same file: what it reads has been text in between.
  QSettings Reopened() {
    settings_.sync();
    return QSettings(Path(), QSettings::IniFormat);
  }

  QTemporaryDir folder_;
  QSettings settings_{Path(), QSettings::IniFormat};
  qt::QSettingsBag bag_{settings_, QStringLiteral("form/box")};
};

struct ValueRow {
  const char* name;
  Variant value;
};

class QSettingsBagValueTest : public QSettingsBagTest, public testing::WithParamInterface<ValueRow> {};

TEST_P(QSettingsBagValueTest, ComesBackWithItsType) {
  const Variant& value = GetParam().value;
  bag_.Write("Value", value);
  QSettings reopened(Path(), QSettings::IniFormat);
  settings_.sync();
  reopened.sync();
  const Variant read = qt::QSettingsBag(reopened, QStringLiteral("form/box")).Read("Value", "default");
  EXPECT_EQ(read.Type(), value.Type());
  EXPECT_EQ(read, value);
}

INSTANTIATE_TEST_SUITE_P(
    Values, QSettingsBagValueTest,
    testing::Values(ValueRow{"Empty", {}}, ValueRow{"Null", Variant::Null()}, ValueRow{"True", true},
                    ValueRow{"False", false}, ValueRow{"Integer", std::int16_t{-32768}},
                    ValueRow{"Long", std::int32_t{2147483647}}, ValueRow{"LongThatFitsAnInteger", std::int32_t{7}},
                    ValueRow{"Single", 0.1F}, ValueRow{"LargestSingle", std::numeric_limits<float>::max()},
                    ValueRow{"SmallestSingle", std::numeric_limits<float>::denorm_min()}, ValueRow{"Double", 0.1},
                    ValueRow{"LargestDouble", std::numeric_limits<double>::max()},
                    ValueRow{"Text", "Select a Strategy"}, ValueRow{"EmptyText", ""},
                    ValueRow{"TextThatLooksMarked", "Integer:5"},
                    ValueRow{"TextWithAll", " a,b;\"c\"=\\d\n@e% \xC3\xA4\xF0\x9F\x82\xA1 "},
                    ValueRow{"Font", Font{"Comic Sans MS", 8.25F, true, false}},
                    ValueRow{"FontWithSeparator", Font{"A;B", 0, false, true}}),
    RowName());

TEST_F(QSettingsBagTest, ReadsTheDefaultOfWhatIsNotStored) {
  EXPECT_EQ(bag_.Read("Missing", 5), 5);
  EXPECT_TRUE(bag_.Read("Missing").IsEmpty());
}

TEST_F(QSettingsBagTest, NamesCompareWithoutCase) {
  bag_.Write("Alignment", 1);
  bag_.Write("ALIGNMENT", 2);
  EXPECT_EQ(bag_.Read("alignment"), 2);
  EXPECT_EQ(settings_.allKeys(), QStringList{QStringLiteral("form/box/ALIGNMENT")});
}

TEST_F(QSettingsBagTest, AValueThatEqualsItsDefaultTakesAnOlderOneAway) {
  bag_.Write("Alignment", 1, 2);
  EXPECT_EQ(bag_.Read("Alignment", 2), 1);
  bag_.Write("alignment", 2, 2);
  EXPECT_EQ(bag_.Read("Alignment", 3), 3);
  EXPECT_TRUE(settings_.allKeys().isEmpty());
}

TEST_F(QSettingsBagTest, WithoutAGroupItUsesTheCurrentOne) {
  qt::QSettingsBag bag(settings_);
  bag.Write("Alignment", 1);
  EXPECT_TRUE(settings_.contains(QStringLiteral("Alignment")));
  EXPECT_EQ(bag.Read("alignment"), 1);
}

TEST_F(QSettingsBagTest, AnUnmarkedValueIsText) {
  settings_.setValue(QStringLiteral("form/box/Alignment"), 4);
  EXPECT_EQ(bag_.Read("Alignment").Type(), VariantType::Text);
  EXPECT_EQ(bag_.Read("Alignment").ToLong(), 4);
}

TEST_F(QSettingsBagTest, AnObjectFailsAndLeavesTheOldValue) {
  bag_.Write("Value", 1);
  EXPECT_EQ(ErrorCodeOf([&] { return bag_.Write("Value", ObjectRef()), 0; }), Error::TypeMismatch);
  EXPECT_EQ(bag_.Read("Value"), 1);
}

class QSettingsBagBrokenTest : public QSettingsBagTest, public testing::WithParamInterface<const char*> {};

TEST_P(QSettingsBagBrokenTest, AMarkedValueThatIsNoneOfItsTypeFails) {
  settings_.setValue(QStringLiteral("form/box/Value"), QString::fromLatin1(GetParam()));
  EXPECT_EQ(ErrorCodeOf([&] { return bag_.Read("Value"); }), Error::TypeMismatch);
}

INSTANTIATE_TEST_SUITE_P(Texts, QSettingsBagBrokenTest,
                         testing::Values("Boolean:yes", "Integer:70000", "Long:x", "Single:", "Double:1.2.3",
                                         "Font:8;true", "Font:x;true;true;A", "Font:8;maybe;true;A"));

}  // namespace
}  // namespace tactix::tests
