// Get-message options (ZKGMO).
#include <iterator>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "output/report_writer.h"
#include "structs/alias_line.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptions[] = {
    {0x00000001, "WAIT"},
    {0x00000008, "SET_SIGNAL"},
    {0x00002000, "FAIL_IF_QUIESCING"},
    {0x00000002, "SYNCPOINT"},
    {0x00001000, "SYNCPOINT_IF_PERSISTENT"},
    {0x00000004, "NO_SYNCPOINT"},
    {0x00000080, "MARK_SKIP_BACKOUT"},
    {0x00000010, "BROWSE_FIRST"},
    {0x00000020, "BROWSE_NEXT"},
    {0x00000800, "BROWSE_MSG_UNDER_CURSOR"},
    {0x00000100, "MSG_UNDER_CURSOR"},
    {0x00000200, "LOCK"},
    {0x00000400, "UNLOCK"},
    {0x00000040, "ACCEPT_TRUNCATED_MSG"},
    {0x00004000, "CONVERT"},
    {0x00008000, "LOGICAL_ORDER"},
    {0x00010000, "COMPLETE_MSG"},
    {0x00020000, "ALL_MSGS_AVAILABLE"},
    {0x00040000, "ALL_SEGMENTS_AVAILABLE"},
    {0x00100000, "MARK_BROWSE_HANDLE"},
    {0x00200000, "MARK_BROWSE_CO_OP"},
    {0x00400000, "UNMARK_BROWSE_CO_OP"},
    {0x00800000, "UNMARK_BROWSE_HANDLE"},
    {0x01000000, "UNMARKED_BROWSE_MSG"},
    {0x02000000, "PROPERTIES_FORCE_ZKRFH2"},
    {0x04000000, "NO_PROPERTIES"},
    {0x08000000, "PROPERTIES_IN_HANDLE"},
    {0x10000000, "PROPERTIES_COMPATIBILITY"},
};
// Kept: bit 0x80000000 is neither named nor reported.
constexpr std::uint32_t kSilentOptions = 0x80000000;
constexpr FlagWord kOptionsWord = {kOptions, std::size(kOptions), 0x60080000, "ZKGMO - Options"};
static_assert(EveryBitHasOneClass(kOptionsWord, {.silent = kSilentOptions}));

// Kept: the event codes are tested as masks, so one code shows the names of all codes that share a bit with
// it: 3 shows MSG_ARRIVED, WAIT_INTERVAL_EXPIRED, Q_MGR_QUIESCING and CONNECTION_QUIESCING.
constexpr FlagRow kSignals[] = {
    {2, "MSG_ARRIVED", 0, FlagTest::Any},          {3, "WAIT_INTERVAL_EXPIRED", 0, FlagTest::Any},
    {4, "WAIT_CANCELED", 0, FlagTest::Any},        {5, "Q_MGR_QUIESCING", 0, FlagTest::Any},
    {6, "CONNECTION_QUIESCING", 0, FlagTest::Any},
};
constexpr FlagWord kSignalsWord = {kSignals, std::size(kSignals), ~std::uint32_t{7}, "ZKGMO - ZKEC_..."};
static_assert(EveryBitHasOneClass(kSignalsWord));

constexpr FlagRow kMatchOptions[] = {
    {0x01, "MATCH_MSG_ID"},         {0x02, "MATCH_CORREL_ID"}, {0x04, "MATCH_GROUP_ID"},
    {0x08, "MATCH_MSG_SEQ_NUMBER"}, {0x10, "MATCH_OFFSET"},    {0x20, "MATCH_MSG_TOKEN"},
};
constexpr FlagWord kMatchOptionsWord = {kMatchOptions, std::size(kMatchOptions), ~std::uint32_t{0x3F},
                                        "ZKGMO - ZKMO_..."};
static_assert(EveryBitHasOneClass(kMatchOptionsWord));

constexpr ConstantRow kGroupStatus[] = {
    {' ', "NOT_IN_GROUP"},
    {'G', "MSG_IN_GROUP"},
    {'L', "LAST_MSG_IN_GROUP"},
    {kEndOfTable, ""},
};

constexpr ConstantRow kSegmentStatus[] = {
    {' ', "NOT_A_SEGMENT"},
    {'S', "SEGMENT"},
    {'L', "LAST_SEGMENT"},
    {kEndOfTable, ""},
};

constexpr ConstantRow kSegmentation[] = {
    {' ', "INHIBITED"},
    {'A', "ALLOWED"},
    {kEndOfTable, ""},
};

/// A status character. Before the call, and after one that did not succeed in full, an unexpected one is
/// shown but not reported: the application need not have set it.
int ShowStatusCharacter(RunContext& runContext, std::string_view name, ByteView character,
                        const ConstantRow* list, std::string_view unknownLabel, bool reportUnknown) {
  ShowFieldName(runContext, name);
  const std::int32_t value = character.At(0);
  if (const char* text = FindConstant(value, list)) {
    WriteTraceData(runContext, text);
    return WriteTraceData(runContext, "\n");
  }
  const int result = ShowParsedHexValueSingleLine(runContext, "", character, {.nullCheck = false});
  return reportUnknown ? ShowUnknownAttribute(runContext, unknownLabel, value) : result;
}

}  // namespace

int ShowParsedZkgmo(RunContext& runContext, ByteView structure, std::int32_t phase, std::int32_t compCode) {
  StructReader gmo = ReaderByVersion(runContext, structure);
  gmo.Skip(4);  // structure id: the data name has already chosen the formatter
  const std::int32_t version = gmo.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFlagField(runContext, "Options", kOptionsWord, gmo.UInt32());
  ShowFieldValueZklong(runContext, "WaitInterval", gmo.Int32());
  ShowFlagField(runContext, "Signal1", kSignalsWord, gmo.UInt32());
  ShowFieldValueZklong(runContext, "Signal2", gmo.Int32());
  const ByteView resolvedQName = gmo.Bytes(48);
  ShowFieldValueStringFixed(runContext, "ResolvedQName", resolvedQName);
  int result = ShowAliasName(runContext, resolvedQName);
  if (version < 2) return result;

  const bool reportUnknown = phase == kApiPhaseAfter && compCode == 0;
  ShowDataVersion(runContext, "GMO", 2);
  ShowFlagField(runContext, "MatchOptions", kMatchOptionsWord, gmo.UInt32());
  ShowStatusCharacter(runContext, "GroupStatus", gmo.Bytes(1), kGroupStatus, "ZKGMO - ZKGS_...",
                      reportUnknown);
  ShowStatusCharacter(runContext, "SegmentStatus", gmo.Bytes(1), kSegmentStatus, "ZKGMO - ZKSS_...",
                      reportUnknown);
  result = ShowStatusCharacter(runContext, "Segmentation", gmo.Bytes(1), kSegmentation, "ZKGMO - ZKSEG_...",
                               reportUnknown);
  gmo.Skip(1);  // reserved
  // Kept: the two later tests read Version as stored, so a structure of the other byte order shows the fields
  // of versions 3 and 4 even when it is of version 2.
  const std::int32_t storedVersion = structure.Int32(kVersionOffset, runContext.storedOrder);
  if (storedVersion < 3) return result;

  ShowDataVersion(runContext, "GMO", 3);
  ShowParsedHexValueSingleLine(runContext, "MsgToken", gmo.Bytes(16));
  result = ShowFieldValueZklong(runContext, "ReturnedLength", gmo.Int32());
  if (storedVersion < 4) return result;

  ShowDataVersion(runContext, "GMO", 4);
  gmo.Skip(4);  // reserved
  return ShowZKHMSG(runContext, "MsgHandle", gmo.StoredMessageHandle());
}

}  // namespace quillon
