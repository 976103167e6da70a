// The pieces of a trace that inputs of fuzz_structures are made of, shared with the maker of its seeds. The
// order of each table is part of every saved input: append, never sort.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace quillon::fuzz {

/// Bits of a piece's first byte. Without kOtherPiece its low bits select a data name: then follow a claim
/// (with kClaimingDump), a length of two bytes and the bytes of the dump.
inline constexpr std::uint8_t kOtherPiece = 0x80;
inline constexpr std::uint8_t kClaimingDump = 0x40;

inline constexpr std::string_view kDataNames[] = {"MD",
                                                  "OD",
                                                  "PMO",
                                                  "GMO",
                                                  "CNO",
                                                  "CNO->CD",
                                                  "CNO->SCO",
                                                  "CNO->SCO->AIR",
                                                  "CNO->SCO->AIR->LDAPUserName",
                                                  "CNO->CSP",
                                                  "OD->OR",
                                                  "OD->RR",
                                                  "PMO->RR",
                                                  "PMO->PMR",
                                                  "Selectors",
                                                  "IntAttrs",
                                                  "CharAttrs",
                                                  "SD",
                                                  "CTLO",
                                                  "CBD",
                                                  "STS",
                                                  "SRO",
                                                  "CBC",
                                                  "XQH",
                                                  "X",
                                                  "XQ",
                                                  "Buffer",
                                                  "Data",
                                                  "Variable-ObjectString",
                                                  "Variable-A",
                                                  "AgentBuffer-MD",
                                                  "|> MD"};
inline constexpr std::size_t kDataNameCount = std::size(kDataNames);
static_assert(kDataNameCount == 32, "five bits select a name");

/// What stands behind the start of another line.
enum class PieceValue : std::uint8_t { None, Call, Decimal, Hex };

struct OtherPiece {
  std::string_view start;
  PieceValue value;
};

inline constexpr OtherPiece kOtherPieces[] = {
    {"<", PieceValue::Call},
    {"(BEFORE", PieceValue::None},
    {"(AFTER", PieceValue::None},
    {"CompCode:", PieceValue::Decimal},
    {"SelectorCount:", PieceValue::Decimal},
    {"IntAttrCount:", PieceValue::Decimal},
    {"CharAttrLength:", PieceValue::Decimal},
    {"Options:0x", PieceValue::Hex},
    {"Operation:0x", PieceValue::Hex},
    {"Action:0x", PieceValue::Hex},
    {"Type:0x", PieceValue::Hex},
    {"flags:0x", PieceValue::Hex},
    {"Hobj:0x", PieceValue::Hex},
    {"--------", PieceValue::None},
    {"Reason:", PieceValue::Decimal},
    {"", PieceValue::None},
};
inline constexpr std::size_t kOtherPieceCount = std::size(kOtherPieces);
static_assert(kOtherPieceCount == 16);

inline constexpr std::string_view kCalls[] = {"ZKGET",
                                              "ZKPUT",
                                              "ZKPUT1",
                                              "ZKOPEN",
                                              "ZKCLOSE",
                                              "ZKSET",
                                              "ZKINQ",
                                              "ZKCTL",
                                              "ZKCB",
                                              "ZKSUBRQ",
                                              "ZKSTAT",
                                              "ZKSUB",
                                              "ZKCONNX",
                                              "xa_start",
                                              "DATA_CONV_ON_GET",
                                              "CONSUMER_FUNCTION"};
inline constexpr std::size_t kCallCount = std::size(kCalls);
static_assert(kCallCount == 16);

}  // namespace quillon::fuzz
