#include "load_traces.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "message_maker.h"

namespace quillon::compose {

namespace {

constexpr std::uint32_t kMostHandles = 100000;
/// About what an open, its share of gets and its close take of a trace, in bytes.
constexpr std::uint64_t kBytesToAHandle = 1900;
constexpr std::uint32_t kFirstHandle = 2;

// The multiples of a stride, modulo a count without a common factor, visit every number below the count once
// and jump to and fro.
constexpr std::uint64_t kOpenStride = 61813;
constexpr std::uint64_t kCloseStride = 38197;

/// The place among `count` that comes at `index` in the order of the stride.
std::uint32_t Scrambled(std::uint32_t index, std::uint64_t stride, std::uint32_t count) {
  return static_cast<std::uint32_t>(index * stride % count);
}

/// The strides are primes, so only a multiple of one has a factor in common with it.
std::uint32_t HandleCount(std::uint64_t size) {
  const std::uint64_t fitting = std::max<std::uint64_t>(1, size / kBytesToAHandle);
  const auto count = static_cast<std::uint32_t>(std::min<std::uint64_t>(kMostHandles, fitting));
  return count % kOpenStride == 0 || count % kCloseStride == 0 ? count - 1 : count;
}

std::string NumberedQueue(std::uint32_t number) {
  return "PARCEL.STOP." + std::to_string(number);
}

/// A queue, or an alias that leads to it.
ObjectToOpen NumberedObject(std::uint32_t number) {
  ObjectToOpen object;
  object.descriptor.version = 1;
  object.descriptor.objectName = NumberedQueue(number);
  object.options = 0x2011;
  if (number % 4 != 0) return object;
  object.descriptor.objectName = "PARCEL.ALIAS." + std::to_string(number);
  object.resolvedName = NumberedQueue(number);
  return object;
}

MessageToGet Note(std::uint32_t number) {
  MessageToGet message;
  message.body = TextBody("Stop " + std::to_string(number));
  message.queueName = NumberedQueue(number);
  message.options.options = 0x2005;
  return message;
}

void TellManyHandles(Session& session, const LoadWanted& wanted) {
  const std::uint32_t count = HandleCount(wanted.size);
  Connect(session);
  for (std::uint32_t number = 0; number < count && wanted.more(); ++number) {
    session.nextHandle = kFirstHandle + Scrambled(number, kOpenStride, count);
    const std::uint32_t handle = Open(session, NumberedObject(number));
    if (number % 8 == 0) Get(session, handle, Note(number));
  }
  for (std::uint32_t number = 0; number < count && wanted.more(); ++number)
    Close(session, kFirstHandle + Scrambled(number, kCloseStride, count));
  Disconnect(session);
}

/// Lines go to the sink in groups; the clock numbers them, so that a second call goes on where the first
/// ended.
void TellDistinctLines(Session& session, const LoadWanted& wanted) {
  constexpr int kLinesToAGroup = 100;
  while (wanted.more()) {
    for (int line = 0; line < kLinesToAGroup; ++line) {
      session.trace.Advance(1);
      const std::int64_t number = session.trace.now.time_since_epoch().count();
      const auto length = static_cast<std::size_t>(session.random.Between(1, 100));
      session.trace.Line("Note " + std::to_string(number) + " " + MakeText(session.random, 819, length));
    }
    session.trace.sectionSink(session.trace.text);
    session.trace.text.clear();
  }
}

constexpr LoadTrace kLoadTraces[] = {
    {"handles", TellManyHandles},
    {"lines", TellDistinctLines},
};

}  // namespace

std::span<const LoadTrace> LoadTraces() {
  return kLoadTraces;
}

}  // namespace quillon::compose
