// A buffer that only grows: the owner of every allocation that depends on the trace.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <type_traits>
#include <utility>

namespace quillon {

/// Owns `capacity` items; `Reserve` keeps the items and tells whether the memory could be had, so that a
/// caller can report message 1010 instead of ending by an exception. New items are uninitialised.
template <typename Item>
class GrowableArray {
  static_assert(std::is_trivially_copyable_v<Item>, "items are moved as bytes");

 public:
  GrowableArray() = default;
  GrowableArray(const GrowableArray&) = delete;
  GrowableArray& operator=(const GrowableArray&) = delete;
  ~GrowableArray() { std::free(items); }

  /// Grows to exactly `wanted` items if there are fewer; false when there is no memory (nothing has changed
  /// then).
  bool Reserve(std::size_t wanted) {
    if (wanted <= capacity) return true;
    if (wanted > static_cast<std::size_t>(-1) / sizeof(Item)) return false;
    void* grown = std::realloc(items, wanted * sizeof(Item));
    if (grown == nullptr) return false;
    items = static_cast<Item*>(grown);
    capacity = wanted;
    return true;
  }

  Item* Data() { return items; }
  const Item* Data() const { return items; }
  Item& operator[](std::size_t index) { return items[index]; }
  const Item& operator[](std::size_t index) const { return items[index]; }
  std::size_t Capacity() const { return capacity; }

  void Swap(GrowableArray& other) noexcept {
    std::swap(items, other.items);
    std::swap(capacity, other.capacity);
  }

 private:
  Item* items = nullptr;
  std::size_t capacity = 0;
};

}  // namespace quillon
