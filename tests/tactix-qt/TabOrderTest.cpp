#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringList>

#include "tactix-qt/Decision.h"
#include "tactix-qt/HitStandLegend.h"

namespace tactix::qt {
namespace {

TEST(TabOrderTest, TabGoesThroughTheDecisionBoxAsOneReads) {
  Decision box;
  box.DecisionBoxType(Decision::forUseWithBlackjackTable);
  box.SetupTheDecisionBox(DecisionBlock());
  box.show();
  box.activateWindow();
  auto* const first = box.findChild<QWidget*>(QStringLiteral("HitButton"));
  ASSERT_NE(first, nullptr);
  first->setFocus();
  QStringList visited;
  for (int i = 0; i < 9; ++i) {
    QWidget* const focused = box.window()->focusWidget();
    ASSERT_NE(focused, nullptr);
    visited << focused->objectName();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focused, &tab);
    QApplication::processEvents();
  }
  EXPECT_EQ(visited.join(QLatin1Char(' ')).toStdString(),
            "HitButton StandButton SplitButton DoubleButton SurrenderButton cmdAdviceButton cmdHoleCard cmdTensRatio "
            "cmdOptions");
}

TEST(TabOrderTest, TheLegendIsOneStopThatTakesItsLetters) {
  QWidget window;
  QLineEdit before(&window);
  HitStandLegend legend(&window);
  QLineEdit after(&window);
  int hits = 0;
  QObject::connect(&legend, &HitStandLegend::HitWasSelected, &window, [&hits] { ++hits; });
  window.show();
  window.activateWindow();
  before.setFocus();
  const auto press = [&window](int key, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(window.focusWidget(), &event);
    QApplication::processEvents();
  };
  press(Qt::Key_Tab);
  EXPECT_TRUE(legend.isAncestorOf(window.focusWidget()));
  press(Qt::Key_H, QStringLiteral("h"));
  EXPECT_EQ(hits, 1);
  press(Qt::Key_Tab);
  EXPECT_EQ(window.focusWidget(), &after);
}

}  // namespace
}  // namespace tactix::qt
