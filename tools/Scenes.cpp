#include "tools/Scenes.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <algorithm>
#include <string_view>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "trainer/screens/TrainerWindow.h"

namespace tactix::tools {

namespace {

using WidgetRef = std::unique_ptr<QWidget>;

constexpr std::uint64_t Seed = 7;
constexpr QSize TrainerSize(960, 820);

/// A list of the scene of that name, opened.
WidgetRef MakeOpen(std::string_view name) {
  const std::span<const Scene> scenes = ControlScenes();
  WidgetRef list =
      std::find_if(scenes.begin(), scenes.end(), [&](const Scene& each) { return each.name == name; })->make();
  list->show();
  list->findChild<QComboBox*>()->showPopup();
  return list;
}

WidgetRef MakeStrategyListOpen() { return MakeOpen("strategy-list-choice"); }

WidgetRef MakeBetStrategyListOpen() { return MakeOpen("bet-strategy-list"); }

WidgetRef MakeCountStrategyListOpen() { return MakeOpen("count-strategy-list"); }

std::unique_ptr<trainer::screens::TrainerWindow> MakeDealtTrainer() {
  auto window = std::make_unique<trainer::screens::TrainerWindow>(
      trainer::engine::Session({}, Seed), std::make_shared<companion::IniStrategyCatalogue>(
                                              companion::DefaultStrategies(), companion::DefaultStrategiesName));
  window->resize(TrainerSize);
  window->Deal();
  return window;
}

WidgetRef MakeTrainer() { return MakeDealtTrainer(); }

WidgetRef MakeTrainerWithResult() {
  auto window = MakeDealtTrainer();
  window->show();
  while (!window->CurrentSession().IsOver()) window->Box().control().Children.HitButton.Click();
  return window;
}

template <trainer::screens::InputKind Kind>
WidgetRef MakeTrainerWith() {
  companion::Install();
  auto window = MakeDealtTrainer();
  window->PlayWith(Kind);
  window->show();
  for (const char* key : {"HitcardLow", "DealerStrengthWeak"}) {
    window->ToolBar().Bar().control().Children.DecisionToolBar.Button(key).Click();
  }
  // The trainer reads the toolbar's predictions after each mouse or key event.
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &release);
  return window;
}

constexpr Scene OtherScenes[] = {
    {"strategy-list-open", MakeStrategyListOpen},
    {"bet-strategy-list-open", MakeBetStrategyListOpen},
    {"count-strategy-list-open", MakeCountStrategyListOpen},
    {"trainer", MakeTrainer},
    {"trainer-result", MakeTrainerWithResult},
    {"trainer-toolbar", MakeTrainerWith<trainer::screens::InputKind::ToolBar>},
    {"trainer-legend", MakeTrainerWith<trainer::screens::InputKind::ToolBarAndLegend>},
};

}  // namespace

std::vector<Scene> Scenes() {
  const std::span<const Scene> controls = ControlScenes();
  std::vector<Scene> all(controls.begin(), controls.end());
  all.insert(all.end(), std::begin(OtherScenes), std::end(OtherScenes));
  return all;
}

}  // namespace tactix::tools
