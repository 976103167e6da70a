// The short traces that stand in the examples folder.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillon::compose {

/// One example: the name of its file without ".txt", and what composes it.
struct ExampleStory {
  std::string_view name;
  std::string (*compose)();
};

std::span<const ExampleStory> ExampleStories();

}  // namespace quillon::compose
