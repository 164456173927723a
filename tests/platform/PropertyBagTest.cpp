#include "tactix/platform/PropertyBag.h"

#include <gtest/gtest.h>

namespace tactix {
namespace {

using Names = std::vector<std::string>;

TEST(PropertyBagTest, ReadsWhatWasWritten) {
  MemoryPropertyBag bag;
  bag.Write("Alignment", 2);
  bag.Write("Text", "Ann");
  EXPECT_EQ(bag.Read("Alignment"), 2);
  EXPECT_EQ(bag.Read("Text", "nobody"), "Ann");
}

TEST(PropertyBagTest, ReadsTheDefaultOfWhatIsNotStored) {
  MemoryPropertyBag bag;
  EXPECT_TRUE(bag.Read("Alignment").IsEmpty());
  EXPECT_EQ(bag.Read("Alignment", 3), 3);
  EXPECT_FALSE(bag.Contains("Alignment"));
}

TEST(PropertyBagTest, NamesCompareWithoutCase) {
  MemoryPropertyBag bag;
  bag.Write("Alignment", 1);
  bag.Write("ALIGNMENT", 2);
  EXPECT_EQ(bag.Read("alignment"), 2);
  EXPECT_TRUE(bag.Contains("aLIGNMENT"));
  EXPECT_EQ(bag.Names(), Names{"ALIGNMENT"});
  bag.Remove("alignMENT");
  EXPECT_FALSE(bag.Contains("Alignment"));
}

TEST(PropertyBagTest, DoesNotStoreADefault) {
  MemoryPropertyBag bag;
  bag.Write("Alignment", 2, 2);
  EXPECT_FALSE(bag.Contains("Alignment"));
  bag.Write("Alignment", 3, 2);
  EXPECT_EQ(bag.Read("Alignment", 2), 3);
  bag.Write("Alignment", 2, 2);
  EXPECT_FALSE(bag.Contains("Alignment"));
  EXPECT_EQ(bag.Read("Alignment", 2), 2);
}

TEST(PropertyBagTest, StoresWithoutADefaultWhateverTheValue) {
  MemoryPropertyBag bag;
  bag.Write("Nothing", Variant());
  EXPECT_TRUE(bag.Contains("Nothing"));
  EXPECT_TRUE(bag.Read("Nothing", 5).IsEmpty());
}

TEST(PropertyBagTest, NamesStandInTheOrderOfTheWrites) {
  MemoryPropertyBag bag;
  bag.Write("B", 1);
  bag.Write("A", 1, 0);
  bag.Write("C", 1);
  EXPECT_EQ(bag.Names(), (Names{"B", "A", "C"}));
  bag.Write("B", 2);
  EXPECT_EQ(bag.Names(), (Names{"A", "C", "B"}));
  bag.Remove("C");
  bag.Remove("never there");
  EXPECT_EQ(bag.Names(), (Names{"A", "B"}));
  bag.Clear();
  EXPECT_EQ(bag.Names(), Names{});
  EXPECT_FALSE(bag.Contains("A"));
}

TEST(PropertyBagTest, TakesAValueThatItHoldsItself) {
  MemoryPropertyBag bag;
  bag.Write("A", "a text that is too long to be kept in place");
  bag.Write(bag.Names().front(), bag.Read("A"));
  EXPECT_EQ(bag.Read("A"), "a text that is too long to be kept in place");
}

TEST(PropertyBagTest, ACopyIsIndependent) {
  MemoryPropertyBag bag;
  bag.Write("A", 1);
  MemoryPropertyBag copy = bag;
  copy.Write("A", 2);
  EXPECT_EQ(bag.Read("A"), 1);
}

}  // namespace
}  // namespace tactix
