#include "tactix-qt/peers/ToolBarPeer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tactix-qt/DecisionBAR2.h"
#include "tactix/decision/private/DecisionToolButtons.h"
#include "tests/support/RowName.h"
#include "tests/tactix-qt/BarWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class QtToolBarTest : public testing::Test {
 protected:
  BarWindow window_;
};

TEST_F(QtToolBarTest, HasAnActionForEachButton) {
  const QList<QAction*> actions = window_.Bar().actions();
  ASSERT_EQ(actions.size(), static_cast<int>(std::size(DecisionToolButtons)));
  for (int i = 0; i < actions.size(); ++i) {
    const ToolButtonDesign& design = DecisionToolButtons[i];
    SCOPED_TRACE(std::string(design.key));
    EXPECT_EQ(actions[i], &window_.Action(design.key));
    EXPECT_EQ(actions[i]->isSeparator(), design.style == ToolButtonStyle::Separator);
    EXPECT_EQ(actions[i]->isCheckable(), design.style == ToolButtonStyle::Group);
    if (actions[i]->isSeparator()) continue;
    EXPECT_EQ(window_.Native(design.key).text().toStdString(), design.caption);
    EXPECT_EQ(window_.Native(design.key).toolTip().toStdString(), design.toolTip);
    EXPECT_EQ(actions[i]->text().toStdString(), design.toolTip) << "in the menu at the end";
  }
}

TEST_F(QtToolBarTest, FollowsAButtonAndLeavesTheOthers) {
  QAction& action = window_.Action("HitcardLow");
  QSignalSpy others(&window_.Action("HitcardMid"), &QAction::changed);
  ToolButton& button = window_.Button("HitcardLow");
  for (const bool on : {false, true}) {
    button.Visible(on);
    EXPECT_EQ(action.isVisible(), on);
    button.Enabled(on);
    EXPECT_EQ(window_.Native("HitcardLow").isEnabled(), on);
    button.Value(on);
    EXPECT_EQ(window_.Native("HitcardLow").isChecked(), on);
  }
  EXPECT_EQ(others.count(), 0);
  button.Value(false);
  EXPECT_FALSE(action.isChecked()) << "code may unpress all";
  window_.Button("Hit").Value(true);
  EXPECT_TRUE(window_.Native("Hit").isChecked());
  window_.Button("Hit").Value(false);
  EXPECT_FALSE(window_.Action("Hit").isCheckable());
}

TEST_F(QtToolBarTest, AClickIsReportedOnceAndAGroupButtonStaysPressed) {
  for (const char* key : {"Hit", "HolecardLow", "HolecardLow", "HolecardMid", "DealerStrengthWeak"}) {
    window_.ClickWithMouse(key);
    EXPECT_EQ(window_.Clicked(), Texts{key});
    EXPECT_EQ(window_.Native(key).isChecked(), window_.Button(key).Style() == ToolButtonStyle::Group);
  }
  EXPECT_FALSE(window_.Native("HolecardLow").isChecked());
  EXPECT_TRUE(window_.Native("HolecardMid").isChecked());
  EXPECT_TRUE(window_.Native("DealerStrengthWeak").isChecked());
}

TEST_F(QtToolBarTest, ShowsTextsAsTheyStand) {
  constexpr ToolButtonDesign Designs[] = {{"Both", "B & M", "Black & Mild", 0, ToolButtonStyle::Push},
                                          {"Caption", "Only", "", 0, ToolButtonStyle::Push}};
  ToolBar model;
  model.AddButtons(Designs);
  qt::ToolBarPeer peer(model, window_.Itself()->ItsSite(), nullptr);
  EXPECT_EQ(peer.actions()[0]->text(), QStringLiteral("Black && Mild")) << "no access key in the menu";
  EXPECT_EQ(peer.actions()[0]->toolTip(), QStringLiteral("Black & Mild"));
  EXPECT_EQ(peer.actions()[1]->text(), QStringLiteral("Only"));
  EXPECT_TRUE(peer.actions()[0]->icon().isNull());
}

struct AlignRow {
  const char* name;
  std::int32_t align;
  Qt::Orientation orientation;
  Qt::ToolButtonStyle style;
};

class QtToolBarAlignTest : public QtToolBarTest, public testing::WithParamInterface<AlignRow> {};

TEST_P(QtToolBarAlignTest, HasTheOrientationOfItsEdge) {
  const AlignRow& row = GetParam();
  window_.Model().Align(row.orientation == Qt::Vertical ? 1 : 3);
  window_.Model().Align(row.align);
  EXPECT_EQ(window_.Bar().orientation(), row.orientation);
  EXPECT_EQ(window_.Native("Hit").toolButtonStyle(), row.style);
}

INSTANTIATE_TEST_SUITE_P(Rows, QtToolBarAlignTest,
                         testing::Values(AlignRow{"None", 0, Qt::Horizontal, Qt::ToolButtonTextUnderIcon},
                                         AlignRow{"Top", 1, Qt::Horizontal, Qt::ToolButtonTextUnderIcon},
                                         AlignRow{"Bottom", 2, Qt::Horizontal, Qt::ToolButtonTextUnderIcon},
                                         AlignRow{"Left", 3, Qt::Vertical, Qt::ToolButtonTextBesideIcon},
                                         AlignRow{"Right", 4, Qt::Vertical, Qt::ToolButtonTextBesideIcon},
                                         AlignRow{"NoEdge", 5, Qt::Horizontal, Qt::ToolButtonTextUnderIcon}),
                         RowName());

struct RoomRow {
  const char* name;
  std::int32_t align;
  QSize size;
  int points;
  bool holdsAll;
};

class QtToolBarRoomTest : public QtToolBarTest, public testing::WithParamInterface<RoomRow> {};

TEST_P(QtToolBarRoomTest, CutsNoText) {
  const RoomRow& row = GetParam();
  window_.Model().Align(row.align);
  window_.Itself()->setFont(QFont(QStringLiteral("Liberation Sans"), row.points));
  window_.Window().resize(1200, 1000);
  window_.Resize(row.size.width(), row.size.height());
  window_.Model().Place(0, 0, static_cast<float>(row.size.width() * 15), static_cast<float>(row.size.height() * 15));
  Settle();
  int shown = 0;
  for (const ToolButtonDesign& design : DecisionToolButtons) {
    if (design.style == ToolButtonStyle::Separator) continue;
    const QToolButton& native = window_.Native(design.key);
    if (!native.isVisible()) continue;
    ++shown;
    EXPECT_GE(native.width(), native.sizeHint().width()) << design.key;
    EXPECT_GE(native.height(), native.sizeHint().height()) << design.key;
    EXPECT_TRUE(window_.Bar().rect().contains(native.geometry())) << design.key;
    EXPECT_TRUE(row.align != 3 || native.width() == window_.Native("Hit").width()) << "pictures below each other";
  }
  EXPECT_EQ(shown == 19, row.holdsAll) << shown;
  EXPECT_EQ(window_.More().isVisible(), !row.holdsAll);
  EXPECT_GT(shown, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtToolBarRoomTest,
    testing::Values(RoomRow{"AsDesigned", 1, {960, 60}, 10, true}, RoomRow{"Narrow", 1, {300, 60}, 10, false},
                    RoomRow{"Thin", 1, {960, 40}, 10, false}, RoomRow{"VeryThin", 1, {960, 28}, 10, false},
                    RoomRow{"LargeLetters", 1, {960, 60}, 20, false}, RoomRow{"Column", 3, {100, 700}, 10, true},
                    RoomRow{"ShortColumn", 3, {100, 200}, 10, false}, RoomRow{"ThinColumn", 3, {60, 700}, 10, false},
                    RoomRow{"VeryThinColumn", 3, {30, 900}, 10, true},
                    RoomRow{"ColumnOfLargeLetters", 3, {100, 400}, 24, false}),
    RowName());

TEST_F(QtToolBarTest, LettersGrowAgain) {
  const QFont before = window_.Native("Hit").font();
  const QSize pictures = window_.Bar().iconSize();
  window_.Model().Height(26 * 15);
  EXPECT_LT(window_.Native("Hit").font().pointSizeF(), before.pointSizeF());
  EXPECT_LT(window_.Bar().iconSize().width(), pictures.width());
  window_.Model().Height(60 * 15);
  EXPECT_EQ(window_.Native("Hit").font(), before);
  EXPECT_EQ(window_.Bar().iconSize(), pictures);
}

TEST_F(QtToolBarTest, EveryButtonOfANarrowBarCanBeClicked) {
  window_.Resize(250, 60);
  for (const bool byMouse : {true, false}) {
    for (const ToolButtonDesign& design : DecisionToolButtons) {
      if (design.style == ToolButtonStyle::Separator) continue;
      window_.Activate();
      if (byMouse) {
        ClickOnBar(window_.Bar(), window_.Action(design.key));
      } else {
        PressOnBar(window_.Bar(), window_.Action(design.key));
      }
      Settle();
      EXPECT_EQ(window_.Clicked(), Texts{std::string(design.key)}) << (byMouse ? "mouse" : "keys");
    }
  }
  EXPECT_FALSE(window_.More().isDown());
  EXPECT_TRUE(window_.Action("TensRatioHigh").isChecked());
  EXPECT_FALSE(window_.Action("TensRatioLow").isChecked());
}

TEST_F(QtToolBarTest, TheMenuAtTheEndClosesWithTheBar) {
  window_.Resize(250, 60);
  bool wasOpen = false;
  const auto hide = [&] {
    wasOpen = window_.More().menu()->isVisible();
    window_.Itself()->hide();
  };
  QObject::connect(window_.More().menu(), &QMenu::aboutToShow, &window_.More(),
                   [&] { QMetaObject::invokeMethod(&window_.More(), hide, Qt::QueuedConnection); });
  ClickAt(window_.Window(), ReachablePlace(window_.More()).value());
  Settle();
  EXPECT_TRUE(wasOpen);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(QtToolBarTest, AButtonsToolTipIsItsOwn) {
  qt::DecisionBAR2 other;
  other.show();
  for (const auto& [widget, text] : {std::pair<QWidget*, const char*>{&window_.Native("Hit"), "HIT: Draw another Card"},
                                     {&window_.Bar(), "Right-Click to bring up DecisionBAR Settings Menu"},
                                     {NativeOf(other.control().Children.DecisionToolBar), ""}}) {
    QToolTip::hideText();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(widget, &help);
    EXPECT_EQ(QToolTip::text().toStdString(), text);
  }
  QToolTip::hideText();
}

// Pictures.

QImage Drawn(QAction& action, QIcon::Mode mode = QIcon::Normal, qreal scale = 1) {
  return action.icon().pixmap(QSize(24, 24), scale, mode).toImage();
}

TEST_F(QtToolBarTest, PicturesFollowThePalette) {
  for (const ToolButtonDesign& design : DecisionToolButtons) {
    if (design.style == ToolButtonStyle::Separator) continue;
    SCOPED_TRACE(std::string(design.key));
    QPalette light;
    light.setColor(QPalette::ButtonText, Qt::black);
    light.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x99, 0x99, 0x99));
    window_.Itself()->setPalette(light);
    const QImage onLight = Drawn(window_.Action(design.key));
    const QImage grey = Drawn(window_.Action(design.key), QIcon::Disabled);
    QPalette dark = light;
    dark.setColor(QPalette::ButtonText, Qt::white);
    window_.Itself()->setPalette(dark);
    const QImage onDark = Drawn(window_.Action(design.key));
    int inked = 0;
    int differ = 0;
    for (int y = 0; y < onLight.height(); ++y) {
      for (int x = 0; x < onLight.width(); ++x) {
        EXPECT_EQ(onLight.pixelColor(x, y).alpha(), onDark.pixelColor(x, y).alpha());
        EXPECT_EQ(onLight.pixelColor(x, y).alpha(), grey.pixelColor(x, y).alpha());
        if (onLight.pixelColor(x, y).alpha() < 255) continue;
        ++inked;
        if (onLight.pixel(x, y) != onDark.pixel(x, y)) ++differ;
        EXPECT_EQ(grey.pixelColor(x, y), QColor(0x99, 0x99, 0x99));
      }
    }
    EXPECT_GT(inked, 20);
    EXPECT_GT(differ, 5);
    EXPECT_NE(onLight, grey);
  }
}

TEST_F(QtToolBarTest, TheButtonForMoreFollowsThePaletteAndTheOrientation) {
  QPalette dark;
  dark.setColor(QPalette::ButtonText, Qt::white);
  const auto picture = [this] { return window_.More().icon().pixmap(QSize(24, 24)).toImage(); };
  const QImage before = picture();
  window_.Itself()->setPalette(dark);
  const QImage right = picture();
  EXPECT_NE(right, before);
  window_.Model().Align(3);
  EXPECT_NE(picture(), right);
  window_.Model().Align(1);
  EXPECT_EQ(picture(), right);
}

TEST_F(QtToolBarTest, PicturesAreSharpAtEveryScale) {
  for (const qreal scale : {1.0, 1.5, 2.0}) {
    const QPixmap pixmap = window_.Action("Hit").icon().pixmap(QSize(24, 24), scale);
    EXPECT_EQ(pixmap.size(), QSize(24, 24) * scale);
    EXPECT_EQ(pixmap.devicePixelRatio(), scale);
  }
  const QImage twice = Drawn(window_.Action("Hit"), QIcon::Normal, 2);
  const QImage blownUp = Drawn(window_.Action("Hit")).scaled(twice.size());
  EXPECT_NE(twice.convertToFormat(QImage::Format_ARGB32), blownUp.convertToFormat(QImage::Format_ARGB32));
}

TEST_F(QtToolBarTest, PicturesDifferByShape) {
  const Texts oneOfEach = {"Hit",
                           "Stand",
                           "Split",
                           "Double",
                           "Surrender",
                           "Advice",
                           "HitcardLow",
                           "HolecardLow",
                           "TensRatioLow",
                           "DealerStrengthWeak",
                           "DealerStrengthStrong",
                           "ClumpStatistics"};
  for (const std::string& one : oneOfEach) {
    for (const std::string& other : oneOfEach) {
      const QImage a = Drawn(window_.Action(one)).convertToFormat(QImage::Format_Alpha8);
      const QImage b = Drawn(window_.Action(other)).convertToFormat(QImage::Format_Alpha8);
      EXPECT_EQ(a == b, one == other) << one << " and " << other;
    }
  }
}

// Screen readers.

struct ReadRow {
  const char* name;
  const char* key;
  const char* says;
  QAccessible::Role role;
  bool pressed;
  bool enabled;
};

class QtToolBarReaderTest : public QtToolBarTest, public testing::WithParamInterface<ReadRow> {};

TEST_P(QtToolBarReaderTest, HearsTheWholeButton) {
  const ReadRow& row = GetParam();
  window_.Button(row.key).Value(row.pressed);
  window_.Button(row.key).Enabled(row.enabled);
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&window_.Native(row.key));
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), row.says);
  EXPECT_EQ(accessible->role(), row.role);
  EXPECT_EQ(accessible->state().checkable, row.role == QAccessible::RadioButton);
  EXPECT_EQ(accessible->state().checked, row.pressed);
  EXPECT_EQ(accessible->state().disabled, !row.enabled);
  EXPECT_EQ(accessible->state().focusable, row.enabled);
  const QStringList actions = accessible->actionInterface()->actionNames();
  EXPECT_EQ(actions.contains(QAccessibleActionInterface::pressAction()), row.enabled);
  accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  Settle();
  EXPECT_EQ(window_.Clicked(), row.enabled ? Texts{row.key} : Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtToolBarReaderTest,
    testing::Values(ReadRow{"Push", "Hit", "HIT: Draw another Card", QAccessible::Button, false, true},
                    ReadRow{"Low", "HitcardLow", "Hitcard Prediction: LOW", QAccessible::RadioButton, false, true},
                    ReadRow{"OtherLow", "TensRatioLow", "Tens-Ratio is Low", QAccessible::RadioButton, false, true},
                    ReadRow{"Pressed", "HolecardMid", "Holecard Prediction: MID/Neutral", QAccessible::RadioButton,
                            true, true},
                    ReadRow{"Disabled", "Split", "SPLIT a PAIR of Cards", QAccessible::Button, false, false}),
    RowName());

TEST_F(QtToolBarTest, AReaderHearsOfTheBarAndOfMoreButtons) {
  qt::DecisionBAR2 other;
  for (const auto& [widget, role, name] :
       {std::tuple<QWidget*, QAccessible::Role, const char*>{&window_.Bar(), QAccessible::ToolBar, "Decision toolbar"},
        {NativeOf(other.control().Children.DecisionToolBar), QAccessible::ToolBar, "Decision toolbar"},
        {&window_.More(), QAccessible::ButtonMenu, "More buttons"}}) {
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
    EXPECT_EQ(accessible->role(), role);
    EXPECT_FALSE(accessible->state().checkable);
    EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), name);
  }
}

}  // namespace
}  // namespace tactix::tests
