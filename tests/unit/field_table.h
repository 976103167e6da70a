// A structure's published field table, and the report that the table promises for a dump.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "report_capture.h"

namespace quillon {

using Bytes = std::vector<std::uint8_t>;

/// How a field stands in the report. Every kind is rendered here anew, from the layout's words, without the
/// program's own primitives.
enum class Shown {
  Hidden,
  Marker,         ///< `label` is the whole line
  Decimal,        ///< a number
  Text,           ///< printable text to the field's end
  HexLine,        ///< hex digits and characters on one line
  HexDump,        ///< a hex dump beneath the name
  Literal,        ///< `detail` is the value, given by hand for the dump of distinct bytes
  Unlisted,       ///< a number outside the field's list
  UnlistedTwice,  ///< the same, the name column written twice
  NoticeOnly,     ///< no line, only the notice
  Address,        ///< "0x" and eight digits
  Handle,         ///< eight digits
  Charv,          ///< a string descriptor whose text is not in the trace
  Compression,    ///< a number and the compression techniques of its bits
};

/// One row of a published field table. A `notice` that is not empty follows the field's line.
struct FieldRow {
  int version;
  int offset;
  int width;
  Shown shown;
  const char* label;
  const char* notice = "";
  const char* detail = "";
};

/// A structure: its rows and, from version 1 on, its length in every version. A structure whose display does
/// not depend on its version has one length.
struct StructureTable {
  int (*show)(RunContext& runContext, ByteView structure);
  int versionOffset;
  std::vector<int> lengths;
  std::vector<FieldRow> rows;

  int LastVersion() const { return static_cast<int>(lengths.size()); }
  int Length() const { return lengths.back(); }
};

/// The report of a structure whose bytes stand alone in memory: a reader that leaves them is caught.
template <typename Show>
std::string ReportOf(Show show, const Bytes& bytes) {
  ReportCapture capture;
  const Bytes alone(bytes.begin(), bytes.end());
  show(capture.Context(), ViewOf(alone));
  return capture.Report();
}

inline void SetWord(Bytes& bytes, int offset, std::uint32_t value) {
  for (int i = 0; i < 4; ++i)
    bytes.at(static_cast<std::size_t>(offset + i)) = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

inline void SetText(Bytes& bytes, int offset, const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i)
    bytes.at(static_cast<std::size_t>(offset) + i) = static_cast<std::uint8_t>(text[i]);
}

inline std::uint32_t WordAt(const Bytes& bytes, int offset) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) value = value << 8 | bytes.at(static_cast<std::size_t>(offset + i));
  return value;
}

inline std::string Formatted(const char* format, std::uint32_t value) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

inline std::string Number(std::uint32_t value) {
  return std::to_string(static_cast<std::int32_t>(value));
}

inline std::string NameColumn(const std::string& label) {
  const std::size_t blanks = label.size() < 25 ? 25 - label.size() : 0;
  return "|> " + label + std::string(blanks, ' ') + ": ";
}

inline std::string Line(const std::string& label, const std::string& value) {
  return NameColumn(label) + value + "\n";
}

inline std::string Notice(const std::string& label, std::uint32_t value) {
  const std::string rule = "|**********************************\n";
  return rule + "|* Unknown : " + label + " 0x" + Formatted("%08X", value) + "\n" + rule;
}

inline std::string Characters(const Bytes& bytes, int offset, int width) {
  std::string text;
  for (int i = offset; i < offset + width; ++i) {
    const std::uint8_t byte = bytes.at(static_cast<std::size_t>(i));
    text += byte >= 0x20 && byte <= 0x7E ? static_cast<char>(byte) : '.';
  }
  return text;
}

inline std::string HexWords(const Bytes& bytes, int offset, int width) {
  std::string text;
  for (int i = 0; i < width; i += 4)
    text += (i > 0 ? " " : "") + Formatted("%08X", WordAt(bytes, offset + i));
  return text;
}

inline std::string HexDumpLines(const Bytes& bytes, int offset, int width) {
  std::string lines;
  for (int i = 0; i < width; i += 16)
    lines += "|>     " + Formatted("%08X", static_cast<std::uint32_t>(i)) + ":" +
             HexWords(bytes, offset + i, 16) + "  [" + Characters(bytes, offset + i, 16) + "]\n";
  return lines;
}

inline std::string CharvLines(const Bytes& bytes, int offset, const std::string& label) {
  return NameColumn(label) + "\n" + Line("  VSPtr", Formatted("0x%08X", WordAt(bytes, offset))) +
         Line("  VSOffset", Number(WordAt(bytes, offset + 4))) +
         Line("  VSBufSize", Number(WordAt(bytes, offset + 8))) +
         Line("  VSLength", Number(WordAt(bytes, offset + 12))) +
         Line("  VSCCSID", Number(WordAt(bytes, offset + 16)) + " ((Unknown value))");
}

inline std::string CompressionNames(std::uint32_t value) {
  std::string names;
  const char* const techniques[] = {"RLE", "ZLIBFAST", "ZLIBHIGH", "SYSTEM"};
  for (unsigned bit = 0; bit < 4; ++bit)
    if ((value >> bit & 1) != 0) names += (names.empty() ? "" : " / ") + std::string(techniques[bit]);
  return names;
}

inline std::string FieldLines(const FieldRow& row, const Bytes& bytes) {
  const std::uint32_t word = row.width == 4 ? WordAt(bytes, row.offset) : 0;
  switch (row.shown) {
    case Shown::Hidden:
    case Shown::NoticeOnly:
      return "";
    case Shown::Marker:
      return std::string(row.label) + "\n";
    case Shown::Decimal:
    case Shown::Unlisted:
      return Line(row.label, Number(word));
    case Shown::UnlistedTwice:
      return NameColumn(row.label) + Line(row.label, Number(word));
    case Shown::Text:
      return Line(row.label, Characters(bytes, row.offset, row.width));
    case Shown::HexLine:
      return Line(row.label, HexWords(bytes, row.offset, row.width) + "  [" +
                                 Characters(bytes, row.offset, row.width) + "]");
    case Shown::HexDump:
      return NameColumn(row.label) + "\n" + HexDumpLines(bytes, row.offset, row.width);
    case Shown::Literal:
      return Line(row.label, row.detail);
    case Shown::Address:
      return Line(row.label, Formatted("0x%08X", word));
    case Shown::Handle:
      return Line(row.label, Formatted("%08X", word));
    case Shown::Charv:
      return CharvLines(bytes, row.offset, row.label);
    case Shown::Compression:
      return Line(row.label, Number(word) + " (" + CompressionNames(word) + ")");
  }
  return "";
}

/// What the table promises for a dump of distinct bytes whose Version is `version`.
inline std::string PromisedReport(const StructureTable& table, const Bytes& bytes, std::int32_t version) {
  std::string report;
  for (const FieldRow& row : table.rows) {
    if (row.version > 1 && row.version > version) continue;
    report += FieldLines(row, bytes);
    if (*row.notice != '\0') report += Notice(row.notice, WordAt(bytes, row.offset));
  }
  return report;
}

/// A dump whose bytes all differ as far as 256 values go, so that a field read from a wrong place shows.
/// Byte n is n; behind every 256 bytes the values are shifted by 7. Text fields hold printable characters
/// that differ from those 1 to 93 bytes away.
inline Bytes DistinctDump(const StructureTable& table, std::int32_t version) {
  Bytes bytes(static_cast<std::size_t>(table.Length()));
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i + 7 * (i / 256));
  for (const FieldRow& row : table.rows) {
    if (row.shown != Shown::Text) continue;
    for (int i = row.offset; i < row.offset + row.width; ++i)
      bytes[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(0x21 + i % 94);
  }
  SetWord(bytes, table.versionOffset, static_cast<std::uint32_t>(version));
  return bytes;
}

/// The rows follow one another without a gap, and the rows of every version end at its length.
inline void ExpectRowsFillTheStructure(const StructureTable& table) {
  int offset = 0;
  int version = 1;
  for (const FieldRow& row : table.rows) {
    if (row.version > version) {
      EXPECT_EQ(offset, table.lengths.at(static_cast<std::size_t>(version - 1))) << "version " << version;
      version = row.version;
    }
    EXPECT_EQ(row.offset, offset) << row.label;
    offset = row.offset + row.width;
  }
  EXPECT_EQ(offset, table.Length());
  EXPECT_EQ(version, table.LastVersion());
}

/// Every version, those beyond the known ones and those that no structure has.
inline void ExpectEveryVersionAsPromised(const StructureTable& table) {
  std::vector<std::int32_t> versions = {0, -1, std::numeric_limits<std::int32_t>::max()};
  for (int version = 1; version <= table.LastVersion() + 2; ++version) versions.push_back(version);
  for (const std::int32_t version : versions) {
    const Bytes dump = DistinctDump(table, version);
    EXPECT_EQ(ReportOf(table.show, dump), PromisedReport(table, dump, version)) << "version " << version;
  }
}

/// A dump that is cut anywhere reads as if zeros followed; one that is longer shows nothing more.
inline void ExpectShortAndLongDumpsAreShown(const StructureTable& table) {
  const Bytes whole = DistinctDump(table, table.LastVersion());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    Bytes padded = cut;
    padded.resize(whole.size());
    ASSERT_EQ(ReportOf(table.show, cut), ReportOf(table.show, padded)) << "cut to " << length;
  }
  Bytes longer = whole;
  longer.resize(whole.size() + 500, 0x41);
  EXPECT_EQ(ReportOf(table.show, longer), ReportOf(table.show, whole));
}

inline void ExpectStructureAsPromised(const StructureTable& table) {
  ExpectRowsFillTheStructure(table);
  ExpectEveryVersionAsPromised(table);
  ExpectShortAndLongDumpsAreShown(table);
}

/// The part of a report from one label's line on, as far as `count` lines.
inline std::string LinesFrom(const std::string& report, const std::string& label, int count) {
  const std::size_t start = report.find(NameColumn(label));
  if (start == std::string::npos) return "(no line " + label + ")";
  std::size_t end = start;
  for (int line = 0; line < count && end != std::string::npos && end < report.size(); ++line)
    end = report.find('\n', end) + 1;
  return report.substr(start, end - start);
}

}  // namespace quillon
