// The bytes of every structure against its published layout: a byte of a field shows in the lines of that
// field and nowhere else, a byte between the fields or behind them shows nowhere.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "report_capture.h"
#include "structs/formatters.h"
#include "structure_layouts.h"

namespace quillon {
namespace {

using Bytes = std::vector<std::uint8_t>;

struct Structure {
  std::string_view name;
  int (*show)(RunContext& runContext, ByteView structure);
};

int ShowOd(RunContext& runContext, ByteView structure) {
  return ShowParsedZkod(runContext, structure, {}, {}, {});
}
int ShowGmo(RunContext& runContext, ByteView structure) {
  return ShowParsedZkgmo(runContext, structure, kApiPhaseBefore, 0);
}
int ShowSd(RunContext& runContext, ByteView structure) {
  return ShowParsedZksd(runContext, structure, {});
}

constexpr Structure kStructures[] = {
    {"ZKMD", ShowParsedZkmd},   {"ZKOD", ShowOd},           {"ZKGMO", ShowGmo},
    {"ZKPMO", ShowParsedZkpmo}, {"ZKCNO", ShowParsedZkcno}, {"ZKSCO", ShowParsedZksco},
    {"ZKAIR", ShowParsedZkair}, {"ZKCSP", ShowParsedZkcsp}, {"ZKCD", ShowParsedZkcd},
    {"ZKSD", ShowSd},           {"ZKSRO", ShowParsedZksro}, {"ZKSTS", ShowParsedZksts},
    {"ZKCBD", ShowParsedZkcbd}, {"ZKCBC", ShowParsedZkcbc}, {"ZKCTLO", ShowParsedZkctlo},
};

/// What the layout does not tell about a field's display.
struct Exception {
  std::string_view structure;
  std::string_view field;
  std::string_view label;    ///< the name that its line carries, when that is not the field's own
  bool shownByName = false;  ///< unknown values all look alike, so the dump holds a known one
};

constexpr Exception kExceptions[] = {
    {"ZKOD", "ResolvedType", "ResolvedType", true},
    {"ZKSCO", "CertificateValPolicy", "CertificateValPolicy", true},
    {"ZKSTS", "ObjectType", "ObjectType", true},
    // A word that is no status type has no line of its own; its notice stands behind the field before it.
    {"ZKSTS", "OpenOptions", "SubName"},
    {"ZKSTS", "SubOptions", "SubName"},
    // Not shown, although it has a name.
    {"ZKCSP", "Version", ""},
    {"ZKCSP", "(address of the user id)", "CSPUserId"},
    {"ZKCSP", "(address of the password)", "CSPPassword"},
    {"ZKCD", "Desc", "Channel description"},
    {"ZKCD", "ModeName", "LU 6.2 ModeName"},
    {"ZKCD", "TpName", "LU 6.2 TpName"},
    {"ZKCD", "ChannelMonitoring", "ChannelMonitoring", true},
    {"ZKCD", "ChannelStatistics", "ChannelStatistics", true},
    {"ZKCD", "PropertyControl", "PropertyControl", true},
    {"ZKCD", "UseDLQ", "UseDLQ", true},
    {"ZKCD", "DefReconnect", "DefReconnect", true},
};

const Exception* FindException(const LayoutRow& row) {
  for (const Exception& exception : kExceptions)
    if (exception.structure == row.structure && exception.field == row.field) return &exception;
  return nullptr;
}

/// The name on the lines of a field; empty when it is not shown.
std::string LabelOf(const LayoutRow& row) {
  if (const Exception* exception = FindException(row)) return std::string(exception->label);
  const std::string_view field = row.field;
  return field == "StrucId" || field.front() == '(' ? "" : std::string(field);
}

struct TestedPlatform {
  std::string_view name;
  Platform platform;
};

constexpr TestedPlatform kTestedPlatforms[] = {
    {"be32", {}},
    {"le32", {.littleEndian = true}},
    {"be64", {.wide = true}},
    {"le64", {.littleEndian = true, .wide = true}},
};

template <std::size_t count>
std::vector<LayoutRow> RowsIn(const LayoutRow (&table)[count], std::string_view structure) {
  std::vector<LayoutRow> rows;
  for (const LayoutRow& row : table)
    if (structure == row.structure) rows.push_back(row);
  return rows;
}

std::vector<LayoutRow> RowsOf(std::string_view structure, bool wide) {
  std::vector<LayoutRow> rows = wide ? RowsIn(kLayout64, structure) : RowsIn(kLayout32, structure);
  return rows.empty() ? RowsIn(kLayout32, structure) : rows;
}

int EndOf(const std::vector<LayoutRow>& rows) {
  return rows.back().offset + rows.back().width;
}

void SetNumber(Bytes& bytes, int offset, std::uint32_t value, bool littleEndian) {
  for (int i = 0; i < 4; ++i) {
    const int shift = littleEndian ? 8 * i : 24 - 8 * i;
    bytes.at(static_cast<std::size_t>(offset + i)) = static_cast<std::uint8_t>(value >> shift);
  }
}

/// A dump of a version that shows every field; 16 bytes more than the structure has.
Bytes FilledDump(const std::vector<LayoutRow>& rows, bool littleEndian) {
  Bytes bytes(static_cast<std::size_t>(EndOf(rows) + 16), 'A');
  for (const LayoutRow& row : rows) {
    if (std::string_view(row.field) == "Version") SetNumber(bytes, row.offset, 99, littleEndian);
    const Exception* exception = FindException(row);
    if (exception != nullptr && exception->shownByName) SetNumber(bytes, row.offset, 1, littleEndian);
  }
  return bytes;
}

/// A field's name and all its lines.
using Block = std::pair<std::string, std::string>;

/// Notices, lines of a hex dump and those of a string descriptor belong to the field before them.
std::vector<Block> BlocksOf(const std::string& report) {
  std::vector<Block> blocks;
  for (std::size_t start = 0; start < report.size();) {
    const std::size_t end = report.find('\n', start) + 1;
    const std::string line = report.substr(start, end - start);
    start = end;
    std::string label = line.starts_with("|> ") ? line.substr(3, 25) : "";
    label.erase(label.find_last_not_of(' ') + 1);
    label.resize(std::min(label.find('['), label.size()));
    const bool continues = label.empty() || label.front() == ' ' || label == "VSLength";
    if (continues && !blocks.empty())
      blocks.back().second += line;
    else
      blocks.emplace_back(label, line);
  }
  return blocks;
}

std::vector<Block> ShownBlocks(const Structure& structure, const Platform& platform, const Bytes& bytes) {
  ReportCapture capture;
  capture.Context().platform = platform;
  capture.Context().storedOrder = platform.littleEndian ? ByteOrder::Little : ByteOrder::Big;
  structure.show(capture.Context(), ViewOf(bytes));
  return BlocksOf(capture.Report());
}

/// The fields whose lines change, from those of `before`, when the byte takes other values.
std::set<std::string> FieldsOfByte(const Structure& structure, const Platform& platform, Bytes bytes,
                                   std::size_t offset, const std::vector<Block>& before) {
  std::set<std::string> fields;
  for (const std::uint8_t value : std::array<std::uint8_t, 2>{0x00, 0x42}) {
    bytes[offset] = value;
    const std::vector<Block> after = ShownBlocks(structure, platform, bytes);
    if (after.size() != before.size()) return {"(another number of fields)"};
    for (std::size_t i = 0; i < after.size(); ++i)
      if (after[i] != before[i]) fields.insert(before[i].first);
  }
  return fields;
}

std::set<std::string> FieldsAt(const std::vector<LayoutRow>& rows, int offset) {
  for (const LayoutRow& row : rows) {
    if (offset < row.offset || offset >= row.offset + row.width) continue;
    const std::string label = LabelOf(row);
    return label.empty() ? std::set<std::string>() : std::set<std::string>{label};
  }
  return {};
}

bool IsVersion(const std::vector<LayoutRow>& rows, int offset) {
  for (const LayoutRow& row : rows)
    if (std::string_view(row.field) == "Version") return offset / 4 == row.offset / 4;
  return false;
}

/// Far inside a wide field: its ends tell where it stands.
bool IsInner(const std::vector<LayoutRow>& rows, int offset) {
  constexpr int kEnds = 4;
  for (const LayoutRow& row : rows)
    if (offset >= row.offset + kEnds && offset < row.offset + row.width - kEnds && row.width > 24)
      return true;
  return false;
}

TEST(StructureLayout, EveryByteShowsInItsField) {
  for (const Structure& structure : kStructures) {
    for (const TestedPlatform& tested : kTestedPlatforms) {
      const std::vector<LayoutRow> rows = RowsOf(structure.name, tested.platform.wide);
      const Bytes dump = FilledDump(rows, tested.platform.littleEndian);
      const std::vector<Block> before = ShownBlocks(structure, tested.platform, dump);
      for (std::size_t offset = 0; offset < dump.size(); ++offset) {
        const int place = static_cast<int>(offset);
        // The version decides what is shown: the next test has it.
        if (IsVersion(rows, place) || IsInner(rows, place)) continue;
        ASSERT_EQ(FieldsOfByte(structure, tested.platform, dump, offset, before), FieldsAt(rows, place))
            << structure.name << " on " << tested.name << ", byte " << offset;
      }
    }
  }
}

/// The fields that a version shows, in the order of the report. The report names some of them twice.
std::vector<std::string> FieldsOfVersion(const std::vector<LayoutRow>& rows, int version) {
  std::vector<std::string> fields;
  for (const LayoutRow& row : rows) {
    const std::string label = LabelOf(row);
    if (row.version > version || label.empty()) continue;
    if (fields.empty() || fields.back() != label) fields.push_back(label);
  }
  return fields;
}

TEST(StructureLayout, EveryVersionShowsItsFields) {
  for (const Structure& structure : kStructures) {
    for (const TestedPlatform& tested : kTestedPlatforms) {
      const std::vector<LayoutRow> rows = RowsOf(structure.name, tested.platform.wide);
      for (int version = 1; version <= 10; ++version) {
        Bytes dump = FilledDump(rows, tested.platform.littleEndian);
        for (const LayoutRow& row : rows)
          if (std::string_view(row.field) == "Version")
            SetNumber(dump, row.offset, static_cast<std::uint32_t>(version), tested.platform.littleEndian);
        std::vector<std::string> shown;
        for (const Block& block : ShownBlocks(structure, tested.platform, dump)) {
          if (block.first.starts_with("---")) continue;
          if (shown.empty() || shown.back() != block.first) shown.push_back(block.first);
        }
        ASSERT_EQ(shown, FieldsOfVersion(rows, version))
            << structure.name << " on " << tested.name << ", version " << version;
      }
    }
  }
}

TEST(StructureLayout, FieldsFollowOneAnother) {
  for (const Structure& structure : kStructures) {
    for (const bool wide : {false, true}) {
      int end = 0;
      for (const LayoutRow& row : RowsOf(structure.name, wide)) {
        EXPECT_GE(row.offset, end) << structure.name << " " << row.field;
        EXPECT_LT(row.offset, end + 8) << structure.name << " " << row.field;
        end = row.offset + row.width;
      }
    }
  }
}

}  // namespace
}  // namespace quillon
