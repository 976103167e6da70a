// The platform of the traced process: how the structures of its dumps are laid out.
#pragma once

namespace quillon {

/// The default is a 32-bit big-endian process. The order of data that is read as stored is kept beside it
/// (RunContext::storedOrder), because a trace may tell it anew with each structure.
struct Platform {
  bool autoDetect = false;    ///< the trace itself tells word size and byte order
  bool littleEndian = false;  ///< as chosen; stays false with autoDetect
  bool wide = false;          ///< 64-bit: pointers of 8 bytes in their natural alignment

  /// Whether another platform than the default was asked for.
  bool IsChosen() const { return autoDetect || littleEndian || wide; }
};

}  // namespace quillon
