// Writes a trace as the tracer writes it: header, sections of calls, parameter lines, hex dumps.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "byte_writer.h"

namespace quillon::compose {

/// The hex dump of an item: 16 bytes to a line with their character image. A run of lines that equal the line
/// before them becomes one repeat line, except that the last line of a dump is always written.
std::string DumpText(const Bytes& bytes);

/// The line that names an item and gives its length ("MD        :(364 = 0x16C bytes)").
std::string DataNameLine(std::string_view name, std::size_t length);

enum class Phase { Before, After };

/// What the trace says about the traced process.
struct TraceHeader {
  std::string programName = "/opt/depot/bin/parcelserver";
  std::string addressingMode = "32-bit";
  std::string operatingSystem = "Linux";
};

/// Composes a trace in memory. Lines are appended to `text`; with a `sectionSink` each piece is handed over
/// and dropped as soon as its section ends, so that a trace of any length needs little memory.
class TraceComposer {
 public:
  using Clock = std::chrono::sys_time<std::chrono::microseconds>;

  std::string text;
  std::function<void(const std::string& section)> sectionSink;
  std::uint32_t processId = 38187;
  std::uint32_t threadId = 1;
  /// The traced process's own time; it moves only by Advance.
  Clock now = std::chrono::sys_days(std::chrono::year(2024) / 5 / 14) + std::chrono::hours(7);

  void Header(const TraceHeader& header);
  /// The API line, the phase line and the line with time, process and thread.
  void BeginSection(std::string_view call, Phase phase);
  void EndSection();

  void Line(std::string_view line);
  /// "Reason:2033"
  void Number(std::string_view name, std::int64_t value);
  /// "Options:0x00002011"
  void Hex(std::string_view name, std::uint32_t value);
  /// "QMgrName:DEPOT1"
  void Text(std::string_view name, std::string_view value);
  /// "CompCode:" and "Reason:"
  void Outcome(std::int32_t compCode, std::int32_t reason);
  /// A data-name line and its dump. An item of length 0 has no dump.
  void Item(std::string_view name, const Bytes& bytes);
  /// An item that a string descriptor of the structure before it points to.
  void VariableItem(std::string_view name, std::string_view value);

  void Advance(std::int64_t microseconds) { now += std::chrono::microseconds(microseconds); }
  /// The date as YYYYMMDD and the time as HHMMSSTH, as a message descriptor has them.
  std::string PutDate() const;
  std::string PutTime() const;
};

}  // namespace quillon::compose
