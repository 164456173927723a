#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>

#include "tactix-qt/Decision.h"

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

}  // namespace
}  // namespace tactix::qt
