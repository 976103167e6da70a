#include "base/block_list.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <vector>

namespace quillon {
namespace {

using Numbers = BlockList<int>;

void ExpectSame(const Numbers& list, const std::vector<int>& model) {
  ASSERT_EQ(list.Size(), model.size());
  for (std::size_t i = 0; i < model.size(); ++i) ASSERT_EQ(list[i], model[i]) << i;
}

TEST(BlockList, IsEmptyAtFirst) {
  const Numbers list;
  EXPECT_EQ(list.Size(), 0u);
  EXPECT_EQ(list.Find([](int) { return true; }), 0u);
}

// Three full blocks and a bit, put in at one end, at the other and in the middle.
TEST(BlockList, TakesItemsAtAnyPlace) {
  constexpr int kItems = static_cast<int>(Numbers::kBlockItems) * 3 + 7;
  for (const int place : {0, 1, 2}) {
    Numbers list;
    std::vector<int> model;
    for (int i = 0; i < kItems; ++i) {
      const std::size_t index = model.size() * static_cast<std::size_t>(place) / 2;
      ASSERT_TRUE(list.Insert(index, i));
      model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), i);
    }
    ExpectSame(list, model);
  }
}

TEST(BlockList, CanBeEmptiedAndFilledAgain) {
  Numbers list;
  for (int round = 0; round < 3; ++round) {
    constexpr int kItems = static_cast<int>(Numbers::kBlockItems) * 4;
    for (int i = 0; i < kItems; ++i) ASSERT_TRUE(list.Insert(list.Size(), i));
    for (int i = kItems - 1; i >= 0; --i) {
      EXPECT_EQ(list[list.Size() - 1], i);
      list.Erase(list.Size() - 1);
    }
    EXPECT_EQ(list.Size(), 0u);
  }
}

TEST(BlockList, FindsTheFirstMatch) {
  Numbers list;
  for (int i = 0; i < 8000; ++i) ASSERT_TRUE(list.Insert(list.Size(), i % 2800));
  EXPECT_EQ(list.Find([](int number) { return number == 0; }), 0u);
  EXPECT_EQ(list.Find([](int number) { return number == 2799; }), 2799u);
  EXPECT_EQ(list.Find([](int number) { return number == 2800; }), 8000u);
  list.Erase(2799);
  EXPECT_EQ(list.Find([](int number) { return number == 2799; }), 5598u);
}

// Also where the items are in no order: what is looked at decides, and it must be the same as in a vector.
TEST(BlockList, HalvesLikeAVector) {
  std::mt19937 random(7);
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{6}, Numbers::kBlockItems, Numbers::kBlockItems * 9}) {
    Numbers list;
    std::vector<int> model;
    for (std::size_t i = 0; i < size; ++i) {
      const int item = i % 50 == 0 ? static_cast<int>(random() % 10000) : static_cast<int>(i);
      const std::size_t index = random() % (i + 1);
      ASSERT_TRUE(list.Insert(index, item));
      model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), item);
    }
    for (int sought = -1; sought < 10001; sought += 13) {
      std::size_t low = 0;
      std::size_t high = size - 1;
      list.Halve(low, high, 6, [&](int item) { return item < sought; });
      std::size_t modelLow = 0;
      std::size_t modelHigh = size - 1;
      while (modelHigh - modelLow >= 6) {
        const std::size_t middle = (modelLow + modelHigh) / 2;
        if (model[middle] < sought) {
          modelLow = middle;
        } else {
          modelHigh = middle;
        }
      }
      ASSERT_EQ(low, modelLow) << size << " " << sought;
      ASSERT_EQ(high, modelHigh) << size << " " << sought;
      ASSERT_EQ(list[low], model[low]) << size << " " << sought;
    }
  }
}

// Of each block one item is left: as many blocks would be kept as there are items.
TEST(BlockList, JoinsBlocksThatHaveBecomeSparse) {
  Numbers list;
  std::vector<int> model;
  for (int i = 0; i < 100000; ++i) ASSERT_TRUE(list.Insert(list.Size(), i));
  for (std::size_t index = 0; index < list.Size(); ++index) {
    model.push_back(list[index]);
    for (std::size_t i = 1; i < Numbers::kBlockItems && index + 1 < list.Size(); ++i) list.Erase(index + 1);
  }
  ExpectSame(list, model);
  const std::size_t left = 100000 / Numbers::kBlockItems + 1;
  EXPECT_EQ(list.Size(), left);
  EXPECT_LE(list.BlockCount(), 2 * left / (Numbers::kBlockItems / 2) + 1);
}

// Grows to many blocks and shrinks to few, again and again.
TEST(BlockList, HoldsWhatAVectorHolds) {
  std::mt19937 random(20);
  Numbers list;
  std::vector<int> model;
  for (int step = 0; step < 240000; ++step) {
    const bool grows = step / 24000 % 2 == 0;
    const bool insert = model.empty() || random() % 10 < (grows ? 8U : 2U);
    const std::size_t index = random() % (model.size() + (insert ? 1 : 0));
    if (insert) {
      ASSERT_TRUE(list.Insert(index, step));
      model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), step);
    } else {
      list.Erase(index);
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
    }
    if (step % 7993 == 0) ExpectSame(list, model);
  }
  ExpectSame(list, model);
}

}  // namespace
}  // namespace quillon
