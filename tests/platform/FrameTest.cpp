#include "tactix/platform/widgets/Frame.h"

#include <gtest/gtest.h>

#include "tactix/platform/widgets/Panel.h"

namespace tactix::tests {
namespace {

template <class W>
class BoxTest : public testing::Test {};
using Boxes = testing::Types<Frame, Panel>;
TYPED_TEST_SUITE(BoxTest, Boxes);

TYPED_TEST(BoxTest, HasACaptionAndHoldsWidgets) {
  TypeParam box;
  EXPECT_EQ(box.Caption(), "");
  box.Handle()->Put("caption", " Point-Value");
  EXPECT_EQ(box.Caption(), " Point-Value");
  Panel inner;
  box.Add(inner, "inner");
  box.Visible(false);
  EXPECT_FALSE(inner.Shown());
}

TEST(FrameTest, IsAKindOfItsOwn) {
  EXPECT_EQ(Frame().Kind(), WidgetKind::Frame);
  EXPECT_EQ(Panel().Kind(), WidgetKind::Panel);
}

}  // namespace
}  // namespace tactix::tests
