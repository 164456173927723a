#include "tactix-qt/peers/GroupBoxPeer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <algorithm>
#include <string>

#include "tactix-qt/CountValueSelector.h"
#include "tests/support-qt/Gestures.h"

namespace tactix::tests {
namespace {

class QtGroupBoxTest : public testing::Test {
 protected:
  QtGroupBoxTest() {
    selector_.show();
    Settle();
  }
  Frame& TheFrame() { return selector_.control().Children.fraPointValue; }
  QGroupBox& Box() { return *dynamic_cast<QGroupBox*>(NativeOf(TheFrame())); }
  static std::string NameOf(const Widget& widget) {
    return QAccessible::queryAccessibleInterface(NativeOf(widget))->text(QAccessible::Name).toStdString();
  }

  qt::CountValueSelector selector_;
};

TEST_F(QtGroupBoxTest, IsAGroupBoxAroundItsWidgets) {
  EXPECT_EQ(Box().title(), " Point-Value");
  EXPECT_EQ(NativeOf(selector_.control().Children.cmbPointValue)->parentWidget(), &Box());
  EXPECT_EQ(Box().parentWidget(), NativeOf(selector_.control().Children.panelPointValue));
  TheFrame().Caption("&Other");
  EXPECT_EQ(Box().title(), "&Other");
}

TEST_F(QtGroupBoxTest, IsCalledByItsCaptionAndItsListByTheControl) {
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Box())->role(), QAccessible::Grouping);
  EXPECT_EQ(NameOf(TheFrame()), "Point-Value");
  EXPECT_EQ(NameOf(selector_.control().Children.cmbPointValue), "Point value of ace");
  EXPECT_EQ(NameOf(selector_.control().Children.panelPointValue), "Point Value");
  EXPECT_EQ(NameOf(selector_.control().Children.lblCardValue), "A");
  selector_.control().Children.cmbPointValue.ToolTipText("The value of the card");
  EXPECT_EQ(NameOf(selector_.control().Children.cmbPointValue), "Point value of ace") << "that is its description";
}

TEST_F(QtGroupBoxTest, CoversThePanelsCaption) {
  Panel& panel = selector_.control().Children.panelPointValue;
  const QImage before = selector_.grab().toImage();
  panel.Caption("X");
  EXPECT_EQ(selector_.grab().toImage(), before);
  TheFrame().Visible(false);
  const QImage withX = selector_.grab().toImage();
  panel.Caption("");
  EXPECT_NE(selector_.grab().toImage(), withX) << "a caption that nothing covers is drawn";
}

TEST_F(QtGroupBoxTest, AColourIsOfTheBoxOnly) {
  const QColor before = NativeOf(selector_.control().Children.lblCardValue)->palette().color(QPalette::Window);
  TheFrame().BackColor(0x00FF00);
  EXPECT_EQ(NativeOf(selector_.control().Children.lblCardValue)->palette().color(QPalette::Window), before);
  const QImage picture = Box().grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() - 3, 3), QColor(0, 255, 0));
}

TEST_F(QtGroupBoxTest, ACaptionThatIsTooLongIsNotCut) {
  TheFrame().Caption("A caption that is much too long for its box");
  TheFrame().ForeColor(0x0000FF);
  const QImage picture = Box().grab().toImage();
  int right = 0;
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor color = picture.pixelColor(x, y);
      if (color.red() > color.green() + 40) right = std::max(right, x);
    }
  }
  EXPECT_GT(right, picture.width() * 3 / 4);
  EXPECT_LT(right, picture.width() - 1);
}

}  // namespace
}  // namespace tactix::tests
