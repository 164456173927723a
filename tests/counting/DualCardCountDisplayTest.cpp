#include "tactix/counting/DualCardCountDisplay.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"

namespace tactix::tests {
namespace {

class DualCardCountDisplayTest : public testing::Test {
 protected:
  DualCardCountDisplayTest() { display_.InitProperties(); }

  CardCountDisplayBox& True() { return display_.Children.TrueCountDisplay; }
  CardCountDisplayBox& Running() { return display_.Children.RunningCountDisplay; }

  HeadlessSite site_;
  DualCardCountDisplay display_{site_};
};

TEST_F(DualCardCountDisplayTest, HoldsATrueAndARunningCount) {
  EXPECT_EQ(True().CountBoxType(), TypeOfCountBox::CountBoxIsTrueCount);
  EXPECT_EQ(True().Children.labelCountLabel.Caption(), "TC");
  EXPECT_EQ(Running().CountBoxType(), TypeOfCountBox::CountBoxIsRunningCount);
  EXPECT_EQ(Running().Children.labelCountLabel.Caption(), "RC");
}

TEST_F(DualCardCountDisplayTest, PassesEachValueToItsBox) {
  display_.TrueCountValue(3);
  EXPECT_EQ(True().Children.labelCountValue.Caption(), "3");
  EXPECT_EQ(Running().Children.labelCountValue.Caption(), "-99");
  display_.RunningCountValue(-1234);
  EXPECT_EQ(True().Children.labelCountValue.Caption(), "3");
  EXPECT_EQ(Running().Children.labelCountValue.Caption(), "-1234");
}

TEST_F(DualCardCountDisplayTest, BothBoxesTakeTheShadowBoxAndShowItLater) {
  display_.ShadowBoxStatus(ShadowBoxingConstants::ShadowBoxYellowColor);
  for (CardCountDisplayBox* box : {&True(), &Running()}) {
    EXPECT_EQ(box->Children.labelCountValue.BackColor(), 0xFFFFFF);
    box->CountBoxType(box->CountBoxType());
    EXPECT_EQ(box->Children.labelCountValue.BackColor(), 0x00FFFF);
  }
}

TEST_F(DualCardCountDisplayTest, KeepsTheBoxesNoticesAndSavesNothing) {
  True().CountBoxType(1);
  EXPECT_EQ(site_.Changes(), std::vector<std::string>{});
  MemoryPropertyBag bag;
  bag.Write("CountBoxType", 2);
  display_.ReadProperties(bag);
  EXPECT_EQ(Running().CountBoxType(), 1);
  bag.Clear();
  display_.WriteProperties(bag);
  EXPECT_EQ(bag.Names(), std::vector<std::string>{});
}

TEST_F(DualCardCountDisplayTest, TheTrueCountStandsAboveTheRunningCount) {
  display_.Extender().Place(0, 0, 2000, 900);
  for (CardCountDisplayBox* box : {&True(), &Running()}) {
    EXPECT_EQ(box->Extender().Left(), 0);
    EXPECT_EQ(box->Extender().Width(), 2000);
    EXPECT_EQ(box->Extender().Height(), 450);
    EXPECT_EQ(box->Children.labelCountValue.Height(), 450);
  }
  EXPECT_EQ(True().Extender().Top(), 0);
  EXPECT_EQ(Running().Extender().Top(), 450);
}

}  // namespace
}  // namespace tactix::tests
