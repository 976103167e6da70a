// Traces that load one part of the program: very many open handles, or no line twice.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "session_composer.h"

namespace quillon::compose {

/// What a load trace is told about the trace that is asked for.
struct LoadWanted {
  std::uint64_t size;          ///< its length in bytes
  std::function<bool()> more;  ///< whether it is still shorter than that
};

/// One such trace: its name among the mixes, and what composes it. `tell` may be called again until enough is
/// written; it returns between two sections, as soon as no more is wanted.
struct LoadTrace {
  std::string_view mix;
  void (*tell)(Session& session, const LoadWanted& wanted);
};

/// "handles": as many objects as fit, 100,000 at most (in about 190 MB), are opened before the first is
/// closed. Their handles come in scrambled order, every eighth open is followed by a get, every fourth object
/// is an alias. "lines": ordinary lines, no two of them alike.
std::span<const LoadTrace> LoadTraces();

}  // namespace quillon::compose
