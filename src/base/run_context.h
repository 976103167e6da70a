// The run context: switch settings and state of one run, passed first to every function.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "base/block_list.h"
#include "base/byte_view.h"
#include "base/growable_array.h"
#include "base/platform.h"

namespace quillon {

/// Kinds of call that change how unknown values are reported (RunContext::apiKind).
inline constexpr std::int32_t kApiKindOther = 0;
inline constexpr std::int32_t kApiKindGet = 10;
inline constexpr std::int32_t kApiKindDataConvOnGet = 11;

/// Phases of a call (RunContext::apiPhase).
inline constexpr std::int32_t kApiPhaseOther = 0;
inline constexpr std::int32_t kApiPhaseBefore = 1;
inline constexpr std::int32_t kApiPhaseAfter = 2;

/// Completion code of a call that failed (RunContext::compCode).
inline constexpr std::int32_t kCompCodeFailed = 2;

/// Which bytes are characters in the chosen CCSID: up to ten patterns (slots) of one to five bytes.
/// `entry[slot][position][byte]` is 1 when the byte is allowed there; 2 in entry 0 of a position means that
/// the pattern ends before this position; 2 in entry 0 of position 0 means that no more patterns follow.
struct CharacterPatternMap {
  static constexpr int kSlots = 10;
  static constexpr int kPositions = 5;
  static constexpr std::uint8_t kAllowed = 1;
  static constexpr std::uint8_t kEnd = 2;
  std::uint8_t entry[kSlots][kPositions][256];

  // What follows from the entries; FillCharacterImages computes it.

  /// How a byte shows where no character is pending: as itself, as ".", or NUL where only the patterns can
  /// tell: it begins a longer character.
  char image[256];
  /// Where the bytes below 0x80 show as in ASCII, from 0x20 to a last one as themselves and the others as
  /// ".", that last one (0x7E or 0x7F); elsewhere 0.
  std::uint8_t lastAscii;
  /// The slots that allow a byte at a position, a bit for each (bit 0: slot 0), and those whose pattern has
  /// so many bytes.
  std::uint16_t slotsAllowing[kPositions][256];
  std::uint16_t slotsOfLength[kPositions + 1];
};

/// Width of an object name in bytes; texts hold one more for the terminator.
inline constexpr std::size_t kObjectNameLength = 48;

/// The names of one open object. Both end in a NUL.
struct HandleEntry {
  char objectName[kObjectNameLength + 1];    ///< as the application gave it, trimmed
  char resolvedName[kObjectNameLength + 1];  ///< as the open call returned it, trimmed; empty: none
  std::uint8_t optionFlags[6];               ///< set to 1 when the entry is added; nothing reads them
};

/// How the entry of the same slot is chained to others.
struct HandleLink {
  std::uint32_t resolvedNameMark;  ///< equal for equal resolved names; 0 when there is none
  /// Slots of other entries: those whose resolved names share a chain; of a free slot the next free one.
  std::uint32_t next;
  std::uint32_t previous;
};

/// One place in the order of the handle list.
struct HandleRow {
  std::int32_t handle;  ///< 0 until the open call has returned
  std::uint32_t slot;   ///< index of the names in HandleList::entries
};

/// No slot: the end of a chain.
inline constexpr std::uint32_t kNoSlot = 0xFFFFFFFF;

/// The open objects, sorted by handle (signed) but for the newest one, which stays last until it has its
/// handle. Order, chains and names are kept apart: a trace may hold a hundred thousand open objects, every
/// open and close changes order and chains, and what is searched should not be spread over the names' memory.
struct HandleList {
  BlockList<HandleRow> rows;            ///< the list's order
  GrowableArray<HandleEntry> entries;   ///< the names, each in its slot
  GrowableArray<HandleLink> links;      ///< a slot for each entry
  std::uint32_t slotCount = 0;          ///< slots that have ever been used
  std::uint32_t freeSlot = kNoSlot;     ///< the first of the free ones among them
  GrowableArray<std::uint32_t> chains;  ///< by resolved name: first slot of the chain
  std::uint32_t chainCount = 0;         ///< a power of two
};

/// Text of the report that waits to be written to the stream. It is written when it is full and when the
/// report is closed, so thousands of lines take one call of the system.
struct ReportBuffer {
  static constexpr std::size_t kSize = 65536;

  std::size_t used = 0;
  char text[kSize];
};

/// A trace of a few lines may claim two thousand million bytes, by a length that it does not back or by a
/// repeat; a run shows no more than this many of such as text, and some for each byte that it carries.
inline constexpr std::int64_t kMostClaimedText = 1048576;

struct RunContext {
  std::uint32_t writerCounters[2] = {0, 0};

  std::int32_t lengthLimits[3] = {-1, -1, -1};  ///< no limit; no switch changes them
  std::int32_t maxParsedLength = -1;            ///< limit on parsed message data in bytes; negative: none
  std::int32_t lengthLimitLast = -1;
  std::int32_t maxCharvLength =
      400;  ///< most bytes of a ZKCHARV string that are shown (-v); negative: no limit
  std::int32_t maxXmlLineLength = 100;  ///< longest wrapped line in bytes (-x), 40 to 999
  std::int32_t ccsid = -1;              ///< CCSID of character data; -1 until it is chosen

  bool showHexCharImage = true;
  bool showParsedData = true;
  bool formatMessageContent = true;  ///< -nc clears it
  bool streamOutput = true;
  bool noRepeatCompression = false;
  bool hexHeaderNoAddress = false;

  CharacterPatternMap characterPatterns = {};

  std::int32_t processId = 0;
  std::int32_t fileSequence = 1;
  std::int32_t apiKind = kApiKindOther;
  std::int32_t apiPhase = kApiPhaseOther;
  std::int32_t compCode = 0;

  /// How many bytes that the trace only claims the run may still show as text; 0 or less: none. A display
  /// takes from it what it shows of them, and each dump that carries bytes raises it, up to what it is at the
  /// start.
  std::int64_t claimedTextLeft = kMostClaimedText;
  bool claimedTextLeftOut = false;  ///< it was too little for a text, and a message has told it

  bool unknownAttributeSeen = false;  ///< makes the driver write the closing notice
  bool fatalIoError = false;          ///< a write to the report has failed

  bool objectNameKnown = false;
  char currentObjectName[kObjectNameLength + 1] = {};
  char currentResolvedName[kObjectNameLength + 1] = {};
  HandleList handleList;

  Platform platform;                       ///< -p
  ByteOrder storedOrder = ByteOrder::Big;  ///< the order of integers that are read as stored

  std::FILE* outputFile = nullptr;  ///< the report; opened and closed by the driver
  ReportBuffer report;              ///< what of the report is not written yet; see output/report_writer.h
  std::string outputFileName;
  std::string directoryPrefix;
  std::int32_t outputFileClosed = 0;

  std::FILE* terminal = stdout;  ///< where messages go
};

}  // namespace quillon
