// The rows of the message catalogue and of the system-error texts.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quillon {

/// One message of the catalogue.
struct MessageRow {
  std::int32_t code;
  char flags[4];  ///< severity ("I" information, "W" warning, "E" error), then "Y" or "N"; nothing tests them
  const char* text;  ///< with placeholders ("[$1s]"); may contain line feeds
};

/// One error number of the C library.
struct SystemErrorRow {
  const char* text;  ///< symbol, " - ", description
  std::int32_t number;
};

/// Code and error number of the end rows, whose text is empty.
inline constexpr std::int32_t kEndOfMessages = 9999;

/// Rows of the tables, each with its end row.
inline constexpr std::size_t kMessageRows = 134;
inline constexpr std::size_t kSystemErrorRows = 110;

/// The catalogue, ascending by code.
extern const MessageRow MessageTableMonitorTool[kMessageRows];

/// Texts of the error numbers 0 to 127, ascending. The numbers are those of the C library that the program is
/// built with.
extern const SystemErrorRow MessageTable[kSystemErrorRows];

}  // namespace quillon
