#include "base/growable_array.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>

namespace quillon {
namespace {

constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();

TEST(GrowableArray, HoldsNothingAtFirst) {
  const GrowableArray<std::uint32_t> array;
  EXPECT_EQ(array.Capacity(), 0u);
}

TEST(GrowableArray, KeepsItsItemsWhenItGrows) {
  GrowableArray<std::uint32_t> array;
  ASSERT_TRUE(array.Reserve(3));
  EXPECT_EQ(array.Capacity(), 3u);
  for (std::uint32_t i = 0; i < 3; ++i) array[i] = 100 + i;
  ASSERT_TRUE(array.Reserve(100000));
  EXPECT_EQ(array.Capacity(), 100000u);
  for (std::uint32_t i = 0; i < 3; ++i) EXPECT_EQ(array[i], 100 + i);
}

TEST(GrowableArray, NeverShrinks) {
  GrowableArray<std::uint32_t> array;
  ASSERT_TRUE(array.Reserve(10));
  const std::uint32_t* items = array.Data();
  EXPECT_TRUE(array.Reserve(10));
  EXPECT_TRUE(array.Reserve(9));
  EXPECT_TRUE(array.Reserve(0));
  EXPECT_EQ(array.Capacity(), 10u);
  EXPECT_EQ(array.Data(), items);
}

// The size in bytes would wrap round to a small one.
TEST(GrowableArray, RefusesMoreItemsThanCanBeCountedInBytes) {
  GrowableArray<std::uint32_t> array;
  ASSERT_TRUE(array.Reserve(2));
  array[1] = 7;
  EXPECT_FALSE(array.Reserve(kMost / sizeof(std::uint32_t) + 1));
  EXPECT_FALSE(array.Reserve(kMost / sizeof(std::uint32_t) + 2));
  EXPECT_FALSE(array.Reserve(kMost));
  EXPECT_EQ(array.Capacity(), 2u);
  EXPECT_EQ(array[1], 7u);
}

TEST(GrowableArray, SwapExchangesItemsAndCapacity) {
  GrowableArray<std::uint32_t> full, empty;
  ASSERT_TRUE(full.Reserve(4));
  full[3] = 9;
  full.Swap(empty);
  EXPECT_EQ(full.Capacity(), 0u);
  ASSERT_EQ(empty.Capacity(), 4u);
  EXPECT_EQ(empty[3], 9u);
}

}  // namespace
}  // namespace quillon
