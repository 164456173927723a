#include <gtest/gtest.h>

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QToolButton>
#include <cstdlib>
#include <map>
#include <string>

#include "tactix-qt/PictureIcon.h"
#include "tactix/decision/private/DecisionToolButtons.h"
#include "tests/tactix-qt/BarWindow.h"

namespace tactix::tests {
namespace {

constexpr QSize Size(48, 48);

QImage ImageOf(const QIcon& icon) { return icon.pixmap(Size).toImage(); }

/// What a button shows: a prediction shows its group, but a dealer's hand is weak or strong.
const std::map<std::string, std::string> Pictures = {
    {"Hit", "hit"},
    {"Stand", "stand"},
    {"Split", "split"},
    {"Double", "double"},
    {"Surrender", "surrender"},
    {"Advice", "advice"},
    {"HitcardLow", "hit-card"},
    {"HitcardMid", "hit-card"},
    {"HitcardHigh", "hit-card"},
    {"HitcardUnknown", "hit-card"},
    {"HolecardLow", "hole-card"},
    {"HolecardMid", "hole-card"},
    {"HolecardHigh", "hole-card"},
    {"HolecardUnknown", "hole-card"},
    {"TensRatioLow", "tens-ratio"},
    {"TensRatioHigh", "tens-ratio"},
    {"DealerStrengthWeak", "dealer-weak"},
    {"DealerStrengthStrong", "dealer-strong"},
    {"ClumpStatistics", "statistics"},
};

TEST(QtToolBarPicturesTest, EachButtonHasItsOwn) {
  BarWindow window;
  std::map<std::string, QImage> seen;
  for (const ToolButtonDesign& design : DecisionToolButtons) {
    if (design.style == ToolButtonStyle::Separator) continue;
    const std::string key(design.key);
    SCOPED_TRACE(key);
    ASSERT_TRUE(Pictures.contains(key));
    const std::string& name = Pictures.at(key);
    const QImage shown = ImageOf(window.Native(key).icon());
    EXPECT_EQ(shown, ImageOf(qt::PictureIcon(name, window.Native(key).palette())));
    for (const auto& [other, image] : seen) EXPECT_EQ(image == shown, other == name) << other;
    seen[name] = shown;
  }
  EXPECT_EQ(seen.size(), std::size(DecisionPictures));
}

/// How many points of an icon are of about that hue, in degrees.
int PointsOfHue(const QIcon& icon, int hue) {
  const QImage image = ImageOf(icon);
  int points = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, y);
      if (color.alpha() > 128 && color.saturation() > 100 && std::abs(color.hue() - hue) < 20) ++points;
    }
  }
  return points;
}

TEST(QtToolBarPicturesTest, AWeakHandIsRedAndAStrongOneGreen) {
  constexpr int Red = 350;
  constexpr int Green = 145;
  BarWindow window;
  const QIcon weak = window.Native("DealerStrengthWeak").icon();
  const QIcon strong = window.Native("DealerStrengthStrong").icon();
  EXPECT_GT(PointsOfHue(weak, Red), 20);
  EXPECT_EQ(PointsOfHue(weak, Green), 0);
  EXPECT_GT(PointsOfHue(strong, Green), 20);
  EXPECT_EQ(PointsOfHue(strong, Red), 0);
}

}  // namespace
}  // namespace tactix::tests
