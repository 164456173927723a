// What a host saves of a widget and reads back, by the widget's own two functions.

#include <gtest/gtest.h>

#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "tactix-qt/QSettingsBag.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix/platform/MemoryBag.h"
#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Hooks.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class SavingTest : public testing::TestWithParam<ControlClass> {
 protected:
  SavingTest() { hooks_.Install(); }

  /// A widget whose saved properties all differ from their defaults.
  static std::unique_ptr<qt::ControlWidget> Changed() {
    std::unique_ptr<qt::ControlWidget> widget = GetParam().Make();
    for (const CataloguedProperty& property : GetParam().InTheCatalogue().properties) {
      if (property.saved == Saved::Yes) widget->Hosted()->Handle()->Put(property.name, property.other);
    }
    return widget;
  }
  static void ExpectSame(MemoryBag& bag, MemoryBag& expected) {
    EXPECT_EQ(bag.Names(), expected.Names());
    for (const std::string& name : expected.Names()) EXPECT_EQ(bag.Read(name), expected.Read(name)) << name;
  }

  EmptyHooks hooks_;
};

TEST_P(SavingTest, WhatABagInMemoryHoldsComesBack) {
  MemoryBag saved;
  Changed()->writeProperties(saved);
  const std::unique_ptr<qt::ControlWidget> another = GetParam().Make();
  another->readProperties(saved);
  MemoryBag again;
  another->writeProperties(again);
  ExpectSame(again, saved);
}

TEST_P(SavingTest, WhatSettingsHoldComesBack) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("window.ini"));
  MemoryBag expected;
  {
    const std::unique_ptr<qt::ControlWidget> widget = Changed();
    widget->writeProperties(expected);
    QSettings settings(path, QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("window/control"));
    widget->writeProperties(bag);
  }
  QSettings settings(path, QSettings::IniFormat);
  qt::QSettingsBag bag(settings, QStringLiteral("window/control"));
  const std::unique_ptr<qt::ControlWidget> another = GetParam().Make();
  another->readProperties(bag);
  MemoryBag again;
  another->writeProperties(again);
  ExpectSame(again, expected);
}

INSTANTIATE_TEST_SUITE_P(Classes, SavingTest, testing::ValuesIn(ControlClasses()), RowName());

/// Fails with an error of its own, or with none that a control knows, or destroys the widget.
class WildBag final : public PropertyBag {
 public:
  explicit WildBag(std::function<void()> act) : act_(std::move(act)) {}

  Variant Read(std::string_view, const Variant& defaultValue) override {
    act_();
    return defaultValue;
  }
  void Write(std::string_view, const Variant&) override { act_(); }
  void Write(std::string_view, const Variant&, const Variant&) override { act_(); }

 private:
  std::function<void()> act_;
};

TEST(SavingErrorsTest, WhatFailsComesOutOnce) {
  const std::unique_ptr<qt::ControlWidget> bar = ControlClassOf("DecisionBAR2").Make();
  UnhandledErrors errors(*bar);
  WildBag full([] { throw Error(1234); });
  bar->writeProperties(full);
  EXPECT_EQ(errors.Take(), std::vector<int>{1234});
  WildBag broken([] { throw std::runtime_error("no more disk"); });
  bar->readProperties(broken);
  EXPECT_EQ(errors.Take(), std::vector<int>{5});
  EXPECT_EQ(errors.Text(), QStringLiteral("no more disk"));
}

TEST(SavingErrorsTest, TheBagMayDestroyTheWidget) {
  for (const bool reads : {false, true}) {
    const QPointer<qt::ControlWidget> widget(ControlClassOf("SpinCounter").make(nullptr));
    WildBag deadly([&widget] { delete widget; });
    if (reads) {
      widget->readProperties(deadly);
    } else {
      widget->writeProperties(deadly);
    }
    EXPECT_TRUE(widget.isNull()) << reads;
  }
}

TEST(SavingErrorsTest, AWidgetWithoutAControlTouchesNoBag) {
  qt::ControlWidget empty;
  WildBag bag([] { ADD_FAILURE(); });
  empty.readProperties(bag);
  empty.writeProperties(bag);
}

}  // namespace
}  // namespace tactix::tests
