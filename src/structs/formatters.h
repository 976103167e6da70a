// The API structure formatters: one function and one source per structure.
//
// Every formatter takes the run context first and the structure's bytes second, shows the fields from top to
// bottom and returns the result of its last write, which callers ignore. Short data reads as zero.
#pragma once

#include <cstdint>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "display/encoding.h"

namespace quillon {

/// Message descriptor (zkmd.cpp).
int ShowParsedZkmd(RunContext& runContext, ByteView structure);

/// Object descriptor with the texts of its three string descriptors (zkod.cpp).
int ShowParsedZkod(RunContext& runContext, ByteView structure, const CharvText& objectString,
                   const CharvText& selectionString, const CharvText& resObjectString);

/// Get-message options; `phase` and `compCode` as in the run context (zkgmo.cpp).
int ShowParsedZkgmo(RunContext& runContext, ByteView structure, std::int32_t phase, std::int32_t compCode);

/// Put-message options (zkpmo.cpp).
int ShowParsedZkpmo(RunContext& runContext, ByteView structure);

/// Put-message records, `count` at most, of the fields that `fields` (PutMsgRecFields) names (zkpmr.cpp).
int ShowParsedZkpmr(RunContext& runContext, ByteView records, std::int32_t count, std::uint32_t fields);
/// Length of one put-message record in bytes.
std::int32_t CalculateZkpmrUnitLength(std::uint32_t fields);

/// Connection options (zkcno.cpp).
int ShowParsedZkcno(RunContext& runContext, ByteView structure);
/// TLS configuration options (zksco.cpp).
int ShowParsedZksco(RunContext& runContext, ByteView structure);
/// Authentication-information record (zkair.cpp).
int ShowParsedZkair(RunContext& runContext, ByteView structure);
/// The user name that an authentication-information record points to: the whole of the dump (zkair.cpp).
int ShowParsedLDAPUserName(RunContext& runContext, ByteView data);
/// Security parameters (zkcsp.cpp).
int ShowParsedZkcsp(RunContext& runContext, ByteView structure);
/// Channel definition (zkcd.cpp).
int ShowParsedZkcd(RunContext& runContext, ByteView structure);

/// The selectors from 1 to 2000 of an inquire or set call with their values (zkinq_zkset.cpp). Both arrays
/// hold 32-bit integers as stored; the counts come from the trace and may claim more than the arrays hold.
int ShowParsedZkinqZksetOptionsInt(RunContext& runContext, std::int32_t selectorCount, ByteView selectors,
                                   std::int32_t integerCount, ByteView integers);
/// The selectors from 2001 to 2124 with their values cut from the character buffer (zkinq_zkset.cpp).
int ShowParsedZkinqZksetOptionsChar(RunContext& runContext, std::int32_t selectorCount, ByteView selectors,
                                    std::int32_t integerCount, ByteView integers,
                                    std::int32_t characterLength, ByteView characters);

/// The texts of a subscription descriptor's string descriptors, in the order of its fields.
struct SubscriptionTexts {
  CharvText objectString;
  CharvText subName;
  CharvText subUserData;
  CharvText selectionString;
  CharvText resObjectString;
};
/// Subscription descriptor (zksd.cpp).
int ShowParsedZksd(RunContext& runContext, ByteView structure, const SubscriptionTexts& texts);
/// Subscription request options (zksro.cpp).
int ShowParsedZksro(RunContext& runContext, ByteView structure);
/// Status structure (zksts.cpp).
int ShowParsedZksts(RunContext& runContext, ByteView structure);
/// Callback descriptor (zkcbd.cpp).
int ShowParsedZkcbd(RunContext& runContext, ByteView structure);
/// Callback context (zkcbc.cpp).
int ShowParsedZkcbc(RunContext& runContext, ByteView structure);
/// Control options (zkctlo.cpp).
int ShowParsedZkctlo(RunContext& runContext, ByteView structure);

}  // namespace quillon
