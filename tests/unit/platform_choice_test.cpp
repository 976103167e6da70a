#include "driver/platform_choice.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

#include "hexdump/dispatch.h"

namespace quillon {
namespace {

/// The platform that a run with this choice tells in its header, for a trace of this text.
std::string TextFor(const std::string& name, const std::string& trace) {
  std::FILE* stream = std::tmpfile();
  std::fwrite(trace.data(), 1, trace.size(), stream);
  std::rewind(stream);
  const auto context = std::make_unique<RunContext>();
  const auto reader = std::make_unique<LineReader>(stream, ReturnBeforeLineFeed::Drop);
  EXPECT_TRUE(ChoosePlatform(*context, name));
  LookAheadForPlatform(*context, *reader);
  std::fclose(stream);
  return PlatformText(*context);
}

const std::string kWide = "|  Addressing mode    : 64-bit\n";
const std::string kNarrow = "|  Addressing mode    : 32-bit\n";
const std::string kLittleOd =
    "OD        :(16 = 0x10 bytes)\n00000000:4F442020 01000000 01000000 41424344  [\n";
const std::string kBigOd = "OD        :(16 = 0x10 bytes)\n00000000:4F442020 00000001 00000001 41424344  [\n";

TEST(PlatformChoice, KnowsItsNames) {
  const auto context = std::make_unique<RunContext>();
  for (const char* name : {"", "be", "BE32", "be32 ", "le16", "64", "auto64"})
    EXPECT_FALSE(ChoosePlatform(*context, name)) << name;
  EXPECT_FALSE(context->platform.IsChosen());
  for (const char* name : {"le32", "be64", "le64", "auto"}) {
    EXPECT_TRUE(ChoosePlatform(*context, name));
    EXPECT_TRUE(context->platform.IsChosen()) << name;
  }
}

TEST(PlatformChoice, SetsOrderAndWidth) {
  const auto context = std::make_unique<RunContext>();
  ASSERT_TRUE(ChoosePlatform(*context, "le64"));
  EXPECT_EQ(context->storedOrder, ByteOrder::Little);
  EXPECT_TRUE(context->platform.wide);
  ASSERT_TRUE(ChoosePlatform(*context, "be32"));
  EXPECT_EQ(context->storedOrder, ByteOrder::Big) << "nothing of an earlier choice stays";
  EXPECT_FALSE(context->platform.IsChosen());
}

TEST(PlatformChoice, NamesWhatWasChosen) {
  for (const char* name : {"be32", "le32", "be64", "le64"})
    EXPECT_EQ(TextFor(name, kWide + kLittleOd), name) << "the trace does not count";
}

TEST(PlatformChoice, NamesWhatWasFound) {
  EXPECT_EQ(TextFor("auto", kNarrow + kBigOd), "auto (be32)");
  EXPECT_EQ(TextFor("auto", kNarrow + kLittleOd), "auto (le32)");
  EXPECT_EQ(TextFor("auto", kWide + kBigOd), "auto (be64)");
  EXPECT_EQ(TextFor("auto", kWide + kLittleOd), "auto (le64)");
}

TEST(PlatformChoice, TakesTheDefaultForWhatIsNotFound) {
  EXPECT_EQ(TextFor("auto", ""), "auto (be32)");
  EXPECT_EQ(TextFor("auto", "no such lines\n"), "auto (be32)");
  EXPECT_EQ(TextFor("auto", kLittleOd), "auto (le32)");
  EXPECT_EQ(TextFor("auto", kWide), "auto (be64)");
  EXPECT_EQ(TextFor("auto", "|  Addressing mode    : 31-bit\n" + kLittleOd), "auto (le32)");
}

TEST(PlatformChoice, TakesTheFirstOfEach) {
  EXPECT_EQ(TextFor("auto", kNarrow + kWide + kBigOd + kLittleOd), "auto (be32)");
  EXPECT_EQ(TextFor("auto", kLittleOd + kBigOd + kWide), "auto (le64)");
}

TEST(PlatformChoice, PassesOverDumpsWithoutAVersion) {
  const std::string selectors = "Selectors :(12 = 0xC bytes)\n00000000:00000014 00000003 000007E0  [\n";
  const std::string body = "Buffer    :(12 = 0xC bytes)\n00000000:41414141 41414141 41414141  [\n";
  const std::string nameless = "00000000:41414141 41414141 41414141  [\n";
  const std::string records = "OD->RR    :(8 = 0x8 bytes)\n00000000:00000002 00000825  [\n";
  EXPECT_EQ(TextFor("auto", selectors + body + nameless + records + kLittleOd), "auto (le32)");
  EXPECT_EQ(TextFor("auto", body + nameless), "auto (be32)");
}

TEST(PlatformChoice, FindsTheVersionOfAChannelDefinition) {
  const std::string name = "CNO->CD   :(32 = 0x20 bytes)\n00000000:50415243 454C0000 01000000 01010101  [\n";
  EXPECT_EQ(TextFor("auto", name + "00000010:20202020 0A000000 06000000 02000000  [\n"), "auto (le32)");
  EXPECT_EQ(TextFor("auto", name + "00000010:20202020 0000000A 00000006 00000002  [\n"), "auto (be32)");
  EXPECT_EQ(TextFor("auto", name), "auto (be32)") << "the line with the version is missing";
  EXPECT_EQ(TextFor("auto", name + "00000010-0000001F same as above\n" + kLittleOd), "auto (le32)");
}

TEST(PlatformChoice, PassesOverDumpsThatEndBeforeTheirVersion) {
  EXPECT_EQ(TextFor("auto", "OD        :(4 = 0x4 bytes)\n00000000:4F442020  [....\n"), "auto (be32)");
  EXPECT_EQ(TextFor("auto", "OD        :(16 = 0x10 bytes)\n00000000:4F442020\n"), "auto (be32)");
  EXPECT_EQ(TextFor("auto", "OD        :(16 = 0x10 bytes)\n00000000:4F442020 0"), "auto (be32)");
}

TEST(PlatformChoice, PassesOverDumpLinesThatShowTooFewBytes) {
  const std::string od = "OD        :(16 = 0x10 bytes)\n";
  EXPECT_EQ(TextFor("auto", od + "00000000:4F442020  [OD  ]\n" + kLittleOd), "auto (le32)") << "the image";
  EXPECT_EQ(TextFor("auto", od + "00000000:4F442020    \n" + kLittleOd), "auto (le32)") << "blanks";
  EXPECT_EQ(TextFor("auto", od + "00000000:\n" + kLittleOd), "auto (le32)") << "nothing";
  const std::string cd = "CNO->CD   :(32 = 0x20 bytes)\n00000000:50415243 454C0000 01000000 01010101  [\n";
  EXPECT_EQ(TextFor("auto", cd + "\n" + kLittleOd), "auto (le32)") << "an empty second line";
  EXPECT_EQ(TextFor("auto", cd + "00000010\n" + kLittleOd), "auto (le32)") << "no colon";
}

// The first digit of a pair decides where it stands: blanks are skipped before it, never within it.
TEST(PlatformChoice, CountsPairsAsTheRegenerationDoes) {
  const std::string od = "OD        :(16 = 0x10 bytes)\n";
  EXPECT_EQ(TextFor("auto", od + "00000000: 4F 44 20 20 01 00 00 00  [OD  \n"), "auto (le32)");
  EXPECT_EQ(TextFor("auto", od + "00000000:4F4420 200100  [OD  \n"), "auto (le32)");
  EXPECT_EQ(TextFor("auto", od + "00000000:4F442020 0 000000  [OD  \n"), "auto (be32)");
  EXPECT_EQ(TextFor("auto", od + "00000000:4F442020 1 000000  [OD  \n"), "auto (le32)");
}

TEST(PlatformChoice, LooksNoFurtherThanTheFirstBlock) {
  const std::string filler = std::string(99, '.') + "\n";
  std::string trace;
  while (trace.size() < 65536) trace += filler;
  EXPECT_EQ(TextFor("auto", trace + kWide + kLittleOd), "auto (be32)");
  trace.resize(60000);
  EXPECT_EQ(TextFor("auto", trace + kWide + kLittleOd), "auto (le64)");
}

TEST(PlatformChoice, ReadsLinesThatEndInCrLf) {
  EXPECT_EQ(TextFor("auto",
                    "|  Addressing mode    : 64-bit\r\nOD        :(16 = 0x10 bytes)\r\n"
                    "00000000:4F442020 01000000 01000000 41424344  [\r\n"),
            "auto (le64)");
}

TEST(VersionOffsetOf, IsThatOfTheStructure) {
  for (const char* name : {"MD", "OD", "PMO", "GMO", "CNO", "CNO->SCO", "CNO->SCO->AIR", "CNO->CSP", "SD",
                           "CTLO", "CBD", "STS", "SRO", "CBC", "XQH"})
    EXPECT_EQ(VersionOffsetOf(name), 4) << name;
  EXPECT_EQ(VersionOffsetOf("CNO->CD"), 20);
  for (const char* name : {"OD->OR", "OD->RR", "PMO->RR", "PMO->PMR", "Selectors", "IntAttrs", "CharAttrs",
                           "CNO->SCO->AIR->LDAPUserName", "Buffer", ""})
    EXPECT_EQ(VersionOffsetOf(name), kNoVersion) << name;
}

}  // namespace
}  // namespace quillon
