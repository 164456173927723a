#include "tactix/platform/PropertyTable.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/LoggingBag.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// A control with a property of each way of being saved.
class Sample final : public Control {
 public:
  explicit Sample(Site& site) : Control(site) {}
  ~Sample() override { MarkAsGone(); }

  std::int16_t Plain() const { return plain_; }
  void Plain(std::int16_t value) {
    Note("set Plain");
    plain_ = value;
  }
  bool Stored() const { return stored_; }
  void Stored(bool) { Note("set Stored"); }
  const std::string& Renamed() const { return Renamed_; }
  void Renamed(std::string_view text) { Renamed_ = text; }
  Color Tint() const { return 0x123456; }
  void Tint(Color) { Note("set Tint"); }
  float Back() const { return back_; }
  void Back(float value) { back_ = value; }
  Variant Loose;

  /// Runs when a setter or getter of it runs.
  std::function<void(const std::string&)> OnNote;

  const PropertyTable& Properties() const override {
    static const PropertyTable table = Rows();
    return table;
  }
  static PropertyTable Rows() {
    return PropertyTable()
        .Property("Plain", &Sample::Plain, &Sample::Plain)
        .Saved(std::int16_t{7})
        .Property("Stored", &Sample::Stored, &Sample::Stored)
        .Saved(false, {.restore = PropertyTable::Into(&Sample::stored_), .always = true})
        .Property("Renamed", &Sample::Renamed, &Sample::Renamed)
        .SavedWithDefault(PropertyTable::GetBy([](Sample& self) { return "default of " + self.Renamed_; }),
                          {.name = "Re-named"})
        .Property("Tint", &Sample::Tint, &Sample::Tint)
        .IsAColor()
        .Saved(0, {.ways = SavedWays::SavedOnly})
        .Property("Back", &Sample::Back, &Sample::Back)
        .Saved(1.5F, {.ways = SavedWays::RestoredOnly})
        .SavedBeside({.name = "Beside",
                      .defaultValue = PropertyTable::Always(9),
                      .value = PropertyTable::GetBy([](Sample& self) {
                        self.Note("get Beside");
                        return std::int32_t{10};
                      })})
        .Field("Loose", &Sample::Loose);
  }

 private:
  void Note(const std::string& what) {
    if (const auto onNote = OnNote) onNote(what);
  }

  std::int16_t plain_ = 7;
  bool stored_ = false;
  std::string Renamed_ = "x";
  float back_ = 0;
};

class SavedPropertiesTest : public testing::Test {
 protected:
  HeadlessSite site_;
  std::unique_ptr<Sample> sample_ = std::make_unique<Sample>(site_);
  LoggingBag bag_;
};

TEST_F(SavedPropertiesTest, SavesInTheOrderOfItsRows) {
  sample_->WriteProperties(bag_);
  EXPECT_EQ(bag_.log, (Log{"write Plain", "write Stored", "write Re-named", "write Tint", "write Beside"}));
  EXPECT_EQ(bag_.defaults, (Log{"Plain=7", "Re-named=default of x", "Tint=0", "Beside=9"}));
  EXPECT_EQ(bag_.stored.Names(), (Log{"Stored", "Re-named", "Tint", "Beside"})) << "a default is stored only if asked";
}

TEST_F(SavedPropertiesTest, RestoresInTheOrderOfItsRows) {
  bag_.stored.Write("Plain", std::int16_t{5});
  bag_.stored.Write("Stored", true);
  bag_.stored.Write("Re-named", "y");
  Log set;
  sample_->OnNote = [&set](const std::string& what) { set.push_back(what); };
  sample_->ReadProperties(bag_);
  EXPECT_EQ(bag_.log, (Log{"read Plain", "read Stored", "read Re-named", "read Back"}));
  EXPECT_EQ(set, Log{"set Plain"}) << "what goes into a member passes its setter by";
  EXPECT_EQ(sample_->Plain(), 5);
  EXPECT_TRUE(sample_->Stored());
  EXPECT_EQ(sample_->Renamed(), "y");
  EXPECT_EQ(sample_->Back(), 1.5F);
}

TEST_F(SavedPropertiesTest, AFailedReadIsPassedOverReportedOrGivesTheDefault) {
  for (const char* hostile : {"fails", "does not convert"}) {
    LoggingBag bag;
    if (hostile[0] == 'f') {
      bag.failing = "Plain";
    } else {
      bag.stored.Write("Plain", "seven");
    }
    bag.stored.Write("Re-named", "y");
    const std::int32_t code = hostile[0] == 'f' ? 1234 : 13;
    sample_->Plain(3);
    Sample::Rows().Restore(*sample_, bag);
    EXPECT_EQ(sample_->Plain(), 3) << hostile;
    EXPECT_EQ(sample_->Renamed(), "y") << hostile;
    sample_->Renamed("x");
    EXPECT_EQ(ErrorCodeOf([&] { Sample::Rows().FailedReads(OnFailedRead::Report).Restore(*sample_, bag); }), code);
    EXPECT_EQ(sample_->Renamed(), "x") << hostile << " ends it";
    Sample::Rows().FailedReads(OnFailedRead::TakeTheDefault).Restore(*sample_, bag);
    EXPECT_EQ(sample_->Plain(), 7) << hostile;
  }
}

TEST_F(SavedPropertiesTest, AFailedWriteIsPassedOverOrReported) {
  bag_.failing = "Stored";
  Sample::Rows().Save(*sample_, bag_);
  EXPECT_EQ(bag_.log.back(), "write Beside");
  EXPECT_EQ(ErrorCodeOf([&] { Sample::Rows().FailedWrites(OnFailure::Report).Save(*sample_, bag_); }), 1234);
  EXPECT_EQ(bag_.log.back(), "write Stored");
}

TEST_F(SavedPropertiesTest, AnythingThatIsNoErrorReachesTheContainer) {
  sample_->OnNote = [](const std::string&) { throw 4711; };
  EXPECT_THROW(sample_->ReadProperties(bag_), int);
  EXPECT_THROW(sample_->WriteProperties(bag_), int);
}

TEST_F(SavedPropertiesTest, EndsWhereTheBagDestroysTheControl) {
  for (const bool writing : {false, true}) {
    for (std::size_t at = 1; at <= 4; ++at) {
      sample_ = std::make_unique<Sample>(site_);
      LoggingBag bag;
      bag.onAccess = [&](std::string_view) {
        if (bag.log.size() == at) sample_.reset();
      };
      writing ? sample_->WriteProperties(bag) : sample_->ReadProperties(bag);
      EXPECT_EQ(bag.log.size(), at);
    }
  }
}

TEST_F(SavedPropertiesTest, AValueThatDestroysTheControlIsNotWritten) {
  sample_->OnNote = [this](const std::string&) { sample_.reset(); };
  sample_->WriteProperties(bag_);
  EXPECT_EQ(bag_.log.back(), "write Tint");
}

TEST_F(SavedPropertiesTest, ARowKnowsItsTypeAndItsSavedName) {
  const struct {
    const char* name;
    ValueKind kind;
    const char* savedAs;
  } rows[] = {
      {"Plain", ValueKind::Integer, "Plain"},   {"Stored", ValueKind::Boolean, "Stored"},
      {"Renamed", ValueKind::Text, "Re-named"}, {"Tint", ValueKind::ColorNumber, "Tint"},
      {"Back", ValueKind::Single, "Back"},      {"Loose", ValueKind::Variant, ""},
  };
  ASSERT_EQ(sample_->Properties().Rows().size(), std::size(rows));
  for (const auto& expected : rows) {
    const PropertyTable::Row* const row = sample_->Properties().Find(expected.name);
    ASSERT_TRUE(row) << expected.name;
    EXPECT_EQ(row->type.kind, expected.kind) << expected.name;
    EXPECT_EQ(row->savedAs, expected.savedAs) << expected.name;
  }
}

TEST_F(SavedPropertiesTest, APublicFieldIsAProperty) {
  const ObjectRef handle = sample_->Handle();
  handle->Put("loose", "text");
  EXPECT_EQ(sample_->Loose, "text");
  EXPECT_EQ(handle->Get("LOOSE"), "text");
}

}  // namespace
}  // namespace tactix::tests
