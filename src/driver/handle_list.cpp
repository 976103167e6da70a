#include "driver/handle_list.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include "base/byte_view.h"
#include "base/hex_digits.h"
#include "base/struct_reader.h"
#include "driver/message_catalogue.h"

namespace quillon {
namespace {

// Names for so many open objects are allocated at first.
constexpr std::size_t kFirstEntries = 128;

constexpr std::int32_t kMessageText = 1;
constexpr std::int32_t kMessageNoMemory = 1010;
constexpr std::int32_t kResultNone = 0;

using ObjectName = char[kObjectNameLength + 1];

/// Cuts the text at its first NUL and at the width of a name, and trims it. `text` may be `name` itself.
// cppcheck-suppress constParameter ; it overlooks that memset writes through a reference to an array
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

std::int32_t CountOf(const HandleList& list) {
  return static_cast<std::int32_t>(list.rows.Size());
}

HandleRow& RowAt(HandleList& list, std::int32_t index) {
  return list.rows[static_cast<std::size_t>(index)];
}

HandleEntry& EntryAt(HandleList& list, std::int32_t index) {
  return list.entries[RowAt(list, index).slot];
}

/// The chain for a mark, of which the lowest bit is always set.
std::size_t ChainIndex(const HandleList& list, std::uint32_t mark) {
  return mark / 2 & (list.chainCount - 1);
}

void Link(HandleList& list, std::uint32_t slot) {
  HandleLink& link = list.links[slot];
  if (link.resolvedNameMark == 0) return;
  std::uint32_t& first = list.chains[ChainIndex(list, link.resolvedNameMark)];
  link.next = first;
  link.previous = kNoSlot;
  if (first != kNoSlot) list.links[first].previous = slot;
  first = slot;
}

void Unlink(HandleList& list, std::uint32_t slot) {
  const HandleLink& link = list.links[slot];
  if (link.resolvedNameMark == 0) return;
  if (link.next != kNoSlot) list.links[link.next].previous = link.previous;
  if (link.previous != kNoSlot) {
    list.links[link.previous].next = link.next;
  } else {
    list.chains[ChainIndex(list, link.resolvedNameMark)] = link.next;
  }
}

/// Four times as many chains as soon as there is more than one entry to a chain. Without memory the chains
/// stay as they are, if there are any, and grow longer.
bool GrowChains(HandleList& list) {
  const std::uint32_t wanted = std::max<std::uint32_t>(128, list.chainCount * 4);
  if (!list.chains.Reserve(wanted)) return list.chainCount > 0;
  list.chainCount = wanted;
  std::fill_n(list.chains.Data(), wanted, kNoSlot);
  for (std::int32_t i = 0; i < CountOf(list); ++i) Link(list, RowAt(list, i).slot);
  return true;
}

bool GrowEntries(HandleList& list) {
  const std::size_t capacity = std::min(list.entries.Capacity(), list.links.Capacity());
  const std::size_t wanted = capacity + capacity / 2 + kFirstEntries;
  return list.slotCount < capacity || (list.entries.Reserve(wanted) && list.links.Reserve(wanted));
}

/// A slot for a new entry; kNoSlot when there is no memory.
std::uint32_t TakeSlot(HandleList& list) {
  const std::uint32_t freed = list.freeSlot;
  if (freed != kNoSlot) {
    list.freeSlot = list.links[freed].next;
    return freed;
  }
  if (!GrowEntries(list)) return kNoSlot;
  if (list.slotCount >= list.chainCount && !GrowChains(list)) return kNoSlot;
  return list.slotCount++;
}

void FreeSlot(HandleList& list, std::uint32_t slot) {
  list.links[slot].next = list.freeSlot;
  list.freeSlot = slot;
}

void SetResolvedName(HandleList& list, std::uint32_t slot, const ObjectName& name) {
  Unlink(list, slot);
  SetObjectName(list.entries[slot].resolvedName, name);
  list.links[slot].resolvedNameMark = MarkOfName(name);
  Link(list, slot);
}

/// Without memory the row stays last.
void MoveLastRow(HandleList& list, std::int32_t place) {
  const std::size_t last = list.rows.Size() - 1;
  const HandleRow moved = list.rows[last];
  if (list.rows.Insert(static_cast<std::size_t>(place), moved)) list.rows.Erase(last + 1);
}

void RemoveEntry(HandleList& list, std::int32_t index) {
  const std::uint32_t slot = RowAt(list, index).slot;
  Unlink(list, slot);
  FreeSlot(list, slot);
  list.rows.Erase(static_cast<std::size_t>(index));
}

bool HasResolvedName(const HandleList& list, std::uint32_t slot, std::uint32_t mark, const ObjectName& name) {
  return list.links[slot].resolvedNameMark == mark && std::strcmp(list.entries[slot].resolvedName, name) == 0;
}

/// Some entry has this resolved name.
const HandleEntry& FirstInOrder(const HandleList& list, std::uint32_t mark, const ObjectName& name) {
  const std::size_t index =
      list.rows.Find([&](const HandleRow& row) { return HasResolvedName(list, row.slot, mark, name); });
  return list.entries[list.rows[index].slot];
}

/// The first entry in the list's order with this resolved name; null when there is none. Where only one has
/// it, which is usual, its chain leads to it; else the order is walked.
const HandleEntry* FirstOfResolvedName(const HandleList& list, const ObjectName& name) {
  const std::uint32_t mark = MarkOfName(name);
  if (mark == 0 || list.chainCount == 0) return nullptr;
  const HandleEntry* only = nullptr;
  for (std::uint32_t slot = list.chains[ChainIndex(list, mark)]; slot != kNoSlot;
       slot = list.links[slot].next) {
    if (!HasResolvedName(list, slot, mark, name)) continue;
    if (only != nullptr) return &FirstInOrder(list, mark, name);
    only = &list.entries[slot];
  }
  return only;
}

/// An entry's names are trimmed already.
void MakeNamesCurrent(RunContext& runContext, const HandleEntry& entry) {
  std::memcpy(runContext.currentObjectName, entry.objectName, sizeof entry.objectName);
  if (std::strcmp(entry.objectName, entry.resolvedName) != 0)
    std::memcpy(runContext.currentResolvedName, entry.resolvedName, sizeof entry.resolvedName);
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

bool OneMoreMayBeOpen(const RunContext& runContext, const TraceLineContext& traceLineContext) {
  const std::int64_t most = kOpenObjectsOfAnyTrace + traceLineContext.lineNumber / kLinesOfAnOpenObject;
  return CountOf(runContext.handleList) < std::min(most, kMostOpenObjects);
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
  if (OneMoreMayBeOpen(runContext, traceLineContext)) {
    queueHandleListAddEntry(runContext, object.name, 1, 1, 1, 1, 1, 1);
  } else {
    PutMessage(runContext, kMessageNoMemory, kResultNone);
  }
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
  const std::uint32_t slot = TakeSlot(list);
  if (slot == kNoSlot || !list.rows.Insert(list.rows.Size(), {0, slot})) {
    if (slot != kNoSlot) FreeSlot(list, slot);
    // Kept: the entry is missing from now on, and the return of this open names the entry before it.
    PutMessage(runContext, kMessageNoMemory, kResultFromErrno);
    return;
  }
  HandleEntry& entry = list.entries[slot];
  entry = {{}, {}, {flag1, flag2, flag3, flag4, flag5, flag6}};
  list.links[slot] = {0, kNoSlot, kNoSlot};
  SetObjectName(entry.objectName, name);
}

void queueHandleListSetHandleToLastEntry(RunContext& runContext, std::int32_t handle, std::string_view name,
                                         std::optional<std::string_view> resolvedName) {
  ObjectName resolved = {};
  if (resolvedName) SetObjectName(resolved, *resolvedName);
  SetObjectName(runContext.currentObjectName, name);
  const bool sameName = std::strcmp(resolved, runContext.currentObjectName) == 0;
  SetObjectName(runContext.currentResolvedName, sameName ? "" : resolved);

  HandleList& list = runContext.handleList;
  if (CountOf(list) == 0) {
    PutMessage(runContext, kMessageText, kResultNone,
               "Invalid handle count in queueHandleListSetHandleToLastEntry.");
    return;
  }
  const std::int32_t last = CountOf(list) - 1;
  HandleEntry& entry = EntryAt(list, last);
  SetObjectName(entry.objectName, runContext.currentObjectName);
  RowAt(list, last).handle = handle;
  if (resolvedName) SetResolvedName(list, RowAt(list, last).slot, resolved);
  const std::int32_t place =
      queueHandleListSearchEntryByHandle(runContext, handle, HandleSearchMode::InsertionIndex);
  if (place >= 0 && place < last) MoveLastRow(list, place);
}

std::int32_t queueHandleListSearchEntryByHandle(RunContext& runContext, std::int32_t handle,
                                                HandleSearchMode mode) {
  HandleList& list = runContext.handleList;
  SetObjectName(runContext.currentResolvedName, "");
  if (handle == 0 || handle == -1 || CountOf(list) == 0) {
    SetObjectName(runContext.currentObjectName, handle == 0 || handle == -1 ? "(null)" : "(unknown)");
    return -1;
  }
  std::size_t place = 0;
  std::size_t high = list.rows.Size() - 1;
  list.rows.Halve(place, high, 6, [&](const HandleRow& row) { return row.handle < handle; });
  while (place <= high && list.rows[place].handle < handle) ++place;
  const auto index = static_cast<std::int32_t>(place);
  if (place <= high && list.rows[place].handle == handle) {
    MakeNamesCurrent(runContext, EntryAt(list, index));
    return index;
  }
  return mode == HandleSearchMode::EntryOnly ? -1 : index;
}

void queueHandleListDeleteEntry(RunContext& runContext, std::int32_t index) {
  HandleList& list = runContext.handleList;
  if (index >= 0 && index < CountOf(list)) RemoveEntry(list, index);
}

void queueHandleListDeleteLastEntry(RunContext& runContext) {
  HandleList& list = runContext.handleList;
  if (CountOf(list) == 0) {
    PutMessage(runContext, kMessageText, kResultNone,
               "Invalid handle count in queueHandleListDeleteLastEntry.");
    return;
  }
  RemoveEntry(list, CountOf(list) - 1);
}

const char* queueHandleListSearchAliasNameByRealName(const RunContext& runContext, std::string_view name) {
  ObjectName realName;
  SetObjectName(realName, name);
  const HandleEntry* entry = FirstOfResolvedName(runContext.handleList, realName);
  return entry == nullptr || std::strcmp(entry->objectName, realName) == 0 ? nullptr : entry->objectName;
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
