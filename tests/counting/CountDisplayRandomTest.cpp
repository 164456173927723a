// Random operations on the count display box and on the dual display, each against a model.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

constexpr Color White = 0xFFFFFF;

struct BoxModel {
  std::int32_t type = 0;
  std::int32_t status = 0;
  std::string tag;
  Color tagColor = WindowColor;
  Color tagForeColor = WindowTextColor;
  std::string value = "-99";
  Color valueColor = White;

  void SetType(std::int32_t newType) {
    type = newType;
    if (type == 1) {
      tag = "RC";
      tagColor = 0xC0E0FF;
    } else if (type == 2) {
      tag = "TC";
      tagColor = 0x80C0FF;
    }
    valueColor = status == 0 ? White : status;
  }

  std::string Difference(const CardCountDisplayBox& box) const {
    const auto& [tagLabel, valueLabel] = box.Children;
    if (box.CountBoxType() != type) return "the type";
    if (tagLabel.Caption() != tag) return "the tag";
    if (tagLabel.BackColor() != tagColor || box.BackColor() != tagColor) return "the tag's colour";
    if (tagLabel.ForeColor() != tagForeColor || box.ForeColor() != tagForeColor) return "the tag's text colour";
    if (valueLabel.Caption() != value) return "the value";
    if (valueLabel.BackColor() != valueColor) return "the value's colour";
    return {};
  }
};

std::int32_t AnyStatus(SequenceRandom& random) {
  constexpr std::int32_t Statuses[] = {0, 65535, 4210752, 16777215, 0x123456, -1};
  return Statuses[random.Below(std::size(Statuses))];
}

std::int32_t AnyNumber(SequenceRandom& random) {
  return random.OneIn(8) ? static_cast<std::int32_t>(random.Next()) : random.Between(-120, 120);
}

struct BoxUnderTest {
  HeadlessSite site;
  CardCountDisplayBox box{site};
  BoxModel model;
  std::size_t notices = 0;

  void SetType(std::int32_t type) {
    model.SetType(type);
    ++notices;
  }
};

TEST(CountDisplayRandomTest, ABoxShowsWhatTheModelSays) {
  RandomSequence<BoxUnderTest> sequence([] { return std::make_unique<BoxUnderTest>(); });
  sequence.Add("type", 6, [](BoxUnderTest& test, SequenceRandom& random) {
    const std::int32_t type = random.Between(-1, 3);
    test.box.CountBoxType(type);
    test.SetType(type);
  });
  sequence.Add("value", 6, [](BoxUnderTest& test, SequenceRandom& random) {
    const std::int32_t value = AnyNumber(random);
    test.box.CountValue(value);
    test.model.value = std::to_string(value);
  });
  sequence.Add("status", 6, [](BoxUnderTest& test, SequenceRandom& random) {
    test.model.status = AnyStatus(random);
    test.box.ShadowBoxStatus(test.model.status);
  });
  sequence.Add("colours", 2, [](BoxUnderTest& test, SequenceRandom& random) {
    test.model.tagColor = AnyNumber(random);
    test.model.tagForeColor = AnyNumber(random);
    test.box.BackColor(test.model.tagColor);
    test.box.ForeColor(test.model.tagForeColor);
  });
  sequence.Add("read", 2, [](BoxUnderTest& test, SequenceRandom& random) {
    MemoryPropertyBag bag;
    const Variant value = AnyValue(random);
    bag.Write("CountBoxType", value);
    test.box.ReadProperties(bag);
    std::int32_t type = 0;
    try {
      type = value.ToLong();
    } catch (const Error&) {
      return;
    }
    test.SetType(type);
  });
  sequence.Add("save and load", 1, [](BoxUnderTest& test, SequenceRandom&) {
    MemoryPropertyBag bag;
    test.box.WriteProperties(bag);
    CardCountDisplayBox(test.site).ReadProperties(bag);
    ++test.notices;
    test.box.ReadProperties(bag);
    test.SetType(test.model.type);
  });
  sequence.Add("resize and show", 1, [](BoxUnderTest& test, SequenceRandom& random) {
    test.box.Extender().Width(static_cast<float>(random.Between(0, 3000)));
    test.box.Displayed();
    test.box.AmbientChanged();
  });
  sequence.Always([](BoxUnderTest& test) -> std::string {
    if (test.site.Changes().size() != test.notices) return "the notices";
    return test.model.Difference(test.box);
  });
  EXPECT_TRUE(sequence.Run(20240618, 100'000));
}

struct DualUnderTest {
  DualUnderTest() {
    trueModel.SetType(2);
    runningModel.SetType(1);
  }

  HeadlessSite site;
  DualCardCountDisplay display{site};
  BoxModel trueModel;
  BoxModel runningModel;
};

TEST(CountDisplayRandomTest, ADualDisplayShowsWhatTheModelSays) {
  RandomSequence<DualUnderTest> sequence([] { return std::make_unique<DualUnderTest>(); });
  sequence.Add("true count", 4, [](DualUnderTest& test, SequenceRandom& random) {
    const std::int32_t value = AnyNumber(random);
    test.display.TrueCountValue(value);
    test.trueModel.value = std::to_string(value);
  });
  sequence.Add("running count", 4, [](DualUnderTest& test, SequenceRandom& random) {
    const std::int32_t value = AnyNumber(random);
    test.display.RunningCountValue(value);
    test.runningModel.value = std::to_string(value);
  });
  sequence.Add("status", 4, [](DualUnderTest& test, SequenceRandom& random) {
    test.trueModel.status = test.runningModel.status = AnyStatus(random);
    test.display.ShadowBoxStatus(test.trueModel.status);
  });
  sequence.Add("repaint a box", 3, [](DualUnderTest& test, SequenceRandom& random) {
    const bool isTrue = random.OneIn(2);
    auto& children = test.display.Children;
    CardCountDisplayBox& box = isTrue ? children.TrueCountDisplay : children.RunningCountDisplay;
    BoxModel& model = isTrue ? test.trueModel : test.runningModel;
    box.CountBoxType(model.type);
    model.SetType(model.type);
  });
  sequence.Add("read and write", 1, [](DualUnderTest& test, SequenceRandom& random) {
    MemoryPropertyBag bag;
    bag.Write("CountBoxType", AnyValue(random));
    test.display.ReadProperties(bag);
    test.display.WriteProperties(bag);
  });
  sequence.Add("resize and show", 1, [](DualUnderTest& test, SequenceRandom& random) {
    test.display.Extender().Height(static_cast<float>(random.Between(0, 3000)));
    test.display.Displayed();
  });
  sequence.Always([](DualUnderTest& test) -> std::string {
    if (!test.site.Changes().empty()) return "gave notice";
    const std::string wrong = test.trueModel.Difference(test.display.Children.TrueCountDisplay);
    return wrong.empty() ? test.runningModel.Difference(test.display.Children.RunningCountDisplay) : wrong;
  });
  EXPECT_TRUE(sequence.Run(20240619, 100'000));
}

}  // namespace
}  // namespace tactix::tests
