#include "tactix-qt/peers/Peer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QFontInfo>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <functional>
#include <string>

#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/PushButtonPeer.h"
#include "tests/support/RowName.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

class QtPeerTest : public testing::Test {
 protected:
  QtPeerTest() { window_.Show(); }

  template <class Native>
  Native& As(const Widget& widget) {
    return *dynamic_cast<Native*>(NativeOf(widget));
  }

  NativeProbeWindow window_;
  OuterProbe::ChildWidgets& children_ = window_.Children();
};

TEST_F(QtPeerTest, IsTheWidgetThatPeopleKnow) {
  EXPECT_TRUE(window_.Window().findChild<QPushButton*>("FirstButton"));
  EXPECT_TRUE(window_.Window().findChild<QLabel*>("StatusLabel"));
  EXPECT_TRUE(window_.Window().findChild<QFrame*>("ButtonPanel"));
  EXPECT_TRUE(window_.Window().findChild<QComboBox*>("RowList"));
  EXPECT_EQ(NativeOf(children_.PanelButton)->parentWidget(), NativeOf(children_.ButtonPanel));
  EXPECT_EQ(NativeOf(children_.Inner.Children.InnerButton)->parentWidget(), NativeOf(children_.Inner.Extender()));
}

struct PlaceRow {
  const char* name;
  float left, top, width, height;
  QRect pixels;
};

class QtPlaceTest : public QtPeerTest, public testing::WithParamInterface<PlaceRow> {};

TEST_P(QtPlaceTest, RoundsEdges) {
  const PlaceRow& row = GetParam();
  children_.FirstButton.Place(row.left, row.top, row.width, row.height);
  EXPECT_EQ(NativeOf(children_.FirstButton)->geometry(), row.pixels);
}

INSTANTIATE_TEST_SUITE_P(Places, QtPlaceTest,
                         testing::Values(PlaceRow{"Whole", 150, 300, 1500, 450, {10, 20, 100, 30}},
                                         PlaceRow{"EdgesTogether", 157, 0, 157, 15, {10, 0, 11, 1}},
                                         PlaceRow{"NextToThat", 314, 0, 157, 15, {21, 0, 10, 1}},
                                         PlaceRow{"Negative", -150, -15, 150, 30, {-10, -1, 10, 2}},
                                         PlaceRow{"Empty", 15, 15, 0, 0, {1, 1, 0, 0}}),
                         RowName());

TEST_F(QtPeerTest, ControlsInPixelsUsePixels) {
  EXPECT_EQ(NativeOf(children_.Inner.Children.InnerButton)->geometry(), QRect(5, 5, 80, 25));
  EXPECT_EQ(NativeOf(children_.Inner.Extender())->geometry(), QRect(200, 67, 160, 80));
}

TEST_F(QtPeerTest, FollowsVisibleAndEnabled) {
  for (const bool on : {false, true}) {
    children_.FirstButton.Visible(on);
    children_.SecondButton.Enabled(on);
    EXPECT_EQ(NativeOf(children_.FirstButton)->isVisible(), on);
    EXPECT_EQ(NativeOf(children_.SecondButton)->isEnabled(), on);
  }
}

TEST_F(QtPeerTest, FollowsTheOrder) {
  const auto at = [&] {
    return window_.Itself().childAt(NativeOf(children_.FirstButton)->geometry().center())->objectName().toStdString();
  };
  children_.SecondButton.Place(100, 100, 1200, 375);
  EXPECT_EQ(at(), "SecondButton");
  children_.FirstButton.BringToFront();
  EXPECT_EQ(at(), "FirstButton");
  children_.FirstButton.SendToBack();
  EXPECT_EQ(at(), "SecondButton");
}

TEST_F(QtPeerTest, FollowsCaptionsAndTexts) {
  children_.FirstButton.Caption("&New && old");
  EXPECT_EQ(As<QPushButton>(children_.FirstButton).text(), "&New && old");
  children_.StatusLabel.Caption("<b>a</b>");
  EXPECT_EQ(As<QLabel>(children_.StatusLabel).text(), "<b>a</b>");
  EXPECT_EQ(As<QLabel>(children_.StatusLabel).textFormat(), Qt::PlainText);
}

TEST_F(QtPeerTest, FollowsTheRowsWithoutReporting) {
  auto& native = As<qt::ListBoxPeer>(children_.RowList);
  children_.RowList.AddItem("blueberry", 1);
  EXPECT_EQ(native.itemText(1), "blueberry");
  EXPECT_EQ(native.count(), 6);
  EXPECT_EQ(native.currentIndex(), -1);
  children_.RowList.Text("none of them");
  EXPECT_EQ(native.ShownText(), "none of them");
  children_.RowList.ListIndex(2);
  EXPECT_EQ(native.currentIndex(), 2);
  EXPECT_EQ(native.ShownText(), "banana");
  window_.Recorder().Forget();
  children_.RowList.Clear();
  EXPECT_EQ(native.count(), 0);
  EXPECT_EQ(native.ShownText(), "banana");
  children_.RowList.AddItem("first");
  EXPECT_EQ(native.currentIndex(), -1);
  Settle();
  EXPECT_TRUE(window_.Recorder().Entries().empty());
}

TEST_F(QtPeerTest, APickOfTheSameRowIsOneClick) {
  auto& native = As<QComboBox>(children_.RowList);
  for (int i = 0; i < 2; ++i) {
    PickByMouse(native, 1);
    Settle();
    EXPECT_EQ(window_.Recorder().Take(), std::vector<std::string>{"RowPicked#4(1)"});
    PickByReturn(native, 1);
    Settle();
    EXPECT_EQ(window_.Recorder().Take(), std::vector<std::string>{"RowPicked#4(1)"});
  }
}

TEST_F(QtPeerTest, ARowThatTheControlTakesBackIsNotShown) {
  children_.RowList.Clicked.Connect([this] {
    if (children_.RowList.ListIndex() == 2) children_.RowList.ListIndex(0);
  });
  PickByMouse(As<QComboBox>(children_.RowList), 2);
  Settle();
  EXPECT_EQ(As<QComboBox>(children_.RowList).currentIndex(), 0);
}

TEST_F(QtPeerTest, TheOpenListShowsItsLongestRowWhole) {
  auto& native = As<QComboBox>(children_.RowList);
  const std::string text(30, 'm');
  children_.RowList.AddItem(text);
  native.showPopup();
  Settle();
  const int needed = QFontMetrics(native.view()->font()).horizontalAdvance(QString::fromStdString(text));
  EXPECT_GE(native.view()->viewport()->width(), needed);
  native.hidePopup();
}

TEST_F(QtPeerTest, UsesThePaletteUntilTheControlSetsAColour) {
  QPalette dark;
  dark.setColor(QPalette::WindowText, Qt::white);
  dark.setColor(QPalette::ButtonText, Qt::white);
  window_.Itself().setPalette(dark);
  QWidget& label = *NativeOf(children_.StatusLabel);
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::white));
  children_.StatusLabel.ForeColor(0x0000FF);
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::red));
  children_.StatusLabel.ForeColor(WindowTextColor);
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(QtPeerTest, AColourIsOfThatWidgetOnly) {
  const QColor before = NativeOf(children_.PanelButton)->palette().color(QPalette::Window);
  children_.ButtonPanel.BackColor(0x00FF00);
  EXPECT_EQ(NativeOf(children_.PanelButton)->palette().color(QPalette::Window), before);
  const QImage picture = NativeOf(children_.ButtonPanel)->grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() - 5, picture.height() - 5), QColor(0, 255, 0));
}

TEST_F(QtPeerTest, SubstitutesFontsThatAreNotInstalled) {
  QFont host = window_.Itself().font();
  host.setItalic(true);
  window_.Itself().setFont(host);
  QWidget& native = *NativeOf(children_.FirstButton);
  EXPECT_TRUE(native.font().italic());
  children_.FirstButton.Font({"Comic Sans MS", 8.25F, true});
  EXPECT_EQ(QFontInfo(native.font()).family(), "Comic Neue");
  EXPECT_EQ(native.font().pointSizeF(), 8.25);
  EXPECT_TRUE(native.font().bold());
  EXPECT_FALSE(native.font().italic());
  children_.FirstButton.Font({"MS Sans Serif", 12});
  EXPECT_EQ(QFontInfo(native.font()).family(), "Liberation Sans");
  children_.FirstButton.Font({});
  EXPECT_EQ(native.font(), host);
}

struct NameRow {
  const char* name;
  void (*prepare)(OuterProbe::ChildWidgets&);
  Widget& (*widget)(OuterProbe::ChildWidgets&);
  const char* says;
  const char* describes;
};

class QtAccessibleTest : public QtPeerTest, public testing::WithParamInterface<NameRow> {};

TEST_P(QtAccessibleTest, SaysAndDescribes) {
  const NameRow& row = GetParam();
  row.prepare(children_);
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(NativeOf(row.widget(children_)));
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), row.says);
  EXPECT_EQ(accessible->text(QAccessible::Description).toStdString(), row.describes);
}

using Children = OuterProbe::ChildWidgets;
INSTANTIATE_TEST_SUITE_P(
    Rows, QtAccessibleTest,
    testing::Values(
        NameRow{"Button", [](Children&) {}, [](Children& all) -> Widget& { return all.FirstButton; }, "First", ""},
        NameRow{"NewCaption",
                [](Children& all) {
                  all.FirstButton.Caption("&Hit && run");
                  all.FirstButton.ToolTipText("Take a card");
                },
                [](Children& all) -> Widget& { return all.FirstButton; }, "Hit & run", "Take a card"},
        NameRow{"NoCaption",
                [](Children& all) {
                  all.FirstButton.ToolTipText("Take a card");
                  all.FirstButton.Caption("");
                },
                [](Children& all) -> Widget& { return all.FirstButton; }, "Take a card", "Take a card"},
        NameRow{"Label", [](Children&) {}, [](Children& all) -> Widget& { return all.StatusLabel; }, "Ready", ""},
        NameRow{"List", [](Children&) {}, [](Children& all) -> Widget& { return all.RowList; }, "List", ""},
        NameRow{"ListWithToolTip", [](Children& all) { all.RowList.ToolTipText("Fruit"); },
                [](Children& all) -> Widget& { return all.RowList; }, "Fruit", "Fruit"}),
    RowName());

struct TextRow {
  const char* name;
  float width, height;
  const char* text;
};

class QtTextTest : public QtPeerTest, public testing::WithParamInterface<TextRow> {};

/// Draws the widget in red on white at a device pixel ratio and looks for ink at its outermost pixels.
bool TouchesTheEdge(QWidget& native, qreal ratio) {
  QImage image(native.size() * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  native.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  const auto inked = [&image](int x, int y) {
    const QColor color = image.pixelColor(x, y);
    return color.red() > color.blue() + 40;
  };
  for (int x = 0; x < image.width(); ++x) {
    if (inked(x, 0) || inked(x, image.height() - 1)) return true;
  }
  for (int y = 0; y < image.height(); ++y) {
    if (inked(0, y) || inked(image.width() - 1, y)) return true;
  }
  return false;
}

TEST_P(QtTextTest, IsNeverCut) {
  const TextRow& row = GetParam();
  for (const Font& font : {Font{}, Font{"Comic Sans MS", 8.25F}, Font{"MS Sans Serif", 18}}) {
    children_.FirstButton.Font(font);
    children_.StatusLabel.Font(font);
    children_.RowList.Font(font);
    children_.FirstButton.ForeColor(0x0000FF);
    children_.FirstButton.Place(0, 0, row.width, row.height);
    children_.FirstButton.Caption(row.text);
    children_.StatusLabel.ForeColor(0x0000FF);
    children_.StatusLabel.Place(0, 600, row.width, row.height);
    children_.StatusLabel.Caption(row.text);
    children_.RowList.Place(0, 2000, row.width + 450, row.height);
    children_.RowList.Text(row.text);
    auto& button = As<qt::PushButtonPeer>(children_.FirstButton);
    auto& label = As<qt::LabelPeer>(children_.StatusLabel);
    auto& list = As<qt::ListBoxPeer>(children_.RowList);
    EXPECT_TRUE(button.rect().contains(button.TextRect()));
    EXPECT_TRUE(label.rect().contains(label.TextRect()));
    EXPECT_TRUE(list.rect().contains(list.TextRect()));
    for (const qreal ratio : {1.0, 1.5, 2.0}) EXPECT_FALSE(TouchesTheEdge(button, ratio)) << ratio;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, QtTextTest,
    testing::Values(TextRow{"Short", 1200, 375, "&Hit"}, TextRow{"TwoLines", 1200, 600, "&Ask Kelvo for Advice"},
                    TextRow{"TooLong", 900, 375, "&Ask Kelvo for Advice"},
                    TextRow{"OneLongWord", 600, 375, "Surrendering"}, TextRow{"Narrow", 300, 1500, "Surrender"},
                    TextRow{"Long", 2400, 390, "07-08-2001 - the strategy with a very long description, present"},
                    TextRow{"Ampersands", 900, 375, "Hit && stand && split"},
                    TextRow{"NotLatin", 900, 375, "\xC3\x84rger \xC3\x9C\xC3\x9F"}),
    RowName());

TEST_F(QtPeerTest, TextIsNotMadeSmallerThanNeeded) {
  children_.FirstButton.Place(0, 0, 1800, 450);
  children_.FirstButton.Caption("&Hit");
  const QRect natural = QFontMetrics(NativeOf(children_.FirstButton)->font())
                            .boundingRect(QRect(0, 0, 500, 500), Qt::TextShowMnemonic, QStringLiteral("&Hit"));
  EXPECT_EQ(As<qt::PushButtonPeer>(children_.FirstButton).TextRect().height(), natural.height());
}

}  // namespace
}  // namespace tactix::tests
