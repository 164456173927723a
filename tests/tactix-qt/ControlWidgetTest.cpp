#include "tactix-qt/ControlWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QSignalSpy>
#include <string>
#include <vector>

#include "tests/support-qt/QtWarnings.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class QtControlWidgetTest : public testing::Test {
 protected:
  QtControlWidgetTest() {
    window_.Probe().OnNote = [this](std::string note) { notes_.push_back(std::move(note)); };
  }

  Texts TakeNotes() { return std::exchange(notes_, {}); }

  Texts notes_;
  NativeProbeWindow window_;
  ProbeWidget& widget_ = window_.Itself();
  OuterProbe& probe_ = window_.Probe();
};

TEST_F(QtControlWidgetTest, HasTheDesignedSize) {
  EXPECT_EQ(widget_.size(), QSize(400, 200));
  EXPECT_EQ(widget_.sizeHint(), QSize(400, 200));
  EXPECT_EQ(widget_.minimumSizeHint(), QSize(200, 100));
}

TEST_F(QtControlWidgetTest, AResizeOfTheWidgetResizesTheControlOnce) {
  window_.Show();
  TakeNotes();
  widget_.resize(300, 150);
  EXPECT_EQ(probe_.Extender().Width(), 4500);
  EXPECT_EQ(probe_.Extender().Height(), 2250);
  EXPECT_EQ(TakeNotes(), Texts{"outer: Resized"});
  EXPECT_EQ(NativeOf(probe_.Extender())->size(), QSize(300, 150));
  EXPECT_EQ(widget_.sizeHint(), QSize(400, 200));
}

TEST_F(QtControlWidgetTest, AResizeOfTheControlResizesTheWidget) {
  window_.Show();
  TakeNotes();
  probe_.Extender().Width(4507);
  EXPECT_EQ(widget_.size(), QSize(300, 200));
  EXPECT_EQ(widget_.sizeHint(), QSize(300, 200));
  EXPECT_EQ(probe_.Extender().Width(), 4507);
  EXPECT_EQ(TakeNotes(), Texts{"outer: Resized"});
}

TEST_F(QtControlWidgetTest, ALayoutRules) {
  QWidget window;
  auto* const layout = new QHBoxLayout(&window);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* const widget = new ProbeWidget;
  layout->addWidget(widget);
  window.resize(700, 500);
  window.show();
  Settle();
  EXPECT_EQ(widget->Probe().Extender().Width(), 10500);
  EXPECT_EQ(widget->Probe().Extender().Height(), 7500);
}

TEST_F(QtControlWidgetTest, PlacesFollowEachOther) {
  window_.Show();
  widget_.move(20, 30);
  EXPECT_EQ(probe_.Extender().Left(), 300);
  EXPECT_EQ(probe_.Extender().Top(), 450);
  probe_.Extender().Place(150, 300, probe_.Extender().Width(), probe_.Extender().Height());
  EXPECT_EQ(widget_.pos(), QPoint(10, 20));
}

TEST_F(QtControlWidgetTest, VisibilityAndEnablingFollowEachOther) {
  window_.Show();
  widget_.hide();
  EXPECT_FALSE(probe_.Extender().Visible());
  widget_.show();
  EXPECT_TRUE(probe_.Extender().Visible());
  probe_.Extender().Visible(false);
  EXPECT_FALSE(widget_.isVisible());
  probe_.Extender().Visible(true);
  widget_.setEnabled(false);
  EXPECT_FALSE(probe_.Extender().Enabled());
  probe_.Extender().Enabled(true);
  EXPECT_TRUE(widget_.isEnabled());
  window_.Window().setEnabled(false);
  EXPECT_TRUE(probe_.Extender().Enabled());
}

TEST_F(QtControlWidgetTest, IsDisplayedOncePerShow) {
  window_.Show();
  EXPECT_EQ(TakeNotes(), Texts{"outer: Displayed"});
  window_.Window().hide();
  window_.Show();
  EXPECT_EQ(TakeNotes(), Texts{"outer: Displayed"});
}

TEST_F(QtControlWidgetTest, TellsOfChangesOfTheAmbient) {
  QFont font = widget_.font();
  font.setPointSizeF(13);
  widget_.setFont(font);
  EXPECT_EQ(TakeNotes(), Texts{"outer: AmbientChanged"});
  EXPECT_EQ(widget_.ItsSite().AmbientFont().Size, 13);
  EXPECT_EQ(widget_.ItsSite().AmbientForeColor(), WindowTextColor);
  EXPECT_EQ(widget_.ItsSite().AmbientBackColor(), ButtonFaceColor);
  QPalette palette;
  palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
  palette.setColor(QPalette::Window, QColor(4, 5, 6));
  window_.Window().setPalette(palette);
  EXPECT_EQ(TakeNotes(), Texts{"outer: AmbientChanged"});
  EXPECT_EQ(widget_.ItsSite().AmbientForeColor(), 0x030201);
  EXPECT_EQ(widget_.ItsSite().AmbientBackColor(), 0x060504);
}

TEST_F(QtControlWidgetTest, UserModeIsPartOfTheAmbient) {
  EXPECT_TRUE(widget_.userMode());
  widget_.setUserMode(false);
  EXPECT_FALSE(probe_.ItsSite().UserMode());
  EXPECT_FALSE(probe_.Children.Inner.ItsSite().UserMode());
  widget_.setUserMode(false);
  EXPECT_EQ(TakeNotes(), Texts{"outer: AmbientChanged"});
}

TEST_F(QtControlWidgetTest, SignalsChangedProperties) {
  QSignalSpy spy(&widget_, &qt::ControlWidget::propertyChanged);
  probe_.Tag("x");
  probe_.Children.Inner.Mark(1);
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toString(), "Tag");
}

TEST_F(QtControlWidgetTest, SignalsErrorsOfTheUsersActions) {
  window_.Show();
  QSignalSpy spy(&widget_, &qt::ControlWidget::unhandledError);
  probe_.Events.FirstClicked.Connect([] { throw Error(Error::InvalidPropertyValue, "no good"); });
  ClickAt(window_.Window(), ReachablePlace(*NativeOf(probe_.Children.FirstButton)).value());
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toString(), "no good");
  EXPECT_EQ(spy[0][1].toInt(), 380);
}

TEST_F(QtControlWidgetTest, WarnsOfErrorsThatNobodyHears) {
  window_.Show();
  probe_.Events.FirstClicked.Connect([] { throw Error(Error::InvalidPropertyValue, "no good"); });
  ExpectWarning(QStringLiteral("error 380: no good"));
  ClickAt(window_.Window(), ReachablePlace(*NativeOf(probe_.Children.FirstButton)).value());
}

TEST_F(QtControlWidgetTest, TheScreenIsMeasuredInTwips) {
  const QSize screen = widget_.screen()->size();
  EXPECT_EQ(widget_.ItsSite().ScreenWidth(), static_cast<float>(screen.width() * 15));
  EXPECT_EQ(widget_.ItsSite().ScreenHeight(), static_cast<float>(screen.height() * 15));
}

TEST_F(QtControlWidgetTest, Beeps) {
  int beeps = 0;
  qt::QtSite::BeepWith([&beeps] { ++beeps; });
  probe_.Children.Inner.ItsSite().Beep();
  EXPECT_EQ(beeps, 1);
  qt::QtSite::BeepWith({});
}

}  // namespace
}  // namespace tactix::tests
