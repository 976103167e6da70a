// The line behind a resolved queue name: the name by which the application opened the queue.
#pragma once

#include "base/byte_view.h"
#include "base/run_context.h"

namespace quillon {

/// The "(alias/model name)" line of the queue that `resolvedName` (a blank-padded name) stands for; nothing
/// when no open object was resolved to it, or when the application opened it by that very name.
int ShowAliasName(RunContext& runContext, ByteView resolvedName);

}  // namespace quillon
