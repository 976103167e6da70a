// The handle list against a plain model of it, over traces of random lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver/handle_list.h"
#include "report_capture.h"

namespace quillon {
namespace {

struct ModelEntry {
  std::int32_t handle;
  std::string objectName;
  std::string resolvedName;

  bool operator==(const ModelEntry&) const = default;
};

void PrintTo(const ModelEntry& entry, std::ostream* out) {
  *out << "{" << entry.handle << ", \"" << entry.objectName << "\", \"" << entry.resolvedName << "\"}";
}

// What one object descriptor tells.
struct Descriptor {
  std::int32_t version = 0;
  std::int32_t objectType = 0;
  std::string name;
  std::int32_t recsPresent = 0;
};

// Whole entries in one array, searched and moved as they stand; every access is checked.
struct Model {
  std::vector<ModelEntry> entries;
  std::string objectName;
  std::string resolvedName;
  bool objectNameKnown = false;
  std::int32_t savedHandle = 0;
  std::string terminal;

  // The index of the first equal handle or, when there is none, of the first larger one.
  std::size_t Place(std::int32_t handle, bool& hit) const {
    std::size_t low = 0;
    std::size_t high = entries.size() - 1;
    while (high - low >= 6) {
      const std::size_t middle = low + (high - low) / 2;
      (entries.at(middle).handle < handle ? low : high) = middle;
    }
    hit = false;
    for (; low <= high; ++low) {
      hit = entries.at(low).handle == handle;
      if (hit || entries.at(low).handle > handle) break;
    }
    return low;
  }

  // Whether the search finds a place; `index` is the entry's, or the one to insert at.
  bool Search(std::int32_t handle, std::size_t& index, bool& hit) {
    resolvedName.clear();
    hit = false;
    if (handle == 0 || handle == -1 || entries.empty()) {
      objectName = handle == 0 || handle == -1 ? "(null)" : "(unknown)";
      return false;
    }
    index = Place(handle, hit);
    if (hit) {
      const ModelEntry& entry = entries.at(index);
      objectName = entry.objectName;
      if (entry.resolvedName != entry.objectName) resolvedName = entry.resolvedName;
    }
    return true;
  }

  void OpenCall(const Descriptor& descriptor) {
    objectName = descriptor.objectType == 5                             ? "(queue_manager)"
                 : descriptor.version > 1 && descriptor.recsPresent > 0 ? "(distribution_list)"
                                                                        : descriptor.name;
    objectNameKnown = true;
    entries.push_back({0, objectName, ""});
  }

  void OpenReturn(const Descriptor& descriptor, std::int32_t compCode) {
    if (compCode == 2) {
      if (entries.empty()) {
        terminal += "Invalid handle count in queueHandleListDeleteLastEntry.\n";
      } else {
        entries.pop_back();
      }
      return;
    }
    const bool topic = descriptor.objectType == 8 && descriptor.version >= 4;
    const std::string returned = topic ? "-- topic --" : descriptor.name;
    resolvedName = returned == objectName ? "" : returned;
    if (entries.empty()) {
      terminal += "Invalid handle count in queueHandleListSetHandleToLastEntry.\n";
      return;
    }
    entries.back() = {savedHandle, objectName, returned};
    std::size_t place = 0;
    bool hit = false;
    if (!Search(savedHandle, place, hit) || place + 1 >= entries.size()) return;
    std::rotate(entries.begin() + static_cast<std::ptrdiff_t>(place), entries.end() - 1, entries.end());
  }

  void CloseCall() {
    std::size_t index = 0;
    bool hit = false;
    objectNameKnown = Search(savedHandle, index, hit) && hit;
    if (objectNameKnown) {
      entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
    } else {
      objectName = "(unknown)";
    }
  }

  std::string Alias(const std::string& name) const {
    if (name.empty()) return "nothing";
    for (const ModelEntry& entry : entries)
      if (entry.resolvedName == name) return entry.objectName == name ? "nothing" : entry.objectName;
    return "nothing";
  }
};

struct Random {
  std::uint64_t state;

  std::uint32_t Below(std::uint32_t limit) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state >> 33) % limit;
  }
  template <typename Item, std::size_t count>
  Item Of(const Item (&items)[count]) {
    return items[Below(count)];
  }
};

constexpr const char* kNames[] = {"",
                                  "A",
                                  "B",
                                  "MODEL",
                                  "-- topic --",
                                  "(queue_manager)",
                                  "ABCDEFGHIJKLMNOPQRSTUVWXYZ.ABCDEFGHIJKLMNOPQRSTU"};

std::vector<ModelEntry> Entries(const RunContext& runContext) {
  std::vector<ModelEntry> shown;
  for (std::size_t i = 0; i < runContext.handleList.rows.Size(); ++i) {
    const HandleRow& row = runContext.handleList.rows[i];
    const HandleEntry& entry = runContext.handleList.entries[row.slot];
    shown.push_back({row.handle, entry.objectName, entry.resolvedName});
  }
  return shown;
}

struct TraceOfRandomLines {
  ReportCapture capture;
  std::unique_ptr<TraceLineContext> context = std::make_unique<TraceLineContext>();
  Model model;
  Descriptor descriptor;
  Random random;
  std::uint32_t handles;  // how many handles there are

  TraceOfRandomLines(std::uint64_t seed, std::uint32_t handleCount) : random{seed}, handles(handleCount) {}

  RunContext& Run() { return capture.Context(); }

  void SetCall(const char* apiName, const char* phase) {
    std::string_view(apiName).copy(context->apiName, sizeof context->apiName);
    context->apiName[std::string_view(apiName).size()] = '\0';
    std::string_view(phase).copy(context->phaseText, sizeof context->phaseText);
    context->phaseText[std::string_view(phase).size()] = '\0';
  }

  void NewDescriptor() {
    descriptor.version = static_cast<std::int32_t>(random.Below(6)) - 1;
    descriptor.objectType = random.Of({1, 1, 1, 5, 8});
    descriptor.name = random.Of(kNames);
    descriptor.recsPresent = random.Of({0, 0, 0, 1, -1});
    std::vector<std::uint8_t> bytes(172, ' ');
    const auto putWord = [&](std::size_t offset, std::int32_t value) {
      for (std::size_t i = 0; i < 4; ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> (24 - 8 * i));
    };
    putWord(4, descriptor.version);
    putWord(8, descriptor.objectType);
    putWord(168, descriptor.recsPresent);
    std::copy(descriptor.name.begin(), descriptor.name.end(), bytes.begin() + 12);
    DumpBytes& saved = context->savedObjectDescriptor.bytes;
    saved.Start(static_cast<std::int32_t>(bytes.size()));
    for (const std::uint8_t byte : bytes) saved.Append(byte);
    // The copy may be voided: its bytes still name the object.
    context->savedObjectDescriptor.length =
        random.Below(2) == 0 ? 0 : static_cast<std::int32_t>(bytes.size());
  }

  std::int32_t NewHandle() {
    // Handles repeat, are negative, and 0 and -1 are among them.
    return static_cast<std::int32_t>(random.Below(handles)) - static_cast<std::int32_t>(handles / 4);
  }

  void Line(const std::string& text) {
    context->currentLine->Set(text);
    ManageRelationOfObjHandleAndObjName(Run(), *context);
  }

  std::string HandleLine() {
    model.savedHandle = NewHandle();
    char text[32];
    std::snprintf(text, sizeof text, "Hobj:0x%08X\n", static_cast<unsigned>(model.savedHandle));
    return text;
  }

  void Step() {
    if (random.Below(2) == 0) NewDescriptor();
    Run().compCode = static_cast<std::int32_t>(random.Of({0, 0, 0, 1, 2}));
    switch (random.Below(5)) {
      case 0:
      case 1:
        SetCall("ZKOPEN\n", "BEFORE\n");
        Line("-----\n");
        model.OpenCall(descriptor);
        break;
      case 2:
        SetCall("ZKOPEN\n", "AFTER\n");
        if (random.Below(8) > 0) Line(HandleLine());
        Line("-----\n");
        model.OpenReturn(descriptor, Run().compCode);
        break;
      case 3:
        SetCall("ZKCLOSE\n", "BEFORE\n");
        Line(HandleLine());
        model.CloseCall();
        break;
      default:
        SetCall("ZKGET\n", "BEFORE\n");
        Line("-----\n");
        Line("Hobj:0x00000001\n");
    }
  }

  void ExpectSame(int step) {
    ASSERT_EQ(Entries(Run()), model.entries) << "step " << step;
    ASSERT_EQ(Run().currentObjectName, model.objectName) << "step " << step;
    ASSERT_EQ(Run().currentResolvedName, model.resolvedName) << "step " << step;
    ASSERT_EQ(Run().objectNameKnown, model.objectNameKnown) << "step " << step;
    ASSERT_EQ(context->savedHandle, model.savedHandle) << "step " << step;
    for (const char* name : kNames) {
      const char* alias = queueHandleListSearchAliasNameByRealName(Run(), name);
      ASSERT_EQ(alias == nullptr ? "nothing" : alias, model.Alias(name)) << "step " << step;
    }
  }
};

// Each of the shapes that a list can take: nearly empty, full of repeated handles, full of opens that never
// return, and long.
TEST(HandleListModel, RandomLines) {
  for (const std::uint32_t handles : {4U, 12U, 60U, 4000U}) {
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
      TraceOfRandomLines trace(seed * 1000 + handles, handles);
      for (int step = 0; step < 1200; ++step) {
        trace.Step();
        trace.ExpectSame(step);
        if (HasFatalFailure()) return;
      }
      EXPECT_EQ(trace.capture.Terminal(), trace.model.terminal);
    }
  }
}

}  // namespace
}  // namespace quillon
