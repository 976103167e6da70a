#include "driver/handle_list.h"

#include <cstring>
#include <functional>

#include "base/byte_view.h"
#include "base/hex_digits.h"
#include "base/struct_reader.h"
#include "driver/message_catalogue.h"

namespace quillon {
namespace {

constexpr std::int32_t kGrowthStep = 100;

constexpr std::int32_t kMessageText = 1;
constexpr std::int32_t kMessageNoMemory = 1010;
constexpr std::int32_t kResultNone = 0;

using ObjectName = char[kObjectNameLength + 1];

/// Cuts the text at its first NUL and at the width of a name, and trims it. `text` may be `name` itself.
void SetObjectName(ObjectName& name, std::string_view text) {
  text = text.substr(0, kObjectNameLength);
  text = text.substr(0, text.find('\0'));
  if (!text.empty()) std::memmove(name, text.data(), text.size());
  std::memset(name + text.size(), 0, sizeof name - text.size());
  StringTrim(name);
}

/// Never 0 for a name, so that entries without a resolved name are passed over.
std::uint32_t MarkOfName(std::string_view name) {
  if (name.empty()) return 0;
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(name)) | 1;
}

HandleEntry& EntryAt(HandleList& list, std::int32_t index) {
  return list.entries[list.rows[static_cast<std::size_t>(index)].slot];
}

HandleRow& RowAt(HandleList& list, std::int32_t index) {
  return list.rows[static_cast<std::size_t>(index)];
}

bool Grow(HandleList& list) {
  const std::int32_t grown = list.capacity + kGrowthStep;
  if (!list.rows.Reserve(static_cast<std::size_t>(grown))) return false;
  if (!list.entries.Reserve(static_cast<std::size_t>(grown))) return false;
  for (std::int32_t i = list.capacity; i < grown; ++i) {
    RowAt(list, i) = {0, static_cast<std::uint32_t>(i), 0};
    EntryAt(list, i) = {};
  }
  list.capacity = grown;
  return true;
}

/// Moves the rows between two indexes by one place: the row at `from` goes to `to`.
void MoveRow(HandleList& list, std::int32_t from, std::int32_t to) {
  const HandleRow moved = RowAt(list, from);
  HandleRow* rows = list.rows.Data();
  if (to < from) {
    std::memmove(rows + to + 1, rows + to, static_cast<std::size_t>(from - to) * sizeof(HandleRow));
  } else {
    std::memmove(rows + from, rows + from + 1, static_cast<std::size_t>(to - from) * sizeof(HandleRow));
  }
  RowAt(list, to) = moved;
}

/// Takes the last entry off the list; its slot becomes the next free one.
void DropLastEntry(HandleList& list) {
  --list.count;
  EntryAt(list, list.count) = {};
  HandleRow& row = RowAt(list, list.count);
  row = {0, row.slot, 0};
}

void MakeNamesCurrent(RunContext& runContext, const HandleEntry& entry) {
  SetObjectName(runContext.currentObjectName, entry.objectName);
  if (std::strcmp(entry.objectName, entry.resolvedName) != 0)
    SetObjectName(runContext.currentResolvedName, entry.resolvedName);
}

/// The fields of an object descriptor that tell an object's name; integers are read as stored.
struct DescribedObject {
  std::int32_t version;
  std::int32_t objectType;
  std::int32_t recsPresent;
  ObjectName name;
};

constexpr std::int32_t kObjectTypeQueueManager = 5;
constexpr std::int32_t kObjectTypeTopic = 8;

DescribedObject ReadSavedObjectDescriptor(const RunContext& runContext,
                                          const TraceLineContext& traceLineContext) {
  // The copy's bytes outlive its length: a call that dumps no descriptor is named by the one before it.
  const ByteView descriptor = traceLineContext.savedObjectDescriptor.bytes.Declared();
  DescribedObject object;
  const ByteOrder order = OrderOfSavedCopy(runContext, descriptor);
  object.version = descriptor.Int32(kVersionOffset, order);
  object.objectType = descriptor.Int32(8, order);
  object.recsPresent = descriptor.Int32(168, order);
  std::uint8_t name[kObjectNameLength];
  descriptor.CopyTo(name, 12, sizeof name);
  SetObjectName(object.name, {reinterpret_cast<const char*>(name), sizeof name});
  return object;
}

void NoteOpenCall(RunContext& runContext, const TraceLineContext& traceLineContext) {
  DescribedObject object = ReadSavedObjectDescriptor(runContext, traceLineContext);
  if (object.objectType == kObjectTypeQueueManager) {
    SetObjectName(object.name, "(queue_manager)");
  } else if (object.version > 1 && object.recsPresent > 0) {
    SetObjectName(object.name, "(distribution_list)");
  }
  SetObjectName(runContext.currentObjectName, object.name);
  runContext.objectNameKnown = true;
  queueHandleListAddEntry(runContext, object.name, 1, 1, 1, 1, 1, 1);
}

void NoteOpenReturn(RunContext& runContext, const TraceLineContext& traceLineContext) {
  if (runContext.compCode == kCompCodeFailed) {
    queueHandleListDeleteLastEntry(runContext);
    return;
  }
  DescribedObject object = ReadSavedObjectDescriptor(runContext, traceLineContext);
  if (object.objectType == kObjectTypeTopic && object.version >= 4) SetObjectName(object.name, "-- topic --");
  queueHandleListSetHandleToLastEntry(runContext, traceLineContext.savedHandle, runContext.currentObjectName,
                                      object.name);
}

void NoteCloseCall(RunContext& runContext, std::int32_t handle) {
  const std::int32_t index =
      queueHandleListSearchEntryByHandle(runContext, handle, HandleSearchMode::EntryOnly);
  runContext.objectNameKnown = index >= 0;
  if (index < 0) {
    SetObjectName(runContext.currentObjectName, "(unknown)");
  } else {
    queueHandleListDeleteEntry(runContext, index);
  }
}

constexpr std::string_view kHandleLabel = "Hobj:0x";

std::int32_t ReadHandle(TraceLineContext& traceLineContext) {
  traceLineContext.savedHandle =
      ConvertEightByteHexToInteger(traceLineContext.currentLine->From(kHandleLabel.size()));
  return traceLineContext.savedHandle;
}

}  // namespace

void ManageRelationOfObjHandleAndObjName(RunContext& runContext, TraceLineContext& traceLineContext) {
  const bool sectionEnds = traceLineContext.currentLine->StartsWith("-");
  const bool handleStands = !sectionEnds && traceLineContext.currentLine->StartsWith(kHandleLabel);
  if (!sectionEnds && !handleStands) return;

  const std::string_view apiName = traceLineContext.apiName;
  const std::string_view phase = traceLineContext.phaseText;
  if (apiName == "ZKOPEN\n" && phase == "BEFORE\n") {
    if (sectionEnds) NoteOpenCall(runContext, traceLineContext);
  } else if (apiName == "ZKOPEN\n" && phase == "AFTER\n") {
    if (sectionEnds) NoteOpenReturn(runContext, traceLineContext);
    if (handleStands) ReadHandle(traceLineContext);
  } else if (apiName == "ZKCLOSE\n" && phase == "BEFORE\n") {
    if (handleStands) NoteCloseCall(runContext, ReadHandle(traceLineContext));
  }
}

void queueHandleListAddEntry(RunContext& runContext, std::string_view name, std::uint8_t flag1,
                             std::uint8_t flag2, std::uint8_t flag3, std::uint8_t flag4, std::uint8_t flag5,
                             std::uint8_t flag6) {
  HandleList& list = runContext.handleList;
  if (list.capacity <= list.count + 1 && !Grow(list)) {
    // Kept: the entry is missing from now on, and the return of this open names the entry before it.
    PutMessage(runContext, kMessageNoMemory, kResultNone);
    return;
  }
  HandleEntry& entry = EntryAt(list, list.count);
  entry = {{}, {}, {flag1, flag2, flag3, flag4, flag5, flag6}};
  SetObjectName(entry.objectName, name);
  ++list.count;
}

void queueHandleListSetHandleToLastEntry(RunContext& runContext, std::int32_t handle, std::string_view name,
                                         std::optional<std::string_view> resolvedName) {
  ObjectName resolved = {};
  if (resolvedName) SetObjectName(resolved, *resolvedName);
  SetObjectName(runContext.currentObjectName, name);
  const bool sameName = std::strcmp(resolved, runContext.currentObjectName) == 0;
  SetObjectName(runContext.currentResolvedName, sameName ? "" : resolved);

  HandleList& list = runContext.handleList;
  if (list.count == 0) {
    PutMessage(runContext, kMessageText, kResultNone,
               "Invalid handle count in queueHandleListSetHandleToLastEntry.");
    return;
  }
  const std::int32_t last = list.count - 1;
  HandleEntry& entry = EntryAt(list, last);
  SetObjectName(entry.objectName, runContext.currentObjectName);
  RowAt(list, last).handle = handle;
  if (resolvedName) {
    SetObjectName(entry.resolvedName, resolved);
    RowAt(list, last).resolvedNameMark = MarkOfName(resolved);
  }
  const std::int32_t place =
      queueHandleListSearchEntryByHandle(runContext, handle, HandleSearchMode::InsertionIndex);
  if (place >= 0 && place < last) MoveRow(list, last, place);
}

std::int32_t queueHandleListSearchEntryByHandle(RunContext& runContext, std::int32_t handle,
                                                HandleSearchMode mode) {
  HandleList& list = runContext.handleList;
  SetObjectName(runContext.currentResolvedName, "");
  if (handle == 0 || handle == -1 || list.count == 0) {
    SetObjectName(runContext.currentObjectName, handle == 0 || handle == -1 ? "(null)" : "(unknown)");
    return -1;
  }
  std::int32_t low = 0;
  std::int32_t high = list.count - 1;
  while (high - low >= 6) {
    const std::int32_t middle = low + (high - low) / 2;
    if (RowAt(list, middle).handle < handle) {
      low = middle;
    } else {
      high = middle;
    }
  }
  while (low <= high && RowAt(list, low).handle < handle) ++low;
  if (low <= high && RowAt(list, low).handle == handle) {
    MakeNamesCurrent(runContext, EntryAt(list, low));
    return low;
  }
  return mode == HandleSearchMode::EntryOnly ? -1 : low;
}

void queueHandleListDeleteEntry(RunContext& runContext, std::int32_t index) {
  HandleList& list = runContext.handleList;
  if (index < 0 || index >= list.count) return;
  MoveRow(list, index, list.count - 1);
  DropLastEntry(list);
}

void queueHandleListDeleteLastEntry(RunContext& runContext) {
  if (runContext.handleList.count == 0) {
    PutMessage(runContext, kMessageText, kResultNone,
               "Invalid handle count in queueHandleListDeleteLastEntry.");
    return;
  }
  DropLastEntry(runContext.handleList);
}

const char* queueHandleListSearchAliasNameByRealName(const RunContext& runContext, std::string_view name) {
  ObjectName realName;
  SetObjectName(realName, name);
  const std::uint32_t mark = MarkOfName(realName);
  if (mark == 0) return nullptr;
  const HandleList& list = runContext.handleList;
  for (std::int32_t i = 0; i < list.count; ++i) {
    const HandleRow& row = list.rows[static_cast<std::size_t>(i)];
    if (row.resolvedNameMark != mark) continue;
    const HandleEntry& entry = list.entries[row.slot];
    if (std::strcmp(entry.resolvedName, realName) != 0) continue;
    return std::strcmp(entry.objectName, realName) == 0 ? nullptr : entry.objectName;
  }
  return nullptr;
}

void StringTrim(char* text) {
  std::size_t length = std::strlen(text);
  while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == '\n' || text[length - 1] == '\r'))
    --length;
  std::size_t start = 0;
  while (start < length && text[start] == ' ') ++start;
  std::memmove(text, text + start, length - start);
  text[length - start] = '\0';
}

}  // namespace quillon
