// Object descriptor, get and put options, put-message records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "driver/handle_list.h"
#include "report_capture.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

using Bytes = std::vector<std::uint8_t>;

enum class Stored { Big, Reversed };

std::string Column(std::string_view name) {
  std::string padded(name);
  if (padded.size() < 25) padded.resize(25, ' ');
  return "|> " + padded + ": ";
}

std::string Line(std::string_view name, std::string_view value) {
  return Column(name) + std::string(value) + "\n";
}

std::string Notice(std::string_view label, std::string_view hex) {
  const std::string rule = "|**********************************\n";
  return rule + "|* Unknown : " + std::string(label) + " 0x" + std::string(hex) + "\n" + rule;
}

void PutWord(Bytes& bytes, std::size_t offset, std::uint32_t value, Stored stored = Stored::Big) {
  for (std::size_t i = 0; i < 4; ++i) {
    const auto shift = 8 * (stored == Stored::Big ? 3 - i : i);
    bytes[offset + i] = static_cast<std::uint8_t>(value >> shift);
  }
}

void PutText(Bytes& bytes, std::size_t offset, std::string_view text) {
  std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

// The layouts as published. `version` is the one that added the field.

enum class Kind {
  Int,            // decimal in the structure's order
  StoredInt,      // decimal, big-endian whatever the structure's order
  Text,           // the characters
  Hex,            // one line of hex
  Named,          // only the name column is looked at; the tests of the flags and lists see the value
  StoredAddress,  // "0x" and eight digits
  Heading,        // a name column without a value
  Version,        // the marker line of a version
  CcsidStored     // decimal and a description
};

struct Field {
  int version;
  const char* name;
  std::size_t offset;
  std::size_t width;
  Kind kind;
};

struct Layout {
  const char* name;
  std::vector<Field> fields;
  std::vector<std::size_t> sizes;  // by version, from 1
};

void AddCharv(std::vector<Field>& fields, const char* name, std::size_t offset) {
  fields.push_back({4, name, offset, 0, Kind::Heading});
  fields.push_back({4, "  VSPtr", offset, 4, Kind::StoredAddress});
  fields.push_back({4, "  VSOffset", offset + 4, 4, Kind::StoredInt});
  fields.push_back({4, "  VSBufSize", offset + 8, 4, Kind::StoredInt});
  fields.push_back({4, "  VSLength", offset + 12, 4, Kind::StoredInt});
  fields.push_back({4, "  VSCCSID", offset + 16, 4, Kind::CcsidStored});
}

Layout ObjectDescriptorLayout() {
  Layout layout{"OD",
                {
                    {1, "Version", 4, 4, Kind::Int},
                    {1, "ObjectType", 8, 4, Kind::Named},
                    {1, "ObjectName", 12, 48, Kind::Text},
                    {1, "ObjectQMgrName", 60, 48, Kind::Text},
                    {1, "DynamicQName", 108, 48, Kind::Text},
                    {1, "AlternateUserId", 156, 12, Kind::Text},
                    {2, "", 2, 0, Kind::Version},
                    {2, "RecsPresent", 168, 4, Kind::Int},
                    {2, "KnownDestCount", 172, 4, Kind::Int},
                    {2, "UnknownDestCount", 176, 4, Kind::Int},
                    {2, "InvalidDestCount", 180, 4, Kind::Int},
                    {3, "", 3, 0, Kind::Version},
                    {3, "AlternateSecurityId", 200, 40, Kind::Hex},
                    {3, "ResolvedQName", 240, 48, Kind::Text},
                    {3, "ResolvedQMgrName", 288, 48, Kind::Text},
                    {4, "", 4, 0, Kind::Version},
                },
                {168, 200, 336, 400}};
  AddCharv(layout.fields, "ObjectString", 336);
  AddCharv(layout.fields, "SelectionString", 356);
  AddCharv(layout.fields, "ResObjectString", 376);
  layout.fields.push_back({4, "ResolvedType", 396, 4, Kind::Named});
  return layout;
}

Layout GetOptionsLayout() {
  return {"GMO",
          {
              {1, "Version", 4, 4, Kind::Int},
              {1, "Options", 8, 4, Kind::Named},
              {1, "WaitInterval", 12, 4, Kind::Int},
              {1, "Signal1", 16, 4, Kind::Named},
              {1, "Signal2", 20, 4, Kind::Int},
              {1, "ResolvedQName", 24, 48, Kind::Text},
              {2, "", 2, 0, Kind::Version},
              {2, "MatchOptions", 72, 4, Kind::Named},
              {2, "GroupStatus", 76, 1, Kind::Hex},
              {2, "SegmentStatus", 77, 1, Kind::Hex},
              {2, "Segmentation", 78, 1, Kind::Hex},
              {3, "", 3, 0, Kind::Version},
              {3, "MsgToken", 80, 16, Kind::Hex},
              {3, "ReturnedLength", 96, 4, Kind::Int},
              {4, "", 4, 0, Kind::Version},
              {4, "MsgHandle", 104, 8, Kind::Hex},
          },
          {72, 80, 100, 112}};
}

Layout PutOptionsLayout() {
  return {"PMO",
          {
              {1, "Version", 4, 4, Kind::Int},
              {1, "Options", 8, 4, Kind::Named},
              {1, "Timeout", 12, 4, Kind::Int},
              {1, "Context", 16, 4, Kind::Hex},
              {1, "KnownDestCount", 20, 4, Kind::Int},
              {1, "UnknownDestCount", 24, 4, Kind::Int},
              {1, "InvalidDestCount", 28, 4, Kind::Int},
              {1, "ResolvedQName", 32, 48, Kind::Text},
              {1, "ResolvedQMgrName", 80, 48, Kind::Text},
              {2, "", 2, 0, Kind::Version},
              {2, "RecsPresent", 128, 4, Kind::Int},
              {2, "PutMsgRecFields", 132, 4, Kind::Named},
              {3, "", 3, 0, Kind::Version},
              {3, "OriginalMsgHandle", 152, 8, Kind::Hex},
              {3, "NewMsgHandle", 160, 8, Kind::Hex},
              {3, "Action", 168, 4, Kind::Named},
              {3, "PubLevel", 172, 4, Kind::Int},
          },
          {128, 152, 176}};
}

// A structure in which no two bytes less than 94 places apart are equal, all of them printable and none a
// blank; only the version's word is a version.
Bytes DistinctBytes(std::size_t size, std::uint32_t version, Stored stored) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(0x21 + i * 37 % 94);
  PutWord(bytes, 4, version, stored);
  return bytes;
}

std::string Decimal(const Bytes& bytes, std::size_t offset, Stored stored) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i)
    value = value << 8 | bytes[offset + (stored == Stored::Big ? i : 3 - i)];
  return std::to_string(static_cast<std::int32_t>(value));
}

std::string HexDigitsOf(const Bytes& bytes, std::size_t offset, std::size_t width) {
  const char* digits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < width; ++i) {
    if (i > 0 && i % 4 == 0) text += ' ';
    text += digits[bytes[offset + i] >> 4];
    text += digits[bytes[offset + i] & 15];
  }
  return text;
}

std::string TextOf(const Bytes& bytes, std::size_t offset, std::size_t width) {
  return {bytes.begin() + static_cast<std::ptrdiff_t>(offset),
          bytes.begin() + static_cast<std::ptrdiff_t>(offset + width)};
}

// The start of the field's line, as far as the layout tells it.
std::string ExpectedStart(const Layout& layout, const Field& field, const Bytes& bytes, Stored stored) {
  switch (field.kind) {
    case Kind::Int:
      return Line(field.name, Decimal(bytes, field.offset, stored));
    case Kind::StoredInt:
      return Line(field.name, Decimal(bytes, field.offset, Stored::Big));
    case Kind::CcsidStored:
      return Column(field.name) + Decimal(bytes, field.offset, Stored::Big) + " (";
    case Kind::Text:
      return Line(field.name, TextOf(bytes, field.offset, field.width));
    case Kind::Hex:
      return Line(field.name, HexDigitsOf(bytes, field.offset, field.width) + "  [" +
                                  TextOf(bytes, field.offset, field.width) + "]");
    case Kind::StoredAddress:
      return Line(field.name, "0x" + HexDigitsOf(bytes, field.offset, field.width));
    case Kind::Heading:
      return Line(field.name, "");
    case Kind::Named:
      return Column(field.name);
    case Kind::Version: {
      std::string marker = "|> --- " + std::string(layout.name) + " version " + std::to_string(field.offset);
      marker.resize(29, '-');
      return marker + "\n";
    }
  }
  return {};
}

std::vector<std::string> FieldLines(const std::string& report) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < report.size();) {
    const std::size_t end = report.find('\n', start) + 1;
    if (report.compare(start, 3, "|> ") == 0) lines.push_back(report.substr(start, end - start));
    start = end;
  }
  return lines;
}

using Formatter = std::function<void(RunContext&, ByteView)>;

const Formatter kShowObjectDescriptor = [](RunContext& runContext, ByteView view) {
  ShowParsedZkod(runContext, view, {}, {}, {});
};
const Formatter kShowGetOptions = [](RunContext& runContext, ByteView view) {
  ShowParsedZkgmo(runContext, view, kApiPhaseBefore, 0);
};
const Formatter kShowPutOptions = [](RunContext& runContext, ByteView view) {
  ShowParsedZkpmo(runContext, view);
};

// The bytes stand in a block of exactly their size, so that a read beyond them is seen by the sanitizers.
std::string Show(const Formatter& formatter, const Bytes& bytes) {
  ReportCapture capture;
  formatter(capture.Context(), ViewOf(bytes));
  return capture.Report();
}

// Every field that `shownVersion` has stands in its line, in order, with its bytes; nothing else is there.
void ExpectLayout(const Layout& layout, const Formatter& formatter, const Bytes& bytes, Stored stored,
                  int shownVersion) {
  const std::vector<std::string> lines = FieldLines(Show(formatter, bytes));
  std::size_t next = 0;
  for (const Field& field : layout.fields) {
    if (field.version > shownVersion) continue;
    ASSERT_LT(next, lines.size()) << layout.name << " " << field.name;
    const std::string start = ExpectedStart(layout, field, bytes, stored);
    EXPECT_EQ(lines[next].substr(0, start.size()), start) << layout.name << " " << field.name;
    ++next;
  }
  EXPECT_EQ(next, lines.size()) << layout.name;
}

void ExpectEveryVersion(const Layout& layout, const Formatter& formatter, Stored stored) {
  const int known = static_cast<int>(layout.sizes.size());
  for (int version = 1; version <= known; ++version) {
    const std::size_t size = layout.sizes[static_cast<std::size_t>(version - 1)];
    ExpectLayout(layout, formatter, DistinctBytes(size, static_cast<std::uint32_t>(version), stored), stored,
                 version);
  }
  // Versions that nobody knows: those above show every field, those below the first ones. Bytes behind the
  // structure are not shown.
  const std::size_t most = layout.sizes.back() + 50;
  ExpectLayout(layout, formatter, DistinctBytes(most, static_cast<std::uint32_t>(known) + 1, stored), stored,
               known);
}

TEST(ObjectDescriptor, EveryFieldStandsAtItsOffset) {
  ExpectEveryVersion(ObjectDescriptorLayout(), kShowObjectDescriptor, Stored::Big);
}

TEST(ObjectDescriptor, EveryFieldOfTheOtherByteOrder) {
  ExpectEveryVersion(ObjectDescriptorLayout(), kShowObjectDescriptor, Stored::Reversed);
}

TEST(GetOptions, EveryFieldStandsAtItsOffset) {
  ExpectEveryVersion(GetOptionsLayout(), kShowGetOptions, Stored::Big);
}

TEST(GetOptions, OtherByteOrderShowsAllLaterFieldsFromVersionTwoOn) {
  const Layout layout = GetOptionsLayout();
  ExpectLayout(layout, kShowGetOptions, DistinctBytes(112, 1, Stored::Reversed), Stored::Reversed, 1);
  for (const std::uint32_t version : {2U, 3U, 4U, 5U})
    ExpectLayout(layout, kShowGetOptions, DistinctBytes(112, version, Stored::Reversed), Stored::Reversed, 4);
}

TEST(GetOptions, StoredVersionIsComparedAsASignedNumber) {
  // 0x80 stored first: as stored the version is negative, so versions 3 and 4 are not shown.
  ExpectLayout(GetOptionsLayout(), kShowGetOptions, DistinctBytes(112, 0x80, Stored::Reversed),
               Stored::Reversed, 2);
}

TEST(PutOptions, EveryFieldStandsAtItsOffset) {
  ExpectEveryVersion(PutOptionsLayout(), kShowPutOptions, Stored::Big);
}

TEST(PutOptions, EveryFieldOfTheOtherByteOrder) {
  ExpectEveryVersion(PutOptionsLayout(), kShowPutOptions, Stored::Reversed);
}

TEST(ObjectPutGet, VersionsBelowOneShowTheFirstFieldsOnly) {
  for (const std::uint32_t version : {0U, 0xFFFFFFFFU}) {
    // Byte 4 of version -1 is not zero: the structure counts as reversed, which gives -1 again.
    const Stored stored = version == 0 ? Stored::Big : Stored::Reversed;
    ExpectLayout(ObjectDescriptorLayout(), kShowObjectDescriptor, DistinctBytes(400, version, stored), stored,
                 1);
    ExpectLayout(GetOptionsLayout(), kShowGetOptions, DistinctBytes(112, version, stored), stored, 1);
    ExpectLayout(PutOptionsLayout(), kShowPutOptions, DistinctBytes(176, version, stored), stored, 1);
  }
}

TEST(ObjectPutGet, CutStructureReadsAsIfZerosFollowed) {
  const struct {
    const Formatter& formatter;
    std::size_t size;
    std::uint32_t version;
  } structures[] = {
      {kShowObjectDescriptor, 400, 4},
      {kShowGetOptions, 112, 4},
      {kShowPutOptions, 176, 3},
  };
  for (const auto& structure : structures) {
    for (const Stored stored : {Stored::Big, Stored::Reversed}) {
      const Bytes whole = DistinctBytes(structure.size, structure.version, stored);
      for (std::size_t size = 0; size <= structure.size; ++size) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        Bytes zeros = cut;
        zeros.resize(structure.size, 0);
        ASSERT_EQ(Show(structure.formatter, cut), Show(structure.formatter, zeros)) << size << " bytes";
      }
    }
  }
}

TEST(ObjectPutGet, NothingAtAllShowsVersionZero) {
  EXPECT_EQ(Show(kShowObjectDescriptor, {}),
            Line("Version", "0") + Column("ObjectType") + Line("ObjectType", "0") +
                Notice("ZKOD - ZKOT_...", "00000000") + Line("ObjectName", "") + Line("ObjectQMgrName", "") +
                Line("DynamicQName", "") + Line("AlternateUserId", ""));
  EXPECT_EQ(Show(kShowGetOptions, {}), Line("Version", "0") + Line("Options", "(none)") +
                                           Line("WaitInterval", "0") + Line("Signal1", "(none)") +
                                           Line("Signal2", "0") + Line("ResolvedQName", ""));
  EXPECT_EQ(Show(kShowPutOptions, {}),
            Line("Version", "0") + Line("Options", "(none)") + Line("Timeout", "0") +
                Line("Context", "(null)") + Line("KnownDestCount", "0") + Line("UnknownDestCount", "0") +
                Line("InvalidDestCount", "0") + Line("ResolvedQName", "") + Line("ResolvedQMgrName", ""));
}

// The line that begins with the field's name, and the notice that follows it.
std::string ShownField(const std::string& report, std::string_view name) {
  const std::string column = Column(name);
  std::size_t start = report.find(column);
  if (start == std::string::npos) return "not shown";
  std::size_t end = report.find('\n', start) + 1;
  while (report.compare(end, 2, "|*") == 0) end = report.find('\n', end) + 1;
  return report.substr(start, end - start);
}

// The field's lines of a structure that is zero but for its version and this word.
std::string ShownWord(const Formatter& formatter, std::string_view name, std::size_t offset,
                      std::uint32_t value, Stored stored = Stored::Big) {
  Bytes bytes(400, 0);
  PutWord(bytes, 4, 3, stored);
  PutWord(bytes, offset, value, stored);
  return ShownField(Show(formatter, bytes), name);
}

TEST(ObjectDescriptor, EveryObjectTypeHasItsName) {
  const struct {
    std::uint32_t type;
    const char* name;
  } types[] = {
      {1, "QUEUE"},
      {2, "NAMELIST"},
      {3, "PROCESS"},
      {4, "STORAGE_CLASS"},
      {5, "Q_MGR"},
      {6, "CHANNEL"},
      {7, "AUTH_INFO"},
      {8, "TOPIC"},
      {10, "CF_STRUC"},
      {11, "LISTENER"},
      {12, "SERVICE"},
      {999, "RESERVED_1"},
      {1001, "ALL"},
      {1002, "ALIAS_QUEUE"},
      {1003, "MODEL_QUEUE"},
      {1004, "LOCAL_QUEUE"},
      {1005, "REMOTE_QUEUE"},
      {1007, "SENDER_CHANNEL"},
      {1008, "SERVER_CHANNEL"},
      {1009, "REQUESTER_CHANNEL"},
      {1010, "RECEIVER_CHANNEL"},
      {1011, "CURRENT_CHANNEL"},
      {1012, "SAVED_CHANNEL"},
      {1013, "SVRCONN_CHANNEL"},
      {1014, "CLNTCONN_CHANNEL"},
      {1015, "SHORT_CHANNEL"},
      {1016, "CHLAUTH"},
      {1017, "REMOTE_Q_MGR_NAME"},
      {1019, "PROT_POLICY"},
  };
  for (const auto& type : types) {
    for (const Stored stored : {Stored::Big, Stored::Reversed})
      EXPECT_EQ(ShownWord(kShowObjectDescriptor, "ObjectType", 8, type.type, stored),
                Line("ObjectType", type.name));
  }
}

TEST(ObjectDescriptor, UnknownObjectTypeWritesItsNameTwice) {
  const struct {
    std::uint32_t type;
    const char* shown;
    const char* hex;
  } types[] = {
      {1018, "1018", "000003FA"}, {9, "9", "00000009"},           {1006, "1006", "000003EE"},
      {0, "0", "00000000"},       {0xFFFFFFFF, "-1", "FFFFFFFF"}, {0xFFFFFC25, "-987", "FFFFFC25"},
  };
  for (const auto& type : types) {
    EXPECT_EQ(ShownWord(kShowObjectDescriptor, "ObjectType", 8, type.type),
              Column("ObjectType") + Line("ObjectType", type.shown) + Notice("ZKOD - ZKOT_...", type.hex));
  }
}

TEST(ObjectDescriptor, UnknownObjectTypeIsReportedInEveryPhase) {
  Bytes bytes(168, 0);
  PutWord(bytes, 4, 1);
  PutWord(bytes, 8, 1018);
  for (const std::int32_t phase : {kApiPhaseOther, kApiPhaseBefore, kApiPhaseAfter}) {
    ReportCapture capture;
    capture.Context().apiKind = kApiKindGet;
    capture.Context().apiPhase = phase;
    capture.Context().compCode = kCompCodeFailed;
    ShowParsedZkod(capture.Context(), ViewOf(bytes), {}, {}, {});
    EXPECT_NE(capture.Report().find(Notice("ZKOD - ZKOT_...", "000003FA")), std::string::npos);
    EXPECT_NE(capture.Terminal().find("ZKOD - ZKOT_..."), std::string::npos);
    EXPECT_TRUE(capture.Context().unknownAttributeSeen);
  }
}

std::string ShownResolvedType(std::uint32_t type, Stored versionStored, Stored typeStored) {
  Bytes bytes(400, 0);
  PutWord(bytes, 4, 4, versionStored);
  PutWord(bytes, 8, 1, versionStored);
  PutWord(bytes, 396, type, typeStored);
  ReportCapture capture;
  ShowParsedZkod(capture.Context(), ViewOf(bytes), {}, {}, {});
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
  return ShownField(capture.Report(), "ResolvedType");
}

TEST(ObjectDescriptor, ResolvedTypeComesFromTheObjectTypeTable) {
  EXPECT_EQ(ShownResolvedType(0, Stored::Big, Stored::Big), Line("ResolvedType", "none"));
  EXPECT_EQ(ShownResolvedType(1, Stored::Big, Stored::Big), Line("ResolvedType", "queue"));
  EXPECT_EQ(ShownResolvedType(8, Stored::Big, Stored::Big), Line("ResolvedType", "topic"));
  EXPECT_EQ(ShownResolvedType(1019, Stored::Big, Stored::Big), Line("ResolvedType", "prot policy"));
  EXPECT_EQ(ShownResolvedType(1018, Stored::Big, Stored::Big), Line("ResolvedType", "(Unknown value)"));
}

TEST(ObjectDescriptor, ResolvedTypeOfTheOtherByteOrderIsReadAsStored) {
  EXPECT_EQ(ShownResolvedType(1, Stored::Reversed, Stored::Reversed),
            Line("ResolvedType", "(Unknown value)"));
  EXPECT_EQ(ShownResolvedType(0, Stored::Reversed, Stored::Reversed), Line("ResolvedType", "none"));
  EXPECT_EQ(ShownResolvedType(1, Stored::Reversed, Stored::Big), Line("ResolvedType", "queue"));
}

TEST(ObjectDescriptor, StringsOfTheThreeDescriptorsAreNotMixedUp) {
  Bytes bytes(400, 0);
  PutWord(bytes, 4, 4);
  PutWord(bytes, 8, 1);
  for (const std::size_t offset : {336U, 356U, 376U}) PutWord(bytes, offset + 12, 3);  // VSLength
  const auto rebuilt = [](const Bytes& text) { return CharvText{CharvText::Place::Rebuilt, ViewOf(text)}; };
  const Bytes first = BytesOfHex("414243"), second = BytesOfHex("444546"), third = BytesOfHex("474849");
  ReportCapture capture;
  ShowParsedZkod(capture.Context(), ViewOf(bytes), rebuilt(first), rebuilt(second), rebuilt(third));
  const std::string report = capture.Report();
  const auto block = [](std::string_view name, std::string_view value) {
    return Line(name, "") + Line("  VSPtr", "(null)") + Line("  VSOffset", "0") +
           Line("  VSBufSize", "(use VSLength)") + Line("  VSLength", "3") +
           Line("  VSCCSID", "0 (default / queue_manager)") + Line("  Value (in string)", value);
  };
  EXPECT_EQ(report.substr(report.find(Column("ObjectString"))),
            block("ObjectString", "ABC") + block("SelectionString", "DEF") + block("ResObjectString", "GHI") +
                Line("ResolvedType", "none"));
}

TEST(ObjectDescriptor, StringBehindTheStructureIsFoundByItsOffset) {
  Bytes bytes(408, 0);
  PutWord(bytes, 4, 4);
  PutWord(bytes, 8, 1);
  PutWord(bytes, 336 + 4, 400);
  PutWord(bytes, 336 + 12, 8);
  PutText(bytes, 400, "/a/topic");
  ReportCapture capture;
  const CharvText inStructure{CharvText::Place::InStructure, {}};
  ShowParsedZkod(capture.Context(), ViewOf(bytes), inStructure, {}, {});
  EXPECT_EQ(ShownField(capture.Report(), "  Value (in string)"), Line("  Value (in string)", "/a/topic"));
}

// Flag words.

constexpr const char* kAllGetOptions =
    "WAIT / SET_SIGNAL / FAIL_IF_QUIESCING / SYNCPOINT / SYNCPOINT_IF_PERSISTENT / NO_SYNCPOINT / "
    "MARK_SKIP_BACKOUT / BROWSE_FIRST / BROWSE_NEXT / BROWSE_MSG_UNDER_CURSOR / MSG_UNDER_CURSOR / LOCK / "
    "UNLOCK / ACCEPT_TRUNCATED_MSG / CONVERT / LOGICAL_ORDER / COMPLETE_MSG / ALL_MSGS_AVAILABLE / "
    "ALL_SEGMENTS_AVAILABLE / MARK_BROWSE_HANDLE / MARK_BROWSE_CO_OP / UNMARK_BROWSE_CO_OP / "
    "UNMARK_BROWSE_HANDLE / UNMARKED_BROWSE_MSG / PROPERTIES_FORCE_ZKRFH2 / NO_PROPERTIES / "
    "PROPERTIES_IN_HANDLE / PROPERTIES_COMPATIBILITY";

struct NamedBit {
  std::uint32_t bit;
  const char* name;
};

// Each bit alone gives its name and no notice; all others, alone, give "(none)" and the notice unless silent.
void ExpectBits(const Formatter& formatter, std::string_view field, std::size_t offset,
                const std::vector<NamedBit>& named, std::uint32_t silent, std::string_view label) {
  for (int shift = 0; shift < 32; ++shift) {
    const std::uint32_t bit = std::uint32_t{1} << shift;
    const auto row =
        std::find_if(named.begin(), named.end(), [=](const NamedBit& entry) { return entry.bit == bit; });
    char hex[9];
    std::snprintf(hex, sizeof hex, "%08X", bit);
    std::string expected = Line(field, row != named.end() ? row->name : "(none)");
    if (row == named.end() && bit != silent) expected += Notice(label, hex);
    EXPECT_EQ(ShownWord(formatter, field, offset, bit), expected);
    EXPECT_EQ(ShownWord(formatter, field, offset, bit, Stored::Reversed), expected);
  }
}

TEST(GetOptions, EveryOptionBit) {
  ExpectBits(kShowGetOptions, "Options", 8,
             {{0x1, "WAIT"},
              {0x2, "SYNCPOINT"},
              {0x4, "NO_SYNCPOINT"},
              {0x8, "SET_SIGNAL"},
              {0x10, "BROWSE_FIRST"},
              {0x20, "BROWSE_NEXT"},
              {0x40, "ACCEPT_TRUNCATED_MSG"},
              {0x80, "MARK_SKIP_BACKOUT"},
              {0x100, "MSG_UNDER_CURSOR"},
              {0x200, "LOCK"},
              {0x400, "UNLOCK"},
              {0x800, "BROWSE_MSG_UNDER_CURSOR"},
              {0x1000, "SYNCPOINT_IF_PERSISTENT"},
              {0x2000, "FAIL_IF_QUIESCING"},
              {0x4000, "CONVERT"},
              {0x8000, "LOGICAL_ORDER"},
              {0x10000, "COMPLETE_MSG"},
              {0x20000, "ALL_MSGS_AVAILABLE"},
              {0x40000, "ALL_SEGMENTS_AVAILABLE"},
              {0x100000, "MARK_BROWSE_HANDLE"},
              {0x200000, "MARK_BROWSE_CO_OP"},
              {0x400000, "UNMARK_BROWSE_CO_OP"},
              {0x800000, "UNMARK_BROWSE_HANDLE"},
              {0x1000000, "UNMARKED_BROWSE_MSG"},
              {0x2000000, "PROPERTIES_FORCE_ZKRFH2"},
              {0x4000000, "NO_PROPERTIES"},
              {0x8000000, "PROPERTIES_IN_HANDLE"},
              {0x10000000, "PROPERTIES_COMPATIBILITY"}},
             0x80000000, "ZKGMO - Options");
}

TEST(GetOptions, OptionsTogether) {
  EXPECT_EQ(ShownWord(kShowGetOptions, "Options", 8, 0), Line("Options", "(none)"));
  EXPECT_EQ(ShownWord(kShowGetOptions, "Options", 8, 0xFFFFFFFF),
            Line("Options", kAllGetOptions) + Notice("ZKGMO - Options", "FFFFFFFF"));
  EXPECT_EQ(ShownWord(kShowGetOptions, "Options", 8, 0x1FF7FFFF), Line("Options", kAllGetOptions));
  EXPECT_EQ(ShownWord(kShowGetOptions, "Options", 8, 0x80080001),
            Line("Options", "WAIT") + Notice("ZKGMO - Options", "80080001"));
}

TEST(GetOptions, SignalCodesAreTestedAsMasks) {
  const struct {
    std::uint32_t code;
    const char* names;
  } codes[] = {
      {0, "(none)"},
      {1, "WAIT_INTERVAL_EXPIRED / Q_MGR_QUIESCING"},
      {2, "MSG_ARRIVED / WAIT_INTERVAL_EXPIRED / CONNECTION_QUIESCING"},
      {3, "MSG_ARRIVED / WAIT_INTERVAL_EXPIRED / Q_MGR_QUIESCING / CONNECTION_QUIESCING"},
      {4, "WAIT_CANCELED / Q_MGR_QUIESCING / CONNECTION_QUIESCING"},
      {5, "WAIT_INTERVAL_EXPIRED / WAIT_CANCELED / Q_MGR_QUIESCING / CONNECTION_QUIESCING"},
      {6, "MSG_ARRIVED / WAIT_INTERVAL_EXPIRED / WAIT_CANCELED / Q_MGR_QUIESCING / CONNECTION_QUIESCING"},
      {7, "MSG_ARRIVED / WAIT_INTERVAL_EXPIRED / WAIT_CANCELED / Q_MGR_QUIESCING / CONNECTION_QUIESCING"},
  };
  for (const auto& code : codes)
    EXPECT_EQ(ShownWord(kShowGetOptions, "Signal1", 16, code.code), Line("Signal1", code.names));
  EXPECT_EQ(ShownWord(kShowGetOptions, "Signal1", 16, 8),
            Line("Signal1", "(none)") + Notice("ZKGMO - ZKEC_...", "00000008"));
  EXPECT_EQ(ShownWord(kShowGetOptions, "Signal1", 16, 0xFFFFFFFF),
            Line("Signal1", codes[7].names) + Notice("ZKGMO - ZKEC_...", "FFFFFFFF"));
}

TEST(GetOptions, EveryMatchOptionBit) {
  ExpectBits(kShowGetOptions, "MatchOptions", 72,
             {{0x1, "MATCH_MSG_ID"},
              {0x2, "MATCH_CORREL_ID"},
              {0x4, "MATCH_GROUP_ID"},
              {0x8, "MATCH_MSG_SEQ_NUMBER"},
              {0x10, "MATCH_OFFSET"},
              {0x20, "MATCH_MSG_TOKEN"}},
             0, "ZKGMO - ZKMO_...");
  EXPECT_EQ(ShownWord(kShowGetOptions, "MatchOptions", 72, 0), Line("MatchOptions", "(none)"));
  EXPECT_EQ(ShownWord(kShowGetOptions, "MatchOptions", 72, 0xFFFFFFFF),
            Line("MatchOptions",
                 "MATCH_MSG_ID / MATCH_CORREL_ID / MATCH_GROUP_ID / MATCH_MSG_SEQ_NUMBER / MATCH_OFFSET / "
                 "MATCH_MSG_TOKEN") +
                Notice("ZKGMO - ZKMO_...", "FFFFFFFF"));
}

TEST(GetOptions, NoticesAreGivenInEveryPhase) {
  Bytes bytes(80, 0);
  PutWord(bytes, 4, 2);
  PutWord(bytes, 8, 0x00080000);
  ReportCapture capture;
  capture.Context().apiKind = kApiKindGet;
  capture.Context().apiPhase = kApiPhaseBefore;
  ShowParsedZkgmo(capture.Context(), ViewOf(bytes), kApiPhaseBefore, 0);
  EXPECT_EQ(ShownField(capture.Report(), "Options"),
            Line("Options", "(none)") + Notice("ZKGMO - Options", "00080000"));
}

std::string ShownStatus(std::string_view name, std::size_t offset, std::uint8_t character,
                        std::int32_t phase = kApiPhaseAfter, std::int32_t compCode = 0) {
  Bytes bytes(80, ' ');
  PutWord(bytes, 4, 2);
  PutWord(bytes, 72, 0);
  bytes[offset] = character;
  ReportCapture capture;
  ShowParsedZkgmo(capture.Context(), ViewOf(bytes), phase, compCode);
  return ShownField(capture.Report(), name);
}

TEST(GetOptions, StatusCharacters) {
  EXPECT_EQ(ShownStatus("GroupStatus", 76, ' '), Line("GroupStatus", "NOT_IN_GROUP"));
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'G'), Line("GroupStatus", "MSG_IN_GROUP"));
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'L'), Line("GroupStatus", "LAST_MSG_IN_GROUP"));
  EXPECT_EQ(ShownStatus("SegmentStatus", 77, ' '), Line("SegmentStatus", "NOT_A_SEGMENT"));
  EXPECT_EQ(ShownStatus("SegmentStatus", 77, 'S'), Line("SegmentStatus", "SEGMENT"));
  EXPECT_EQ(ShownStatus("SegmentStatus", 77, 'L'), Line("SegmentStatus", "LAST_SEGMENT"));
  EXPECT_EQ(ShownStatus("Segmentation", 78, ' '), Line("Segmentation", "INHIBITED"));
  EXPECT_EQ(ShownStatus("Segmentation", 78, 'A'), Line("Segmentation", "ALLOWED"));
}

TEST(GetOptions, UnexpectedStatusCharacterIsReportedAfterASuccessfulGet) {
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'X'),
            Line("GroupStatus", "58  [X]") + Notice("ZKGMO - ZKGS_...", "00000058"));
  EXPECT_EQ(ShownStatus("SegmentStatus", 77, 'G'),
            Line("SegmentStatus", "47  [G]") + Notice("ZKGMO - ZKSS_...", "00000047"));
  EXPECT_EQ(ShownStatus("Segmentation", 78, 'S'),
            Line("Segmentation", "53  [S]") + Notice("ZKGMO - ZKSEG_...", "00000053"));
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 0),
            Line("GroupStatus", "00  [.]") + Notice("ZKGMO - ZKGS_...", "00000000"));
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 0xE9),
            Line("GroupStatus", "E9  [.]") + Notice("ZKGMO - ZKGS_...", "000000E9"));
}

TEST(GetOptions, UnexpectedStatusCharacterIsOnlyShownOtherwise) {
  const std::string line = Line("GroupStatus", "58  [X]");
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'X', kApiPhaseBefore, 0), line);
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'X', kApiPhaseAfter, 1), line);
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'X', kApiPhaseAfter, 2), line);
  EXPECT_EQ(ShownStatus("GroupStatus", 76, 'X', kApiPhaseOther, 0), line);
}

TEST(PutOptions, EveryOptionBit) {
  ExpectBits(kShowPutOptions, "Options", 8,
             {{0x2, "SYNCPOINT"},
              {0x4, "NO_SYNCPOINT"},
              {0x20, "DEFAULT_CONTEXT"},
              {0x40, "NEW_MSG_ID"},
              {0x80, "NEW_CORREL_ID"},
              {0x100, "PASS_IDENTITY_CONTEXT"},
              {0x200, "PASS_ALL_CONTEXT"},
              {0x400, "SET_IDENTITY_CONTEXT"},
              {0x800, "SET_ALL_CONTEXT"},
              {0x1000, "ALTERNATE_USER_AUTHORITY"},
              {0x2000, "FAIL_IF_QUIESCING"},
              {0x4000, "NO_CONTEXT"},
              {0x8000, "LOGICAL_ORDER"},
              {0x10000, "ASYNC_RESPONSE"},
              {0x20000, "SYNC_RESPONSE"},
              {0x40000, "RESOLVE_LOCAL_Q"},
              {0x80000, "WARN_IF_NO_SUBS_MATCHED"},
              {0x200000, "RETAIN"},
              {0x800000, "MD_FOR_OUTPUT_ONLY"},
              {0x4000000, "SCOPE_QMGR"},
              {0x8000000, "SUPPRESS_REPLYTO"},
              {0x10000000, "NOT_OWN_SUBS"}},
             0, "ZKPMO - Options");
}

TEST(PutOptions, OptionsTogether) {
  const char* all =
      "SYNCPOINT / NO_SYNCPOINT / NEW_MSG_ID / NEW_CORREL_ID / LOGICAL_ORDER / NO_CONTEXT / "
      "DEFAULT_CONTEXT / PASS_IDENTITY_CONTEXT / PASS_ALL_CONTEXT / SET_IDENTITY_CONTEXT / "
      "SET_ALL_CONTEXT / ALTERNATE_USER_AUTHORITY / FAIL_IF_QUIESCING / RESOLVE_LOCAL_Q / "
      "WARN_IF_NO_SUBS_MATCHED / ASYNC_RESPONSE / SYNC_RESPONSE / RETAIN / MD_FOR_OUTPUT_ONLY / "
      "SCOPE_QMGR / SUPPRESS_REPLYTO / NOT_OWN_SUBS";
  EXPECT_EQ(ShownWord(kShowPutOptions, "Options", 8, 0), Line("Options", "(none)"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Options", 8, 0x1CAFFFE6), Line("Options", all));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Options", 8, 0xFFFFFFFF),
            Line("Options", all) + Notice("ZKPMO - Options", "FFFFFFFF"));
}

TEST(PutOptions, ActionCodesAreTestedAsMasks) {
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 0), Line("Action", "(none)"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 1), Line("Action", "FORWARD / REPORT"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 2), Line("Action", "REPLY / REPORT"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 3), Line("Action", "FORWARD / REPLY / REPORT"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 4),
            Line("Action", "(none)") + Notice("ZKPMO - Action", "00000004"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "Action", 168, 0xFFFFFFFF),
            Line("Action", "FORWARD / REPLY / REPORT") + Notice("ZKPMO - Action", "FFFFFFFF"));
}

TEST(PutOptions, RecordFields) {
  EXPECT_EQ(ShownWord(kShowPutOptions, "PutMsgRecFields", 132, 9),
            Line("PutMsgRecFields", "MSG_ID / FEEDBACK"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "PutMsgRecFields", 132, 9, Stored::Reversed),
            Line("PutMsgRecFields", "MSG_ID / FEEDBACK"));
  EXPECT_EQ(ShownWord(kShowPutOptions, "PutMsgRecFields", 132, 32),
            Line("PutMsgRecFields", "(none)") + Notice("PutMsgRecFields", "00000020"));
}

TEST(PutOptions, MessageHandlesAreShownAsStored) {
  for (const Stored stored : {Stored::Big, Stored::Reversed}) {
    Bytes bytes(176, 0);
    PutWord(bytes, 4, 3, stored);
    PutText(bytes, 152, "ABCDEFGH");
    const std::string report = Show(kShowPutOptions, bytes);
    EXPECT_EQ(ShownField(report, "OriginalMsgHandle"),
              Line("OriginalMsgHandle", "41424344 45464748  [ABCDEFGH]"));
    EXPECT_EQ(ShownField(report, "NewMsgHandle"), Line("NewMsgHandle", "(null)"));
  }
}

// The alias line.

std::string ShownWithAlias(const Formatter& formatter, std::size_t nameOffset, std::string_view name) {
  Bytes bytes(128, 0);
  PutWord(bytes, 4, 1);
  PutText(bytes, nameOffset, std::string(48, ' '));
  PutText(bytes, nameOffset, name);
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  queueHandleListAddEntry(runContext, "REPLY.MODEL", 1, 1, 1, 1, 1, 1);
  queueHandleListSetHandleToLastEntry(runContext, 2, "REPLY.MODEL", "REPLY.DYN.1");
  queueHandleListAddEntry(runContext, "LOCAL", 1, 1, 1, 1, 1, 1);
  queueHandleListSetHandleToLastEntry(runContext, 3, "LOCAL", "LOCAL");
  formatter(runContext, ViewOf(bytes));
  const std::string report = capture.Report();
  return report.substr(report.find(Column("ResolvedQName")));
}

TEST(GetOptions, AliasFollowsTheResolvedName) {
  EXPECT_EQ(ShownWithAlias(kShowGetOptions, 24, "REPLY.DYN.1"),
            Line("ResolvedQName", "REPLY.DYN.1") + Line("(alias/model name)", "REPLY.MODEL"));
  EXPECT_EQ(ShownWithAlias(kShowGetOptions, 24, "LOCAL"), Line("ResolvedQName", "LOCAL"));
  EXPECT_EQ(ShownWithAlias(kShowGetOptions, 24, "OTHER"), Line("ResolvedQName", "OTHER"));
  EXPECT_EQ(ShownWithAlias(kShowGetOptions, 24, ""), Line("ResolvedQName", ""));
}

TEST(PutOptions, AliasStandsBetweenTheTwoResolvedNames) {
  EXPECT_EQ(ShownWithAlias(kShowPutOptions, 32, "REPLY.DYN.1"),
            Line("ResolvedQName", "REPLY.DYN.1") + Line("(alias/model name)", "REPLY.MODEL") +
                Line("ResolvedQMgrName", ""));
  EXPECT_EQ(ShownWithAlias(kShowPutOptions, 32, "LOCAL"),
            Line("ResolvedQName", "LOCAL") + Line("ResolvedQMgrName", ""));
}

// Put-message records.

TEST(PutRecords, LengthOfARecord) {
  EXPECT_EQ(CalculateZkpmrUnitLength(0), 0);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x01), 24);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x02), 24);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x04), 24);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x08), 4);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x10), 32);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x09), 28);
  EXPECT_EQ(CalculateZkpmrUnitLength(0x1F), 108);
  EXPECT_EQ(CalculateZkpmrUnitLength(0xFFFFFFE0), 0);
  EXPECT_EQ(CalculateZkpmrUnitLength(0xFFFFFFFF), 108);
}

std::string ShownRecords(const Bytes& bytes, std::int32_t count, std::uint32_t fields) {
  ReportCapture capture;
  ShowParsedZkpmr(capture.Context(), ViewOf(bytes), count, fields);
  return capture.Report();
}

TEST(PutRecords, AllFieldsStandInTheirOrder) {
  Bytes bytes(108, 0);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i + 1);
  PutWord(bytes, 72, 2085);
  EXPECT_EQ(
      ShownRecords(bytes, 1, 0x1F),
      Line("MsgId", "01020304 05060708 090A0B0C 0D0E0F10 11121314 15161718  [........................]") +
          Line("CorrelId",
               "191A1B1C 1D1E1F20 21222324 25262728 292A2B2C 2D2E2F30  [....... !\"#$%&'()*+,-./0]") +
          Line("GroupId",
               "31323334 35363738 393A3B3C 3D3E3F40 41424344 45464748  [123456789:;<=>?@ABCDEFGH]") +
          Line("Feedback", "2085") +
          Line("AccountingToken",
               "4D4E4F50 51525354 55565758 595A5B5C 5D5E5F60 61626364 65666768 696A6B6C  "
               "[MNOPQRSTUVWXYZ[\\]^_`abcdefghijkl]"));
}

TEST(PutRecords, RecordsAreShownOneAfterTheOther) {
  Bytes bytes(56, 0);
  PutText(bytes, 0, "AAAABBBBCCCCDDDDEEEEFFFF");
  PutWord(bytes, 24, 1);
  PutWord(bytes, 52, 0xFFFFFFFE);
  EXPECT_EQ(
      ShownRecords(bytes, 2, 0x9),
      Line("MsgId", "41414141 42424242 43434343 44444444 45454545 46464646  [AAAABBBBCCCCDDDDEEEEFFFF]") +
          Line("Feedback", "1") + Line("MsgId", "(null)") + Line("Feedback", "-2"));
}

TEST(PutRecords, OnlyWholeRecordsInsideTheDumpAreShown) {
  const std::string one = Line("Feedback", "0");
  EXPECT_EQ(ShownRecords(Bytes(12, 0), 2, 0x8), one + one);
  EXPECT_EQ(ShownRecords(Bytes(11, 0), 3, 0x8), one + one);
  EXPECT_EQ(ShownRecords(Bytes(12, 0), 2147483647, 0x8), one + one + one);
  EXPECT_EQ(ShownRecords({}, 5, 0x8), "");
}

TEST(PutRecords, NoRecordsForACountOfZeroOrLess) {
  for (const std::int32_t count : {0, -1, -2147483647 - 1})
    EXPECT_EQ(ShownRecords(Bytes(100, 0), count, 0x1F), "");
}

TEST(PutRecords, UnknownFieldsAreReportedOnceBehindTheRecords) {
  EXPECT_EQ(ShownRecords(Bytes(8, 0), 2, 0x28),
            Line("Feedback", "0") + Line("Feedback", "0") + Notice("ZKPMRF_...", "00000028"));
  EXPECT_EQ(ShownRecords(Bytes(8, 0), 0, 0x28), Notice("ZKPMRF_...", "00000028"));
  EXPECT_EQ(ShownRecords(Bytes(8, 0), 2147483647, 0x80000000), Notice("ZKPMRF_...", "80000000"));
  EXPECT_EQ(ShownRecords(Bytes(8, 0), 2147483647, 0), "");
}

}  // namespace
}  // namespace quillon
