// The registers and the count displays as Qt draws them.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <memory>
#include <string>

#include "tactix-qt/CardCountDisplayBox.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/DualCardCountDisplay.h"
#include "tactix-qt/FittedText.h"
#include "tactix-qt/QSettingsBag.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/LinePeer.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/UnhandledErrors.h"
#include "tests/support/FullDataBlock.h"

namespace tactix::tests {
namespace {

std::string SpokenNameOf(const Widget& widget) {
  return QAccessible::queryAccessibleInterface(NativeOf(widget))->text(QAccessible::Name).toStdString();
}

/// Every label shows its text on one line, whole, and in the font that it asks for.
void ExpectNoTextIsSqueezed(qt::ControlWidget& widget) {
  widget.show();
  Settle();
  for (qt::LabelPeer* label : widget.findChildren<qt::LabelPeer*>()) {
    const std::string text = label->objectName().toStdString() + " \"" + label->text().toStdString() + '"';
    if (label->text().isEmpty() || !label->isVisible()) continue;
    EXPECT_TRUE(label->contentsRect().contains(label->TextRect())) << text;
    const int flags = static_cast<int>(label->alignment()) | Qt::TextWordWrap | Qt::TextShowMnemonic;
    const QFont fitted = qt::FittedText().Fit(label->text(), label->font(), label->contentsRect().size(), flags, label);
    EXPECT_EQ(fitted.pointSizeF(), label->font().pointSizeF()) << text;
    EXPECT_LT(label->TextRect().height(), 2 * QFontMetrics(fitted).ascent()) << text << " wraps";
  }
}

TEST(QtScoresAndCountsTest, TextsKeepTheirFonts) {
  qt::DecisionRegister standard;
  standard.DisplayTheDrillResults(12345, 12345);
  standard.SetupStatisticsBox(true);
  ExpectNoTextIsSqueezed(standard);
  qt::DecisionRegister afterAdvice;
  afterAdvice.TypeOfDecisionRegister(qt::DecisionRegister::AfterAdviceDecisionRegister);
  afterAdvice.AfterAdvice(qt::DecisionRegister::afterYouShouldaDoubled);
  ExpectNoTextIsSqueezed(afterAdvice);
  for (const int verdict : {0, 1, 2, 3, 4, 5, 100}) {
    for (const int type : {1, 2}) {
      qt::DecisionRegiLOG log;
      log.TypeOfDecisionRegister(static_cast<qt::DecisionRegister::DecisionRegisterType>(type));
      log.AfterAdvice(static_cast<qt::DecisionRegister::AfterAdvicePossibilities>(verdict));
      ExpectNoTextIsSqueezed(log);
    }
  }
  for (const int value : {-99, 0, 100, -100}) {
    qt::DualCardCountDisplay display;
    display.TrueCountValue(value);
    display.RunningCountValue(value);
    ExpectNoTextIsSqueezed(display);
  }
  qt::StrategyDataPanel panel;
  ExpectNoTextIsSqueezed(panel);
  panel.HereIsYourStrategyData(FullDataBlock());
  ExpectNoTextIsSqueezed(panel);
}

TEST(QtScoresAndCountsTest, ARegisterTakesItsHeight) {
  qt::DecisionRegister widget;
  widget.resize(300, 300);
  widget.TypeOfDecisionRegister(qt::DecisionRegister::AfterAdviceDecisionRegister);
  widget.show();
  Settle();
  EXPECT_EQ(widget.size(), QSize(300, 120));
  EXPECT_EQ(widget.sizeHint().height(), 120);
  EXPECT_EQ(widget.control().Extender().Height(), 1800);
}

TEST(QtScoresAndCountsTest, ValuesAreReadAloudWithTheirHeadings) {
  qt::DecisionRegister scores;
  scores.DisplayTheDrillResults(4, 3);
  EXPECT_EQ(SpokenNameOf(scores.control().Children.theNumberOfDecisions), "Decisions: 4");
  EXPECT_EQ(SpokenNameOf(scores.control().Children.theNumberOfCorrectDecisions), "Correct: 3 - (75.0%)");
  scores.ResetDecisionData();
  EXPECT_EQ(SpokenNameOf(scores.control().Children.theNumberOfDecisions), "Decisions:");

  qt::CardCountDisplayBox box;
  EXPECT_EQ(SpokenNameOf(box.control().Children.labelCountValue), "-99");
  box.CountBoxType(qt::CardCountDisplayBox::CountBoxIsRunningCount);
  box.CountValue(-12);
  EXPECT_EQ(SpokenNameOf(box.control().Children.labelCountValue), "Running Count -12");
  EXPECT_EQ(SpokenNameOf(box.control().Children.labelCountLabel), "RC");

  qt::StrategyDataPanel panel;
  panel.HereIsYourStrategyData(FullDataBlock());
  EXPECT_EQ(SpokenNameOf(panel.control().Children.dat10Count), "Tens 16");
  EXPECT_EQ(SpokenNameOf(panel.control().Children.datClumpType), "Card-flow Player -");
}

TEST(QtScoresAndCountsTest, TextStandsOutFromAGroundThatTheControlSets) {
  struct Row {
    const char* name;
    int ground;
    QColor text;
  };
  const Row rows[] = {
      {"white", 0xFFFFFF, Qt::black}, {"yellow", 0x00FFFF, Qt::black},    {"dark grey", 0x404040, Qt::white},
      {"red", 0x0000FF, Qt::black},   {"dark blue", 0x800000, Qt::white}, {"middle grey", 0x808080, Qt::black},
      {"black", 0x000001, Qt::white},
  };
  for (const bool dark : {false, true}) {
    qt::CardCountDisplayBox box;
    QPalette palette;
    palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
    palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
    box.setPalette(palette);
    QWidget& value = *NativeOf(box.control().Children.labelCountValue);
    for (const Row& row : rows) {
      box.ShadowBoxStatus(row.ground);
      box.CountBoxType(qt::CardCountDisplayBox::CountBoxIsTrueCount);
      EXPECT_EQ(value.palette().color(QPalette::WindowText), row.text) << row.name;
      EXPECT_TRUE(value.autoFillBackground());
    }
    box.ShadowBoxStatus(WindowColor);
    box.CountBoxType(qt::CardCountDisplayBox::noCountBox);
    EXPECT_EQ(value.palette().color(QPalette::WindowText), palette.color(QPalette::WindowText));
    EXPECT_FALSE(value.autoFillBackground());
    QWidget& tag = *NativeOf(box.control().Children.labelCountLabel);
    EXPECT_EQ(tag.palette().color(QPalette::Window), QColor(255, 192, 128));
    EXPECT_EQ(tag.palette().color(QPalette::WindowText), QColor(Qt::black));
    box.ForeColor(QColor(10, 20, 30));
    EXPECT_EQ(tag.palette().color(QPalette::WindowText), QColor(10, 20, 30));
  }
}

TEST(QtScoresAndCountsTest, LabelsFollowTheirAlignment) {
  qt::CardCountDisplayBox box;
  Label& label = box.control().Children.labelCountValue;
  const auto& native = *dynamic_cast<QLabel*>(NativeOf(label));
  EXPECT_EQ(native.alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
  label.Alignment(TextAlignment::Right);
  EXPECT_EQ(native.alignment(), Qt::AlignRight | Qt::AlignVCenter);
  label.Alignment(TextAlignment::Left);
  EXPECT_EQ(native.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

TEST(QtScoresAndCountsTest, LinesRunAlongTheirLongerSide) {
  qt::StrategyDataPanel panel;
  StrategyDataPanel::ChildWidgets& children = panel.control().Children;
  const auto shapeOf = [](const Widget& line) { return dynamic_cast<qt::LinePeer*>(NativeOf(line))->frameShape(); };
  EXPECT_EQ(shapeOf(children.lineStrategy), QFrame::HLine);
  EXPECT_EQ(shapeOf(children.Line1), QFrame::VLine);
  children.Line1.Place(0, 0, 500, 30);
  EXPECT_EQ(shapeOf(children.Line1), QFrame::HLine);
}

TEST(QtScoresAndCountsTest, RefreshingPaintsBeforeItReturns) {
  class PaintCounter final : public QObject {
   public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      paints += event->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
  } counter;
  qt::StrategyDataPanel panel;
  panel.show();
  Settle();
  NativeOf(panel.control().Children.datAces)->installEventFilter(&counter);
  panel.Refresh();
  EXPECT_EQ(counter.paints, 1);
}

TEST(QtScoresAndCountsTest, TheTypeOfACountBoxSurvivesInSettings) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("form.ini"));
  for (const int type : {2, 77, 0}) {
    {
      qt::CardCountDisplayBox box;
      box.CountBoxType(static_cast<qt::CardCountDisplayBox::TypeOfCountBox>(type));
      QSettings settings(path, QSettings::IniFormat);
      qt::QSettingsBag bag(settings, QStringLiteral("box"));
      box.control().WriteProperties(bag);
      EXPECT_EQ(settings.allKeys().size(), type == 0 ? 0 : 1);
    }
    QSettings settings(path, QSettings::IniFormat);
    qt::QSettingsBag bag(settings, QStringLiteral("box"));
    qt::CardCountDisplayBox box;
    QSignalSpy notices(&box, &qt::ControlWidget::propertyChanged);
    box.control().ReadProperties(bag);
    EXPECT_EQ(box.CountBoxType(), type);
    EXPECT_EQ(notices.count(), 1);
    EXPECT_EQ(dynamic_cast<QLabel*>(NativeOf(box.control().Children.labelCountLabel))->text(), type == 2 ? "TC" : "");
  }
}

TEST(QtScoresAndCountsTest, AStoredTypeThatIsNoneKeepsTheDefault) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("form.ini")), QSettings::IniFormat);
  qt::QSettingsBag bag(settings, QStringLiteral("box"));
  for (const char* text : {"Long:x", "Integer:70000", "running", "Font:8;true"}) {
    settings.setValue(QStringLiteral("box/CountBoxType"), QString::fromLatin1(text));
    qt::CardCountDisplayBox box;
    box.control().ReadProperties(bag);
    EXPECT_EQ(box.CountBoxType(), qt::CardCountDisplayBox::noCountBox) << text;
  }
}

TEST(QtScoresAndCountsTest, EnumerationsShowTheirRowsByName) {
  struct Row {
    const QMetaObject& meta;
    const char* property;
    int value;
    const char* name;
  };
  const Row rows[] = {
      {qt::DecisionRegister::staticMetaObject, "TypeOfDecisionRegister", 2, "AfterAdviceDecisionRegister"},
      {qt::DecisionRegiLOG::staticMetaObject, "TypeOfDecisionRegister", 1, "StandardDecisionRegister"},
      {qt::CardCountDisplayBox::staticMetaObject, "CountBoxType", 1, "CountBoxIsRunningCount"},
  };
  for (const Row& row : rows) {
    const QMetaProperty property = row.meta.property(row.meta.indexOfProperty(row.property));
    ASSERT_TRUE(property.isEnumType());
    EXPECT_STREQ(property.enumerator().valueToKey(row.value), row.name);
  }
  const QMetaObject& meta = qt::CardCountDisplayBox::staticMetaObject;
  const QMetaEnum colours = meta.enumerator(meta.indexOfEnumerator("ShadowBoxingConstants"));
  EXPECT_EQ(colours.keyToValue("ShadowBoxingDisabled"), 0);
  EXPECT_EQ(colours.keyToValue("ShadowBoxingDisEnabled"), 16777215);
}

TEST(QtScoresAndCountsTest, SlotsReachTheControls) {
  qt::DecisionRegiLOG log;
  log.NumberOfBreakDecisions(6);
  log.DisplayTheDrillResults(9, 8);
  log.SetupStatisticsBox(true);
  EXPECT_EQ(log.NumberOfDecisions(), 9);
  EXPECT_EQ(log.NumberOfCorrectDecisions(), 8);
  EXPECT_TRUE(log.control().Children.DecisionRegister.Children.lblBreakPercent.Visible());
  log.ResetDecisionData();
  EXPECT_EQ(log.NumberOfDecisions(), 0);
  EXPECT_EQ(log.NumberOfBreakDecisions(), 6);
  log.AfterAdvice(qt::DecisionRegister::afterYourPlayWasCorrect);
  EXPECT_EQ(log.control().Children.labelTheShouldRecommendation.Caption(), "--- Correct! ---");
  UnhandledErrors errors(log);
  log.DisplayTheDrillResults(40000, 1);
  EXPECT_EQ(errors.Take(), std::vector<int>{Error::Overflow});
  EXPECT_EQ(log.NumberOfDecisions(), 0);

  qt::StrategyDataPanel panel;
  EXPECT_EQ(panel.GetClumpStuff(7), "Neutral ");
  panel.HereIsSomeStrategyDataBlockData(FullDataBlock());
  EXPECT_EQ(panel.control().Children.datFives.Caption(), "5");
  panel.TheKelvoEditionIs(std::make_shared<PropertyObject>("thisKelvoEdition", 4));
  EXPECT_EQ(panel.control().EditionCode(), 4);
  QSignalSpy clicks(&panel, &qt::StrategyDataPanel::PanelClick);
  panel.control().Events.PanelClick.Raise();
  EXPECT_EQ(clicks.count(), 1);
}

}  // namespace
}  // namespace tactix::tests
