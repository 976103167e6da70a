// The trace line context: the driver's state of the input, lent to the scanner, the dump readers and the
// handle list.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "base/dump_bytes.h"
#include "base/format_name.h"
#include "base/trace_line.h"

namespace quillon {

/// Most variable-length strings that one structure's dump may carry behind it.
inline constexpr int kVariableItems = 20;

/// A rebuilt variable-length string: absent, or the bytes of its own buffer.
struct VariableItem {
  bool present = false;
  DumpBytes bytes;
};

/// A copy of a structure that later dumps of the same call refer to. A length of 0 means that there is none.
struct SavedStructure {
  std::int32_t length = 0;
  DumpBytes bytes;

  /// The copy's bytes; empty while the length is 0.
  ByteView View() const { return length > 0 ? bytes.Declared() : ByteView(); }
};

struct TraceLineContext {
  bool quiet = false;  ///< -q
  bool osChecked = false;
  bool amodeChecked = false;

  TraceLine lines[2] = {};
  TraceLine* currentLine = &lines[0];
  TraceLine* previousLine = &lines[1];
  LineReader* input = nullptr;  ///< owned by the driver
  std::string inputFileName;
  std::uint32_t lineNumber = 0;

  /// Name of the current call and text of the current phase, at most 19 characters, with the line feed when
  /// it fits.
  char apiName[20] = {};
  char phaseText[20] = {};

  DumpBytes dump;
  VariableItem variableItems[kVariableItems];

  SavedStructure savedObjectDescriptor;
  SavedStructure savedPutOptions;
  SavedStructure savedSelectors;
  SavedStructure savedIntegerAttributes;

  std::int32_t selectorCount = 0;
  std::int32_t integerAttributeCount = 0;
  std::int32_t characterAttributeLength = 0;

  std::uint32_t messageEncoding = 0;  ///< Encoding of the last message descriptor
  FormatName messageFormat = {};  ///< Format of the last message descriptor; zero bytes when there is none

  std::int32_t savedHandle = 0;  ///< the last handle of a "Hobj:0x" line
};

}  // namespace quillon
