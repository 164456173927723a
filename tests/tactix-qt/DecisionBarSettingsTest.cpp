// What of the decision toolbars and the legend a program's settings keep.

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "tactix-qt/DecisionBAR.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/HitStandLegend.h"
#include "tactix-qt/QSettingsBag.h"

namespace tactix::tests {
namespace {

class SettingsFolder {
 public:
  // Another object on the same file each time: what it reads has been text in between.

  void Save(Control& control) const {
    QSettings settings(Path(), QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("form/bar"));
    control.WriteProperties(bag);
  }
  void Restore(Control& control) const {
    QSettings settings(Path(), QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("form/bar"));
    control.ReadProperties(bag);
  }
  QStringList Keys() const {
    QSettings settings(Path(), QSettings::IniFormat);
    QStringList keys = settings.allKeys();
    keys.sort();
    return keys;
  }
  QString Stored(const char* name) const {
    QSettings settings(Path(), QSettings::IniFormat);
    return settings.value(QStringLiteral("form/bar/") + QLatin1String(name)).toString();
  }
  void Store(const char* name, const QString& text) const {
    QSettings settings(Path(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("form/bar/") + QLatin1String(name), text);
  }

 private:
  QString Path() const { return folder_.filePath(QStringLiteral("form.ini")); }

  QTemporaryDir folder_;
};

template <class Bar>
class DecisionBarSettingsTest : public testing::Test {
 protected:
  SettingsFolder folder_;
};
using BarWidgets = testing::Types<qt::DecisionBAR, qt::DecisionBAR2>;
TYPED_TEST_SUITE(DecisionBarSettingsTest, BarWidgets);

TYPED_TEST(DecisionBarSettingsTest, WhatIsSavedComesBack) {
  {
    TypeParam saved;
    DecisionToolBarControl& bar = saved.control();
    bar.Alignment(tactix::DecisionBARAlignment::DBAlignTop);
    bar.HitcardButtonsVisibility(-1);
    bar.HolecardButtonsVisibility(0);
    bar.TensRatioButtonVisibility(7);
    bar.DealerStrengthButtonsVisibility(-2147483647);
    bar.StatusButtonButtonVisibility(-1);
    bar.ResetPredictionButtons(true);
    this->folder_.Save(bar);
  }
  EXPECT_EQ(
      this->folder_.Keys(),
      (QStringList{
          QStringLiteral("form/bar/Alignment"), QStringLiteral("form/bar/DealerStrengthButtonsVisibility"),
          QStringLiteral("form/bar/HitcardButtonsVisibility"), QStringLiteral("form/bar/HoleCardButtonsVisibility"),
          QStringLiteral("form/bar/StatusButtonVisibility"), QStringLiteral("form/bar/TensRatioButtonsVisibility")}));
  EXPECT_EQ(this->folder_.Stored("Alignment"), QStringLiteral("Long:2"));
  EXPECT_EQ(this->folder_.Stored("StatusButtonVisibility"), QStringLiteral("Long:0"));

  TypeParam restored;
  DecisionToolBarControl& bar = restored.control();
  this->folder_.Restore(bar);
  EXPECT_EQ(bar.Alignment(), tactix::DecisionBARAlignment::DBAlignBottom);
  EXPECT_EQ(bar.HitcardButtonsVisibility(), -1);
  EXPECT_EQ(bar.HolecardButtonsVisibility(), 0);
  EXPECT_EQ(bar.TensRatioButtonVisibility(), 7);
  EXPECT_EQ(bar.DealerStrengthButtonsVisibility(), -2147483647);
  EXPECT_FALSE(bar.ResetPredictionButtons());
  for (const auto& button : restored.control().Children.DecisionToolBar.Buttons()) {
    EXPECT_TRUE(button->Visible()) << "restoring touches no button: " << button->Key();
  }
  EXPECT_EQ(bar.StatusButtonButtonVisibility(), 0);
}

TYPED_TEST(DecisionBarSettingsTest, ADamagedSettingHasItsDefaultAndTheOthersComeBack) {
  {
    TypeParam saved;
    saved.control().HitcardButtonsVisibility(-1);
    saved.control().TensRatioButtonVisibility(-1);
    this->folder_.Save(saved.control());
  }
  this->folder_.Store("HitcardButtonsVisibility", QStringLiteral("Long:many"));
  this->folder_.Store("Alignment", QStringLiteral("left"));
  TypeParam restored;
  this->folder_.Restore(restored.control());
  EXPECT_EQ(restored.control().HitcardButtonsVisibility(), 0);
  EXPECT_EQ(restored.control().TensRatioButtonVisibility(), -1);
  EXPECT_EQ(restored.control().Alignment(), tactix::DecisionBARAlignment::DBAlignBottom);
}

TYPED_TEST(DecisionBarSettingsTest, ADockingFromElsewhereIsTaken) {
  this->folder_.Store("Alignment", QStringLiteral("3"));
  TypeParam restored;
  this->folder_.Restore(restored.control());
  EXPECT_EQ(restored.control().Alignment(), tactix::DecisionBARAlignment::DBAlignLeft);
  EXPECT_EQ(restored.control().HitcardButtonsVisibility(), 0);
}

TEST(HitStandLegendSettingsTest, NothingIsSaved) {
  const SettingsFolder folder;
  qt::HitStandLegend legend;
  folder.Save(legend.control());
  EXPECT_TRUE(folder.Keys().isEmpty());
  folder.Restore(legend.control());
}

TEST(DecisionBAR2SettingsTest, ASettingChosenInTheMenuIsSaved) {
  const SettingsFolder folder;
  {
    qt::DecisionBAR2 saved;
    DecisionBAR2::ChildWidgets& widgets = saved.control().Children;
    for (MenuEntry* entry : {&widgets.menuHitCardButtonsVisible, &widgets.menuStatsButtonVisible}) {
      entry->Chosen.Raise();
    }
    folder.Save(saved.control());
  }
  EXPECT_EQ(folder.Stored("HitcardButtonsVisibility"), QStringLiteral("Long:-1"));
  EXPECT_EQ(folder.Stored("StatusButtonVisibility"), QStringLiteral("Long:0"));
  qt::DecisionBAR2 restored;
  folder.Restore(restored.control());
  EXPECT_EQ(restored.control().HitcardButtonsVisibility(), -1);
  EXPECT_FALSE(restored.control().Children.menuHitCardButtonsVisible.Checked()) << "marks are not saved";
}

}  // namespace
}  // namespace tactix::tests
