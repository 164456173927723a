#include "trainer/screens/TableView.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/trainer/screens/Pictures.h"
#include "trainer/screens/FittedText.h"
#include "trainer/screens/TableColors.h"
#include "trainer/screens/TableDescription.h"
#include "trainer/screens/TableLayout.h"
#include "trainer/screens/TablePainter.h"
#include "trainer/screens/TableProps.h"

namespace trainer::screens {
namespace {

using Verdict = TableModel::Verdict;

QImage TableImage(const TableModel& model, const TableColors& colors = TableColorsFor(QPalette(Qt::white)),
                  QSize size = {900, 480}) {
  QImage image = Canvas(size);
  QPainter painter(&image);
  PaintTable(painter, QRectF(QPointF(), size), model, colors);
  return image;
}

QImage ViewImage(TableView& view, qreal ratio) {
  QImage image = Canvas(view.size(), ratio);
  view.render(&image);
  return image;
}

TEST(TableColorsTest, TextsAreReadable) {
  for (const QColor& window : {QColor(Qt::white), QColor(0xEF, 0xEF, 0xEF), QColor(0x20, 0x20, 0x24)}) {
    const TableColors colors = TableColorsFor(QPalette(window));
    EXPECT_GE(Contrast(colors.plateText, colors.plate), 4.5);
    EXPECT_GE(Contrast(colors.messageText, colors.message), 4.5);
    EXPECT_GE(Contrast(colors.sign, colors.right), 4.5);
    EXPECT_GE(Contrast(colors.sign, colors.wrong), 4.5);
    EXPECT_GE(Contrast(colors.right, colors.message), 4.5);
    EXPECT_GE(Contrast(colors.wrong, colors.message), 4.5);
    EXPECT_GE(Contrast(colors.print, colors.feltMiddle), 3);
    EXPECT_GE(Contrast(colors.active, colors.feltMiddle), 3);
  }
}

TEST(TableColorsTest, FeltIsDeeperOnADarkDesktop) {
  const TableColors light = TableColorsFor(QPalette(Qt::white));
  const TableColors dark = TableColorsFor(QPalette(Qt::black));
  EXPECT_LT(Luminance(dark.feltMiddle), Luminance(light.feltMiddle) / 2);
  for (const TableColors& colors : {light, dark}) {
    EXPECT_GT(colors.feltMiddle.green(), colors.feltMiddle.red());
    EXPECT_LT(Luminance(colors.feltEdge), Luminance(colors.feltMiddle));
  }
}

TEST(FittedTextTest, AllOfTheTextFits) {
  const QString texts[] = {"16", "soft 17", "Blackjack pays $15.00",
                           "Stand on 15 against 6: the dealer busts four times in ten, and here the sentence goes on"};
  for (const QString& text : texts) {
    for (const QSizeF room : {QSizeF(100, 20), QSizeF(120, 30), QSizeF(800, 44)}) {
      for (const Lines lines : {Lines::One, Lines::AsNeeded}) {
        const QSizeF size = FittedText(QFont(), text, room, 24, lines).Size();
        EXPECT_LE(size.width(), room.width()) << text.toStdString();
        EXPECT_LE(size.height(), room.height()) << text.toStdString();
        EXPECT_GT(size.width(), 0) << text.toStdString();
      }
    }
  }
}

TEST(TablePainterTest, VerdictsDifferInShapeToo) {
  TableColors colors = TableColorsFor(QPalette(Qt::white));
  colors.wrong = colors.right;
  TableModel model = SoftSeventeen();
  model.message = "Stand";
  model.verdict = Verdict::Right;
  const QImage right = TableImage(model, colors);
  model.verdict = Verdict::Wrong;
  EXPECT_NE(right, TableImage(model, colors));
}

TEST(TablePainterTest, ActiveHandIsMarkedInShapeToo) {
  TableColors colors = TableColorsFor(QPalette(Qt::white));
  TableModel model = SoftSeventeen();
  const QImage active = TableImage(model, colors);
  model.hands[0].active = false;
  const QImage idle = TableImage(model, colors);
  const QRect labelRow = LayOut(model, {900, 480}).hands[0].label.toRect();
  EXPECT_NE(active.copy(labelRow), idle.copy(labelRow)) << "marker beside the label";
  EXPECT_GT(CountPixels(active.copy(labelRow), colors.active), 50);
  EXPECT_EQ(CountPixels(idle, colors.active), 0);
}

TEST(TablePainterTest, HiddenHoleCardDoesNotShowThrough) {
  TableModel unknown = SoftSeventeen();
  TableModel known = unknown;
  known.dealer.push_back(QueenOfDiamonds);
  EXPECT_EQ(TableImage(unknown), TableImage(known));
  EXPECT_EQ(DescribeTable(unknown), DescribeTable(known));
  known.holeHidden = false;
  EXPECT_NE(TableImage(unknown), TableImage(known));
}

struct Change {
  const char* name;
  void (*apply)(TableModel&);
};

TEST(TablePainterTest, EveryPartOfTheModelIsShown) {
  const Change changes[] = {
      {"dealer", [](TableModel& model) { model.dealer[0].rank = Rank::Nine; }},
      {"dealer label", [](TableModel& model) { model.dealerLabel = "Dealer shows 10"; }},
      {"second hand", [](TableModel& model) { model.hands.push_back(model.hands[0]); }},
      {"hand without cards", [](TableModel& model) { model.hands[0].cards.clear(); }},
      {"label", [](TableModel& model) { model.hands[0].label = "16"; }},
      {"bet", [](TableModel& model) { model.hands[0].bet = "$5"; }},
      {"outcome", [](TableModel& model) { model.hands[0].outcome = "Bust"; }},
      {"message", [](TableModel& model) { model.message = "Hit"; }},
      {"shoe", [](TableModel& model) { model.shoeLeft = 0.5; }},
      {"banner", [](TableModel& model) { model.banner = "Drill"; }},
      {"felt", [](TableModel& model) { model.feltText = "Blackjack pays 6 to 5"; }},
  };
  const QImage before = TableImage(SoftSeventeen());
  for (const Change& change : changes) {
    TableModel model = SoftSeventeen();
    change.apply(model);
    EXPECT_NE(before, TableImage(model)) << change.name;
    ASSERT_EQ(before, TableImage(SoftSeventeen())) << "the same model gives the same picture, after " << change.name;
  }
  TableModel shoe = SoftSeventeen();
  shoe.shoeLeft = 0.5;
  const QImage half = TableImage(shoe);
  shoe.cutCardOut = true;
  EXPECT_NE(half, TableImage(shoe)) << "cut card";
  shoe.cutCardOut = false;
  shoe.shoeLeft = 0.25;
  EXPECT_NE(half, TableImage(shoe)) << "shoe level";
}

TEST(TablePropsTest, CutCardLiesInFrontOfTheShoe) {
  const auto shoe = [](bool cutCardOut) {
    QImage image = Canvas({220, 100});
    QPainter painter(&image);
    PaintShoe(painter, QRectF(10, 10, 200, 80), 0.5, cutCardOut, TableColorsFor(QPalette(Qt::white)));
    painter.end();
    return image;
  };
  EXPECT_NE(shoe(true), shoe(false));
}

TEST(TablePropsTest, ShoeIsFilledWithWhatIsLeft) {
  const auto cardPixels = [](double left) {
    QImage image = Canvas({220, 100});
    image.fill(Qt::black);
    QPainter painter(&image);
    PaintShoe(painter, QRectF(10, 10, 200, 80), left, false, TableColorsFor(QPalette(Qt::white)));
    painter.end();
    return CountPixels(image, QColor(0xF7, 0xF4, 0xEA));
  };
  const int full = cardPixels(1);
  EXPECT_GT(full, 3000);
  EXPECT_EQ(cardPixels(0), 0);
  EXPECT_EQ(cardPixels(1.5), full);
  for (const double left : {0.25, 0.5, 0.75}) EXPECT_NEAR(cardPixels(left), left * full, 0.05 * full) << left;
}

TEST(TableDescriptionTest, SaysTheWholeTableInWords) {
  TableModel model = SoftSeventeen();
  EXPECT_EQ(DescribeTable(model), "Dealer shows ten of spades. Your hand: ace of hearts, six of clubs, soft 17.");

  model.dealer.push_back(QueenOfDiamonds);
  model.holeHidden = false;
  model.dealerLabel = "Dealer has 20";
  model.hands[0].bet = "$25";
  model.hands[0].outcome = "Loses $25";
  model.hands.push_back({.cards = {SixOfClubs}, .label = "6", .bet = "", .outcome = "", .active = false});
  model.message = "Hit soft 17 against 10";
  model.verdict = Verdict::Wrong;
  model.shoeLeft = 0.624;
  model.cutCardOut = true;
  model.banner = "Soft totals";
  EXPECT_EQ(DescribeTable(model),
            "Soft totals. Dealer has ten of spades, queen of diamonds. Dealer has 20. "
            "Your hand 1 of 2, being played: ace of hearts, six of clubs, soft 17, bet $25, Loses $25. "
            "Your hand 2 of 2: six of clubs, 6. Wrong. Hit soft 17 against 10. "
            "62 percent of the shoe is left. The cut card is out.");

  EXPECT_EQ(DescribeTable(TableModel{}), "The dealer has no cards. 100 percent of the shoe is left.");
}

TEST(TableDescriptionTest, EveryCardHasItsOwnName) {
  std::set<QString> names;
  for (const Card card : AllCards()) names.insert(CardInWords(card));
  EXPECT_EQ(names.size(), 52U);
  EXPECT_EQ(CardInWords({Rank::King, Suit::Diamonds}), "king of diamonds");
  EXPECT_EQ(CardInWords({Rank::Two, Suit::Clubs}), "two of clubs");
}

TEST(TableViewTest, TellsAssistiveToolsWhatItShows) {
  TableView view;
  EXPECT_EQ(view.accessibleName(), "Blackjack table");
  EXPECT_EQ(view.accessibleDescription(), DescribeTable(TableModel{}));
  view.SetModel(SoftSeventeen());
  EXPECT_EQ(view.accessibleDescription(), DescribeTable(SoftSeventeen()));
}

TEST(TableViewTest, HasItsSizes) {
  TableView view;
  EXPECT_EQ(view.sizeHint(), QSize(900, 480));
  EXPECT_EQ(view.minimumSizeHint(), QSize(560, 240));
  view.resize(10, 10);
  EXPECT_EQ(view.size(), QSize(560, 240));
}

TEST(TableViewTest, CoversItselfAndShowsTheCardsAtEveryScale) {
  TableView view;
  view.resize(view.sizeHint());
  view.SetModel(Crowded(4, 8, 3));
  const TableLayout layout = LayOut(view.Model(), view.size());
  const QRgb paper = CardImage({Rank::Two, Suit::Clubs}).pixel(15, 42);
  for (const qreal ratio : {1.0, 1.5, 2.0}) {
    const QImage image = ViewImage(view, ratio);
    EXPECT_EQ(CountPixels(image, Qt::magenta), 0) << ratio;
    const auto paperAt = [&](const QRectF& card) {
      // Low in the strip that stays uncovered, where a six and a ten have nothing.
      const QPointF blank = card.topLeft() + QPointF(card.width() * 0.12, card.height() * 0.6);
      return image.pixel((blank * ratio).toPoint()) == paper;
    };
    for (const QRectF& card : layout.dealerCards) EXPECT_TRUE(paperAt(card)) << ratio;
    for (const TableLayout::Hand& hand : layout.hands) {
      for (const QRectF& card : hand.cards) EXPECT_TRUE(paperAt(card)) << ratio;
    }
  }
}

TEST(TableViewTest, FollowsThePalette) {
  TableView view;
  view.resize(view.sizeHint());
  view.setPalette(QPalette(Qt::white));
  const QColor light = ViewImage(view, 1).pixelColor(450, 300);
  view.setPalette(QPalette(QColor(0x20, 0x20, 0x24)));
  const QColor dark = ViewImage(view, 1).pixelColor(450, 300);
  EXPECT_LT(Luminance(dark), Luminance(light) / 2);
}

}  // namespace
}  // namespace trainer::screens
