#include "tests/support/RandomSequence.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"

namespace tactix::tests {
namespace {

/// Breaks after "open", then later "load" twice, whatever else is done.
struct Breakable {
  int stage = 0;
};

RandomSequence<Breakable> BreakableSequence() {
  RandomSequence<Breakable> sequence([] { return std::make_unique<Breakable>(); });
  sequence.Add("open", 1, [](Breakable& b, SequenceRandom&) { b.stage = std::max(b.stage, 1); });
  sequence.Add("load", 1, [](Breakable& b, SequenceRandom&) { b.stage += b.stage > 0 ? 1 : 0; });
  sequence.Add("idle", 20, [](Breakable&, SequenceRandom&) {});
  return sequence;
}

TEST(RandomSequenceTest, NamesTheSeedAndTheShortestSequenceThatFails) {
  auto sequence = BreakableSequence();
  sequence.Always([](Breakable& b) { return b.stage < 3 ? "" : "broken"; });
  const std::string message = sequence.Run(7, 1000).message();
  EXPECT_NE(message.find("broken\nseed 7, shrunk to 3 steps:\n  open ("), std::string::npos) << message;
  const std::size_t firstLoad = message.find("load");
  EXPECT_NE(message.find("load", firstLoad + 1), std::string::npos) << message;
  EXPECT_EQ(message.find("idle"), std::string::npos) << message;
}

TEST(RandomSequenceTest, AnExceptionIsAFailure) {
  auto sequence = BreakableSequence();
  sequence.Add("throw", 1, [](Breakable&, SequenceRandom&) { throw std::runtime_error("thrown"); });
  const std::string message = sequence.Run(7, 1000).message();
  EXPECT_NE(message.find("threw: thrown\nseed 7, shrunk to 1 steps:\n  throw ("), std::string::npos) << message;
}

TEST(RandomSequenceTest, RunsEveryOperationByItsWeightAndTheSameForTheSameSeed) {
  std::vector<int> counts(2);
  std::vector<std::uint32_t> drawn;
  RandomSequence<Breakable> sequence([] { return std::make_unique<Breakable>(); });
  sequence.Add("rare", 1, [&](Breakable&, SequenceRandom&) { ++counts[0]; });
  sequence.Add("often", 9, [&](Breakable&, SequenceRandom& random) {
    ++counts[1];
    drawn.push_back(random.Below(1000));
  });
  EXPECT_TRUE(sequence.Run(1, 10'000));
  EXPECT_EQ(counts[0] + counts[1], 10'000);
  EXPECT_NEAR(counts[0], 1000, 150);
  const std::vector<std::uint32_t> first = std::exchange(drawn, {});
  EXPECT_TRUE(sequence.Run(1, 10'000));
  EXPECT_EQ(drawn, first);
  drawn.clear();
  EXPECT_TRUE(sequence.Run(2, 10'000));
  EXPECT_NE(drawn, first);
}

TEST(RandomSequenceTest, NumbersAreTheSameEverywhere) {
  SequenceRandom random(0);
  EXPECT_EQ(random.Next(), 0xE220A8397B1DCDAFU);
  for (int i = 0; i < 100; ++i) {
    const std::int32_t drawn = random.Between(-2, 3);
    EXPECT_GE(drawn, -2);
    EXPECT_LE(drawn, 3);
  }
}

/// What must hold for the probe whatever was done to it.
std::string WhatIsWrong(HeadlessProbe& probe) {
  const ListBox& list = probe.Children().RowList;
  if (list.ListIndex() < -1 || list.ListIndex() >= list.ListCount()) return "no such row";
  if (list.ListIndex() >= 0 && list.List(list.ListIndex()) != list.Text()) return "the text is not the row's";
  const Widget* const focus = probe.site->Focus();
  if (focus && !focus->Usable()) return "the focus is on a widget that cannot be used";
  const PushButton* const buttons[] = {&probe.Children().FirstButton, &probe.Children().SecondButton,
                                       &probe.InnerChildren().InnerButton};
  int defaults = 0;
  for (const PushButton* button : buttons) defaults += button->DEFAULT() ? 1 : 0;
  if (defaults > 1) return "two default buttons";
  if (probe.Children().ProbeMenu.IsOpen()) return "the menu is still open";
  if (!probe.site->Errors().empty()) return "an error ended at the site";
  return {};
}

TEST(RandomOperationsTest, ThePlatformHoldsItsRules) {
  struct Fixture {
    HeadlessProbe probe;
    Widget& Any(SequenceRandom& random) {
      Widget* const widgets[] = {&probe.Children().FirstButton,      &probe.Children().SecondButton,
                                 &probe.Children().ButtonPanel,      &probe.Children().PanelButton,
                                 &probe.Children().RowList,          &probe.Children().Inner.Extender(),
                                 &probe.InnerChildren().InnerButton, &probe.InnerChildren().InnerList,
                                 &probe.outer->Extender(),           &probe.Children().StatusLabel};
      return *widgets[random.Below(10)];
    }
    PushButton& AnyButton(SequenceRandom& random) {
      PushButton* const buttons[] = {&probe.Children().FirstButton, &probe.Children().SecondButton,
                                     &probe.InnerChildren().InnerButton};
      return *buttons[random.Below(3)];
    }
  };
  RandomSequence<Fixture> sequence([] { return std::make_unique<Fixture>(); });
  using R = SequenceRandom;
  sequence.Add("show or hide", 4, [](Fixture& f, R& r) { f.Any(r).Visible(r.OneIn(2)); });
  sequence.Add("enable or disable", 4, [](Fixture& f, R& r) { f.Any(r).Enabled(r.OneIn(2)); });
  sequence.Add("focus", 4, [](Fixture& f, R& r) { f.Any(r).SetFocus(); });
  sequence.Add("order", 2, [](Fixture& f, R& r) { r.OneIn(2) ? f.Any(r).BringToFront() : f.Any(r).SendToBack(); });
  sequence.Add("click", 4, [](Fixture& f, R& r) { f.AnyButton(r).Click(); });
  sequence.Add("default", 2, [](Fixture& f, R& r) { f.AnyButton(r).DEFAULT(r.OneIn(2)); });
  sequence.Add("key", 6, [](Fixture& f, R& r) {
    const std::int32_t keys[] = {UpArrowKey, DownArrowKey, HomeKey, EndKey, ReturnKey, ' ', 'A', 'b', 'F', 'i'};
    f.probe.site->PressKey({keys[r.Below(10)], static_cast<std::int16_t>(r.Below(8))});
  });
  sequence.Add("pick", 3, [](Fixture& f, R& r) { f.probe.Children().RowList.PickRow(r.Between(-3, 9)); });
  sequence.Add("row", 3, [](Fixture& f, R& r) {
    ListBox& list = f.probe.Children().RowList;
    list.ListIndex(r.Between(-1, list.ListCount() - 1));
  });
  sequence.Add("text", 2, [](Fixture& f, R& r) { f.probe.Children().RowList.Text(r.OneIn(2) ? "apple" : "plum"); });
  sequence.Add("add", 2, [](Fixture& f, R& r) {
    ListBox& list = f.probe.Children().RowList;
    list.AddItem("fig", r.Between(0, list.ListCount()));
  });
  sequence.Add("clear", 1, [](Fixture& f, R&) { f.probe.Children().RowList.Clear(); });
  sequence.Add("menu", 1, [](Fixture& f, R& r) {
    MenuEntry* const entries[] = {&f.probe.Children().PlainEntry, &f.probe.Children().HiddenEntry,
                                  &f.probe.Children().DeepEntry};
    f.probe.site->ScriptMenu([entry = entries[r.Below(3)]](Menu&) { entry->Choose(); });
    f.probe.outer->PopUpMenu();
  });
  sequence.Add("wait", 1, [](Fixture& f, R& r) { f.probe.outer->WaitFor(r.Between(0, 50)); });
  sequence.Add("start again", 1, [](Fixture& f, R&) { f.probe.recorder.Forget(); });
  sequence.Always([](Fixture& f) { return WhatIsWrong(f.probe); });
  EXPECT_TRUE(sequence.Run(20261121, 100'000));
}

}  // namespace
}  // namespace tactix::tests
