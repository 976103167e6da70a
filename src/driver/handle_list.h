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

/// Most objects that are kept at the same time. A trace of which no line closes an object would otherwise
/// take memory for each that it opens.
inline constexpr std::int32_t kMostOpenObjects = 131072;

/// Appends an entry with handle 0. When kMostOpenObjects are kept, one gives way whose handle has been given
/// to another object since; if there is none, and without memory, it reports message 1010 and adds nothing.
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
