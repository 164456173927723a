#include "tactix-qt/peers/LabelPeer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QPointer>
#include <vector>

#include "tactix-qt/HitStandLegend.h"
#include "tests/support/RowName.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

class QtLabelTest : public testing::Test {
 protected:
  QtLabelTest() {
    window_.Show();
    Clickable().Clicked.Connect([this] { ++clicks_; });
  }

  Label& Clickable() { return children_.StatusLabel; }
  QPoint Place() { return ReachablePlace(*NativeOf(Clickable())).value(); }

  NativeProbeWindow window_;
  OuterProbe::ChildWidgets& children_ = window_.Children();
  int clicks_ = 0;
};

struct LabelGestureRow {
  const char* name;
  std::int16_t button;
  bool isReleasedOutside;
  void (*prepare)(OuterProbe::ChildWidgets&);
  int clicks;
};

class QtLabelGestureTest : public QtLabelTest, public testing::WithParamInterface<LabelGestureRow> {};

TEST_P(QtLabelGestureTest, IsClickedByPressAndReleaseOnIt) {
  const LabelGestureRow& row = GetParam();
  const QPoint place = Place();
  row.prepare(children_);
  Drag(window_.Window(), place, row.isReleasedOutside ? QPoint(1, 1) : place, row.button, 0);
  Settle();
  EXPECT_EQ(clicks_, row.clicks);
}

void LeaveAsItIs(OuterProbe::ChildWidgets&) {}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtLabelGestureTest,
    testing::Values(LabelGestureRow{"Left", LeftButton, false, LeaveAsItIs, 1},
                    LabelGestureRow{"Right", RightButton, false, LeaveAsItIs, 0},
                    LabelGestureRow{"ReleasedBesideIt", LeftButton, true, LeaveAsItIs, 0},
                    LabelGestureRow{"Disabled", LeftButton, false,
                                    [](OuterProbe::ChildWidgets& all) { all.StatusLabel.Enabled(false); }, 0},
                    LabelGestureRow{"Hidden", LeftButton, false,
                                    [](OuterProbe::ChildWidgets& all) { all.StatusLabel.Visible(false); }, 0}),
    RowName());

TEST_F(QtLabelTest, ShowsThatItCanBeClicked) {
  QWidget& native = *NativeOf(Clickable());
  MoveTo(window_.Window(), QPoint(1, 1));
  Settle();
  const QImage before = native.grab().toImage();
  MoveTo(window_.Window(), Place());
  Settle();
  EXPECT_EQ(native.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_NE(native.grab().toImage(), before);
  MoveTo(window_.Window(), QPoint(1, 1));
  Settle();
  EXPECT_EQ(native.grab().toImage(), before);
}

TEST_F(QtLabelTest, KeepsTheMouseFromItsParent) {
  int presses = 0;
  window_.Probe().Extender().MousePressed.Connect([&presses](const MouseState&) { ++presses; });
  ClickAt(window_.Window(), Place());
  EXPECT_EQ(presses, 0);
}

TEST_F(QtLabelTest, AClickGivesItsControlTheFocus) {
  ClickAt(window_.Window(), Place(), RightButton);
  Settle();
  EXPECT_EQ(window_.Itself().ItsSite().Focus(), nullptr);
  ClickAt(window_.Window(), Place());
  Settle();
  EXPECT_EQ(window_.Itself().ItsSite().Focus(), &window_.Probe().Extender());
}

TEST_F(QtLabelTest, AReaderPressesIt) {
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(NativeOf(Clickable()));
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Ready"));
  ASSERT_TRUE(accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks_, 0) << "the reader waits";
  Settle();
  EXPECT_EQ(clicks_, 1);
}

TEST(QtPlainLabelTest, LeavesTheMouseToItsParent) {
  NativeProbeWindow window;
  window.Show();
  std::vector<MouseState> presses;
  window.Probe().Extender().MousePressed.Connect([&presses](const MouseState& state) { presses.push_back(state); });
  int moves = 0;
  window.Probe().Extender().MouseMoved.Connect([&moves](const MouseState&) { ++moves; });
  QWidget& native = *NativeOf(window.Children().StatusLabel);
  const QPoint place = ReachablePlace(native).value();
  MoveTo(window.Window(), place);
  ClickAt(window.Window(), place);
  ASSERT_EQ(presses.size(), 1U);
  const QPoint inControl = place - window.Itself().pos();
  EXPECT_EQ(presses[0].x, static_cast<float>(inControl.x() * 15));
  EXPECT_EQ(presses[0].y, static_cast<float>(inControl.y() * 15));
  EXPECT_GE(moves, 1);
  EXPECT_EQ(native.cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&native)->role(), QAccessible::StaticText);
}

TEST(QtPlainLabelTest, DrawsItsTextInThePartInSight) {
  NativeProbeWindow window;
  window.Show();
  Label& label = window.Children().StatusLabel;
  auto* const peer = dynamic_cast<qt::LabelPeer*>(NativeOf(label));
  const int height = peer->parentWidget()->height();
  label.Place(0, static_cast<float>(height - 30) * 15, 3000, static_cast<float>(height) * 15);
  EXPECT_EQ(peer->height(), height);
  EXPECT_TRUE(QRect(0, 0, 200, 30).contains(peer->TextRect()));
  const QImage before = peer->grab(QRect(0, 0, 200, 30)).toImage();
  label.Caption("Other");
  EXPECT_NE(peer->grab(QRect(0, 0, 200, 30)).toImage(), before);
}

TEST(QtPlainLabelTest, APlaceFarOutStaysWithinWhatQtCanHold) {
  NativeProbeWindow window;
  Label& label = window.Children().StatusLabel;
  label.Place(-1e30F, 1e30F, 1e30F, 1e30F);
  EXPECT_EQ(NativeOf(label)->pos(), QPoint(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST(QtLegendTest, MayGoInTheClickOnALabel) {
  for (const bool withWindow : {false, true}) {
    auto* const window = new QWidget;
    const QPointer<qt::HitStandLegend> legend = new qt::HitStandLegend(window);
    window->show();
    static_cast<void>(QTest::qWaitForWindowExposed(window));
    QObject::connect(legend, &qt::HitStandLegend::StandWasSelected, window, [window, legend, withWindow] {
      if (withWindow) {
        delete window;
      } else {
        delete legend;
      }
    });
    const QPointer<QWidget> still(window);
    ClickAt(*window, ReachablePlace(*NativeOf(legend->control().Children.LegendOptionStand[1])).value());
    Settle();
    EXPECT_FALSE(legend);
    EXPECT_NE(still.isNull(), !withWindow);
    delete still;
    Settle();
  }
}

TEST(QtLegendTest, ItsLabelsAreNotCut) {
  qt::HitStandLegend legend;
  legend.show();
  for (qt::LabelPeer* label : legend.findChildren<qt::LabelPeer*>()) {
    EXPECT_TRUE(label->rect().contains(label->TextRect())) << label->text().toStdString();
    EXPECT_GE(label->TextRect().height(), QFontMetrics(label->font()).height()) << "no smaller than designed";
  }
}

}  // namespace
}  // namespace tactix::tests
