// Random hosts hand random blocks to the data panel; a model says what stands on it.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "tactix/companion/StrategyDataBlock.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tests/support/FullDataBlock.h"
#include "tests/support/PictureModel.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

using companion::StrategyDataBlock;
using Host = RandomHost<StrategyDataPanel>;
using Widgets = StrategyDataPanel::ChildWidgets;

enum class Shown { Integer, Long, Clump, OneDecimal, TwoDigits, Stiff, Strong };

struct ModelField {
  Shown how;
  Label Widgets::*label;  // null: in the count display, or none
};
/// In order of DataFields.
constexpr ModelField ModelFields[] = {
    {Shown::Integer, nullptr},
    {Shown::Integer, nullptr},
    {Shown::Integer, &Widgets::datAces},
    {Shown::Integer, &Widgets::datFives},
    {Shown::Integer, &Widgets::dat10Count},
    {Shown::Long, &Widgets::datBiasRating},
    {Shown::Clump, &Widgets::datClumpType},
    {Shown::Integer, &Widgets::datCoreCards},
    {Shown::Long, &Widgets::datTargetRating},
    {Shown::OneDecimal, &Widgets::datDealerBreaks},
    {Shown::Integer, &Widgets::datAdjustedCount},
    {Shown::Stiff, nullptr},
    {Shown::Strong, &Widgets::datDealerStrength},
    {Shown::TwoDigits, &Widgets::datEndingTotal},
};

std::string ClumpText(std::int32_t clump) {
  if (clump < 4) return "Dealer +";
  if (clump < 7) return "Dealer -";
  if (clump == 7) return "Neutral ";
  return clump < 11 ? "Player -" : "Player +";
}

const Label& LabelOf(const StrategyDataPanel& panel, std::size_t field) {
  const DualCardCountDisplay::ChildWidgets& counts = panel.Children.CountDisplay.Children;
  if (field == 0) return counts.RunningCountDisplay.Children.labelCountValue;
  if (field == 1) return counts.TrueCountDisplay.Children.labelCountValue;
  return panel.Children.*ModelFields[field].label;
}

/// What the panel shows, by field; without the divisor.
using Texts = std::array<std::string, std::size(ModelFields)>;

Texts TextsOf(const StrategyDataPanel& panel) {
  Texts texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (ModelFields[i].how != Shown::Stiff) texts[i] = LabelOf(panel, i).Caption();
  }
  return texts;
}

/// What the seven digits of a single say.
double ReadBack(float value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", static_cast<double>(value));
  return std::strtod(text, nullptr);
}

/// Shows a block on the model; fails as the panel does, and leaves what came before.
void ShowOn(Texts& texts, Object& block) {
  float stiff = 0;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Variant value = block.Get(DataFields[i]);
    switch (ModelFields[i].how) {
      case Shown::Integer:
        texts[i] = std::to_string(value.ToInteger());
        break;
      case Shown::Long:
        texts[i] = std::to_string(value.ToLong());
        break;
      case Shown::Clump: {
        const std::int32_t clump = value.ToLong();
        if (clump < -32768 || clump > 32767) throw Error(Error::Overflow);
        texts[i] = ClumpText(clump);
        break;
      }
      case Shown::OneDecimal:
        texts[i] = PictureModel{1, 1}.Of(value.ToSingle());
        break;
      case Shown::TwoDigits:
        texts[i] = PictureModel{1, 2}.Of(value.ToSingle());
        break;
      case Shown::Stiff:
        stiff = value.ToSingle();
        break;
      case Shown::Strong: {
        const double strong = ReadBack(value.ToSingle());
        texts[i] = PictureModel{2, 1}.Of(stiff == 0 ? 0.0 : strong / ReadBack(stiff));
        break;
      }
    }
  }
}

Variant AnyField(SequenceRandom& random) {
  switch (random.Below(6)) {
    case 0:
      return random.OneIn(6) ? AnyValue(random) : Variant(random.Between(-40000, 40000));
    case 1:
      return static_cast<float>(random.Between(-100000, 100000)) / 1000;
    case 2:
      return static_cast<float>(random.Between(0, 5000)) / 100;
    default:
      return random.Between(-3, 40);
  }
}

std::shared_ptr<PropertyObject> AnyDataBlock(SequenceRandom& random) {
  auto block = std::make_shared<PropertyObject>();
  for (const std::string_view field : DataFields) {
    if (!random.OneIn(200)) block->Set(std::string(field), AnyField(random));
  }
  return block;
}

/// Does to the panel what `act` does, and expects what the model says of the block.
template <class Act>
void ExpectShown(Host& host, StrategyDataPanel& panel, Object& shown, Act&& act) {
  Texts texts = TextsOf(panel);
  std::int32_t expected = 0;
  try {
    ShowOn(texts, shown);
  } catch (const Error& error) {
    expected = error.Code();
  }
  std::int32_t actual = 0;
  try {
    act();
  } catch (const Error& error) {
    actual = error.Code();
  }
  if (actual != expected) {
    host.ReportWrong("error " + std::to_string(actual) + " instead of " + std::to_string(expected));
  }
  const Texts shownTexts = TextsOf(panel);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (shownTexts[i] != texts[i]) {
      host.ReportWrong(std::string(DataFields[i]) + ": " + shownTexts[i] + " instead of " + texts[i]);
    }
  }
}

const std::vector<Host::Operation> Operations = {
    {"show", 8,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto block = AnyDataBlock(random);
       ExpectShown(host, panel, *block, [&] { panel.HereIsYourStrategyData(block); });
     }},
    {"keep", 4,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto block = AnyDataBlock(random);
       ExpectShown(host, panel, *block, [&] { panel.HereIsSomeStrategyDataBlockData(block); });
     }},
    {"keep an empty one", 2,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom&) {
       StrategyDataBlock empty;
       ExpectShown(host, panel, empty, [&] { panel.HereIsSomeStrategyDataBlockData(nullptr); });
     }},
    {"assign to a new one", 6,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       panel.HereIsSomeStrategyDataBlockData(nullptr);
       const auto block = AnyDataBlock(random);
       StrategyDataBlock copy;
       try {
         copy.Put("", block);
       } catch (const Error&) {
         panel.StrategyDataBlockData(block);
         return host.ReportWrong("took a block that does not convert");
       }
       ExpectShown(host, panel, copy, [&] { panel.StrategyDataBlockData(block); });
     }},
    {"assign to whatever there is", 3,
     [](Host&, StrategyDataPanel& panel, SequenceRandom& random) {
       panel.StrategyDataBlockData(AnyDataBlock(random));
     }},
    {"a block that interferes", 8,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto block = AnyDataBlock(random);
       block->OnUse = [&host](const std::string&) { host.MaybeInterfere(10); };
       switch (random.Below(3)) {
         case 0:
           return panel.HereIsYourStrategyData(block);
         case 1:
           panel.HereIsSomeStrategyDataBlockData(block);
           block->OnUse = nullptr;
           return;
         default:
           return panel.StrategyDataBlockData(block);
       }
     }},
    {"null", 1, [](Host&, StrategyDataPanel& panel, SequenceRandom&) { panel.HereIsYourStrategyData(nullptr); }},
    {"clumps", 2,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto clump = static_cast<std::int16_t>(random.Between(-5, 15));
       if (panel.GetClumpStuff(clump) != ClumpText(clump)) host.ReportWrong("the clump text");
     }},
    {"press", 8,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto children = panel.Children.panelStrategyInformation.Children();
       children[random.Below(static_cast<std::uint32_t>(children.size()))]->MouseDown({LeftButton, 0, 0, 0});
       host.MaybeInterfere(20);
     }},
    {"shadow box", 1,
     [](Host&, StrategyDataPanel& panel, SequenceRandom& random) { panel.ShadowBoxStatus(random.Between(0, 65535)); }},
    {"edition", 1,
     [](Host& host, StrategyDataPanel& panel, SequenceRandom& random) {
       const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", AnyValue(random));
       edition->OnUse = [&host](const std::string&) { host.MaybeInterfere(3); };
       panel.TheKelvoEditionIs(edition);
     }},
    {"refresh", 1, [](Host&, StrategyDataPanel& panel, SequenceRandom&) { panel.Refresh(); }},
    {"resize", 1,
     [](Host&, StrategyDataPanel& panel, SequenceRandom& random) {
       panel.Extender().Width(static_cast<float>(random.Between(0, 9000)));
     }},
    {"enable", 1,
     [](Host&, StrategyDataPanel& panel, SequenceRandom& random) { panel.Extender().Enabled(!random.OneIn(4)); }},
    {"end", 1, [](Host&, StrategyDataPanel& panel, SequenceRandom&) { panel.Terminated(); }},
    {"destroy", 1, [](Host& host, StrategyDataPanel&, SequenceRandom&) { host.DestroyControl(); }},
    {"destroy the window", 1, [](Host& host, StrategyDataPanel&, SequenceRandom&) { host.DestroyWindow(); }},
};

void Prepare(Host& host, StrategyDataPanel& panel) {
  panel.Events.PanelClick.Connect([&host] { host.MaybeInterfere(4); });
}

class DataPanelHost final : public Host {
 public:
  DataPanelHost() : Host(Operations, Prepare) {
    DefaultStrategyData::CreateWith([] { return std::make_shared<StrategyDataBlock>(); });
  }
  ~DataPanelHost() override {
    DestroyWindow();
    DefaultStrategyData::CreateWith(nullptr);
  }
};

std::string Check(DataPanelHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  StrategyDataPanel* const panel = host.Control();
  if (!panel) return {};
  if (panel->Children.panelStrategyInformation.Width() != panel->Extender().Width()) return "the panel's width";
  if (!host.Site().Errors().empty()) return "a user's error " + std::to_string(host.Site().Errors()[0].Code());
  return {};
}

TEST(StrategyDataPanelRandomTest, ShowsWhatTheModelSaysWhateverHappens) {
  RandomSequence<DataPanelHost> sequence([] { return std::make_unique<DataPanelHost>(); });
  for (const Host::Operation& operation : Operations) {
    sequence.Add(operation.name, operation.weight,
                 [operation](DataPanelHost& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always(Check);
  EXPECT_TRUE(sequence.Run(20240620, 100'000));
}

}  // namespace
}  // namespace tactix::tests
