// The slots and invokables of the controls' widget classes, apart from the properties': each must do what the control's
// method of the same name does, as seen on a twin.

#include <gtest/gtest.h>

#include <QPointer>
#include <QTimer>
#include <cctype>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/Decision.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/ControlSketch.h"
#include "tests/support-qt/ControlSlots.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/SignalLog.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// What a call leaves behind.
struct Outcome {
  std::string returned;
  std::vector<int> errors;
  Texts signals;
  Sketch sketch;
  std::string revealed;
};

class QtControlSlotTest : public testing::TestWithParam<std::string> {
 protected:
  QtControlSlotTest() { hooks_.Install(); }

  using Call = std::function<std::string(qt::ControlWidget&)>;
  Outcome OutcomeOf(const SlotRow& row, const Call& call) {
    const auto widget = ControlClassOf(GetParam()).Make();
    Control& control = *widget->Hosted();
    if (row.prepare) row.prepare(control);
    Outcome outcome;
    SignalLog heard(*widget);
    UnhandledErrors unhandled(*widget);
    try {
      outcome.returned = call(*widget);
    } catch (const Error& error) {
      outcome.errors.push_back(error.Code());
    }
    Settle();  // what the control itself is told comes out later
    for (const int code : unhandled.Take()) outcome.errors.push_back(code);
    if (row.reveal) outcome.revealed = row.reveal(control);
    for (const std::string& signal : heard.Take()) {
      const bool isEdition = signal.find("KelvoEditionChanged") == 0;  // each control makes one of its own
      if (signal.find("unhandledError") != 0) outcome.signals.push_back(isEdition ? "an edition" : signal);
    }
    outcome.sketch = SketchOf(control);
    return outcome;
  }

  EmptyHooks hooks_;
};

TEST_P(QtControlSlotTest, EachDoesWhatTheControlsMethodDoes) {
  const SlotTable table = ControlSlots();
  for (const SlotRow& row : table.at(GetParam())) {
    SCOPED_TRACE(row.signature);
    const Outcome ours = OutcomeOf(row, [&](qt::ControlWidget& widget) {
      QVariantList arguments = row.arguments;
      return TextOf(Invoke(widget, row.signature, arguments));
    });
    const Outcome theirs = OutcomeOf(row, [&](qt::ControlWidget& widget) { return row.call(*widget.Hosted()); });
    const Outcome without = OutcomeOf(row, [](qt::ControlWidget&) { return std::string(); });
    EXPECT_TRUE(ours.returned == theirs.returned || !theirs.errors.empty()) << ours.returned;
    EXPECT_EQ(ours.errors, theirs.errors);
    EXPECT_EQ(ours.signals, theirs.signals);
    EXPECT_EQ(Differences(theirs.sketch, ours.sketch), Texts());
    EXPECT_EQ(ours.revealed, theirs.revealed);
    const bool shows =
        ours.sketch != without.sketch || ours.signals != without.signals || ours.revealed != without.revealed;
    EXPECT_EQ(shows, row.shows == Shows::Yes);
  }
}

TEST_P(QtControlSlotTest, AllAreInTheTable) {
  const auto widget = ControlClassOf(GetParam()).Make();
  const QMetaObject& meta = *widget->metaObject();
  std::set<std::string> ofProperties;
  for (const QMetaProperty& property : PropertiesOf(meta)) {
    const std::string name = property.name();
    const std::string capital(1, static_cast<char>(std::toupper(name[0])));
    const std::string rest = capital + name.substr(1);
    ofProperties.insert({name, "setControl" + name, "set" + rest, "reset" + rest});
  }
  std::set<std::string> found;
  for (const QMetaMethod::MethodType type : {QMetaMethod::Slot, QMetaMethod::Method}) {
    for (const QMetaMethod& method : MethodsOf(meta, type)) {
      if (!ofProperties.contains(method.name().toStdString())) found.insert(method.methodSignature().toStdString());
    }
  }
  std::set<std::string> listed;
  const SlotTable table = ControlSlots();
  for (const SlotRow& row : table.at(GetParam())) listed.insert(row.signature);
  EXPECT_EQ(found, listed);
}

/// What a slot that flashes a button leads to: the wait ends at its first step, with the widget.
template <class W>
bool HidesTheButton(void (*flash)(W&), Widget& (*button)(W&)) {
  QPointer<W> widget = new W;
  bool hidden = false;
  QTimer::singleShot(0, widget, [&] {
    hidden = !button(*widget).Visible();
    delete widget;
  });
  flash(*widget);
  EXPECT_FALSE(widget) << "nothing flashed";
  delete widget;
  return hidden;
}

Widget& ButtonOf(qt::AdviceButton& widget) { return widget.control().Children.cmdAdviceButton; }
Widget& ButtonOf(qt::Decision& widget) { return widget.control().Children.AdviceButton.Children.cmdAdviceButton; }

TEST(QtControlSlotsTest, FlashesAreSeen) {
  EXPECT_TRUE(HidesTheButton<qt::AdviceButton>(
      [](qt::AdviceButton& widget) {
        widget.control().Children.mnuButtonBlink[2].Chosen.Raise();
        widget.BlinkIfNecessary();
      },
      ButtonOf));
  EXPECT_TRUE(HidesTheButton<qt::Decision>(
      [](qt::Decision& widget) {
        widget.control().Children.AdviceButton.Children.mnuButtonBlink[2].Chosen.Raise();
        widget.HandleAdviceConsiderations();
      },
      ButtonOf));
}

TEST(QtControlSlotsTest, ShowLetsTheEditionWriteToTheFlag) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 4);
  edition->OnCall = [](std::string_view, std::span<Variant> arguments) { arguments[0] = std::int16_t{7}; };
  qt::Decision box;
  box.SetupDecisionBox(DecisionBlock(), edition);
  QVariantList arguments = {Held(std::int16_t{1})};
  Invoke(box, "Show(std::int16_t&)", arguments);
  EXPECT_EQ(arguments[0].toInt(), 7);
}

std::vector<std::string> ClassNames() {
  std::vector<std::string> names;
  for (const ControlClass& each : ControlClasses()) names.push_back(each.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Classes, QtControlSlotTest, testing::ValuesIn(ClassNames()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace tactix::tests
