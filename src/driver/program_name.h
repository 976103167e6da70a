// The program's name, version and word size: fixed texts of its banner and its report.
#pragma once

#include <string_view>

namespace quillon {

inline constexpr char kProgramName[] = "Quillon";
inline constexpr char kProgramVersion[] = "3.52";
/// The word size of the traces that are read, in bits. Kept: it is that of the program's name, whatever it is
/// compiled for.
inline constexpr std::string_view kProgramWordSize = "32";
/// The word size of the traces of 64-bit platforms (-p).
inline constexpr std::string_view kWideWordSize = "64";

}  // namespace quillon
