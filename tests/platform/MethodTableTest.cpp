#include "tactix/platform/MethodTable.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {
namespace {

/// A control with a method of each kind.
class Sample final : public Control {
 public:
  explicit Sample(Site& site) : Control(site) {}
  ~Sample() override { MarkAsGone(); }

  void Note(std::string_view text, std::int16_t number) { Log.push_back(std::string(text) + std::to_string(number)); }
  std::int32_t Twice(std::int32_t number) const { return 2 * number; }
  void Count(std::int16_t& number) { ++number; }
  void Add(std::string_view item, std::optional<std::int32_t> index) {
    Log.push_back(std::string(item) + (index ? std::to_string(*index) : "!"));
  }
  void Overloaded(const Variant& value, bool flag) { Log.push_back("variant " + value.ToText() + (flag ? "+" : "-")); }
  void Overloaded(const std::string&, bool) { Log.push_back("text"); }

  std::vector<std::string> Log;

  const MethodTable& Methods() const override {
    static const MethodTable table = MethodTable()
                                         .Method("Note", &Sample::Note)
                                         .Method("Twice", &Sample::Twice)
                                         .Method("Count", &Sample::Count)
                                         .Method("Add", &Sample::Add)
                                         .TakesVariant("Overloaded", &Sample::Overloaded);
    return table;
  }
};

class MethodTableTest : public testing::Test {
 protected:
  Variant Call(std::string_view name, std::vector<Variant> arguments) {
    const ObjectRef handle = sample_->Handle();
    given_ = std::move(arguments);
    return handle->Call(name, given_);
  }

  HeadlessSite site_;
  std::unique_ptr<Sample> sample_ = std::make_unique<Sample>(site_);
  std::vector<Variant> given_;
};

TEST_F(MethodTableTest, ConvertsWhatItIsGiven) {
  EXPECT_TRUE(Call("NOTE", {std::int32_t{4}, "12.5"}).IsEmpty());
  EXPECT_EQ(sample_->Log, std::vector<std::string>{"412"});
  EXPECT_EQ(Call("twice", {"21"}), 42);
  Call("Overloaded", {3.5, -1});
  EXPECT_EQ(sample_->Log.back(), "variant 3.5+");
}

TEST_F(MethodTableTest, WritesBackWhatTheMethodWritesTo) {
  Call("Count", {"41"});
  EXPECT_EQ(given_[0], 42);
  EXPECT_EQ(given_[0].Type(), VariantType::Integer);
  Call("Twice", {"21"});
  EXPECT_EQ(given_[0], "21") << "the others stay as they are";
}

TEST_F(MethodTableTest, OptionalArgumentsMayBeLeftOut) {
  Call("Add", {"a"});
  Call("Add", {"b", Variant()});
  Call("Add", {"c", 2});
  EXPECT_EQ(sample_->Log, (std::vector<std::string>{"a!", "b!", "c2"}));
}

TEST_F(MethodTableTest, FailsAsHostsExpect) {
  const struct {
    const char* why;
    const char* method;
    std::vector<Variant> arguments;
    std::int32_t code;
  } rows[] = {
      {"no such method", "Nothing", {}, 438},     {"too few arguments", "Note", {"a"}, 5},
      {"too many arguments", "Twice", {1, 2}, 5}, {"does not convert", "Twice", {"two"}, 13},
      {"out of range", "Note", {"a", 70000}, 6},  {"null", "Count", {Variant::Null()}, 94},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorCodeOf([&] { return Call(row.method, row.arguments); }), row.code) << row.why;
  }
  EXPECT_TRUE(sample_->Log.empty());
  const ObjectRef handle = sample_->Handle();
  sample_.reset();
  EXPECT_EQ(ErrorCodeOf([&] { return handle->Call("Twice", {}); }), 91);
}

TEST_F(MethodTableTest, AnArgumentMayDestroyTheControlAsItConverts) {
  const auto hostile = std::make_shared<PropertyObject>(std::string(DefaultPropertyName), 3);
  hostile->OnUse = [this](const std::string&) { sample_.reset(); };
  EXPECT_EQ(ErrorCodeOf([&] { return Call("Twice", {hostile}); }), 91);
  EXPECT_EQ(sample_, nullptr);
}

TEST_F(MethodTableTest, RowsSayWhatAMethodTakesAndReturns) {
  const MethodTable& methods = sample_->Methods();
  EXPECT_EQ(methods.Find("twice")->result.kind, ValueKind::Long);
  EXPECT_EQ(methods.Find("Note")->result.kind, ValueKind::None);
  const auto& note = methods.Find("Note")->arguments;
  ASSERT_EQ(note.size(), 2U);
  EXPECT_EQ(note[0].type.kind, ValueKind::Text);
  EXPECT_EQ(note[1].type.kind, ValueKind::Integer);
  EXPECT_FALSE(note[0].isWritten || note[0].isOptional);
  EXPECT_TRUE(methods.Find("Count")->arguments[0].isWritten);
  EXPECT_TRUE(methods.Find("Add")->arguments[1].isOptional);
  EXPECT_EQ(methods.Find("Overloaded")->arguments[0].type.kind, ValueKind::Variant);
}

}  // namespace
}  // namespace tactix::tests
