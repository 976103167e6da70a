#include "driver/handle_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "report_capture.h"

namespace quillon {
namespace {

struct ShownEntry {
  std::int32_t handle;
  std::string objectName;
  std::string resolvedName;

  bool operator==(const ShownEntry&) const = default;
};

void PrintTo(const ShownEntry& entry, std::ostream* out) {
  *out << "{" << entry.handle << ", \"" << entry.objectName << "\", \"" << entry.resolvedName << "\"}";
}

// The whole list in its order.
std::vector<ShownEntry> Entries(const RunContext& runContext) {
  std::vector<ShownEntry> shown;
  for (std::size_t i = 0; i < runContext.handleList.rows.Size(); ++i) {
    const HandleRow& row = runContext.handleList.rows[i];
    const HandleEntry& entry = runContext.handleList.entries[row.slot];
    shown.push_back({row.handle, entry.objectName, entry.resolvedName});
  }
  return shown;
}

std::vector<std::int32_t> Handles(const RunContext& runContext) {
  std::vector<std::int32_t> handles;
  for (const ShownEntry& entry : Entries(runContext)) handles.push_back(entry.handle);
  return handles;
}

void Add(RunContext& runContext, std::string_view name) {
  queueHandleListAddEntry(runContext, name, 1, 1, 1, 1, 1, 1);
}

void Open(RunContext& runContext, std::int32_t handle, std::string_view name, std::string_view resolvedName) {
  Add(runContext, name);
  queueHandleListSetHandleToLastEntry(runContext, handle, name, resolvedName);
}

std::string Alias(const RunContext& runContext, std::string_view name) {
  const char* alias = queueHandleListSearchAliasNameByRealName(runContext, name);
  return alias == nullptr ? "nothing" : "\"" + std::string(alias) + "\"";
}

std::string Trimmed(std::string text) {
  StringTrim(text.data());
  return text.substr(0, text.find('\0'));
}

constexpr const char* kSetHandleMessage = "Invalid handle count in queueHandleListSetHandleToLastEntry.\n";
constexpr const char* kDeleteLastMessage = "Invalid handle count in queueHandleListDeleteLastEntry.\n";

TEST(StringTrim, RemovesTrailingBlanksAndLineEndsAndLeadingBlanks) {
  EXPECT_EQ(Trimmed("ABC   "), "ABC");
  EXPECT_EQ(Trimmed("ABC \r\n \n"), "ABC");
  EXPECT_EQ(Trimmed("  ABC"), "ABC");
  EXPECT_EQ(Trimmed("  A B  C  "), "A B  C");
  EXPECT_EQ(Trimmed("    "), "");
  EXPECT_EQ(Trimmed(""), "");
}

TEST(StringTrim, KeepsLeadingLineEndsAndTabs) {
  EXPECT_EQ(Trimmed("\nABC"), "\nABC");
  EXPECT_EQ(Trimmed(" \r ABC"), "\r ABC");
  EXPECT_EQ(Trimmed("\tABC\t"), "\tABC\t");
}

TEST(HandleList, NewEntryHasHandleZeroAndAllFlags) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Add(runContext, "  ORDERS    ");
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{0, "ORDERS", ""}}));
  for (const std::uint8_t flag : runContext.handleList.entries[0].optionFlags) EXPECT_EQ(flag, 1);
}

TEST(HandleList, DescendingHandlesEndUpAscending) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 7, "SEVEN", "SEVEN");
  Open(runContext, 5, "FIVE", "FIVE.REAL");
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{5, "FIVE", "FIVE.REAL"}, {7, "SEVEN", "SEVEN"}}));
}

TEST(HandleList, HandlesAreSortedAsSignedValues) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  for (const std::int32_t handle : {2, -2, 2147483647, -2147483647, 1}) Open(runContext, handle, "Q", "Q");
  EXPECT_EQ(Handles(runContext), (std::vector<std::int32_t>{-2147483647, -2, 1, 2, 2147483647}));
}

TEST(HandleList, NewestEntryStaysLastUntilItHasItsHandle) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 3, "A", "A");
  Add(runContext, "B");
  EXPECT_EQ(Handles(runContext), (std::vector<std::int32_t>{3, 0}));
  queueHandleListSetHandleToLastEntry(runContext, 2, "B", "B");
  EXPECT_EQ(Handles(runContext), (std::vector<std::int32_t>{2, 3}));
}

TEST(HandleList, HandlesZeroAndMinusOneMoveNothing) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 9, "A", "A");
  Open(runContext, -1, "B", "B");
  EXPECT_EQ(Handles(runContext), (std::vector<std::int32_t>{9, -1}));
  EXPECT_STREQ(runContext.currentObjectName, "(null)");
}

TEST(HandleList, EntryThatRepeatsAHandleStandsBeforeTheOlderOne) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 4, "OLD", "OLD");
  Open(runContext, 6, "LAST", "LAST");
  Open(runContext, 4, "NEW", "NEW");
  EXPECT_EQ(Entries(runContext),
            (std::vector<ShownEntry>{{4, "NEW", "NEW"}, {4, "OLD", "OLD"}, {6, "LAST", "LAST"}}));
}

TEST(HandleList, CompletingAnOpenSetsTheCurrentNames) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 4, "MODEL.Q  ", "DYN.1234  ");
  EXPECT_STREQ(runContext.currentObjectName, "MODEL.Q");
  EXPECT_STREQ(runContext.currentResolvedName, "DYN.1234");
  Open(runContext, 5, "LOCAL.Q", "LOCAL.Q   ");
  EXPECT_STREQ(runContext.currentObjectName, "LOCAL.Q");
  EXPECT_STREQ(runContext.currentResolvedName, "");
}

TEST(HandleList, AbsentResolvedNameLeavesTheEntrysOwn) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 4, "Q", "REAL");
  queueHandleListSetHandleToLastEntry(runContext, 8, "P", std::nullopt);
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{8, "P", "REAL"}}));
}

TEST(HandleList, CurrentNameMayBeItsOwnSource) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 4, "MODEL.Q", "DYN.1");
  queueHandleListSetHandleToLastEntry(runContext, 5, runContext.currentObjectName,
                                      runContext.currentResolvedName);
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{5, "MODEL.Q", "DYN.1"}}));
}

TEST(HandleList, SearchFindsEveryHandleAndEveryGap) {
  for (int count = 1; count <= 40; ++count) {
    ReportCapture capture;
    RunContext& runContext = capture.Context();
    for (int i = 1; i <= count; ++i) Open(runContext, 10 * i, "Q" + std::to_string(i), "");
    for (int i = 1; i <= count; ++i) {
      EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, 10 * i, HandleSearchMode::EntryOnly), i - 1);
      EXPECT_EQ(runContext.currentObjectName, "Q" + std::to_string(i));
      EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, 10 * i, HandleSearchMode::InsertionIndex),
                i - 1);
    }
    for (int i = 0; i <= count; ++i) {
      EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, 10 * i + 5, HandleSearchMode::EntryOnly), -1);
      EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, 10 * i + 5, HandleSearchMode::InsertionIndex),
                i);
    }
  }
}

TEST(HandleList, SearchForNoHandleAndInAnEmptyList) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, 5, HandleSearchMode::InsertionIndex), -1);
  EXPECT_STREQ(runContext.currentObjectName, "(unknown)");
  for (const std::int32_t handle : {0, -1}) {
    Open(runContext, 5, "Q", "R");
    EXPECT_EQ(queueHandleListSearchEntryByHandle(runContext, handle, HandleSearchMode::InsertionIndex), -1);
    EXPECT_STREQ(runContext.currentObjectName, "(null)");
    EXPECT_STREQ(runContext.currentResolvedName, "");
  }
}

TEST(HandleList, HitMakesTheEntrysNamesCurrent) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 1, "ALIAS", "REAL");
  Open(runContext, 2, "SAME", "  SAME  ");
  queueHandleListSearchEntryByHandle(runContext, 1, HandleSearchMode::EntryOnly);
  EXPECT_STREQ(runContext.currentObjectName, "ALIAS");
  EXPECT_STREQ(runContext.currentResolvedName, "REAL");
  queueHandleListSearchEntryByHandle(runContext, 2, HandleSearchMode::EntryOnly);
  EXPECT_STREQ(runContext.currentObjectName, "SAME");
  EXPECT_STREQ(runContext.currentResolvedName, "");
}

TEST(HandleList, DeletingShiftsTheLaterEntriesDown) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  for (const std::int32_t handle : {1, 2, 3, 4}) Open(runContext, handle, "Q" + std::to_string(handle), "R");
  queueHandleListDeleteEntry(runContext, 1);
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{1, "Q1", "R"}, {3, "Q3", "R"}, {4, "Q4", "R"}}));
  queueHandleListDeleteEntry(runContext, 0);
  queueHandleListDeleteEntry(runContext, 1);
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{3, "Q3", "R"}}));
  queueHandleListDeleteLastEntry(runContext);
  EXPECT_EQ(runContext.handleList.rows.Size(), 0u);
  EXPECT_EQ(capture.Terminal(), "");
}

TEST(HandleList, FreedSlotIsCleared) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 1, "OLD", "OLD.REAL");
  queueHandleListDeleteEntry(runContext, 0);
  EXPECT_EQ(Alias(runContext, "OLD.REAL"), "nothing");
  Add(runContext, "NEW");
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{0, "NEW", ""}}));
}

TEST(HandleList, IndexOutsideTheListDeletesNothing) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 1, "A", "A");
  for (const std::int32_t index : {-1, 1, 100, 2147483647}) queueHandleListDeleteEntry(runContext, index);
  EXPECT_EQ(runContext.handleList.rows.Size(), 1u);
}

TEST(HandleList, ChangesToAnEmptyListAreReportedAndChangeNothing) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  queueHandleListSetHandleToLastEntry(runContext, 5, "Q", "R");
  EXPECT_EQ(capture.Terminal(), kSetHandleMessage);
  queueHandleListDeleteLastEntry(runContext);
  EXPECT_EQ(capture.Terminal(), std::string(kSetHandleMessage) + kDeleteLastMessage);
  EXPECT_EQ(runContext.handleList.rows.Size(), 0u);
  EXPECT_EQ(capture.Report(), "");
}

TEST(HandleList, NameOfFullWidthFitsAndALongerOneIsCut) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  const std::string full = "ABCDEFGHIJKLMNOPQRSTUVWXYZ.ABCDEFGHIJKLMNOPQRSTU";
  ASSERT_EQ(full.size(), 48u);
  Open(runContext, 1, full, full + "XYZ");
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{1, full, full}}));
  EXPECT_EQ(runContext.currentObjectName, full);
}

TEST(HandleList, NulEndsAName) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 1, std::string_view("AB  \0CD", 7), std::string_view("\0EF", 3));
  EXPECT_EQ(Entries(runContext), (std::vector<ShownEntry>{{1, "AB", ""}}));
}

TEST(HandleList, AliasOfADynamicQueueIsItsModel) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 2, "REPLY.MODEL", "REPLY.DYN.65E6E0A1");
  EXPECT_EQ(Alias(runContext, "REPLY.DYN.65E6E0A1"), "\"REPLY.MODEL\"");
  EXPECT_EQ(Alias(runContext, "REPLY.DYN.65E6E0A1            "), "\"REPLY.MODEL\"");
  EXPECT_EQ(Alias(runContext, "  REPLY.DYN.65E6E0A1"), "\"REPLY.MODEL\"");
  EXPECT_EQ(Alias(runContext, "REPLY.DYN.65E6E0A2"), "nothing");
  EXPECT_EQ(Alias(runContext, "REPLY.MODEL"), "nothing");
}

TEST(HandleList, NoAliasForAnEmptyName) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 2, "TOPIC", "");
  EXPECT_EQ(Alias(runContext, ""), "nothing");
  EXPECT_EQ(Alias(runContext, "          "), "nothing");
  EXPECT_EQ(Alias(runContext, std::string_view("\0TOPIC", 6)), "nothing");
}

TEST(HandleList, NoAliasWhenTheTwoNamesAreEqual) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 2, "REAL", "REAL");
  EXPECT_EQ(Alias(runContext, "REAL"), "nothing");
}

TEST(HandleList, FirstEntryOfARealNameDecides) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 20, "ALIAS.2", "REAL");
  Open(runContext, 10, "ALIAS.1", "REAL");
  EXPECT_EQ(Alias(runContext, "REAL"), "\"ALIAS.1\"");
  // An entry with equal names hides the aliases behind it.
  Open(runContext, 5, "REAL", "REAL");
  EXPECT_EQ(Alias(runContext, "REAL"), "nothing");
}

TEST(HandleList, EmptyApplicationNameIsAnAlias) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  Open(runContext, 2, "", "REAL");
  EXPECT_EQ(Alias(runContext, "REAL"), "\"\"");
}

TEST(HandleList, RealNameOfFullWidthIsComparedWhole) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  const std::string full(48, 'R');
  Open(runContext, 2, "ALIAS", full);
  EXPECT_EQ(Alias(runContext, full), "\"ALIAS\"");
  EXPECT_EQ(Alias(runContext, full + "R"), "\"ALIAS\"");
  EXPECT_EQ(Alias(runContext, full.substr(1)), "nothing");
}

// The search compares a hash of each name first. Among 300,000 names some share it: they stay two names.
TEST(HandleList, NamesOfTheSameHashAreNotTakenForEachOther) {
  std::unordered_map<std::uint32_t, std::string> names;
  int pairs = 0;
  for (int i = 0; i < 300000; ++i) {
    const std::string name = "REAL." + std::to_string(i);
    const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>()(name)) | 1;
    const auto [known, isNew] = names.emplace(hash, name);
    if (isNew) continue;
    ++pairs;
    ReportCapture capture;
    RunContext& runContext = capture.Context();
    Open(runContext, 1, "FIRST.MODEL", known->second);
    EXPECT_EQ(Alias(runContext, name), "nothing") << name;
    Open(runContext, 2, "SECOND.MODEL", name);
    EXPECT_EQ(Alias(runContext, name), "\"SECOND.MODEL\"") << name;
    EXPECT_EQ(Alias(runContext, known->second), "\"FIRST.MODEL\"") << known->second;
    Open(runContext, 3, "THIRD.MODEL", name);
    EXPECT_EQ(Alias(runContext, name), "\"SECOND.MODEL\"") << name;
  }
  EXPECT_GT(pairs, 0);
}

TEST(HandleList, UsesTheSlotsOfClosedObjectsAgain) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  for (int round = 0; round < 50; ++round) {
    for (int i = 0; i < 30; ++i) Open(runContext, 30 * round + i + 1, "Q", "R");
    for (int i = 0; i < 30; ++i) queueHandleListDeleteEntry(runContext, (i * 7) % (30 - i));
  }
  EXPECT_EQ(runContext.handleList.rows.Size(), 0u);
  EXPECT_EQ(runContext.handleList.slotCount, 30u);
}

TEST(HandleList, EntriesSurviveGrowth) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  std::vector<ShownEntry> expected;
  for (int i = 350; i >= 1; --i)
    Open(runContext, i, "NAME." + std::to_string(i), "REAL." + std::to_string(i));
  for (int i = 1; i <= 350; ++i)
    expected.push_back({i, "NAME." + std::to_string(i), "REAL." + std::to_string(i)});
  EXPECT_EQ(Entries(runContext), expected);
  EXPECT_EQ(Alias(runContext, "REAL.217"), "\"NAME.217\"");
}

TEST(HandleList, AHundredThousandOpenObjects) {
  constexpr std::int32_t kCount = 100000;
  constexpr std::int32_t kSteps = 1000;
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  const auto start = std::chrono::steady_clock::now();
  for (std::int32_t handle = 1; handle <= kCount; ++handle)
    Open(runContext, handle, "MODEL", "REAL." + std::to_string(handle));
  EXPECT_EQ(Alias(runContext, "REAL.100000"), "\"MODEL\"");
  for (std::int32_t step = 0; step < kSteps; ++step) EXPECT_EQ(Alias(runContext, "NOT.THERE"), "nothing");
  // Steps at the front of the order move all of it.
  for (std::int32_t handle = 1; handle <= kSteps; ++handle) {
    ASSERT_EQ(queueHandleListSearchEntryByHandle(runContext, handle, HandleSearchMode::EntryOnly), 0);
    queueHandleListDeleteEntry(runContext, 0);
  }
  for (std::int32_t handle = kSteps; handle >= 1; --handle) Open(runContext, handle, "MODEL", "REAL");
  EXPECT_EQ(Alias(runContext, "REAL.1000"), "nothing");
  ASSERT_EQ(static_cast<int>(runContext.handleList.rows.Size()), kCount);
  const std::vector<std::int32_t> handles = Handles(runContext);
  for (std::int32_t i = 0; i < kCount; ++i) ASSERT_EQ(handles[static_cast<std::size_t>(i)], i + 1);
  // Far above what it takes, with sanitizers too.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

// The list seen from the trace.

// Feeds lines of a trace as the scanner does; what the scanner notes from the line is set here.
struct Trace {
  ReportCapture capture;
  std::unique_ptr<TraceLineContext> context = std::make_unique<TraceLineContext>();

  RunContext& Run() { return capture.Context(); }

  void Call(std::string_view apiName, std::string_view phase) {
    std::copy(apiName.begin(), apiName.end(), context->apiName);
    context->apiName[apiName.size()] = '\0';
    std::copy(phase.begin(), phase.end(), context->phaseText);
    context->phaseText[phase.size()] = '\0';
  }

  void Line(std::string_view text) {
    context->currentLine->Set(text);
    ManageRelationOfObjHandleAndObjName(Run(), *context);
  }

  // The saved copy of an object descriptor, at most `size` bytes of it.
  void Descriptor(std::uint32_t version, std::uint32_t type, std::string_view name, std::uint32_t records = 0,
                  std::size_t size = 400) {
    std::vector<std::uint8_t> bytes(400, 0);
    const auto putWord = [&](std::size_t offset, std::uint32_t value) {
      for (std::size_t i = 0; i < 4; ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
    };
    putWord(4, version);
    putWord(8, type);
    for (std::size_t i = 0; i < 48; ++i)
      bytes[12 + i] = static_cast<std::uint8_t>(i < name.size() ? name[i] : ' ');
    bytes[60] = '!';  // what stands behind the name does not belong to it
    putWord(168, records);
    bytes.resize(size);
    DumpBytes& saved = context->savedObjectDescriptor.bytes;
    saved.Start(static_cast<std::int32_t>(bytes.size()));
    for (const std::uint8_t byte : bytes) saved.Append(byte);
    context->savedObjectDescriptor.length = static_cast<std::int32_t>(bytes.size());
  }

  void OpenBefore(std::string_view name, std::uint32_t version = 4, std::uint32_t type = 1,
                  std::uint32_t records = 0) {
    Call("ZKOPEN\n", "BEFORE\n");
    Descriptor(version, type, name, records);
    Line("--------\n");
  }

  void OpenAfter(std::string_view handleLine, std::string_view name, std::uint32_t version = 4,
                 std::uint32_t type = 1) {
    Call("ZKOPEN\n", "AFTER\n");
    Descriptor(version, type, name);
    Line(handleLine);
    Line("--------\n");
  }

  void CloseBefore(std::string_view handleLine) {
    Call("ZKCLOSE\n", "BEFORE\n");
    Line(handleLine);
    Line("--------\n");
  }
};

using Expected = std::vector<ShownEntry>;

TEST(HandleTrace, OpenAddsAnEntryThatGetsItsHandleOnReturn) {
  Trace trace;
  trace.OpenBefore("REPLY.MODEL");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{0, "REPLY.MODEL", ""}}));
  for (const std::uint8_t flag : trace.Run().handleList.entries[0].optionFlags) EXPECT_EQ(flag, 1);
  EXPECT_TRUE(trace.Run().objectNameKnown);
  EXPECT_STREQ(trace.Run().currentObjectName, "REPLY.MODEL");
  trace.OpenAfter("Hobj:0x0000001c\n", "REPLY.DYN.1");
  EXPECT_EQ(trace.context->savedHandle, 28);
  EXPECT_EQ(Entries(trace.Run()), (Expected{{28, "REPLY.MODEL", "REPLY.DYN.1"}}));
  EXPECT_EQ(Alias(trace.Run(), "REPLY.DYN.1"), "\"REPLY.MODEL\"");
  EXPECT_EQ(trace.capture.Terminal(), "");
  EXPECT_EQ(trace.capture.Report(), "");
}

TEST(HandleTrace, NameOfFullWidthIsTakenWhole) {
  Trace trace;
  const std::string full = "ABCDEFGHIJKLMNOPQRSTUVWXYZ.ABCDEFGHIJKLMNOPQRSTU";
  trace.OpenBefore(full);
  trace.OpenAfter("Hobj:0x00000002\n", full);
  EXPECT_EQ(Entries(trace.Run()), (Expected{{2, full, full}}));
}

// Each "-" line in the call of an open adds an object, which no tracer writes so densely.
TEST(HandleTrace, ATraceOfNothingButOpensIsLimitedByItsLines) {
  Trace trace;
  trace.Call("ZKOPEN\n", "BEFORE\n");
  constexpr std::int64_t kLines = kOpenObjectsOfAnyTrace + 16 * 10;
  for (trace.context->lineNumber = 0; trace.context->lineNumber < kLines; ++trace.context->lineNumber)
    trace.Line("-\n");
  // One more for each 16 of the lines: 131072 lines allow 8192 more.
  EXPECT_EQ(trace.Run().handleList.rows.Size(), static_cast<std::size_t>(kLines));
  EXPECT_EQ(trace.capture.Terminal(), "");
  trace.context->lineNumber = 32;
  trace.Line("-\n");
  EXPECT_EQ(trace.Run().handleList.rows.Size(), static_cast<std::size_t>(kLines));
  EXPECT_EQ(trace.capture.Terminal().find("No more memory is available."), 0u);
}

TEST(HandleTrace, FailedOpenRemovesItsEntry) {
  Trace trace;
  trace.OpenBefore("GOOD");
  trace.OpenAfter("Hobj:0x00000002\n", "GOOD");
  trace.OpenBefore("BAD");
  trace.Run().compCode = 2;
  trace.OpenAfter("Hobj:0xFFFFFFFF\n", "BAD");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{2, "GOOD", "GOOD"}}));
}

TEST(HandleTrace, OpenWithAWarningKeepsItsEntry) {
  Trace trace;
  trace.OpenBefore("Q");
  trace.Run().compCode = 1;
  trace.OpenAfter("Hobj:0x00000002\n", "Q");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{2, "Q", "Q"}}));
}

TEST(HandleTrace, CloseRemovesTheEntryOfItsHandle) {
  Trace trace;
  trace.OpenBefore("A");
  trace.OpenAfter("Hobj:0x00000002\n", "A");
  trace.OpenBefore("B");
  trace.OpenAfter("Hobj:0x00000004\n", "B");
  trace.CloseBefore("Hobj:0x00000002\n");
  EXPECT_TRUE(trace.Run().objectNameKnown);
  EXPECT_STREQ(trace.Run().currentObjectName, "A");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{4, "B", "B"}}));
}

TEST(HandleTrace, CloseOfAnUnknownHandleChangesNothing) {
  Trace trace;
  trace.OpenBefore("A");
  trace.OpenAfter("Hobj:0x00000002\n", "A");
  for (const char* line : {"Hobj:0x00000003\n", "Hobj:0x00000000\n", "Hobj:0xFFFFFFFF\n"}) {
    trace.Run().objectNameKnown = true;
    trace.CloseBefore(line);
    EXPECT_FALSE(trace.Run().objectNameKnown);
    EXPECT_STREQ(trace.Run().currentObjectName, "(unknown)");
    EXPECT_EQ(Entries(trace.Run()), (Expected{{2, "A", "A"}}));
  }
  EXPECT_EQ(trace.capture.Terminal(), "");
}

TEST(HandleTrace, CloseSavesItsHandle) {
  Trace trace;
  trace.CloseBefore("Hobj:0x80000001\n");
  EXPECT_EQ(trace.context->savedHandle, -2147483647);
}

TEST(HandleTrace, QueueManagerAndDistributionListHaveNamesOfTheirOwn) {
  Trace trace;
  trace.OpenBefore("IGNORED", 1, 5);
  EXPECT_STREQ(trace.Run().currentObjectName, "(queue_manager)");
  trace.OpenBefore("IGNORED", 2, 1, 3);
  EXPECT_STREQ(trace.Run().currentObjectName, "(distribution_list)");
  // Type 5 comes first; version 1 has no records; no records is no list.
  trace.OpenBefore("IGNORED", 2, 5, 3);
  EXPECT_STREQ(trace.Run().currentObjectName, "(queue_manager)");
  trace.OpenBefore("SINGLE", 1, 1, 3);
  EXPECT_STREQ(trace.Run().currentObjectName, "SINGLE");
  trace.OpenBefore("SINGLE.2", 2, 1, 0);
  EXPECT_STREQ(trace.Run().currentObjectName, "SINGLE.2");
  trace.OpenBefore("SINGLE.3", 2, 1, 0xFFFFFFFF);
  EXPECT_STREQ(trace.Run().currentObjectName, "SINGLE.3");
  EXPECT_EQ(trace.Run().handleList.rows.Size(), 6u);
}

TEST(HandleTrace, RecordCountBehindTheCopyReadsAsZero) {
  Trace trace;
  trace.Call("ZKOPEN\n", "BEFORE\n");
  trace.Descriptor(2, 1, "SHORT", 3, 168);
  trace.Line("-\n");
  EXPECT_STREQ(trace.Run().currentObjectName, "SHORT");
}

TEST(HandleTrace, TopicOfVersionFourHasNoResolvedName) {
  Trace trace;
  trace.OpenBefore("TOPIC.OBJECT", 4, 8);
  trace.OpenAfter("Hobj:0x00000002\n", "TOPIC.OBJECT", 4, 8);
  trace.OpenBefore("OLD.TOPIC", 3, 8);
  trace.OpenAfter("Hobj:0x00000003\n", "OLD.TOPIC", 3, 8);
  trace.OpenBefore("QUEUE", 4, 1);
  trace.OpenAfter("Hobj:0x00000004\n", "QUEUE", 4, 1);
  EXPECT_EQ(
      Entries(trace.Run()),
      (Expected{{2, "TOPIC.OBJECT", "-- topic --"}, {3, "OLD.TOPIC", "OLD.TOPIC"}, {4, "QUEUE", "QUEUE"}}));
}

TEST(HandleTrace, WordsOfAReversedDescriptorAreReadAsStored) {
  Trace trace;
  // Type 5 and version 1 of the other byte order: neither is seen, and the version reads as above 1.
  trace.OpenBefore("REVERSED", 0x01000000, 0x05000000);
  EXPECT_STREQ(trace.Run().currentObjectName, "REVERSED");
  trace.OpenBefore("REVERSED", 0x02000000, 0x01000000, 0x01000000);
  EXPECT_STREQ(trace.Run().currentObjectName, "(distribution_list)");
}

TEST(HandleTrace, VoidedDescriptorStillGivesTheName) {
  Trace trace;
  trace.Call("ZKOPEN\n", "BEFORE\n");
  trace.Descriptor(4, 1, "EARLIER");
  trace.context->savedObjectDescriptor.length = 0;
  trace.Line("-\n");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{0, "EARLIER", ""}}));
}

TEST(HandleTrace, OpenWithoutAnyDescriptorHasAnEmptyName) {
  Trace trace;
  trace.Call("ZKOPEN\n", "BEFORE\n");
  trace.Line("-\n");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{0, "", ""}}));
}

TEST(HandleTrace, DescriptorCutInsideTheNameGivesWhatThereIs) {
  Trace trace;
  trace.Call("ZKOPEN\n", "BEFORE\n");
  trace.Descriptor(4, 1, "ORDERS.REPLY", 0, 18);
  trace.Line("-\n");
  EXPECT_EQ(Entries(trace.Run()), (Expected{{0, "ORDERS", ""}}));
}

TEST(HandleTrace, ReturnWithoutItsCallIsReported) {
  Trace trace;
  trace.OpenAfter("Hobj:0x00000002\n", "Q");
  EXPECT_EQ(trace.capture.Terminal(), kSetHandleMessage);
  trace.Run().compCode = 2;
  trace.OpenAfter("Hobj:0x00000002\n", "Q");
  EXPECT_EQ(trace.capture.Terminal(), std::string(kSetHandleMessage) + kDeleteLastMessage);
  EXPECT_EQ(trace.Run().handleList.rows.Size(), 0u);
}

TEST(HandleTrace, OnlyTheNamedCallsPhasesAndLinesCount) {
  Trace trace;
  trace.Descriptor(4, 1, "Q");
  for (const char* api : {"ZKPUT\n", "ZKOPEN", "ZKOPEN \n", "ZKOPENX\n", "", "ZKCLOSE"}) {
    for (const char* phase : {"BEFORE\n", "AFTER\n", "BEFORE", ""}) {
      trace.Call(api, phase);
      trace.Line("----\n");
      trace.Line("Hobj:0x00000002\n");
    }
  }
  for (const char* api : {"ZKOPEN\n", "ZKCLOSE\n"}) {
    for (const char* phase : {"BEFORE", "AFTER", "DURING\n", ""}) {
      trace.Call(api, phase);
      trace.Line("----\n");
      trace.Line("Hobj:0x00000002\n");
    }
  }
  trace.Call("ZKOPEN\n", "BEFORE\n");
  for (const char* line : {"Hobj:0x00000002\n", " ----\n", "Options:0x00000001\n", "\n", "Hobj:0X00000002\n"})
    trace.Line(line);
  trace.Call("ZKCLOSE\n", "AFTER\n");
  trace.Line("Hobj:0x00000002\n");
  EXPECT_EQ(trace.Run().handleList.rows.Size(), 0u);
  EXPECT_EQ(trace.context->savedHandle, 0);
  EXPECT_STREQ(trace.Run().currentObjectName, "");
  EXPECT_EQ(trace.capture.Terminal(), "");
}

TEST(HandleTrace, CutHandleLineReadsMissingDigitsAsZero) {
  Trace trace;
  trace.Call("ZKOPEN\n", "AFTER\n");
  trace.Line("Hobj:0x12\n");
  EXPECT_EQ(trace.context->savedHandle, 0x12000000);
  trace.Line("Hobj:0x");
  EXPECT_EQ(trace.context->savedHandle, 0);
}

}  // namespace
}  // namespace quillon
