#include "statistics/sample_store.hpp"

#include <gtest/gtest.h>

#include "runtime/exceptions.hpp"

namespace tessarine::statistics {
namespace {

TEST(SampleStore, ListEndsInSeparatorAndDeleteTakesTheLast) {
  SampleStore store;
  EXPECT_EQ(store.ListText(1), "");
  store.Input(1, "0");
  EXPECT_EQ(store.ListText(1), "0, ");
  store.Input(1, "2.5");
  store.Input(1, "-7");
  EXPECT_EQ(store.ListText(1), "0, 2.5, -7, ");
  EXPECT_EQ(store.Count(2), 0);
  store.Delete(1, false);
  EXPECT_EQ(store.ListText(1), "0, 2.5, ");
  store.Delete(1, false);
  store.Delete(1, false);
  EXPECT_EQ(store.ListText(1), "");
  store.Delete(1, false);  // an empty sample stays empty
  EXPECT_EQ(store.Count(1), 0);
  store.Input(1, "4");
  EXPECT_EQ(store.ListText(1), "4, ");
}

TEST(SampleStore, DeleteAllEmptiesEveryPosition) {
  SampleStore store;
  for (const char* text : {"1", "2", "3"}) store.Input(4, text);
  store.Delete(4, true);
  EXPECT_EQ(store.Count(4), 0);
  EXPECT_EQ(store.Text(4, 1), "");
  EXPECT_EQ(store.Text(4, 3), "");
}

TEST(SampleStore, CommaTextListsInFullButReadsUpToTheComma) {
  SampleStore store;
  store.Input(10, "2,75");
  EXPECT_EQ(store.ListText(10), "2,75, ");
  EXPECT_EQ(store.Value(10, 1), 2.0);
}

TEST(SampleStore, TheListFailsAtTheLastPositionAndTheStoreOneLater) {
  SampleStore store;
  for (int i = 1; i <= 254; ++i) store.Input(3, std::to_string(i));
  EXPECT_NO_THROW(store.ListText(3));
  store.Input(3, "255");
  EXPECT_EQ(store.Text(3, 255), "255");
  EXPECT_THROW(store.ListText(3), OutOfBoundsException);
  EXPECT_THROW(store.Input(3, "256"), OutOfBoundsException);
  EXPECT_EQ(store.Count(3), 256);  // counted before the store failed
  EXPECT_THROW(store.Input(11, "1"), OutOfBoundsException);
}

}  // namespace
}  // namespace tessarine::statistics
