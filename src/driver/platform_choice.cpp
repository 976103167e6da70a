#include "driver/platform_choice.h"

#include "base/hex_digits.h"
#include "driver/program_name.h"
#include "driver/scanner.h"
#include "hexdump/dispatch.h"
#include "hexdump/regeneration.h"

namespace quillon {
namespace {

struct NamedPlatform {
  std::string_view name;
  Platform platform;
};

constexpr std::string_view kAutoName = "auto";

constexpr NamedPlatform kPlatforms[] = {
    {"be32", {}},
    {"le32", {.littleEndian = true}},
    {"be64", {.wide = true}},
    {"le64", {.littleEndian = true, .wide = true}},
    {kAutoName, {.autoDetect = true}},
};

// Columns of a dump line, and the bytes that one shows.
constexpr std::size_t kKindColumn = 8;
constexpr std::size_t kContentColumn = 9;
constexpr std::int64_t kBytesPerLine = 16;

/// The lines of a text that stays in memory.
struct LineWalk {
  std::string_view rest;
  std::string_view previous = {};
  std::string_view current = {};

  /// False at the end; a last line without its line feed may be cut and does not count.
  bool Next() {
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos) return false;
    previous = current;
    current = rest.substr(0, end + 1);
    rest.remove_prefix(end + 1);
    return true;
  }
};

/// Whether a dump line shows its byte `index` (0 to 15), and whether that byte is not zero.
enum class ShownByte : std::uint8_t { Absent, Zero, NotZero };

ShownByte ExamineByte(std::string_view line, std::int64_t index) {
  if (line.size() <= kContentColumn || line[kKindColumn] != ':') return ShownByte::Absent;
  for (std::size_t column = kContentColumn; column + 1 < line.size(); column += 2) {
    while (column + 1 < line.size() && line[column] == ' ') ++column;
    if (line[column] == '[' || line[column] == '\n') break;
    if (index-- == 0)
      return HexByte(line[column], line[column + 1]) != 0 ? ShownByte::NotZero : ShownByte::Zero;
  }
  return ShownByte::Absent;
}

/// The walk stands on the first line of a dump.
ShownByte ExamineVersion(const LineWalk& walk) {
  TraceLine nameLine;
  nameLine.Set(walk.previous);
  DataNameLine header;
  if (!ParseDataNameLine(nameLine, header)) return ShownByte::Absent;
  const std::int64_t offset = VersionOffsetOf(header.name);
  if (offset < 0 || offset >= header.length) return ShownByte::Absent;
  LineWalk dump = walk;
  for (std::int64_t line = 0; line < offset / kBytesPerLine; ++line)
    if (!dump.Next()) return ShownByte::Absent;
  return ExamineByte(dump.current, offset % kBytesPerLine);
}

void LookForWordSize(RunContext& runContext, LineWalk walk) {
  while (walk.Next()) {
    if (!walk.current.starts_with(kAddressingModeStart)) continue;
    runContext.platform.wide = walk.current.substr(kAddressingModeStart.size()).starts_with(kWideWordSize);
    return;
  }
}

void LookForByteOrder(RunContext& runContext, LineWalk walk) {
  while (walk.Next()) {
    if (!walk.current.starts_with(kFirstDumpLine)) continue;
    const ShownByte version = ExamineVersion(walk);
    if (version == ShownByte::Absent) continue;
    runContext.storedOrder = version == ShownByte::NotZero ? ByteOrder::Little : ByteOrder::Big;
    return;
  }
}

// Each of the four combinations has its row.
std::string_view NameOf(bool littleEndian, bool wide) {
  const NamedPlatform* row = kPlatforms;
  while (row->platform.littleEndian != littleEndian || row->platform.wide != wide) ++row;
  return row->name;
}

}  // namespace

bool ChoosePlatform(RunContext& runContext, std::string_view name) {
  for (const NamedPlatform& row : kPlatforms) {
    if (row.name != name) continue;
    runContext.platform = row.platform;
    runContext.storedOrder = row.platform.littleEndian ? ByteOrder::Little : ByteOrder::Big;
    return true;
  }
  return false;
}

void LookAheadForPlatform(RunContext& runContext, LineReader& input) {
  if (!runContext.platform.autoDetect) return;
  const LineWalk walk = {input.Peek()};
  LookForWordSize(runContext, walk);
  LookForByteOrder(runContext, walk);
}

std::string PlatformText(const RunContext& runContext) {
  const Platform& platform = runContext.platform;
  if (!platform.autoDetect) return std::string(NameOf(platform.littleEndian, platform.wide));
  const bool littleEndian = runContext.storedOrder == ByteOrder::Little;
  return std::string(kAutoName) + " (" + std::string(NameOf(littleEndian, platform.wide)) + ")";
}

}  // namespace quillon
