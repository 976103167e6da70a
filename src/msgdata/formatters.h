// The message data formatters: the walk over the headers of a message body, and one function per header.
//
// A header's bytes arrive as a view from its first byte to the end of the message data; the view's size is
// the remaining length. `offset` is the header's offset in the message data, for the title lines. All sums of
// lengths and offsets are made in 64 bits.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/byte_view.h"
#include "base/format_name.h"
#include "base/run_context.h"

namespace quillon {

/// The walk: `format` and `encoding` are those of the message descriptor (message_data.cpp). False when
/// nothing of the body was recognised.
bool ShowParsedMsgData(RunContext& runContext, const FormatName& format, std::uint32_t encoding,
                       ByteView data);

/// The catch-all for a body that nothing recognises; silent at offset 0 (message_data.cpp).
void ShowParsedGeneralData(RunContext& runContext, std::int64_t length, std::int64_t offset);

/// The view cut by the run's limit on parsed data.
ByteView CapParsedLength(const RunContext& runContext, ByteView data);

/// Transmission-queue header (zkxqh.cpp).
void ShowParsedZkxqh(RunContext& runContext, ByteView header);

/// Headers that hand their Format and Encoding on. They leave both untouched when they show nothing.
/// Message descriptor extension (zkmde.cpp); the caller advances by its fixed length.
void ShowParsedZKMDE(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding, ByteView header,
                     std::int64_t offset);
/// Dead-letter header (zkdlh.cpp); the caller advances by its fixed length.
void ShowParsedZKDLH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding, ByteView header,
                     std::int64_t offset);
/// Distribution header (zkdh.cpp); returns the bytes to advance.
std::int64_t ShowParsedZKDH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                            ByteView header, std::int64_t offset);
/// Reference message header (zkrmh.cpp); returns the bytes to advance.
std::int64_t ShowParsedZKRMH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                             ByteView header, std::int64_t offset);
/// Rules-and-formatting header 2 (zkrf2.cpp); returns the bytes to advance.
std::int64_t ShowParsedZKHRF2(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                              ByteView header, std::int64_t offset);

/// Bodies: they hand nothing on.
/// Rules-and-formatting header 1 and its name/value string (zkrf1.cpp).
void ShowParsedZKHRF1(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset);
/// Trigger message (zktm.cpp).
void ShowParsedZKTM(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset);
/// Embedded PCF header, its own 32 bytes (zkeph.cpp).
void ShowParsedZKEPH(RunContext& runContext, std::uint32_t encoding, ByteView header, std::int64_t offset);
/// PCF message: header and parameters (pcf.cpp).
void ShowParsedPCF(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset);
/// XML (xml.cpp): true when the bytes were recognised and shown, false when nothing was written.
bool ShowParsedXml(RunContext& runContext, ByteView data, std::int64_t offset, std::string_view title);

}  // namespace quillon
