// The same field values, written by processes of all four platforms, give the same field lines when the trace
// tells its platform; addresses aside, which have 16 digits on a 64-bit platform.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/struct_reader.h"
#include "bench/structure_composer.h"
#include "display/flags.h"
#include "report_capture.h"
#include "structs/formatters.h"
#include "structure_layouts.h"

namespace quillon {
namespace {

using compose::Layout;
using compose::Order;
using FileBytes = std::vector<std::uint8_t>;

/// A structure with its composer and its formatter; a name only where the composed bytes are the structure
/// alone.
struct Subject {
  std::string_view name;
  std::int32_t lastVersion;
  FileBytes (*compose)(std::int32_t version, Layout layout);
  int (*show)(RunContext& runContext, ByteView structure);
};

/// Numbers whose four bytes all differ, each used once in a structure.
struct Numbers {
  std::int32_t last = 0x01020304;
  std::int32_t Next() { return last += 0x01010101; }
  operator std::int32_t() { return Next(); }
  operator std::uint32_t() { return static_cast<std::uint32_t>(Next()); }
};

constexpr std::uint64_t kAddress = 0x20001000;

compose::StringDescriptor Descriptor(Numbers& number) {
  return {kAddress + static_cast<std::uint32_t>(number.last) % 251, number, number, number, number};
}

FileBytes Opaque(std::size_t count, char first) {
  FileBytes bytes;
  for (std::size_t i = 0; i < count; ++i)
    bytes.push_back(static_cast<std::uint8_t>(first + static_cast<char>(i % 20)));
  return bytes;
}

FileBytes Md(std::int32_t version, Layout layout) {
  Numbers n;
  compose::MessageDescriptor md;
  md = {version,
        n,
        n,
        n,
        n,
        n,
        n,
        "FORMAT",
        n,
        n,
        Opaque(24, 'A'),
        Opaque(24, 'B'),
        n,
        "REPLY.Q",
        "REPLY.QM",
        "user",
        Opaque(32, 'C'),
        "identity",
        n,
        "appl",
        "20240514",
        "07000001",
        "orig",
        Opaque(24, 'D'),
        n,
        n,
        n,
        n};
  return ComposeMessageDescriptor(md, layout);
}

FileBytes Od(std::int32_t version, Layout layout) {
  Numbers n;
  compose::ObjectDescriptor od;
  od = {version,
        n,
        "NAME",
        "QMGR",
        "DYNAMIC",
        "user",
        n,
        n,
        n,
        n,
        n,
        n,
        kAddress,
        kAddress + 1,
        Opaque(40, 'A'),
        "RESOLVED.Q",
        "RESOLVED.QM",
        Descriptor(n),
        Descriptor(n),
        Descriptor(n),
        1};
  return ComposeObjectDescriptor(od, layout);
}

FileBytes Gmo(std::int32_t version, Layout layout) {
  Numbers n;
  compose::GetOptions gmo;
  gmo = {version, n, n, n, n, "RESOLVED.Q", n, 'G', 'S', 'A', ' ', Opaque(16, 'A'), n, n, {n, n}};
  return ComposeGetOptions(gmo, layout);
}

FileBytes Pmo(std::int32_t version, Layout layout) {
  Numbers n;
  compose::PutOptions pmo;
  pmo = {version,      n,      n,      n, n, n, n, "RESOLVED.Q", "RESOLVED.QM", n, n, n, n, kAddress,
         kAddress + 1, {n, n}, {n, n}, n, n};
  return ComposePutOptions(pmo, layout);
}

FileBytes Cno(std::int32_t version, Layout layout) {
  Numbers n;
  compose::ConnectionOptions cno;
  cno = {version, n, n, kAddress, Opaque(128, 'A'), n, kAddress + 1, Opaque(24, 'B'), n, kAddress + 2};
  return ComposeConnectionOptions(cno, layout);
}

FileBytes Sco(std::int32_t version, Layout layout) {
  Numbers n;
  compose::TlsOptions sco;
  sco = {version, "keys", "hardware", n, n, kAddress, n, n, {n, n, n, n}, 1};
  return ComposeTlsOptions(sco, layout);
}

FileBytes Air(std::int32_t version, Layout layout) {
  Numbers n;
  compose::AuthenticationRecord air;
  air = {version, n, "connection", kAddress, n, n, "password", "http://responder"};
  return ComposeAuthenticationRecord(air, layout);
}

FileBytes Csp(std::int32_t, Layout layout) {
  return compose::ComposeSecurityParameters("user of the depot", "not-a-secret", layout);
}

FileBytes CspWithAddresses(std::int32_t version, Layout layout) {
  Numbers n;
  compose::SecurityParameters csp;
  csp = {version, n, kAddress, n, n, kAddress + 1, n, n};
  return ComposeSecurityParameters(csp, layout);
}

FileBytes Cd(std::int32_t version, Layout layout) {
  Numbers n;
  compose::ChannelDefinition cd;
  cd = {"CHANNEL",
        version,
        n,
        n,
        "description",
        "QMGR",
        "XMIT",
        "short",
        "mca",
        "mode",
        "tp",
        n,
        n,
        n,
        n,
        n,
        n,
        "security.exit",
        "msg.exit",
        "send.exit",
        "receive.exit",
        n,
        n,
        n,
        n,
        "sud",
        "mud",
        "send.ud",
        "receive.ud",
        // version 2 and 3
        "user",
        "password",
        "mca.user",
        n,
        "host(7001)",
        "remote",
        "secret",
        "retry.exit",
        "retry.ud",
        n,
        n,
        // version 4
        n,
        n,
        n,
        n,
        n,
        n,
        n,
        n,
        n,
        {kAddress, kAddress + 1, kAddress + 2, kAddress + 3, kAddress + 4, kAddress + 5},
        // version 5 and 6
        kAddress,
        n,
        n,
        n,
        n,
        {kAddress, kAddress + 1},
        Opaque(40, 'A'),
        Opaque(40, 'B'),
        // version 7
        "cipher",
        kAddress,
        n,
        n,
        n,
        "10.1.2.99",
        n,
        // version 8
        {n, n},
        {n, n, n, n, n, n, n, n, n, n, n, n, n, n, n, n},
        n,
        n,
        n,
        17,
        33,
        // version 9 and 10
        n,
        1,
        n,
        n,
        n,
        1,
        n,
        1,
        2};
  return ComposeChannelDefinition(cd, layout);
}

FileBytes Sd(std::int32_t version, Layout layout) {
  Numbers n;
  compose::SubscriptionDescriptor sd;
  sd = {version,
        n,
        "NAME",
        "user",
        Opaque(40, 'A'),
        n,
        Descriptor(n),
        Descriptor(n),
        Descriptor(n),
        Opaque(24, 'B'),
        n,
        Opaque(32, 'C'),
        "identity",
        Descriptor(n),
        n,
        Descriptor(n)};
  return ComposeSubscriptionDescriptor(sd, layout);
}

FileBytes Sro(std::int32_t version, Layout layout) {
  Numbers n;
  return ComposeSubscriptionRequestOptions({version, n, n}, layout);
}

FileBytes Sts(std::int32_t version, Layout layout) {
  Numbers n;
  compose::StatusStructure sts;
  sts = {version,       n, n, n, n, n, 1, "NAME", "QMGR", "RESOLVED", "RESOLVED.QM", Descriptor(n),
         Descriptor(n), n, n};
  return ComposeStatusStructure(sts, layout);
}

FileBytes Cbd(std::int32_t version, Layout layout) {
  Numbers n;
  return ComposeCallbackDescriptor({version, n, n, kAddress, kAddress + 1, "callback", n}, layout);
}

FileBytes Cbc(std::int32_t version, Layout layout) {
  Numbers n;
  return ComposeCallbackContext({version, n, n, kAddress, kAddress + 1, n, n, n, n, n, n, n}, layout);
}

FileBytes Ctlo(std::int32_t version, Layout layout) {
  Numbers n;
  return ComposeControlOptions({version, n, kAddress}, layout);
}

int ShowOd(RunContext& runContext, ByteView structure) {
  return ShowParsedZkod(runContext, structure, {}, {}, {});
}
int ShowGmo(RunContext& runContext, ByteView structure) {
  return ShowParsedZkgmo(runContext, structure, kApiPhaseAfter, 0);
}
int ShowSd(RunContext& runContext, ByteView structure) {
  return ShowParsedZksd(runContext, structure, {});
}

constexpr Subject kSubjects[] = {
    {"ZKMD", 2, Md, ShowParsedZkmd},
    {"ZKOD", 4, Od, ShowOd},
    {"ZKGMO", 4, Gmo, ShowGmo},
    {"ZKPMO", 3, Pmo, ShowParsedZkpmo},
    {"ZKCNO", 5, Cno, ShowParsedZkcno},
    {"ZKSCO", 4, Sco, ShowParsedZksco},
    {"ZKAIR", 2, Air, ShowParsedZkair},
    {"", 1, Csp, ShowParsedZkcsp},
    {"ZKCSP", 1, CspWithAddresses, ShowParsedZkcsp},
    {"ZKCD", 10, Cd, ShowParsedZkcd},
    {"ZKSD", 1, Sd, ShowSd},
    {"ZKSRO", 1, Sro, ShowParsedZksro},
    {"ZKSTS", 2, Sts, ShowParsedZksts},
    {"ZKCBD", 1, Cbd, ShowParsedZkcbd},
    {"ZKCBC", 2, Cbc, ShowParsedZkcbc},
    {"ZKCTLO", 1, Ctlo, ShowParsedZkctlo},
};

struct TestedPlatform {
  std::string_view name;
  Order order;
  bool wide;
};
constexpr TestedPlatform kTestedPlatforms[] = {{"be32", Order::Big, false},
                                               {"le32", Order::Little, false},
                                               {"be64", Order::Big, true},
                                               {"le64", Order::Little, true}};

/// Addresses of 16 digits as those of 8, which the addresses of these tests fit.
std::string WithNarrowAddresses(std::string report) {
  constexpr std::string_view zeros = "0x00000000";
  for (std::size_t at = 0; (at = report.find(zeros, at)) != std::string::npos; ++at) {
    const std::size_t end = report.find_first_not_of("0123456789ABCDEF", at + 2);
    if (end == at + 18) report.erase(at + 2, 8);
  }
  return report;
}

std::string ReportWith(const Platform& platform, ByteOrder storedOrder, const Subject& subject,
                       const FileBytes& bytes) {
  ReportCapture capture;
  capture.Context().platform = platform;
  capture.Context().storedOrder = storedOrder;
  subject.show(capture.Context(), ViewOf(bytes));
  return WithNarrowAddresses(capture.Report());
}

TEST(Platforms, SameValuesGiveTheSameFieldLines) {
  for (const Subject& subject : kSubjects) {
    for (std::int32_t version = 1; version <= subject.lastVersion; ++version) {
      const std::string expected =
          ReportWith({}, ByteOrder::Big, subject, subject.compose(version, Layout(Order::Big)));
      EXPECT_FALSE(expected.empty());
      for (const TestedPlatform& tested : kTestedPlatforms) {
        const FileBytes bytes = subject.compose(version, {tested.order, tested.wide});
        const Platform found = {.autoDetect = true, .wide = tested.wide};
        const Platform chosen = {.littleEndian = tested.order == Order::Little, .wide = tested.wide};
        const ByteOrder order = tested.order == Order::Little ? ByteOrder::Little : ByteOrder::Big;
        const ByteOrder other = tested.order == Order::Little ? ByteOrder::Big : ByteOrder::Little;
        EXPECT_EQ(ReportWith(found, other, subject, bytes), expected)
            << subject.name << " version " << version << ", auto on " << tested.name;
        EXPECT_EQ(ReportWith(chosen, order, subject, bytes), expected)
            << subject.name << " version " << version << ", chosen " << tested.name;
      }
    }
  }
}

const LayoutRow* FindNarrowRow(const LayoutRow& wideRow) {
  for (const LayoutRow& row : kLayout32)
    if (std::string_view(row.structure) == wideRow.structure && std::string_view(row.field) == wideRow.field)
      return &row;
  return nullptr;
}

/// Length of a version in the 32-bit layout: the end of its last field.
std::size_t NarrowLength(std::string_view structure, std::int32_t version) {
  int end = 0;
  for (const LayoutRow& row : kLayout32)
    if (structure == row.structure && row.version <= version) end = row.offset + row.width;
  return static_cast<std::size_t>(end);
}

/// The same in the 64-bit layout, rounded up to 8 where a field has grown, so that it holds a pointer.
std::size_t WideLength(std::string_view structure, std::int32_t version) {
  int end = 0;
  bool holdsPointer = false;
  for (const LayoutRow& row : kLayout64) {
    if (structure != row.structure || row.version > version) continue;
    const LayoutRow* narrow = FindNarrowRow(row);
    holdsPointer |= narrow == nullptr || narrow->width != row.width;
    end = row.offset + row.width;
  }
  if (end == 0) return NarrowLength(structure, version);
  return static_cast<std::size_t>(holdsPointer ? (end + 7) / 8 * 8 : end);
}

TEST(Platforms, ComposedStructuresHaveTheirLengths) {
  for (const Subject& subject : kSubjects) {
    if (subject.name.empty()) continue;
    for (std::int32_t version = 1; version <= subject.lastVersion; ++version) {
      EXPECT_EQ(subject.compose(version, Layout(Order::Big, false)).size(),
                NarrowLength(subject.name, version))
          << subject.name << " " << version;
      EXPECT_EQ(subject.compose(version, Layout(Order::Little, true)).size(),
                WideLength(subject.name, version))
          << subject.name << " " << version;
    }
  }
}

TEST(Platforms, DataWithoutAVersionHasTheOrderOfTheStructureBefore) {
  for (const Order order : {Order::Little, Order::Big}) {
    ReportCapture capture;
    RunContext& context = capture.Context();
    context.platform = {.autoDetect = true};
    context.apiPhase = kApiPhaseBefore;
    const FileBytes cno = Cno(1, order);
    ReaderAsStored(context, ViewOf(cno));
    const FileBytes responses = compose::ComposeResponseRecords({{2, 2085}}, order);
    ShowParsedZkrr(context, ViewOf(responses), 1);
    const FileBytes records =
        compose::ComposePutMessageRecords({{.feedback = 267}}, compose::kRecordFeedback, order);
    ShowParsedZkpmr(context, ViewOf(records), 1, compose::kRecordFeedback);
    const FileBytes selectors = compose::ComposeIntegers({3, 15}, order);
    const FileBytes integers = compose::ComposeIntegers({412, 5000}, order);
    ShowParsedZkinqZksetOptionsInt(context, 2, ViewOf(selectors), 2, ViewOf(integers));
    EXPECT_EQ(capture.Report(),
              "|> CompCode                 : 2\n"
              "|> Reason                   : 2085\n"
              "|> Feedback                 : 267\n"
              "|> CURRENT_Q_DEPTH          : 412\n"
              "|> MAX_Q_DEPTH              : 5000\n");
  }
}

}  // namespace
}  // namespace quillon
