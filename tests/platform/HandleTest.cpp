#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tests/support/HeadlessProbe.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

std::int32_t CodeOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Code();
  }
  return 0;
}

/// A late-bound property: what reading it gives at first, and what it reads after it was set.
struct MemberRow {
  const char* name;
  std::function<ObjectRef(HeadlessProbe&)> object;
  const char* member;
  Variant before;
  Variant set;  // Null: not set
  Variant after;
};

class HandleMemberTest : public testing::TestWithParam<MemberRow> {};

TEST_P(HandleMemberTest, ReadsAndWrites) {
  HeadlessProbe probe;
  const MemberRow& row = GetParam();
  const ObjectRef object = row.object(probe);
  EXPECT_EQ(object->Get(row.member), row.before);
  EXPECT_EQ(object->Get(row.member).Type(), row.before.Type());
  if (row.set.IsNull()) return;
  object->Put(row.member, row.set);
  EXPECT_EQ(object->Get(row.member), row.after);
  EXPECT_EQ(object->Get(row.member).Type(), row.after.Type());
}

ObjectRef OfLabel(HeadlessProbe& p) { return p.Children().StatusLabel.Handle(); }
ObjectRef OfButton(HeadlessProbe& p) { return p.Children().FirstButton.Handle(); }
ObjectRef OfList(HeadlessProbe& p) { return p.Children().RowList.Handle(); }
ObjectRef OfControl(HeadlessProbe& p) { return p.outer->Handle(); }

const Font Small{"Comic Neue", 8, false, true};

const MemberRow Members[] = {
    {"Left", OfLabel, "Left", 100.0F, std::int16_t{5}, 5.0F},
    {"Top", OfLabel, "Top", 600.0F, "7.5", 7.5F},
    {"Width", OfLabel, "Width", 2500.0F, 1.5, 1.5F},
    {"Height", OfLabel, "Height", 300.0F, true, -1.0F},
    {"Visible", OfLabel, "Visible", true, std::int16_t{0}, false},
    {"Enabled", OfLabel, "Enabled", true, "False", false},
    {"ToolTipText", OfLabel, "ToolTipText", "", std::int32_t{12}, "12"},
    {"Font", OfLabel, "Font", Font(), Small, Small},
    {"ForeColor", OfLabel, "ForeColor", WindowTextColor, 255.0, std::int32_t{255}},
    {"BackColor", OfLabel, "BackColor", WindowColor, std::int32_t{0x123456}, std::int32_t{0x123456}},
    {"Caption", OfLabel, "Caption", "Ready", "Steady", "Steady"},
    {"AnyCase", OfLabel, "cApTiOn", "Ready", "Steady", "Steady"},
    {"CaptionOfAButton", OfButton, "CAPTION", "&First", "Hit", "Hit"},
    {"Default", OfButton, "Default", false, std::int16_t{-1}, true},
    {"GeometryOfAButton", OfButton, "left", 100.0F, 3.0F, 3.0F},
    {"Text", OfList, "Text", "", "plum", "plum"},
    {"ListIndex", OfList, "ListIndex", std::int32_t{-1}, "2", std::int32_t{2}},
    {"ListCount", OfList, "ListCount", std::int32_t{5}, Variant::Null(), {}},
    {"VisibilityOfAList", OfList, "visible", true, false, false},
    {"AnObjectsValue", OfLabel, "Caption", "Ready", std::make_shared<PropertyObject>("", "Steady"), "Steady"},
    {"AnObjectsPlace", OfLabel, "Left", 100.0F, std::make_shared<PropertyObject>("", 5), 5.0F},
    {"ControlsProperty", OfControl, "tag", "", std::int16_t{7}, "7"},
    {"AnObjectsValueForAControl", OfControl, "tag", "", std::make_shared<PropertyObject>("", 7), "7"},
    {"AnObjectsPlaceForAControl", OfControl, "Left", 0.0F, std::make_shared<PropertyObject>("", "40"), 40.0F},
    {"ControlsGetOnlyProperty", OfControl, "PickCount", std::int16_t{0}, Variant::Null(), {}},
    {"ControlsOwnEnabled", OfControl, "Enabled", true, false, false},
    {"ExtendersLeft", OfControl, "Left", 0.0F, 40.0F, 40.0F},
    {"ExtendersWidth", OfControl, "WIDTH", 6000.0F, 40.0F, 40.0F},
    {"ExtendersVisible", OfControl, "visible", true, false, false},
    {"ExtendersToolTip", OfControl, "ToolTipText", "", "tip", "tip"},
};

INSTANTIATE_TEST_SUITE_P(Rows, HandleMemberTest, testing::ValuesIn(Members), RowName());

struct FailureRow {
  const char* name;
  std::function<void(HeadlessProbe&)> act;
  std::int32_t code;
};

class HandleFailureTest : public testing::TestWithParam<FailureRow> {};

TEST_P(HandleFailureTest, FailsWith) {
  HeadlessProbe probe;
  EXPECT_EQ(CodeOf([&probe] { GetParam().act(probe); }), GetParam().code);
  EXPECT_EQ(probe.Children().StatusLabel.Visible(), true);
}

const FailureRow Failures[] = {
    {"GetUnknown", [](HeadlessProbe& p) { OfLabel(p)->Get("Captain"); }, 438},
    {"PutUnknown", [](HeadlessProbe& p) { OfLabel(p)->Put("Captain", 1.0); }, 438},
    {"GetEmptyName", [](HeadlessProbe& p) { OfLabel(p)->Get(""); }, 438},
    {"CallUnknown", [](HeadlessProbe& p) { OfLabel(p)->Call("Captain", {}); }, 438},
    {"LabelHasNoDefault", [](HeadlessProbe& p) { OfLabel(p)->Get("Default"); }, 438},
    {"ListHasNoCaption", [](HeadlessProbe& p) { OfList(p)->Get("Caption"); }, 438},
    {"ListCountCannotBeSet", [](HeadlessProbe& p) { OfList(p)->Put("ListCount", 1.0); }, 438},
    {"UnknownOfAControl", [](HeadlessProbe& p) { OfControl(p)->Get("Captain"); }, 438},
    {"SetOnlyCannotBeRead", [](HeadlessProbe& p) { OfControl(p)->Get("Secret"); }, 438},
    {"SetOnlyCanBeSet", [](HeadlessProbe& p) { OfControl(p)->Put("Secret", 1.0); }, 0},
    {"GetOnlyCannotBeSet", [](HeadlessProbe& p) { OfControl(p)->Put("PickCount", 1.0); }, 438},
    {"NoNumber", [](HeadlessProbe& p) { OfLabel(p)->Put("Visible", "soon"); }, 13},
    {"Null", [](HeadlessProbe& p) { OfLabel(p)->Put("Left", Variant::Null()); }, 94},
    {"TooLarge", [](HeadlessProbe& p) { OfLabel(p)->Put("ForeColor", 4e9); }, 6},
    {"NoFont", [](HeadlessProbe& p) { OfLabel(p)->Put("Font", "Arial"); }, 13},
};

INSTANTIATE_TEST_SUITE_P(Rows, HandleFailureTest, testing::ValuesIn(Failures), RowName());

TEST(HandleTest, FailsOnceItsWidgetIsGoneWhichItDoesNotKeepAlive) {
  HeadlessProbe probe;
  const std::vector<ObjectRef> handles{OfLabel(probe), OfList(probe), OfControl(probe),
                                       probe.Children().Inner.Handle()};
  probe.DestroyControl();
  for (const ObjectRef& handle : handles) {
    EXPECT_EQ(CodeOf([&] { handle->Get("Visible"); }), 91);
    EXPECT_EQ(CodeOf([&] { handle->Put("Visible", true); }), 91);
    EXPECT_EQ(CodeOf([&] { handle->Get("Captain"); }), 91);
    EXPECT_EQ(CodeOf([&] { handle->Call("SetFocus", {}); }), 91);
  }
}

TEST(HandleTest, AControlsOwnPropertyHidesAllButThePlaceAndVisibility) {
  HeadlessProbe probe;
  const ObjectRef handle = probe.outer->Handle();
  handle->Put("Enabled", false);
  EXPECT_FALSE(probe.outer->Enabled());
  EXPECT_TRUE(probe.outer->Extender().Enabled());
  handle->Put("Visible", false);
  EXPECT_TRUE(probe.outer->Visible());
  EXPECT_FALSE(probe.outer->Extender().Visible());
  handle->Put("Left", 15.0);
  EXPECT_EQ(probe.outer->Left(), 0);
  EXPECT_EQ(probe.outer->Extender().Left(), 15);
}

TEST(HandleTest, SettingALateBoundRowReportsItAsCodeDoes) {
  HeadlessProbe probe;
  OfList(probe)->Put("ListIndex", std::int16_t{2});
  EXPECT_EQ(probe.recorder.Take(), std::vector<std::string>{"RowPicked#4(2)"});
}

TEST(HandleTest, APropertyMayDestroyItsControlAsItIsSet) {
  HeadlessProbe probe;
  probe.site->OnPropertyChanged([&probe](std::string_view) { probe.DestroyWindow(); });
  const ObjectRef handle = probe.outer->Handle();
  handle->Put("Tag", "x");
  EXPECT_EQ(CodeOf([&] { handle->Get("Tag"); }), 91);
}

/// A late-bound property and how to find the object that has it.
struct EndingRow {
  const char* name;
  ObjectRef (*object)(HeadlessProbe&);
  const char* member;
};

class HandleEndingTest : public testing::TestWithParam<EndingRow> {};

TEST_P(HandleEndingTest, AnObjectMayEndTheWidgetAsItIsAskedForItsValue) {
  HeadlessProbe probe;
  const auto value = std::make_shared<PropertyObject>("", true);
  value->OnUse = [&probe](const std::string&) { probe.DestroyWindow(); };
  const ObjectRef handle = GetParam().object(probe);
  const std::int32_t code = CodeOf([&] { handle->Put(GetParam().member, value); });
  EXPECT_TRUE(code == 0 || code == 91) << code;
  EXPECT_EQ(probe.outer, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Rows, HandleEndingTest,
                         testing::Values(EndingRow{"Label", OfLabel, "Visible"},
                                         EndingRow{"Caption", OfLabel, "Caption"},
                                         EndingRow{"Button", OfButton, "DEFAULT"}, EndingRow{"List", OfList, "Text"},
                                         EndingRow{"Place", OfControl, "Left"},
                                         EndingRow{"Property", OfControl, "Tag"}),
                         RowName());

TEST(PropertyTableTest, KnowsItsRowsWithoutCaseAndInOrder) {
  HeadlessProbe probe;
  const PropertyTable& table = probe.outer->Properties();
  std::string names;
  for (const PropertyTable::Row& row : table.Rows()) {
    names += row.name + (row.get ? " get" : "") + (row.set ? " set" : "") + ", ";
  }
  EXPECT_EQ(names, "Tag get set, Left get set, Enabled get set, Visible get set, PickCount get, Secret set, ");
  EXPECT_EQ(table.Find("pickCOUNT"), &table.Rows()[4]);
  EXPECT_EQ(table.Find("PickCoun"), nullptr);
  EXPECT_TRUE(probe.Children().Inner.Properties().Rows().empty());
}

}  // namespace
}  // namespace tactix::tests
