// What a screen reader finds in the controls' widgets, in process.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QTimer>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/HitStandLegend.h"
#include "tactix-qt/MenuPopUp.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/StrategyList.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

QAccessibleInterface* AccessibleOf(QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); }
QAccessibleInterface* AccessibleOf(const Widget& widget) { return AccessibleOf(*NativeOf(widget)); }
std::string NameOf(QAccessibleInterface& node) { return node.text(QAccessible::Name).toStdString(); }

/// All nodes in a node that a user can see, itself included, as a reader walks through them.
void ListVisible(QAccessibleInterface& node, std::vector<QAccessibleInterface*>& nodes) {
  if (node.state().invisible) return;
  nodes.push_back(&node);
  for (int i = 0; i < node.childCount(); ++i) {
    QAccessibleInterface* const child = node.child(i);
    ASSERT_NE(child, nullptr) << NameOf(node) << ", child " << i;
    EXPECT_EQ(child->parent(), &node) << NameOf(*child);
    EXPECT_EQ(node.indexOfChild(child), i) << NameOf(*child);
    ListVisible(*child, nodes);
  }
}

std::vector<QAccessibleInterface*> VisibleNodesOf(QWidget& widget) {
  std::vector<QAccessibleInterface*> nodes;
  ListVisible(*AccessibleOf(widget), nodes);
  return nodes;
}

/// The nodes of a role, by their names.
Texts NamesOf(QWidget& widget, QAccessible::Role role) {
  Texts names;
  for (QAccessibleInterface* node : VisibleNodesOf(widget)) {
    if (node->role() == role) names.push_back(NameOf(*node));
  }
  return names;
}

void Press(QAccessibleInterface& node) {
  node.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  Settle();
}

// Every control.

struct ClassRow {
  const char* name;
  const char* says;
  /// The element that does what the control is for, besides the control itself.
  QAccessible::Role role;
  const char* element;
};

/// A control in a host's window, with all that a host can show of it.
class ShownControl {
 public:
  explicit ShownControl(const char* name) : widget_(*ControlClassOf(name).make(&window_)) {
    hooks_.Install();
    widget_.show();
    window_.resize(900, 400);
    window_.show();
    window_.activateWindow();
    Settle();
    if (auto* box = qobject_cast<qt::Decision*>(&widget_)) {
      box->DecisionBoxType(qt::Decision::forUseWithBlackjackTable);
      DecisionBlock block;
      block.PlayerName("Ann");
      block.HardTotal(16);
      box->SetupTheDecisionBox(block);
    }
    if (auto* button = qobject_cast<qt::AdviceButton*>(&widget_)) {
      button->control().Children.mnuSelectStrategy.Chosen.Raise();
    }
    if (auto* list = qobject_cast<qt::StrategyList*>(&widget_)) list->LoadStrategiesFromIniFile();
    Settle();
  }

  qt::ControlWidget& Itself() { return widget_; }

 private:
  EmptyHooks hooks_;
  QWidget window_;
  qt::ControlWidget& widget_;
};

class QtAccessibilityTest : public testing::TestWithParam<ClassRow> {
 protected:
  ShownControl shown_{GetParam().name};
  qt::ControlWidget& widget_ = shown_.Itself();
};

constexpr auto List = QAccessible::ComboBox;
const ClassRow Rows[] = {
    {"AdviceButton", "Advice", QAccessible::Button, "Ask Kelvo for Advice"},
    {"BetStrategyList", "Betting strategy", List, "Betting strategy"},
    {"CardCountDisplayBox", "Count", QAccessible::StaticText, "-99"},
    {"ClumpCardList", "Clump value", List, "Clump value of ace"},
    {"CountStrategyList", "Count system", List, "Count system"},
    {"CountValueSelector", "Point value", List, "Point value of ace"},
    {"Decision", "Decision", QAccessible::Button, "HIT"},
    {"DecisionBAR", "Decision toolbar", QAccessible::ToolBar, "Decision toolbar"},
    {"DecisionBAR2", "Decision toolbar", QAccessible::ToolBar, "Decision toolbar"},
    {"DecisionRegiLOG", "Decision log", QAccessible::AlertMessage, "What Ya' Shoulda Done!..."},
    {"DecisionRegister", "Decision register", QAccessible::StaticText, "Decisions:"},
    {"DualCardCountDisplay", "Counts", QAccessible::StaticText, "Running Count -99"},
    {"HitStandLegend", "Legend of plays", QAccessible::Button, "Hit, H"},
    {"SpinCounter", "Counter", QAccessible::SpinBox, "Counter"},
    {"StrategyDataPanel", "Strategy information", QAccessible::StaticText, "Break % NN.N%"},
    {"StrategyList", "Strategy", List, "Strategy"},
    {"StrategyListLITE", "Strategy", List, "Strategy"},
    {"StrategyMarquix", "Strategy of a seat", List, "Strategy"},
    {"UnitSelectionList", "Units", List, "Units"},
};

TEST(QtAccessibilityTableTest, HasEveryControl) {
  std::set<std::string> named;
  for (const ClassRow& row : Rows) named.insert(row.name);
  for (const ControlClass& each : ControlClasses()) EXPECT_TRUE(named.contains(each.name)) << each.name;
  EXPECT_EQ(named.size(), 19U);
}

TEST_P(QtAccessibilityTest, IsAGroupThatIsCalledInPlainWords) {
  QAccessibleInterface* const node = AccessibleOf(widget_);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->role(), QAccessible::Grouping);
  EXPECT_EQ(NameOf(*node), GetParam().says);
  EXPECT_EQ(widget_.accessibleName(), QString()) << "the property is the host's";
}

TEST_P(QtAccessibilityTest, HasAnElementOfAFittingRole) {
  const Texts names = NamesOf(widget_, GetParam().role);
  EXPECT_NE(std::find(names.begin(), names.end(), GetParam().element), names.end())
      << testing::PrintToString(names) << " " << GetParam().element;
}

TEST_P(QtAccessibilityTest, EveryVisibleNodeHasANameThatIsNoIdentifier) {
  std::set<std::string> identifiers;
  for (const QObject* each : widget_.findChildren<QObject*>()) identifiers.insert(each->objectName().toStdString());
  static const QRegularExpression letters(QStringLiteral("[A-Za-z0-9]"));
  const std::vector<QAccessibleInterface*> nodes = VisibleNodesOf(widget_);
  EXPECT_GT(nodes.size(), 1U);
  for (QAccessibleInterface* node : nodes) {
    const std::string name = NameOf(*node);
    EXPECT_TRUE(node->text(QAccessible::Name).contains(letters)) << node->object()->objectName().toStdString();
    EXPECT_EQ(name.find('_'), std::string::npos) << name;
    EXPECT_FALSE(identifiers.contains(name)) << name;
  }
}

TEST_P(QtAccessibilityTest, LinesAndPicturesAreHidden) {
  std::set<const QObject*> found;
  for (QAccessibleInterface* node : VisibleNodesOf(widget_)) found.insert(node->object());
  const std::function<void(const Widget&)> check = [&](const Widget& widget) {
    const bool decorates = widget.Kind() == WidgetKind::Line || widget.Kind() == WidgetKind::Picture;
    if (decorates) {
      EXPECT_FALSE(found.contains(NativeOf(widget))) << widget.Name();
      EXPECT_TRUE(AccessibleOf(widget)->state().invisible) << widget.Name();
    }
    for (const Widget* child : widget.Children()) check(*child);
  };
  check(widget_.Hosted()->Extender());
}

TEST_P(QtAccessibilityTest, TheHostsNameWinsAndStays) {
  widget_.setAccessibleName(QStringLiteral("Seat 3"));
  std::vector<QWidget*> parts;
  for (QAccessibleInterface* node : VisibleNodesOf(widget_)) {
    auto* const part = qobject_cast<QWidget*>(node->object());
    if (part && part != &widget_) parts.push_back(part);
  }
  for (std::size_t i = 0; i < parts.size(); ++i) parts[i]->setAccessibleName(QStringLiteral("Part %1").arg(i));
  const std::function<void(Widget&)> change = [&change](Widget& widget) {
    widget.ToolTipText("another tool tip");
    const bool hasCaption = widget.Kind() == WidgetKind::Label || widget.Kind() == WidgetKind::PushButton ||
                            widget.Kind() == WidgetKind::OptionButton || widget.Kind() == WidgetKind::Panel ||
                            widget.Kind() == WidgetKind::Frame;
    if (hasCaption) static_cast<Captioned&>(widget).Caption("another caption");
    for (Widget* child : widget.Children()) change(*child);
  };
  change(widget_.Hosted()->Extender());
  EXPECT_EQ(NameOf(*AccessibleOf(widget_)), "Seat 3");
  for (std::size_t i = 0; i < parts.size(); ++i) {
    EXPECT_EQ(NameOf(*AccessibleOf(*parts[i])), "Part " + std::to_string(i));
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, QtAccessibilityTest, testing::ValuesIn(Rows), RowName());

TEST(QtAccessibleNameTest, AListIsCalledAsItsHostCallsTheControl) {
  ShownControl shown("CountValueSelector");
  shown.Itself().setAccessibleName(QStringLiteral("Weight"));
  static_cast<qt::CountValueSelector&>(shown.Itself()).control().CardValue(10);
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::ComboBox), Texts{"Weight of ten"});
}

TEST(QtAccessibleNameTest, ALabelBesideAControlNamesIt) {
  QWidget window;
  QLabel label(QStringLiteral("&Burnt cards"), &window);
  qt::SpinCounter counter(&window);
  label.setBuddy(&counter);
  EXPECT_EQ(NameOf(*AccessibleOf(counter)), "Burnt cards");
  EXPECT_EQ(NameOf(*AccessibleOf(counter.control().Children.SpinButton)), "Burnt cards");
}

// The decision box.

TEST(QtAccessibleDecisionTest, ExposesItsPromptAndItsPlaysInReadingOrder) {
  ShownControl shown("Decision");
  const std::string prompt =
      static_cast<qt::Decision&>(shown.Itself()).control().Children.lblUserControlCaption.Caption();
  EXPECT_NE(prompt.find("Ann"), std::string::npos);
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::AlertMessage), Texts{prompt});
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::Grouping), (Texts{"Decision", "Plays", "Advice"}));
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::Button),
            (Texts{"HIT", "Stand", "SPLIT", "DOUBLE", "Surrender", "Ask Kelvo for Advice", "HoleCard", "Tens-Ratio",
                   "Options"}));
}

TEST(QtAccessibleDecisionTest, TheFocusOfTheBoxAsAWholeIsHeardUnderItsName) {
  ShownControl shown("Decision");
  shown.Itself().setFocus();
  Settle();
  QAccessibleInterface* const focused = AccessibleOf(*QApplication::focusWidget());
  EXPECT_EQ(NameOf(*focused), "Decision");
  EXPECT_EQ(focused->role(), QAccessible::Grouping);
  EXPECT_FALSE(focused->state().invisible);
  EXPECT_TRUE(AccessibleOf(shown.Itself())->state().focused);
}

TEST(QtAccessibleDecisionTest, AReaderPressesAPlayAndKnowsItsShortcut) {
  ShownControl shown("Decision");
  auto& box = static_cast<qt::Decision&>(shown.Itself());
  int stands = 0;
  box.control().Events.PlayerStands.Connect([&stands] { ++stands; });
  Press(*AccessibleOf(box.control().Children.StandButton));
  EXPECT_EQ(stands, 1);
  EXPECT_EQ(AccessibleOf(box.control().Children.cmdTensRatio)->text(QAccessible::Accelerator), "Alt+T");
}

TEST(QtAccessibleDecisionTest, AReaderFindsAnOpenMenuAndChoosesFromIt) {
  ShownControl shown("Decision");
  auto& box = static_cast<qt::Decision&>(shown.Itself());
  int predictions = 0;
  Texts entries;
  box.control().Events.WholeCardLoPrediction.Connect([&predictions] { ++predictions; });
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    QAccessibleInterface* const menu = AccessibleOf(box)->child(AccessibleOf(box)->childCount() - 1);
    if (menu->role() != QAccessible::PopupMenu) return;
    look.stop();
    EXPECT_EQ(NameOf(*menu), "Hole Card");
    for (int i = 0; i < menu->childCount(); ++i) {
      if (menu->child(i)->role() == QAccessible::MenuItem) entries.push_back(NameOf(*menu->child(i)));
    }
    menu->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  });
  look.start(0);
  Press(*AccessibleOf(box.control().Children.cmdHoleCard));
  EXPECT_EQ(entries.size(), 4U) << testing::PrintToString(entries);
  EXPECT_EQ(predictions, 1);
  EXPECT_EQ(qt::MenuPopUp::OpenOn(box.ItsSite()), nullptr);
}

// The legend.

TEST(QtAccessibleLegendTest, IsOneElementForEachPlay) {
  ShownControl shown("HitStandLegend");
  const Texts plays = {"Hit, H", "Stand, S", "Split, P", "Double, D", "Surrender, G"};
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::Button), plays);
  EXPECT_EQ(VisibleNodesOf(shown.Itself()).size(), 6U);
  Texts raised;
  auto& events = static_cast<qt::HitStandLegend&>(shown.Itself()).control().Events;
  events.SplitWasSelected.Connect([&raised] { raised.emplace_back("split"); });
  events.HitWasSelected.Connect([&raised] { raised.emplace_back("hit"); });
  for (QAccessibleInterface* node : VisibleNodesOf(shown.Itself())) {
    if (node->role() != QAccessible::Button) continue;
    EXPECT_TRUE(node->state().focusable);
    Press(*node);
  }
  EXPECT_EQ(raised, (Texts{"hit", "split"}));
}

TEST(QtAccessibleLegendTest, ArrowKeysReachItsPlaysAndSpaceAndEnterPressThem) {
  ShownControl shown("HitStandLegend");
  QWidget& window = *shown.Itself().window();
  Texts raised;
  auto& events = static_cast<qt::HitStandLegend&>(shown.Itself()).control().Events;
  events.HitWasSelected.Connect([&raised] { raised.emplace_back("hit"); });
  events.StandWasSelected.Connect([&raised] { raised.emplace_back("stand"); });
  events.DoubleWasSelected.Connect([&raised] { raised.emplace_back("double"); });
  events.SurrenderWasSelected.Connect([&raised] { raised.emplace_back("surrender"); });
  shown.Itself().setFocus();
  struct Step {
    int key;
    const char* focused;
  };
  for (const Step& step : std::initializer_list<Step>{{Qt::Key_Down, "Hit, H"},
                                                      {Qt::Key_Up, "Hit, H"},
                                                      {Qt::Key_Down, "Stand, S"},
                                                      {Qt::Key_Space, "Stand, S"},
                                                      {Qt::Key_End, "Surrender, G"},
                                                      {Qt::Key_Down, "Surrender, G"},
                                                      {Qt::Key_Return, "Surrender, G"},
                                                      {Qt::Key_D, "Surrender, G"},
                                                      {Qt::Key_Home, "Hit, H"}}) {
    PressKey(window, step.key);
    Settle();
    QAccessibleInterface* const focused = AccessibleOf(*window.focusWidget());
    EXPECT_EQ(NameOf(*focused), step.focused);
    EXPECT_TRUE(focused->state().focused);
  }
  EXPECT_EQ(raised, (Texts{"stand", "surrender", "double"}));
}

// The spin counter.

TEST(QtAccessibleCounterTest, SaysItsNumberAndItsLimits) {
  ShownControl shown("SpinCounter");
  auto& counter = static_cast<qt::SpinCounter&>(shown.Itself());
  counter.MaximumLimit(52);
  counter.CounterValue(17);
  QAccessibleInterface* const spin = AccessibleOf(counter.control().Children.SpinButton);
  QAccessibleValueInterface* const value = spin->valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->currentValue().toInt(), 17);
  EXPECT_EQ(value->minimumValue().toInt(), 0);
  EXPECT_EQ(value->maximumValue().toInt(), 52);
  EXPECT_EQ(value->minimumStepSize().toInt(), 1);
  EXPECT_EQ(spin->text(QAccessible::Value), "17");
  EXPECT_EQ(spin->childCount(), 0);
  counter.AllowNegNumbers(true);
  EXPECT_EQ(value->minimumValue().toInt(), -999);
}

TEST(QtAccessibleCounterTest, AReaderStepsAndSetsIt) {
  ShownControl shown("SpinCounter");
  auto& counter = static_cast<qt::SpinCounter&>(shown.Itself());
  counter.MaximumLimit(52);
  counter.CounterValue(17);
  QAccessibleInterface* const spin = AccessibleOf(counter.control().Children.SpinButton);
  const auto act = [spin](const QString& action) {
    spin->actionInterface()->doAction(action);
    Settle();
  };
  act(QAccessibleActionInterface::increaseAction());
  EXPECT_EQ(counter.CounterValue(), 18);
  act(QAccessibleActionInterface::decreaseAction());
  act(QAccessibleActionInterface::decreaseAction());
  EXPECT_EQ(counter.CounterValue(), 16);
  for (const int number : {30, 53, -1}) {
    spin->valueInterface()->setCurrentValue(number);
    Settle();
    EXPECT_EQ(counter.CounterValue(), 30) << number;
  }
  shown.Itself().setEnabled(false);
  EXPECT_FALSE(spin->actionInterface()->actionNames().contains(QAccessibleActionInterface::increaseAction()));
  act(QAccessibleActionInterface::increaseAction());
  spin->valueInterface()->setCurrentValue(31);
  Settle();
  EXPECT_EQ(counter.CounterValue(), 30);
}

TEST(QtAccessibleCounterTest, WithoutANumberItSaysNone) {
  EmptyHooks hooks;
  qt::SpinCounter counter;
  QAccessibleInterface* const spin = AccessibleOf(counter.control().Children.SpinButton);
  EXPECT_FALSE(spin->valueInterface()->currentValue().isValid());
}

// Lists.

TEST(QtAccessibleListTest, SaysWhatItShowsAndOpens) {
  ShownControl shown("StrategyList");
  auto& list = static_cast<qt::StrategyList&>(shown.Itself());
  QAccessibleInterface* const box = AccessibleOf(list.control().Children.StrategyListBox);
  list.control().Children.StrategyListBox.Text("none of the rows");
  EXPECT_EQ(box->text(QAccessible::Value), "none of the rows");
  EXPECT_EQ(box->childCount(), 0);
  EXPECT_TRUE(box->state().collapsed);
  Press(*box);
  EXPECT_TRUE(box->state().expanded);
  ASSERT_EQ(box->childCount(), 1);
  EXPECT_EQ(NameOf(*box->child(0)), "Strategy");
  EXPECT_EQ(box->child(0)->parent(), box);
  static_cast<QComboBox*>(NativeOf(list.control().Children.StrategyListBox))->hidePopup();
}

// What is read out at once. That events are sent cannot be seen here: offscreen, Qt sends none.

TEST(QtAnnouncementTest, PromptsAndVerdictsAreAlertsWhileTheySaySomething) {
  ShownControl decision("Decision");
  ShownControl log("DecisionRegiLOG");
  auto& box = static_cast<qt::Decision&>(decision.Itself());
  box.control().DecisionMade();
  EXPECT_EQ(NamesOf(box, QAccessible::AlertMessage), Texts{}) << "an empty line says nothing";
  static_cast<qt::DecisionRegiLOG&>(log.Itself()).control().AfterAdvice(AfterAdvicePossibilities::afterYouShouldaSplit);
  EXPECT_EQ(NamesOf(log.Itself(), QAccessible::AlertMessage), Texts{"You Shoulda Split"})
      << "the register's own line is out of sight";
}

TEST(QtAnnouncementTest, TheRegistersVerdictIsReadWithItsCaption) {
  ShownControl shown("DecisionRegister");
  auto& scores = static_cast<qt::DecisionRegister&>(shown.Itself()).control();
  scores.Extender().Height(1800);
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::AlertMessage), Texts{"Correct Desicion:"});
  scores.AfterAdvice(AfterAdvicePossibilities::afterYouShouldaStood);
  EXPECT_EQ(NamesOf(shown.Itself(), QAccessible::AlertMessage), Texts{"Correct Desicion: Stand"});
}

}  // namespace
}  // namespace tactix::tests
