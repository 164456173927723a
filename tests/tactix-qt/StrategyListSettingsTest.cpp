// The lists saved in QSettings and loaded again.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/QSettingsBag.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tests/support/FakeCatalogue.h"

namespace tactix::tests {
namespace {

class StrategyListSettingsTest : public testing::Test {
 protected:
  void Save(Control& control) {
    QSettings settings(Path(), QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("form/control"));
    control.WriteProperties(bag);
  }
  void Load(Control& control) {
    QSettings settings(Path(), QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("form/control"));
    control.ReadProperties(bag);
  }

  /// Changes what all lists have, and finds it again in another list.
  template <class W>
  void RoundTrip() {
    W saved;
    saved.control().BackColor(0x123456);
    saved.control().ForeColor(0x654321);
    saved.control().Enabled(false);
    saved.control().Font({"Serif", 11, true});
    saved.control().ToolTipText("tip \xC3\x84");
    saved.control().Text("text \xC3\x84");
    Save(saved.control());
    W loaded;
    Load(loaded.control());
    EXPECT_EQ(loaded.BackColor(), QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(loaded.control().ForeColor(), 0x654321);
    EXPECT_FALSE(loaded.Enabled());
    EXPECT_EQ(loaded.control().Font(), (Font{"Serif", 11, true}));
    EXPECT_EQ(loaded.ToolTipText(), QStringLiteral("tip \u00C4"));
    EXPECT_EQ(loaded.Text(), QStringLiteral("text \u00C4"));
  }

  QString Path() const { return folder_.filePath(QStringLiteral("controls.ini")); }

  InstalledCatalogue catalogue_;
  QTemporaryDir folder_;
};

TEST_F(StrategyListSettingsTest, ACompactList) { RoundTrip<qt::StrategyListLITE>(); }

TEST_F(StrategyListSettingsTest, ABettingList) { RoundTrip<qt::BetStrategyList>(); }

TEST_F(StrategyListSettingsTest, ACountList) {
  RoundTrip<qt::CountStrategyList>();
  catalogue_->DescribeCounts();
  qt::CountStrategyList saved;
  saved.CountStrategy(qt::CountStrategyList::CoreRatioCount);
  saved.Text(QString());
  saved.ListIndex(26);
  Save(saved.control());
  qt::CountStrategyList loaded;
  Load(loaded.control());
  // Row 27 is saved as 26, which is the system in row 15. Then the saved text deselects it.
  EXPECT_EQ(loaded.Text(), QStringLiteral("Count 38"));
  EXPECT_EQ(loaded.control().LastGoodListIndex(), 15);
  EXPECT_EQ(loaded.CountStrategy(), -2);
}

TEST_F(StrategyListSettingsTest, AMarquee) {
  qt::StrategyMarquix saved;
  saved.Caption(QStringLiteral("Ann \u00C4"));
  saved.ControlType(qt::StrategyMarquix::IsAPlayingMarquix);
  saved.SelectThisStrategy(true);
  Save(saved.control());
  qt::StrategyMarquix loaded;
  Load(loaded.control());
  EXPECT_EQ(loaded.Caption(), QStringLiteral("Ann \u00C4"));
  EXPECT_EQ(loaded.ControlType(), qt::StrategyMarquix::IsNotYetAssigned);
  EXPECT_FALSE(loaded.control().Children.optStrategySelected.Value());
}

}  // namespace
}  // namespace tactix::tests
