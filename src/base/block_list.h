// A list with an index that takes and loses items at any place without moving all that stand behind.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "base/growable_array.h"

namespace quillon {

/// Items stand in blocks, each with a part of the order; a full block is halved. To put an item in or to take
/// one out moves at most a block's items and counts the blocks behind it, so a list of a hundred thousand is
/// changed as fast as a short one. Blocks are kept for later items, never given back.
template <typename Item>
class BlockList {
 public:
  static constexpr std::size_t kBlockItems = 1024;

  std::size_t Size() const { return size; }
  /// Blocks that the items stand in.
  std::size_t BlockCount() const { return used; }

  /// The item at an index below Size(); valid until the next Insert or Erase.
  Item& operator[](std::size_t index) {
    const std::size_t block = BlockOf(index);
    return ItemsOf(block)[index - first[block]];
  }
  const Item& operator[](std::size_t index) const {
    const std::size_t block = BlockOf(index);
    return ItemsOf(block)[index - first[block]];
  }

  /// Puts the item before the one at `index`, or behind all when that is Size(). False when there is no
  /// memory; nothing has changed then.
  bool Insert(std::size_t index, const Item& item) {
    std::size_t block = used == 0 ? 0 : BlockOf(index);
    if (used == 0) {
      if (!AddBlock(0, 0)) return false;
    } else if (SizeOf(block) == kBlockItems) {
      // A list that grows at its end leaves full blocks behind.
      const std::size_t kept = index == size ? kBlockItems : kBlockItems / 2;
      if (!AddBlock(block + 1, first[block] + kept)) return false;
      std::copy_n(ItemsOf(block) + kept, kBlockItems - kept, ItemsOf(block + 1));
      if (index >= first[block + 1]) ++block;
    }
    Item* const place = ItemsOf(block) + (index - first[block]);
    std::copy_backward(place, ItemsOf(block) + SizeOf(block), ItemsOf(block) + SizeOf(block) + 1);
    *place = item;
    ++size;
    for (std::size_t behind = block + 1; behind < used; ++behind) ++first[behind];
    return true;
  }

  /// Takes out the item at an index below Size().
  void Erase(std::size_t index) {
    const std::size_t block = BlockOf(index);
    Item* const place = ItemsOf(block) + (index - first[block]);
    std::copy(place + 1, ItemsOf(block) + SizeOf(block), place);
    --size;
    for (std::size_t behind = block + 1; behind < used; ++behind) --first[behind];
    if (SizeOf(block) == 0) {
      RemoveBlock(block);
    } else {
      if (block > 0) MergeNext(block - 1);
      MergeNext(block);
    }
  }

  /// Halves the range of indexes from `low` to `high` (below Size()) while they are at least `apart`: where
  /// the item in the middle `isBefore` the one that is sought, it becomes the new low end, else the new high
  /// end.
  template <typename IsBefore>
  void Halve(std::size_t& low, std::size_t& high, std::size_t apart, IsBefore isBefore) const {
    std::size_t lowBlock = 0;
    std::size_t highBlock = used - 1;
    while (high - low >= apart) {
      const std::size_t middle = low + (high - low) / 2;
      const std::size_t block = BlockBetween(lowBlock, highBlock, middle);
      const bool before = isBefore(ItemsOf(block)[middle - first[block]]);
      (before ? low : high) = middle;
      (before ? lowBlock : highBlock) = block;
    }
    recent = lowBlock;
  }

  /// Index of the first item that `matches`; Size() when none does.
  template <typename Matches>
  std::size_t Find(Matches matches) const {
    for (std::size_t block = 0; block < used; ++block) {
      const Item* const items = ItemsOf(block);
      const Item* const end = items + SizeOf(block);
      const Item* const found = std::find_if(items, end, matches);
      if (found != end) return first[block] + static_cast<std::size_t>(found - items);
    }
    return size;
  }

 private:
  struct Block {
    Item items[kBlockItems];
  };

  // Of some neighbours most stand in the block that was used last.
  std::size_t BlockOf(std::size_t index) const {
    if (recent >= used || index < first[recent] || index - first[recent] >= SizeOf(recent))
      recent = BlockBetween(0, used - 1, index);
    return recent;
  }
  // The item stands in one of these blocks. They are halved without branches, which would go either way as
  // often and cost more than the steps.
  std::size_t BlockBetween(std::size_t low, std::size_t high, std::size_t index) const {
    const std::size_t* block = first.Data() + low;
    for (std::size_t left = high - low + 1; left > 1; left -= left / 2)
      block += block[left / 2] <= index ? left / 2 : 0;
    return static_cast<std::size_t>(block - first.Data());
  }
  Item* ItemsOf(std::size_t block) { return blocks[order[block]].items; }
  const Item* ItemsOf(std::size_t block) const { return blocks[order[block]].items; }
  std::size_t SizeOf(std::size_t block) const {
    return (block + 1 < used ? first[block + 1] : size) - first[block];
  }

  // Twice as much at a time; pages that are never written to cost nothing.
  template <typename Kept>
  bool Grow(GrowableArray<Kept>& array) {
    return array.Capacity() > made || array.Reserve(std::max<std::size_t>(8, made * 2));
  }

  bool AddBlock(std::size_t block, std::size_t firstItem) {
    if (used == made) {
      if (!Grow(blocks) || !Grow(order) || !Grow(first)) return false;
      order[made] = static_cast<std::uint32_t>(made);
      ++made;
    }
    const std::uint32_t added = order[used];
    std::copy_backward(order.Data() + block, order.Data() + used, order.Data() + used + 1);
    std::copy_backward(first.Data() + block, first.Data() + used, first.Data() + used + 1);
    order[block] = added;
    first[block] = firstItem;
    ++used;
    return true;
  }

  // Blocks that have become sparse would otherwise stay for as long as each holds an item.
  void MergeNext(std::size_t block) {
    if (block + 1 >= used) return;
    const std::size_t mine = SizeOf(block);
    const std::size_t next = SizeOf(block + 1);
    if (mine + next > kBlockItems / 2) return;
    std::copy_n(ItemsOf(block + 1), next, ItemsOf(block) + mine);
    RemoveBlock(block + 1);
  }

  void RemoveBlock(std::size_t block) {
    const std::uint32_t removed = order[block];
    std::copy(order.Data() + block + 1, order.Data() + used, order.Data() + block);
    std::copy(first.Data() + block + 1, first.Data() + used, first.Data() + block);
    --used;
    order[used] = removed;
  }

  GrowableArray<Block> blocks;         ///< in the order of their making
  GrowableArray<std::uint32_t> order;  ///< the list's blocks in its order, then those that are free
  GrowableArray<std::size_t> first;    ///< index of the first item of each block of the list
  std::size_t made = 0;
  std::size_t used = 0;
  std::size_t size = 0;
  mutable std::size_t recent = 0;  ///< the block that was used last; any other number does no harm
};

}  // namespace quillon
