// What users and hosts do to a decision toolbar, in any order and in the middle of each other, against a model.

#include <gtest/gtest.h>

#include <concepts>
#include <memory>
#include <string>
#include <vector>

#include "tests/decision/DecisionBarHost.h"
#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/support/RandomHost.h"

namespace tactix::tests {
namespace {

using Model = DecisionBarModel;

template <class Bar>
void ClickAButton(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  BarHost<Bar>& host = HostOf(anyHost);
  const std::size_t button = random.Below(Model::ButtonCount);
  const auto click = [&] { ButtonAt(StripOf(bar), button).Click(); };
  if (!CanReach(host, button)) return click();
  host.model.Click(button);
  const std::int16_t advice = host.model.advice;
  const bool flashes = button == Model::Advice && advice >= 1 && advice <= 5;
  flashes ? Flash(host, static_cast<std::size_t>(advice - 1), click) : click();
}

template <class Bar>
void SetAVisibility(RandomHost<Bar>& host, Bar& bar, SequenceRandom& random) {
  const std::size_t group = random.Below(Model::GroupCount);
  const Coded<ButtonStatusPossibilities> value = AnyStatus(random);
  HostOf(host).model.SetVisibility(group, value.Value());
  using Base = DecisionToolBarControl;
  static constexpr void (Base::*setters[])(Coded<ButtonStatusPossibilities>) = {
      &Base::HitcardButtonsVisibility, &Base::HolecardButtonsVisibility, &Base::TensRatioButtonVisibility,
      &Base::DealerStrengthButtonsVisibility, &Base::StatusButtonButtonVisibility};
  (bar.*setters[group])(value);
}

template <class Bar>
void PlugAGroup(RandomHost<Bar>& host, Bar& bar, SequenceRandom& random) {
  const std::size_t group = random.Below(Model::GroupCount);
  const Coded<ButtonStatusPossibilities> value = AnyStatus(random);
  HostOf(host).model.ShowGroup(group, value.Value());
  using Base = DecisionToolBarControl;
  static constexpr void (Base::*methods[])(const Coded<ButtonStatusPossibilities>&) = {
      &Base::PlugHitcardButtons, &Base::PlugHoleCardButtons, &Base::PlugTensRatioButtons,
      &Base::PlugDealerStrengthButtons, &Base::PlugStatusButton};
  (bar.*methods[group])(value);
}

template <class Bar>
void SetUpForAHand(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  Model& model = HostOf(anyHost).model;
  const auto block = AnyBarBlock(random);
  if (random.OneIn(3)) {
    PassingErrors([&] { model.SetUpPlays(*block); });
    return bar.SetupPlayButtons(block);
  }
  PassingErrors([&] { model.SetUp(*block); });
  bar.SetupDecisionBAR(block, nullptr);
}

template <class Bar>
void SetUpFromABlock(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  Model& model = HostOf(anyHost).model;
  DecisionBlock block = FullBlock();
  block.HardTotal(static_cast<std::int16_t>(random.Between(-5, 30)));
  block.StrategyAdvice(static_cast<std::int16_t>(random.Between(-1, 6)));
  block.ManualPlayerRestrictions(random.OneIn(2));
  block.SplitIsValid(random.OneIn(2));
  block.SoftDoubleIsValid(random.OneIn(2));
  ForeignBlock same(block);
  model.copiedTotal = block.HardTotal();
  model.SetUp(same);
  bar.SetupTheDecisionBAR(block);
}

/// A block that acts while it is read: the model cannot know what comes of it, but must agree again afterwards.
template <class Bar>
void SetUpFromABlockThatActs(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  BarHost<Bar>& host = HostOf(anyHost);
  const auto block = AnyBarBlock(random);
  block->OnRead = [&host](std::string_view) { host.MaybeInterfere(20); };
  PassingErrors([&] { bar.SetupTheDecisionBAR(block); });
  TakeEnabledStates(host);
  if (!host.Control()) return;
  host.model.heard = host.recorder.Take();
  host.model.expected = host.model.heard;
  host.model.copiedTotal = host.Control()->DecodedDCB().HardTotal();
  // The advice can be read in no other way.
  DecisionBlock known;
  ForeignBlock same(known);
  host.model.SetUp(same);
  host.Control()->SetupDecisionBAR(known, nullptr);
}

template <class Bar>
void Save(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom&) {
  BarHost<Bar>& host = HostOf(anyHost);
  const Model before = host.model;
  const std::uint32_t controls = host.controls;
  host.model.ReadStatus();
  MemoryPropertyBag bag;
  bar.WriteProperties(bag);
  if (bag.Read("Alignment") != 2) host.ReportWrong("the docking that was saved");
  for (std::size_t group = 0; group < 4; ++group) {
    if (bag.Read(Model::GroupAt(group).notice) != before.visibility[group]) {
      host.ReportWrong(std::string("what was saved as ") + Model::GroupAt(group).notice);
    }
  }
  const bool isThere = host.Control() && host.controls == controls;
  if (isThere && bag.Read("StatusButtonVisibility", 5) != 0) host.ReportWrong("the status that was saved");
}

template <class Bar>
void Restore(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  BarHost<Bar>& host = HostOf(anyHost);
  MemoryPropertyBag bag;
  const auto saved = [&](const char* name, std::int32_t missing) {
    if (random.OneIn(4)) return missing;
    const std::int32_t value = AnyStatus(random);
    bag.Write(name, value);
    return value;
  };
  for (std::size_t group = 0; group < Model::GroupCount; ++group) {
    host.model.visibility[group] = saved(Model::GroupAt(group).notice, 0);
  }
  host.model.alignment = saved("Alignment", 2);
  host.model.Expect("Alignment");
  const std::uint32_t controls = host.controls;
  host.Site().UserMode(!random.OneIn(4));
  bar.ReadProperties(bag);
  // The docking's notice comes before the toolbar is placed.
  if (!host.Control() || host.controls != controls) return;
  host.model.stripShown = host.Site().UserMode();
  if (bar.Extender().Left() != 0 || bar.Extender().Top() != 0) host.ReportWrong("its place after reading");
}

template <class Bar>
void PressTheMouse(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  BarHost<Bar>& host = HostOf(anyHost);
  Widget& widget = random.OneIn(2) ? static_cast<Widget&>(bar.Extender()) : StripOf(bar);
  const MouseState mouse = AnyMouse(random);
  const std::vector<MenuEntry*> settings = SettingsOf(bar);
  if (!settings.empty() && widget.Usable() && (mouse.button & RightButton) != 0) {
    const std::size_t group = random.Below(Model::GroupCount);
    MenuEntry& entry = *settings[group];
    host.Site().ScriptMenu([&host, &entry, group](Menu& menu) {
      const Weak<Menu> open(menu);
      host.MaybeInterfere(4);
      if (!open || !menu.IsOpen()) return;
      host.model.Choose(group);
      entry.Choose();
    });
  }
  widget.MouseDown(mouse);
}

template <class Bar>
void ResetPredictions(RandomHost<Bar>& anyHost, Bar& bar, SequenceRandom& random) {
  Model& model = HostOf(anyHost).model;
  switch (random.Below(4)) {
    case 0:
      model.Reset();
      return bar.ResetYourResponseData();
    case 1:
      if (model.resets) model.Reset();
      return bar.GetReadyForADecision();
    case 2:
      model.resets = random.OneIn(2);
      return bar.ResetPredictionButtons(model.resets);
    default:
      if constexpr (std::same_as<Bar, DecisionBAR2>) {
        const bool hitCard = random.OneIn(2);
        model.Unpress(hitCard ? 0 : 1);
        hitCard ? bar.ResetTheHitcardPredictionButtons() : bar.ResetTheHoleCardPredictionButtons();
      }
  }
}

/// Counts an operation before it runs.
template <class Bar, void (*Run)(RandomHost<Bar>&, Bar&, SequenceRandom&)>
void Counted(RandomHost<Bar>& host, Bar& bar, SequenceRandom& random) {
  ++HostOf(host).turns;
  Run(host, bar, random);
}

template <class Bar>
std::vector<typename RandomHost<Bar>::Operation> BarOperations() {
  using Host = RandomHost<Bar>;
  return {
      {"click", 60, Counted<Bar, ClickAButton<Bar>>},
      {"visibility", 12, Counted<Bar, SetAVisibility<Bar>>},
      {"plug", 8, Counted<Bar, PlugAGroup<Bar>>},
      {"show all", 6,
       [](Host& host, Bar& bar, SequenceRandom&) {
         ++HostOf(host).turns;
         Model& model = HostOf(host).model;
         for (std::size_t group = 0; group < Model::GroupCount; ++group) model.ShowGroup(group, 1);
         bar.PlugHitcardButtons(1);
         bar.PlugHoleCardButtons(2);
         bar.PlugTensRatioButtons(3);
         bar.PlugDealerStrengthButtons(-4);
         bar.PlugStatusButton(5);
       }},
      {"read the status", 3,
       [](Host& host, Bar& bar, SequenceRandom&) {
         ++HostOf(host).turns;
         HostOf(host).model.ReadStatus();
         if (bar.StatusButtonButtonVisibility() != 0) host.ReportWrong("the status reads as another number than 0");
       }},
      {"dock", 3,
       [](Host& host, Bar& bar, SequenceRandom& random) {
         ++HostOf(host).turns;
         Model& model = HostOf(host).model;
         model.alignment = random.Between(-1, 6);
         model.Expect("Alignment");
         bar.Alignment(model.alignment);
       }},
      {"set up", 10, Counted<Bar, SetUpForAHand<Bar>>},
      {"set up from a block", 10, Counted<Bar, SetUpFromABlock<Bar>>},
      {"set up from a block that acts", 4, Counted<Bar, SetUpFromABlockThatActs<Bar>>},
      {"edition", 2,
       [](Host& host, Bar& bar, SequenceRandom& random) {
         ++HostOf(host).turns;
         const Variant value = AnyValue(random);
         PassingErrors([&] { HostOf(host).model.ReadEdition(value); });
         bar.TheKelvoEditionIs(std::make_shared<PropertyObject>("thisKelvoEdition", value));
       }},
      {"reset", 8, Counted<Bar, ResetPredictions<Bar>>},
      {"flash a button", 2,
       [](Host& host, Bar& bar, SequenceRandom& random) {
         ++HostOf(host).turns;
         const std::size_t button = random.Below(6);
         Flash(HostOf(host), button, [&] { bar.FlashObject(ButtonAt(StripOf(bar), button).Handle()); });
       }},
      {"change the mode", 2,
       [](Host& host, Bar& bar, SequenceRandom& random) {
         host.Site().UserMode(!random.OneIn(4));
         HostOf(host).model.stripShown = host.Site().UserMode();
         bar.AmbientChanged();
       }},
      {"wait", 1,
       [](Host& host, Bar& bar, SequenceRandom& random) {
         ++HostOf(host).turns;
         bar.BlinkTime(static_cast<float>(random.Between(-1, 5)) / 10);
       }},
      {"press the mouse", 12, Counted<Bar, PressTheMouse<Bar>>},
      {"save", 4, Counted<Bar, Save<Bar>>},
      {"restore", 3, Counted<Bar, Restore<Bar>>},
      {"let time pass", 4,
       [](Host& host, Bar&, SequenceRandom& random) { host.Site().Advance(random.Between(0, 500)); }},
      {"interfere later", 4, [](Host& host, Bar&, SequenceRandom& random) { host.InterfereLater(random); }},
      {"resize", 1,
       [](Host&, Bar& bar, SequenceRandom& random) {
         bar.Extender().Width(static_cast<float>(random.Between(0, 9000)));
         bar.Extender().Height(static_cast<float>(random.Between(0, 3000)));
       }},
      {"show", 2, [](Host&, Bar& bar, SequenceRandom& random) { bar.Extender().Visible(!random.OneIn(4)); }},
      {"enable", 2, [](Host&, Bar& bar, SequenceRandom& random) { bar.Extender().Enabled(!random.OneIn(4)); }},
      {"focus", 1, [](Host&, Bar& bar, SequenceRandom&) { bar.Extender().SetFocus(); }},
      {"end", 1,
       [](Host& host, Bar& bar, SequenceRandom&) {
         if constexpr (std::same_as<Bar, DecisionBAR2>) HostOf(host).model.copiedTotal = 0;
         bar.Terminated();
       }},
      {"destroy", 1, [](Host& host, Bar&, SequenceRandom&) { host.DestroyControl(); }},
      {"destroy the window", 1, [](Host& host, Bar&, SequenceRandom&) { host.DestroyWindow(); }},
  };
}

template <class Bar>
void PrepareBar(RandomHost<Bar>& anyHost, Bar& bar) {
  BarHost<Bar>& host = HostOf(anyHost);
  host.model = Model();
  host.model.stripShown = host.Site().UserMode();
  ++host.controls;
  host.recorder.Forget();
  host.recorder.Watch(bar.Events.All());
  host.Site().OnPropertyChanged([&host](std::string_view name) {
    host.recorder.Note(std::string(name));
    host.MaybeInterfere(8);
  });
  InterfereFromHandlers(anyHost, bar);
}

template <class Bar>
std::string CheckBar(BarHost<Bar>& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  if (!host.Control()) return {};
  Bar& bar = *host.Control();
  Model& model = host.model;
  for (std::size_t i = 0; i < Model::ButtonCount; ++i) {
    const ToolButton& button = ButtonAt(StripOf(bar), i);
    if (button.Visible() != model.shown[i]) return button.Key() + " is " + (button.Visible() ? "shown" : "hidden");
    if (button.Enabled() != model.enabled[i]) return button.Key() + " is " + (button.Enabled() ? "on" : "off");
    if (button.Value() != model.pressed[i]) return button.Key() + " is " + (button.Value() ? "pressed" : "not pressed");
  }
  if (RecordOf(bar) != model.record) return "the record";
  const std::int32_t visibility[] = {bar.HitcardButtonsVisibility().Value(), bar.HolecardButtonsVisibility().Value(),
                                     bar.TensRatioButtonVisibility().Value(),
                                     bar.DealerStrengthButtonsVisibility().Value()};
  for (std::size_t group = 0; group < std::size(visibility); ++group) {
    if (visibility[group] != model.visibility[group]) return Model::GroupAt(group).notice;
  }
  const std::vector<MenuEntry*> settings = SettingsOf(bar);
  for (std::size_t i = 0; i < settings.size(); ++i) {
    if (settings[i]->Checked() != model.checked[i]) return settings[i]->Caption();
  }
  if (settings.empty() && !host.Site().PopUps().empty()) return "a menu has opened";
  if (bar.Alignment() != model.alignment) return "the docking";
  if (bar.thisKelvoEdition() != model.edition) return "the edition code";
  if (bar.ResetPredictionButtons() != model.resets) return "whether predictions are reset";
  if (bar.DecodedDCB().HardTotal() != model.copiedTotal) return "the copied block";
  if (StripOf(bar).Visible() != model.stripShown || bar.Children.DecisionBAR_ID.Visible() == model.stripShown) {
    return "the toolbar and its name";
  }
  for (std::string& each : host.recorder.Take()) model.heard.push_back(std::move(each));
  if (model.heard != model.expected) {
    return "heard " + std::to_string(model.heard.size()) + " events and notices, not the " +
           std::to_string(model.expected.size()) + " expected; the last is " +
           (model.heard.empty() ? "none" : model.heard.back());
  }
  model.heard.clear();
  model.expected.clear();
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  if (!host.Site().Errors().empty()) return "a user's error " + std::to_string(host.Site().Errors()[0].Code());
  return {};
}

template <class Bar>
class DecisionBarRandomTest : public DecisionToolBarFixture<Bar> {};
TYPED_TEST_SUITE(DecisionBarRandomTest, BothDecisionBars);

TYPED_TEST(DecisionBarRandomTest, StaysAsItsModelSaysWhateverHappens) {
  EXPECT_TRUE(RunAtRandom<BarHost<TypeParam>>(BarOperations<TypeParam>(), PrepareBar<TypeParam>, CheckBar<TypeParam>));
}

}  // namespace
}  // namespace tactix::tests
