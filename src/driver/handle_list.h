// The object handle list: which name the application gave to each open object.
//
// Names are at most kObjectNameLength characters, end at their first NUL and are kept trimmed. Nothing here
// fails loudly: a trace that does not fit together gives message 1 and changes nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// Follows the open and close calls of the trace: to be called after every line.
void ManageRelationOfObjHandleAndObjName(RunContext& runContext, TraceLineContext& traceLineContext);

/// So many objects may be open at the same time in any trace, and one more for each so many of its lines: the
/// opening of an object takes more lines than that. A trace of nothing but ends of open calls would otherwise
/// take memory without end. Where there are the most of all, a search of all of them still takes a
/// millisecond. What is opened beyond is reported by message 1010 and not kept.
inline constexpr std::int64_t kOpenObjectsOfAnyTrace = 131072;
inline constexpr std::int64_t kLinesOfAnOpenObject = 16;
inline constexpr std::int64_t kMostOpenObjects = 1048576;

/// Appends an entry with handle 0; without memory it reports message 1010 and adds nothing.
void queueHandleListAddEntry(RunContext& runContext, std::string_view name, std::uint8_t flag1,
                             std::uint8_t flag2, std::uint8_t flag3, std::uint8_t flag4, std::uint8_t flag5,
                             std::uint8_t flag6);

/// Gives the newest entry its handle and names and moves it to its sorted place. Both names become the
/// current ones of the run context.
void queueHandleListSetHandleToLastEntry(RunContext& runContext, std::int32_t handle, std::string_view name,
                                         std::optional<std::string_view> resolvedName);

/// What a search gives for a handle that is not in the list.
enum class HandleSearchMode : std::uint8_t {
  InsertionIndex = 0,  ///< the index at which the handle would be inserted
  EntryOnly = 1        ///< -1
};

/// Index of the entry with this handle; -1 for the handles 0 and -1 and for an empty list. A hit makes the
/// entry's names the current ones of the run context.
std::int32_t queueHandleListSearchEntryByHandle(RunContext& runContext, std::int32_t handle,
                                                HandleSearchMode mode);

/// Removes the entry at `index`; an index outside the list removes nothing.
void queueHandleListDeleteEntry(RunContext& runContext, std::int32_t index);
void queueHandleListDeleteLastEntry(RunContext& runContext);

/// The application's name of the first entry whose resolved name equals `name`; null when there is none, when
/// `name` is empty and when the entry's two names are equal. The text belongs to the list and is valid until
/// its next change.
const char* queueHandleListSearchAliasNameByRealName(const RunContext& runContext, std::string_view name);

/// Removes trailing blanks, line feeds and carriage returns, then leading blanks, in place; `text` ends in a
/// NUL.
void StringTrim(char* text);

}  // namespace quillon
