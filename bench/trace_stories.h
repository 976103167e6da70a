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
  std::string mix = "all";        ///< one of TraceMixes()
  std::string platform = "be32";  ///< one of TracePlatforms()
};

/// "all", the names of its parts, and those of the load traces, which are no part of it.
std::vector<std::string_view> TraceMixes();

/// The platforms that a traced process can have: byte order and word size.
std::vector<std::string_view> TracePlatforms();

/// Makes a trace and hands it out section by section. The same request gives the same bytes on every machine.
/// First comes a tour through every story of the mix (somewhat over one megabyte for "all"), then stories by
/// chance.
/// Returns false when the mix or the platform is unknown or the sink has returned false, which ends the
/// trace.
bool WriteTrace(const TraceRequest& request, const std::function<bool(const std::string& section)>& sink);

}  // namespace quillon::compose
