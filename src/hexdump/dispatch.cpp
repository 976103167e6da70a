#include "hexdump/dispatch.h"

#include <algorithm>
#include <string>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "driver/message_catalogue.h"
#include "hexdump/regeneration.h"
#include "msgdata/formatters.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// Offsets in the saved copies, in bytes.
constexpr std::int64_t kMdEncodingOffset = 24;
constexpr std::int64_t kMdFormatOffset = 32;
constexpr std::int64_t kOdRecsPresentOffset = 168;
constexpr std::int64_t kPmoRecsPresentOffset = 128;
constexpr std::int64_t kPmoPutMsgRecFieldsOffset = 132;

// A message body is longer than this many bytes.
constexpr std::int32_t kShortestBody = 4;

// Of a copied structure the fields up to this offset are referred to.
constexpr std::size_t kSavedHead = 256;

// How many bytes the stock of claimed text grows by for each byte that a dump carries.
constexpr std::int64_t kClaimedTextPerCarriedByte = 16;

// Selectors that are shown with each array of values. More of them are paid like claimed text: one array of
// selectors may be followed by any number of values.
constexpr std::int64_t kFreeSelectors = 64;

void RaiseClaimedText(RunContext& runContext, const DumpBytes& dump) {
  runContext.claimedTextLeft = std::min(
      kMostClaimedText, runContext.claimedTextLeft + dump.CarriedCount() * kClaimedTextPerCarriedByte);
}

// The dump's own buffer becomes the copy; the copy's old buffer takes the next dump.
int Save(TraceLineContext& trace, SavedStructure& copy) {
  copy.length = trace.dump.DeclaredLength();
  copy.bytes.Swap(trace.dump);
  return 0;
}

// Of structures that may be of any length only what is referred to is kept.
int SaveHead(RunContext& runContext, TraceLineContext& trace, SavedStructure& copy) {
  const ByteView dump = trace.dump.Declared();
  std::uint8_t head[kSavedHead];
  dump.CopyTo(head, 0, sizeof(head));
  copy.length = trace.dump.DeclaredLength();
  copy.bytes.Start(copy.length);
  if (copy.bytes.Append(head, sizeof(head))) return 0;
  PutMessage(runContext, 1010, kResultFromErrno);
  return -1;
}

std::int32_t SavedWord(const RunContext& runContext, const SavedStructure& copy, std::int64_t offset) {
  return copy.View().Int32(offset, OrderOfSavedCopy(runContext, copy.View()));
}

CharvText TextOfItem(const TraceLineContext& trace, int item) {
  const VariableItem& variable = trace.variableItems[item];
  if (!variable.present) return {};
  return {CharvText::Place::Rebuilt, variable.bytes.Declared()};
}

bool IsCall(const TraceLineContext& trace, std::string_view apiName, std::string_view phase) {
  return std::string_view(trace.apiName) == apiName && std::string_view(trace.phaseText) == phase;
}

bool AttributesAreShown(const TraceLineContext& trace) {
  const bool call = IsCall(trace, "ZKSET\n", "BEFORE\n") || IsCall(trace, "ZKINQ\n", "AFTER\n");
  return call && trace.selectorCount > 0 && trace.savedSelectors.length > 0;
}

// How many selectors are shown with an array of values.
std::int32_t TakeSelectors(RunContext& runContext, const TraceLineContext& trace) {
  const std::int64_t held = trace.savedSelectors.View().Size() / 4 + 1;
  const std::int64_t count = std::min<std::int64_t>(trace.selectorCount, held);
  const std::int64_t left = std::max<std::int64_t>(runContext.claimedTextLeft, 0) / 4;
  const std::int64_t paid = std::clamp<std::int64_t>(count - kFreeSelectors, 0, left);
  if (kFreeSelectors + paid < count) ReportTextLeftOut(runContext);
  runContext.claimedTextLeft -= paid * 4;
  return static_cast<std::int32_t>(std::min(count, kFreeSelectors + paid));
}

int ProcessMd(RunContext& runContext, TraceLineContext& trace) {
  const ByteView md = trace.dump.Whole();
  ShowParsedZkmd(runContext, md);
  trace.messageEncoding = md.Word(kMdEncodingOffset, OrderOfSavedEncoding(runContext, md));
  trace.messageFormat = FormatNameOf(md.From(kMdFormatOffset));
  return 0;
}

int ProcessOd(RunContext& runContext, TraceLineContext& trace) {
  if (RegenerateVariableData(runContext, trace) != 0) return -1;
  ShowParsedZkod(runContext, trace.dump.Whole(), TextOfItem(trace, 0), TextOfItem(trace, 1),
                 TextOfItem(trace, 2));
  return SaveHead(runContext, trace, trace.savedObjectDescriptor);
}

int ProcessPmo(RunContext& runContext, TraceLineContext& trace) {
  ShowParsedZkpmo(runContext, trace.dump.Whole());
  return SaveHead(runContext, trace, trace.savedPutOptions);
}

int ProcessGmo(RunContext& runContext, TraceLineContext& trace) {
  const bool after = trace.phaseText == std::string_view("AFTER\n");
  ShowParsedZkgmo(runContext, trace.dump.Whole(), after ? kApiPhaseAfter : kApiPhaseBefore,
                  runContext.compCode);
  return 0;
}

template <int (*formatter)(RunContext&, ByteView)>
int ProcessStructure(RunContext& runContext, TraceLineContext& trace) {
  formatter(runContext, trace.dump.Whole());
  return 0;
}

template <int (*formatter)(RunContext&, ByteView)>
int ProcessStructureWithItems(RunContext& runContext, TraceLineContext& trace) {
  if (RegenerateVariableData(runContext, trace) != 0) return -1;
  return ProcessStructure<formatter>(runContext, trace);
}

int ProcessLdapUserName(RunContext& runContext, TraceLineContext& trace) {
  ShowParsedLDAPUserName(runContext, trace.dump.Declared());
  return 0;
}

int ProcessSd(RunContext& runContext, TraceLineContext& trace) {
  if (RegenerateVariableData(runContext, trace) != 0) return -1;
  ShowParsedZksd(runContext, trace.dump.Whole(),
                 {TextOfItem(trace, 0), TextOfItem(trace, 1), TextOfItem(trace, 2), TextOfItem(trace, 3),
                  TextOfItem(trace, 4)});
  return 0;
}

int ProcessObjectRecords(RunContext& runContext, TraceLineContext& trace) {
  const std::int32_t count = SavedWord(runContext, trace.savedObjectDescriptor, kOdRecsPresentOffset);
  ShowParsedZkor(runContext, trace.dump.Declared(), count);
  return 0;
}

int ProcessOpenResponses(RunContext& runContext, TraceLineContext& trace) {
  const std::int32_t count = SavedWord(runContext, trace.savedObjectDescriptor, kOdRecsPresentOffset);
  ShowParsedZkrr(runContext, trace.dump.Declared(), count);
  return 0;
}

int ProcessPutResponses(RunContext& runContext, TraceLineContext& trace) {
  const std::int32_t count = SavedWord(runContext, trace.savedPutOptions, kPmoRecsPresentOffset);
  ShowParsedZkrr(runContext, trace.dump.Declared(), count);
  return 0;
}

int ProcessPutMessageRecords(RunContext& runContext, TraceLineContext& trace) {
  const SavedStructure& pmo = trace.savedPutOptions;
  if (pmo.length <= 0) return 0;
  const auto fields = static_cast<std::uint32_t>(SavedWord(runContext, pmo, kPmoPutMsgRecFieldsOffset));
  ShowParsedZkpmr(runContext, trace.dump.Declared(), SavedWord(runContext, pmo, kPmoRecsPresentOffset),
                  fields);
  return 0;
}

int ProcessSelectors(RunContext& runContext, TraceLineContext& trace) {
  if (IsCall(trace, "ZKINQ\n", "BEFORE\n") && trace.selectorCount > 0) {
    ByteView selectors = trace.dump.Declared().Sub(0, std::int64_t{trace.selectorCount} * 4);
    selectors = selectors.Sub(0, PayForText(runContext, selectors));
    ShowParsedZkinqZksetOptionsInt(runContext, trace.selectorCount, selectors, 0, {});
    ShowParsedZkinqZksetOptionsChar(runContext, trace.selectorCount, selectors, 0, {}, 0, {});
  }
  return Save(trace, trace.savedSelectors);
}

int ProcessIntegerAttributes(RunContext& runContext, TraceLineContext& trace) {
  if (AttributesAreShown(trace)) {
    ShowParsedZkinqZksetOptionsInt(runContext, TakeSelectors(runContext, trace), trace.savedSelectors.View(),
                                   trace.integerAttributeCount, trace.dump.Declared());
  }
  return Save(trace, trace.savedIntegerAttributes);
}

int ProcessCharacterAttributes(RunContext& runContext, TraceLineContext& trace) {
  if (AttributesAreShown(trace)) {
    ShowParsedZkinqZksetOptionsChar(runContext, TakeSelectors(runContext, trace), trace.savedSelectors.View(),
                                    trace.integerAttributeCount, trace.savedIntegerAttributes.View(),
                                    trace.characterAttributeLength, trace.dump.Declared());
  }
  return 0;
}

int ProcessXqh(RunContext& runContext, TraceLineContext& trace) {
  ShowParsedZkxqh(runContext, trace.dump.Whole());
  return 0;
}

int ProcessMessageData(RunContext& runContext, TraceLineContext& trace) {
  if (trace.dump.DeclaredLength() <= kShortestBody) return 0;
  if (runContext.formatMessageContent) {
    // A descriptor inside a message tells the order of its sender, not that of the traced process.
    const ByteOrder storedOrder = runContext.storedOrder;
    ShowParsedMsgData(runContext, trace.messageFormat, trace.messageEncoding, trace.dump.Declared());
    runContext.storedOrder = storedOrder;
  }
  // A second body of the same call does not begin with these formats again.
  if (trace.messageFormat == "ZKHRF2  " || trace.messageFormat == "ZKADMIN ") trace.messageFormat = {};
  return 0;
}

struct DispatchRow {
  const char* dataName;
  int (*process)(RunContext&, TraceLineContext&);
  std::int64_t versionOffset = kVersionOffset;
};

constexpr DispatchRow kDispatch[] = {
    {"MD", ProcessMd},
    {"OD", ProcessOd},
    {"PMO", ProcessPmo},
    {"GMO", ProcessGmo},
    {"CNO", ProcessStructure<ShowParsedZkcno>},
    {"CNO->CD", ProcessStructure<ShowParsedZkcd>, kChannelVersionOffset},
    {"CNO->SCO", ProcessStructure<ShowParsedZksco>},
    {"CNO->SCO->AIR", ProcessStructure<ShowParsedZkair>},
    {"CNO->SCO->AIR->LDAPUserName", ProcessLdapUserName, kNoVersion},
    {"CNO->CSP", ProcessStructure<ShowParsedZkcsp>},
    {"OD->OR", ProcessObjectRecords, kNoVersion},
    {"OD->RR", ProcessOpenResponses, kNoVersion},
    {"PMO->RR", ProcessPutResponses, kNoVersion},
    {"PMO->PMR", ProcessPutMessageRecords, kNoVersion},
    {"Selectors", ProcessSelectors, kNoVersion},
    {"IntAttrs", ProcessIntegerAttributes, kNoVersion},
    {"CharAttrs", ProcessCharacterAttributes, kNoVersion},
    {"SD", ProcessSd},
    {"CTLO", ProcessStructureWithItems<ShowParsedZkctlo>},
    {"CBD", ProcessStructureWithItems<ShowParsedZkcbd>},
    {"STS", ProcessStructureWithItems<ShowParsedZksts>},
    {"SRO", ProcessStructureWithItems<ShowParsedZksro>},
    {"CBC", ProcessStructureWithItems<ShowParsedZkcbc>},
    // Kept: tracers write the transmission queue header under shortened names; every leading part of "XQH "
    // is one.
    {"X", ProcessXqh},
    {"XQ", ProcessXqh},
    {"XQH", ProcessXqh},
};

// Every name without a row is message data.
int Dispatch(RunContext& runContext, TraceLineContext& trace, std::string_view dataName) {
  for (const DispatchRow& row : kDispatch) {
    if (dataName == row.dataName) return row.process(runContext, trace);
  }
  return ProcessMessageData(runContext, trace);
}

}  // namespace

std::int64_t VersionOffsetOf(std::string_view dataName) {
  for (const DispatchRow& row : kDispatch) {
    if (dataName == row.dataName) return row.versionOffset;
  }
  return kNoVersion;
}

int ProcessHexData(RunContext& runContext, TraceLineContext& traceLineContext) {
  std::string dataName;
  const std::int32_t length =
      RegenerateHexData(runContext, traceLineContext, dataName, traceLineContext.dump, Echo::Off);
  if (length < 1) return -1;
  PutHexData(runContext, "", traceLineContext.dump.Declared(), false);
  RaiseClaimedText(runContext, traceLineContext.dump);
  return Dispatch(runContext, traceLineContext, dataName);
}

}  // namespace quillon
