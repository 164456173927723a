// What users and hosts do to a decision box and to an advice button, in any order and in the middle of each other.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionStates.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/ForeignBlock.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

constexpr std::int32_t Keys[] = {'H', 's', 'P',       'd', 'G',          'T',         'O',
                                 'A', 'X', ReturnKey, ' ', FunctionKey1, DownArrowKey};

KeyPress AnyKey(SequenceRandom& random) {
  return {Keys[random.Below(std::size(Keys))], static_cast<std::int16_t>(random.OneIn(2) ? random.Below(8) : 0)};
}

/// The operations that both controls have.
template <class C>
std::vector<typename RandomHost<C>::Operation> CommonOperations() {
  using Host = RandomHost<C>;
  return {
      {"press a key", 12, [](Host& host, C&, SequenceRandom& random) { host.Site().PressKey(AnyKey(random)); }},
      {"let time pass", 4, [](Host& host, C&, SequenceRandom& random) { host.Site().Advance(random.Between(0, 500)); }},
      {"interfere later", 3, [](Host& host, C&, SequenceRandom& random) { host.InterfereLater(random); }},
      {"interfere in menus", 3, [](Host& host, C&, SequenceRandom&) { host.InterfereInMenus(); }},
      {"wait", 1,
       [](Host&, C& control, SequenceRandom& random) {
         control.BlinkTime(static_cast<float>(random.Between(-1, 5)) / 10);
       }},
      {"flash an object", 1,
       [](Host& host, C& control, SequenceRandom& random) {
         const auto element = std::make_shared<PropertyObject>("Visible", true);
         if (!random.OneIn(4)) element->Set("DEFAULT", false);
         element->OnUse = [&host](const std::string&) { host.MaybeInterfere(8); };
         control.FlashObject(element);
       }},
      {"flash itself", 1, [](Host&, C& control, SequenceRandom&) { control.FlashObject(control.Handle()); }},
      {"resize", 1,
       [](Host&, C& control, SequenceRandom& random) {
         control.Extender().Width(static_cast<float>(random.Between(0, 9000)));
       }},
      {"show", 1, [](Host&, C& control, SequenceRandom& random) { control.Extender().Visible(!random.OneIn(3)); }},
      {"enable", 1, [](Host&, C& control, SequenceRandom& random) { control.Extender().Enabled(!random.OneIn(3)); }},
      {"focus", 2, [](Host&, C& control, SequenceRandom&) { control.Extender().SetFocus(); }},
      {"destroy", 1, [](Host& host, C&, SequenceRandom&) { host.DestroyControl(); }},
      {"destroy the window", 1, [](Host& host, C&, SequenceRandom&) { host.DestroyWindow(); }},
  };
}

template <class C>
std::vector<typename RandomHost<C>::Operation> With(std::vector<typename RandomHost<C>::Operation> own) {
  for (const auto& operation : CommonOperations<C>()) own.push_back(operation);
  return own;
}

void AddRows(AdviceButton& button) {
  for (const char* row : {"Empty Seat", "Zero", "Not Present", "Two"}) button.Children.StrategyListBox.AddItem(row);
}

void PickAStrategy(AdviceButton& button, SequenceRandom& random) {
  button.Children.StrategyListBox.Children.StrategyListBox.PickRow(random.Between(-1, 4));
}

void UseStrategies(AdviceButton& button, SequenceRandom& random) {
  button.AdviceStrategyList(std::make_shared<FakeCollection>(AnyValue(random)));
}

std::string CheckTheAdviceButton(const AdviceButton& button) {
  int checked = 0;
  for (const MenuEntry& entry : button.Children.mnuButtonBlink) checked += entry.Checked() ? 1 : 0;
  if (checked != 1) return std::to_string(checked) + " blink modes are checked";
  const ListBox& list = button.Children.StrategyListBox.Children.StrategyListBox;
  if (list.ListIndex() < -1 || list.ListIndex() >= list.ListCount()) return "the list's row";
  if (button.Children.mnuAdviceOptions.IsOpen()) return "the advice menu is still open";
  if (button.Children.cmdAdviceButton.Width() != button.Extender().Width()) return "the advice button's width";
  if (button.Enabled() != button.Children.cmdAdviceButton.DEFAULT()) return "enabled is not the default flag";
  return {};
}

// The advice button.

using AdviceHost = RandomHost<AdviceButton>;

const std::vector<AdviceHost::Operation> AdviceOperations = With<AdviceButton>({
    {"click", 10, [](AdviceHost&, AdviceButton& button, SequenceRandom&) { button.Children.cmdAdviceButton.Click(); }},
    {"press the mouse", 10,
     [](AdviceHost&, AdviceButton& button, SequenceRandom& random) {
       button.Children.cmdAdviceButton.MouseDown(AnyMouse(random));
     }},
    {"pick", 8, [](AdviceHost&, AdviceButton& button, SequenceRandom& random) { PickAStrategy(button, random); }},
    {"strategies", 1, [](AdviceHost&, AdviceButton& button, SequenceRandom& random) { UseStrategies(button, random); }},
    {"blink", 2, [](AdviceHost&, AdviceButton& button, SequenceRandom&) { button.BlinkIfNecessary(); }},
    {"enabled", 2, [](AdviceHost&, AdviceButton& button, SequenceRandom& random) { button.Enabled(random.OneIn(2)); }},
    {"caption", 1, [](AdviceHost&, AdviceButton& button, SequenceRandom&) { button.Caption("&Ask"); }},
});

void PrepareAdvice(AdviceHost& host, AdviceButton& button) {
  AddRows(button);
  button.Events.AdviceStrategySelected.Connect([&host, &button](const Variant&) {
    if (button.Children.StrategyListBox.Extender().Visible()) host.ReportWrong("the list is open after a pick");
  });
  InterfereFromHandlers(host, button);
}

std::string CheckAdvice(AdviceHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  if (!host.Control()) return {};
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  if (!host.Site().Errors().empty()) return "a user's error " + std::to_string(host.Site().Errors()[0].Code());
  return CheckTheAdviceButton(*host.Control());
}

TEST(RandomOperationsTest, AnAdviceButtonStaysInOrderWhateverHappens) {
  EXPECT_TRUE(RunAtRandom<AdviceHost>(AdviceOperations, PrepareAdvice, CheckAdvice));
}

// The decision box.

using BoxHost = RandomHost<Decision>;

ObjectRef AnyBlock(BoxHost& host, SequenceRandom& random) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  for (std::uint32_t changes = random.Below(3); changes > 0; --changes) {
    const auto field = static_cast<BlockField>(random.Below(BlockFieldNames.size()));
    random.OneIn(4) ? block->Remove(field) : block->Set(field, AnyValue(random));
  }
  block->OnRead = [&host](std::string_view) { host.MaybeInterfere(60); };
  return block;
}

DecisionBlock AnyDecisionBlock(SequenceRandom& random) {
  DecisionBlock block;
  const auto flag = [&] { return random.OneIn(2); };
  block.PlayerName(flag() ? "Ann" : "Somebody with quite a long name, so that texts have to grow");
  block.MidCardsAre("7, 8 or 9");
  block.HardTotal(static_cast<std::int16_t>(random.Between(-5, 30)));
  block.SoftTotal(static_cast<std::int16_t>(random.Between(-5, 30)));
  block.ManualPlayerRestrictions(flag());
  block.SplitIsValid(flag());
  block.HardDoubleIsValid(flag());
  block.SoftDoubleIsValid(flag());
  block.SurrenderIsValid(flag());
  block.PlayingLogEnabled(flag());
  block.StrategyAdvice(static_cast<std::int16_t>(random.Between(-1, 6)));
  return block;
}

Widget& AnyChild(Decision& box, SequenceRandom& random) {
  Decision::ChildWidgets& w = box.Children;
  Widget* const widgets[] = {
      &w.HitButton,   &w.StandButton,  &w.SplitButton, &w.DoubleButton,      &w.SurrenderButton,
      &w.cmdHoleCard, &w.cmdTensRatio, &w.cmdOptions,  &w.ManualPlayButtons, &w.AdviceButton.Children.cmdAdviceButton};
  return *widgets[random.Below(std::size(widgets))];
}

std::int16_t Any16(SequenceRandom& random) { return static_cast<std::int16_t>(random.Between(-2, 7)); }

const std::vector<BoxHost::Operation> BoxOperations = With<Decision>({
    {"click", 25,
     [](BoxHost&, Decision& box, SequenceRandom& random) {
       Widget& child = AnyChild(box, random);
       if (child.Kind() == WidgetKind::PushButton) static_cast<PushButton&>(child).Click();
     }},
    {"press the mouse", 15,
     [](BoxHost&, Decision& box, SequenceRandom& random) { AnyChild(box, random).MouseDown(AnyMouse(random)); }},
    {"move the mouse", 25,
     [](BoxHost&, Decision& box, SequenceRandom& random) { AnyChild(box, random).MouseMove(AnyMouse(random)); }},
    {"focus a child", 6, [](BoxHost&, Decision& box, SequenceRandom& random) { AnyChild(box, random).SetFocus(); }},
    {"pick", 4,
     [](BoxHost&, Decision& box, SequenceRandom& random) { PickAStrategy(box.Children.AdviceButton, random); }},
    {"set up", 12,
     [](BoxHost&, Decision& box, SequenceRandom& random) { box.SetupTheDecisionBox(AnyDecisionBlock(random)); }},
    {"set up from an object", 8,
     [](BoxHost& host, Decision& box, SequenceRandom& random) { box.SetupTheDecisionBox(AnyBlock(host, random)); }},
    {"set up with an edition", 3,
     [](BoxHost& host, Decision& box, SequenceRandom& random) {
       const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 3);
       edition->OnUse = [&host](const std::string&) { host.MaybeInterfere(3); };
       edition->OnCall = [](std::string_view, std::span<Variant>) {};
       box.SetupDecisionBox(AnyBlock(host, random), edition);
       std::int16_t flag = 0;
       if (Decision* still = host.Control()) still->Show(flag);
     }},
    {"edition", 2,
     [](BoxHost&, Decision& box, SequenceRandom& random) {
       box.TheKelvoEditionIs(std::make_shared<PropertyObject>("thisKelvoEdition", AnyValue(random)));
     }},
    {"plays", 2,
     [](BoxHost& host, Decision& box, SequenceRandom& random) { box.SetupPlayButtons(AnyBlock(host, random)); }},
    {"copy", 2, [](BoxHost& host, Decision& box, SequenceRandom& random) { box.HereIsTheDCB(AnyBlock(host, random)); }},
    {"box type", 6,
     [](BoxHost&, Decision& box, SequenceRandom& random) { box.DecisionBoxType(random.OneIn(3) ? Any16(random) : 1); }},
    {"allow advice", 4, [](BoxHost&, Decision& box, SequenceRandom& random) { box.AllowAdvice(Any16(random)); }},
    {"give advice", 3, [](BoxHost&, Decision& box, SequenceRandom& random) { box.GiveAdvice(Any16(random)); }},
    {"prompt", 5, [](BoxHost&, Decision& box, SequenceRandom&) { box.DiddleThePromptShit(); }},
    {"prompt the block", 1,
     [](BoxHost&, Decision& box, SequenceRandom& random) { box.PromptThePlayButtons(random.OneIn(2)); }},
    {"describe", 2,
     [](BoxHost&, Decision& box, SequenceRandom& random) {
       box.SetDescriptionBoxState(1, Any16(random), Any16(random), "Hit");
     }},
    {"decide", 1, [](BoxHost&, Decision& box, SequenceRandom&) { box.DecisionMade(); }},
    {"predict", 1, [](BoxHost&, Decision& box, SequenceRandom& random) { box.PredictTheHitCard(Any16(random)); }},
    {"consider", 2, [](BoxHost&, Decision& box, SequenceRandom&) { box.HandleAdviceConsiderations(); }},
    {"flash a child", 2,
     [](BoxHost&, Decision& box, SequenceRandom& random) { box.FlashObject(AnyChild(box, random).Handle()); }},
    {"hide a child", 1,
     [](BoxHost&, Decision& box, SequenceRandom& random) { AnyChild(box, random).Visible(random.OneIn(2)); }},
    {"disable a child", 1,
     [](BoxHost&, Decision& box, SequenceRandom& random) { AnyChild(box, random).Enabled(random.OneIn(2)); }},
    {"center", 1, [](BoxHost&, Decision& box, SequenceRandom&) { box.CenterYourSelf(); }},
    {"read", 1,
     [](BoxHost&, Decision& box, SequenceRandom&) {
       MemoryPropertyBag bag;
       box.ReadProperties(bag);
     }},
});

void PrepareBox(BoxHost& host, Decision& box) {
  box.DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
  AddRows(box.Children.AdviceButton);
  for (const DecisionPlay& play : DecisionPlays) {
    (box.Events.*play.event).Connect([&host, &box] {
      if (box.Children.picDecision.Visible()) host.ReportWrong("the description is shown after a decision");
      if (!box.Children.lblUserControlCaption.Caption().empty()) host.ReportWrong("the prompt stands after a decision");
    });
  }
  const auto neverRaised = [&host] { host.ReportWrong("raised what the box never raises"); };
  box.Events.PlugPromptPlayHands.Connect(neverRaised);
  box.Events.Show.Connect(neverRaised);
  InterfereFromHandlers(host, box);
}

std::string CheckBox(BoxHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  const Decision* const box = host.Control();
  if (!box) return {};
  const Decision::ChildWidgets& w = box->Children;
  if (!PromptOnIsChecked(*box) && !PromptOffIsChecked(*box)) return "not exactly one prompt entry is checked";
  if (!AtMostOneIsDefault(w.HitButton, w.StandButton, w.SplitButton, w.DoubleButton, w.SurrenderButton, w.cmdHoleCard,
                          w.cmdTensRatio, w.cmdOptions, w.AdviceButton.Children.cmdAdviceButton)) {
    return "more than one default button";
  }
  if (w.mnuHoleCard.IsOpen() || w.mnuTensRatio.IsOpen() || w.mnuOptions.IsOpen()) return "a menu is still open";
  if (box->Extender().Children().size() != 6) return "an element has gone";
  if (box->PlayButtonPromptStatus() != box->DecodedDCB().PromptPlayButtons()) return "the prompt status";
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  if (!host.Site().Errors().empty()) return "a user's error " + std::to_string(host.Site().Errors()[0].Code());
  return CheckTheAdviceButton(w.AdviceButton);
}

TEST(RandomOperationsTest, ADecisionBoxStaysInOrderWhateverHappens) {
  EXPECT_TRUE(RunAtRandom<BoxHost>(BoxOperations, PrepareBox, CheckBox));
}

}  // namespace
}  // namespace tactix::tests
