// What becomes of texts and size hints when a host sets fonts.

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyList.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/OptionButtonPeer.h"
#include "tactix-qt/peers/PushButtonPeer.h"
#include "tactix/platform/MemoryBag.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

constexpr qreal Large = 20;

QFont Larger() {
  QFont font;
  font.setPointSizeF(Large);
  return font;
}

QWidget& CaptionOf(qt::AdviceButton& button) { return *NativeOf(button.control().Children.cmdAdviceButton); }
QWidget& NumberOf(qt::SpinCounter& counter) { return *NativeOf(counter.control().Children.labelCardsInStack); }

/// Not findChildren<P*>(), which takes every button of Qt's for a peer.
template <class P>
std::vector<P*> PeersIn(const QWidget& widget) {
  std::vector<P*> peers;
  for (QWidget* child : widget.findChildren<QWidget*>()) {
    if (auto* peer = dynamic_cast<P*>(child)) peers.push_back(peer);
  }
  return peers;
}

class ControlFontTest : public testing::TestWithParam<ControlClass> {};

TEST_P(ControlFontTest, TheHostsFontReachesEveryTextAndLeavesAgain) {
  const std::unique_ptr<qt::ControlWidget> widget = GetParam().Make();
  std::vector<QWidget*> texts;
  const auto collect = [&texts](auto peers) { texts.insert(texts.end(), peers.begin(), peers.end()); };
  collect(PeersIn<qt::LabelPeer>(*widget));
  collect(PeersIn<qt::ListBoxPeer>(*widget));
  collect(PeersIn<qt::PushButtonPeer>(*widget));
  collect(PeersIn<qt::OptionButtonPeer>(*widget));
  ASSERT_FALSE(texts.empty());
  std::vector<QFont> designed;
  for (const QWidget* text : texts) designed.push_back(text->font());
  widget->setFont(Larger());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i]->font().pointSizeF(), Large) << texts[i]->objectName().toStdString();
    EXPECT_EQ(texts[i]->font().family(), designed[i].family()) << "only the size was set";
    EXPECT_EQ(texts[i]->font().bold(), designed[i].bold());
  }
  QFont italic;
  italic.setItalic(true);
  widget->setFont(italic);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i]->font().pointSizeF(), designed[i].pointSizeF());
    EXPECT_TRUE(texts[i]->font().italic());
  }
  widget->setFont(QFont());
  for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(texts[i]->font(), designed[i]);
}

TEST_P(ControlFontTest, TheSizeHintFollowsTheLettersAndComesBack) {
  const std::unique_ptr<qt::ControlWidget> widget = GetParam().Make();
  const QSize usual = widget->sizeHint();
  for (int i = 0; i < 3; ++i) {
    widget->setFont(Larger());
    EXPECT_GE(widget->sizeHint().height(), usual.height() * 3 / 2);
    EXPECT_GE(widget->sizeHint().width(), usual.width() * 3 / 2);
    EXPECT_GE(widget->minimumSizeHint().height(), usual.height() * 3 / 4);
    widget->setFont(QFont());
    EXPECT_EQ(widget->sizeHint(), usual);
  }
  QFont small;
  small.setPointSizeF(6);
  widget->setFont(small);
  EXPECT_EQ(widget->sizeHint(), usual);
}

TEST_P(ControlFontTest, NoTextIsCutInALayout) {
  QWidget form;
  auto* const layout = new QHBoxLayout(&form);
  qt::ControlWidget* const widget = GetParam().make(&form);
  layout->addWidget(widget);
  form.setFont(Larger());
  form.adjustSize();
  form.show();
  Settle();
  const auto check = [widget](auto peers) {
    for (auto* peer : peers) {
      if (!peer->isVisible()) continue;
      EXPECT_TRUE(peer->rect().contains(peer->TextRect()) || peer->TextRect().isEmpty())
          << peer->objectName().toStdString();
    }
  };
  check(PeersIn<qt::LabelPeer>(*widget));
  check(PeersIn<qt::ListBoxPeer>(*widget));
  check(PeersIn<qt::PushButtonPeer>(*widget));
  check(PeersIn<qt::OptionButtonPeer>(*widget));
}

TEST_P(ControlFontTest, ListsAndSpinCountersAreFixedInHeight) {
  const std::set<std::string> fixed = {"BetStrategyList",    "ClumpCardList", "CountStrategyList", "SpinCounter",
                                       "CountValueSelector", "StrategyList",  "StrategyListLITE",  "UnitSelectionList"};
  QWidget form;
  auto* const layout = new QVBoxLayout(&form);
  qt::ControlWidget* const widget = GetParam().make(&form);
  layout->addWidget(widget);
  form.resize(700, 900);
  form.show();
  Settle();
  const bool isFixed = fixed.contains(GetParam().name);
  EXPECT_EQ(widget->sizePolicy().verticalPolicy() == QSizePolicy::Fixed, isFixed);
  if (isFixed) {
    EXPECT_EQ(widget->height(), widget->sizeHint().height());
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, ControlFontTest, testing::ValuesIn(ControlClasses()), RowName());

TEST(HostFontTest, MayBeSetAroundTheWidgetOrBeforeItIsThere) {
  QWidget window;
  window.setFont(Larger());
  qt::AdviceButton button(&window);
  EXPECT_EQ(CaptionOf(button).font().pointSizeF(), Large);
  EXPECT_EQ(CaptionOf(button).font().family(), QStringLiteral("Comic Sans MS"));
  window.setFont(QFont());
  EXPECT_EQ(CaptionOf(button).font().pointSizeF(), 9.75);
}

TEST(HostFontTest, LeavesAFontThatThePropertyHasSet) {
  qt::SpinCounter counter;
  QFont own(QStringLiteral("Liberation Sans"));
  own.setPointSizeF(15);
  counter.setControlFont(own);
  counter.setFont(Larger());
  EXPECT_EQ(NumberOf(counter).font().pointSizeF(), 15);
  EXPECT_EQ(NumberOf(counter).font().family(), QStringLiteral("Liberation Sans"));
}

TEST(HostFontTest, ReachesWhatIsRestoredWithoutAFontOfItsOwn) {
  qt::StrategyList list;
  MemoryBag empty;
  list.readProperties(empty);
  list.setFont(Larger());
  EXPECT_EQ(PeersIn<qt::ListBoxPeer>(list)[0]->font().pointSizeF(), Large);
}

TEST(HostFontTest, TheHintFollowsThePropertyAndTheApplicationToo) {
  qt::StrategyList list;
  const QSize usual = list.sizeHint();
  list.setControlFont(Larger());
  EXPECT_GE(list.sizeHint().height(), usual.height() * 3 / 2);
  qt::DecisionRegister scores;
  const QSize before = scores.sizeHint();
  const QFont application = QApplication::font();
  QFont large = application;
  large.setPointSizeF(Large);
  QApplication::setFont(large);
  EXPECT_GE(list.sizeHint().height(), usual.height() * 3 / 2);
  QApplication::setFont(application);
  EXPECT_EQ(scores.sizeHint(), before);
}

TEST(HostFontTest, AWidgetThatInsistsOnItsSizeSettles) {
  QWidget form;
  auto* const layout = new QHBoxLayout(&form);
  auto* const counter = new qt::SpinCounter(&form);
  layout->addWidget(counter);
  form.setFont(Larger());
  form.show();
  Settle();
  EXPECT_EQ(counter->size(), counter->sizeHint());
  EXPECT_EQ(counter->width(), 100) << "always";
  EXPECT_GE(counter->height(), 36);
}

}  // namespace
}  // namespace tactix::tests
