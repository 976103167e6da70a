// Whole traces of any length, made of the stories that applications of this kind live through.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::compose {

/// A trace to make.
struct TraceRequest {
  std::uint64_t size = 0;  ///< wanted length in bytes; the trace ends with the section that reaches it
  std::uint64_t seed = 1;
  std::string mix = "all";  ///< one of TraceMixes()
};

/// "all" and the names of its parts.
std::vector<std::string_view> TraceMixes();

/// Makes a trace and hands it out section by section. The same request gives the same bytes on every machine.
/// First comes a tour through every story of the mix (somewhat over one megabyte for "all"), then stories by
/// chance.
/// Returns false when the mix is unknown or the sink has returned false, which ends the trace.
bool WriteTrace(const TraceRequest& request, const std::function<bool(const std::string& section)>& sink);

}  // namespace quillon::compose
