#include "tactix-qt/DecisionBarDock.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QPointer>
#include <QTest>
#include <QToolBar>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix-qt/DecisionBAR.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix/platform/MemoryBag.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Bar = qt::DecisionToolBarControl;

struct Dockable {
  std::string name;
  Bar* (*make)();
};

class DecisionBarDockTest : public testing::TestWithParam<Dockable> {
 protected:
  DecisionBarDockTest() {
    window_->setCentralWidget(new QWidget);
    window_->resize(1000, 700);
    // A drop would else go on for a quarter of a second.
    window_->setAnimated(false);
  }
  ~DecisionBarDockTest() override {
    window_.reset();
    Settle();
  }

  void Dock() {
    tool_ = qt::DockIn(*window_, *bar_);
    QObject::connect(bar_, &qt::ControlWidget::propertyChanged, bar_, [this](const QString& name) {
      if (name == QStringLiteral("Alignment")) notices_.push_back(bar_->Alignment());
    });
    Settle();
  }
  void Show() {
    window_->show();
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_.get()));
    Settle();
  }
  Qt::ToolBarArea Area() const { return tool_->isWindow() ? Qt::NoToolBarArea : window_->toolBarArea(tool_); }
  std::vector<int> TakeNotices() { return std::exchange(notices_, {}); }
  /// Drags the toolbar by its handle to a place in the window.
  void DragTo(QPoint place) {
    const QPoint handle =
        tool_->orientation() == Qt::Horizontal ? QPoint(4, tool_->height() / 2) : QPoint(tool_->width() / 2, 4);
    const QPoint start = tool_->mapToGlobal(handle);
    const QPoint end = window_->mapToGlobal(place);
    const auto send = [this](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
      QMouseEvent event(type, tool_->mapFromGlobal(at), at, button, buttons, Qt::NoModifier);
      QApplication::sendEvent(tool_, &event);
      QApplication::processEvents();
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    for (const int tenth : {1, 3, 6, 9, 10}) {
      send(QEvent::MouseMove, start + (end - start) * tenth / 10, Qt::NoButton, Qt::LeftButton);
    }
    send(QEvent::MouseButtonRelease, end, Qt::LeftButton, Qt::NoButton);
    Settle();
  }

  std::unique_ptr<QMainWindow> window_ = std::make_unique<QMainWindow>();
  QPointer<Bar> bar_ = GetParam().make();
  QPointer<QToolBar> tool_;
  std::vector<int> notices_;
};

struct EdgeRow {
  Bar::DecisionBARAlignment alignment;
  Qt::ToolBarArea area;
};
constexpr EdgeRow Edges[] = {
    {Bar::DBAlignTop, Qt::TopToolBarArea},       {Bar::DBAlignLeft, Qt::LeftToolBarArea},
    {Bar::DBAlignNone, Qt::NoToolBarArea},       {Bar::DBAlignRight, Qt::RightToolBarArea},
    {Bar::DBAlignBottom, Qt::BottomToolBarArea}, {Bar::DecisionBARAlignment(7), Qt::NoToolBarArea},
    {Bar::DBAlignLeft, Qt::LeftToolBarArea}};

TEST_P(DecisionBarDockTest, BeginsAtTheEdgeThatTheBarNames) {
  for (const EdgeRow& edge : Edges) {
    bar_->setAlignment(edge.alignment);
    Dock();
    EXPECT_EQ(Area(), edge.area);
    Show();
    EXPECT_EQ(Area(), edge.area);
    EXPECT_TRUE(bar_->isVisible()) << edge.alignment;
    EXPECT_EQ(bar_->Alignment(), edge.alignment);
    bar_->setParent(nullptr);
    Settle();
    window_->hide();
  }
}

TEST_P(DecisionBarDockTest, FollowsTheAlignment) {
  Dock();
  Show();
  for (const EdgeRow& edge : Edges) {
    bar_->setAlignment(edge.alignment);
    EXPECT_EQ(Area(), edge.area) << edge.alignment;
    Settle();
    EXPECT_EQ(Area(), edge.area) << edge.alignment;
    EXPECT_TRUE(bar_->isVisible()) << edge.alignment;
    EXPECT_EQ(TakeNotices(), std::vector<int>{edge.alignment}) << "once, and not back and forth";
    const bool isColumn = edge.alignment == Bar::DBAlignLeft || edge.alignment == Bar::DBAlignRight;
    EXPECT_EQ(tool_->orientation(), isColumn ? Qt::Vertical : Qt::Horizontal) << edge.alignment;
    EXPECT_EQ(isColumn ? bar_->width() : bar_->height(), isColumn ? 100 : 60) << edge.alignment;
    if (Area() != Qt::NoToolBarArea) {
      EXPECT_GT(isColumn ? bar_->height() : bar_->width(), 500) << edge.alignment;
    }
  }
}

TEST_P(DecisionBarDockTest, TheAlignmentFollowsTheUser) {
  Dock();
  Show();
  DragTo(QPoint(window_->width() / 2, 5));
  EXPECT_EQ(Area(), Qt::TopToolBarArea);
  EXPECT_EQ(bar_->Alignment(), Bar::DBAlignTop);
  EXPECT_EQ(TakeNotices(), std::vector<int>{Bar::DBAlignTop}) << "only where it is dropped";
  DragTo(QPoint(5, window_->height() / 2));
  EXPECT_EQ(Area(), Qt::LeftToolBarArea);
  EXPECT_EQ(TakeNotices(), std::vector<int>{Bar::DBAlignLeft});
  EXPECT_EQ(bar_->width(), 100);
  DragTo(QPoint(window_->width() / 2, window_->height() / 2));
  EXPECT_TRUE(tool_->isFloating());
  EXPECT_EQ(TakeNotices(), std::vector<int>{Bar::DBAlignNone});
  EXPECT_EQ(bar_->height(), 60) << "a row again";
}

TEST_P(DecisionBarDockTest, TheMainWindowSaysWhereItMayGo) {
  Dock();
  tool_->setAllowedAreas(Qt::BottomToolBarArea);
  tool_->setFloatable(false);
  Show();
  DragTo(QPoint(5, window_->height() / 2));
  EXPECT_EQ(Area(), Qt::BottomToolBarArea);
  EXPECT_EQ(TakeNotices(), std::vector<int>{});
}

TEST_P(DecisionBarDockTest, TheAlignmentFollowsTheHost) {
  Dock();
  Show();
  window_->addToolBar(Qt::RightToolBarArea, tool_);
  Settle();
  EXPECT_EQ(TakeNotices(), std::vector<int>{Bar::DBAlignRight});
  const QByteArray state = window_->saveState();
  bar_->setAlignment(Bar::DBAlignTop);
  Settle();
  TakeNotices();
  EXPECT_TRUE(window_->restoreState(state));
  Settle();
  EXPECT_EQ(Area(), Qt::RightToolBarArea);
  EXPECT_EQ(TakeNotices(), std::vector<int>{Bar::DBAlignRight});
}

TEST_P(DecisionBarDockTest, ReadingSavedPropertiesLeavesTheBarInItsPlace) {
  bar_->setAlignment(Bar::DBAlignTop);
  Dock();
  Show();
  const QRect before = bar_->geometry();
  MemoryBag bag;
  bag.Write("Alignment", std::int32_t{2});
  bar_->readProperties(bag);
  Settle();
  EXPECT_EQ(Area(), Qt::BottomToolBarArea);
  EXPECT_EQ(bar_->geometry(), before);
  EXPECT_EQ(bar_->pos(), QPoint());
}

TEST_P(DecisionBarDockTest, WhatTheHostHasHiddenStaysHidden) {
  Dock();
  Show();
  tool_->hide();
  for (const EdgeRow& edge : Edges) {
    bar_->setAlignment(edge.alignment);
    Settle();
    EXPECT_FALSE(tool_->isVisible()) << edge.alignment;
  }
  tool_->show();
  EXPECT_TRUE(bar_->isVisible());
}

TEST_P(DecisionBarDockTest, GoesWithItsBar) {
  Dock();
  Show();
  delete bar_;
  Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(tool_.isNull());
}

TEST_P(DecisionBarDockTest, GoesWhenItsBarGetsAnotherParent) {
  Dock();
  Show();
  bar_->setParent(nullptr);
  bar_->setAlignment(Bar::DBAlignLeft);
  Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(tool_.isNull());
  ASSERT_FALSE(bar_.isNull());
  delete bar_;
}

TEST_P(DecisionBarDockTest, GoesWithItsWindow) {
  Dock();
  Show();
  bar_->setAlignment(Bar::DBAlignNone);
  window_.reset();
  Settle();
  EXPECT_TRUE(tool_.isNull());
  EXPECT_TRUE(bar_.isNull());
}

TEST_P(DecisionBarDockTest, AListenerMayDestroyItAll) {
  Dock();
  Show();
  QObject::connect(bar_, &qt::ControlWidget::propertyChanged, window_.get(), [this] { window_.reset(); });
  DragTo(QPoint(window_->width() / 2, 5));
  Settle();
  EXPECT_TRUE(bar_.isNull());
}

INSTANTIATE_TEST_SUITE_P(Bars, DecisionBarDockTest,
                         testing::Values(Dockable{"DecisionBAR2", []() -> Bar* { return new qt::DecisionBAR2; }},
                                         Dockable{"DecisionBAR", []() -> Bar* { return new qt::DecisionBAR; }}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
