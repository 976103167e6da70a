// Message catalogue: table rows, placeholders, printing.
#include "driver/message_catalogue.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <string.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <limits>
#include <set>
#include <string>

#include "driver/message_table.h"
#include "report_capture.h"

namespace quillon {
namespace {

const MessageRow* RowOf(std::int32_t code) {
  for (const MessageRow& row : MessageTableMonitorTool)
    if (row.code == code) return &row;
  return nullptr;
}

std::string SystemErrorText(std::int32_t number) {
  for (const SystemErrorRow& row : MessageTable)
    if (row.number == number) return row.text;
  return "(no row)";
}

TEST(MessageTable, HasEveryCodeOfTheCatalogue) {
  const int ranges[][2] = {{0, 9},       {1001, 1007}, {1009, 1010}, {1021, 1026}, {1101, 1101},
                           {2001, 2020}, {2101, 2105}, {3001, 3003}, {3005, 3036}, {3040, 3052},
                           {3100, 3103}, {4001, 4029}, {5001, 5001}};
  std::size_t index = 0;
  for (const auto& range : ranges)
    for (int code = range[0]; code <= range[1]; ++code)
      EXPECT_EQ(MessageTableMonitorTool[index++].code, code);
  EXPECT_EQ(index, 133u);
  EXPECT_EQ(MessageTableMonitorTool[index].code, 9999);
  EXPECT_STREQ(MessageTableMonitorTool[index].text, "");
}

TEST(MessageTable, HoldsThePrintedTexts) {
  struct Expected {
    std::int32_t code;
    const char* flags;
    const char* text;
  };
  const Expected expectedRows[] = {
      {0, "IN", " "},
      {1, "IY", "[$1s]"},
      {2, "IY", "[$1s][$2s]"},
      {9, "IY", "[$1s][$2s][$3s][$4s][$5s][$6s][$7s][$8s][$9s]"},
      {1001, "EY",
       "File I/O error. \n  File      : [$1s]\n  Operation : [$2s]\n  Result    : [$0s] ([$0d])."},
      {1002, "EY", "System call error.  Function : [$1s]   Result : [$0s] ([$0d])."},
      {1006, "EY", "File rename error. \n  From : [$1s]\n  To   : [$2s]  [$0s] ([$0d])"},
      {1010, "EY", "No more memory is available.  [$0s] ([$0d])"},
      {2006, "EY", "Invalid record in input file.  (File [$1s], Line [$2d], Data \"[$3s]\")"},
      {2011, "WY", "Invalid parameter \"[$1s]\""},
      {3100, "EY", "Unknown API structure : [$1s] version [$2u]"},
      {3101, "EY", "Unknown API attribute : [$1s] value [$2x]"},
      {4005, "IY", "Process end. [$t]\n"},
      {4015, "IY", "Locale      : [$1s]   CCSID : [$2d]"},
      {4016, "IY", "Output file : [$1s]"},
      {4017, "WY",
       "Current program is running on [$1s].  Input trace data is from [$2s].  Reformatted integer values "
       "might "
       "be incorrect."},
      {4018, "EY",
       "Current program is running in [$1s]-bit mode.  Input trace data is in [$2s]-bit mode.  Process "
       "terminated."},
      {4019, "IY", "Max rec len : [$1d]"},
      {4020, "IY", "Input file  : [$1s]"},
      {5001, "EY", "Internal error. [$1s]"},
  };
  for (const Expected& expected : expectedRows) {
    const MessageRow* row = RowOf(expected.code);
    ASSERT_NE(row, nullptr) << expected.code;
    if (expected.code != 5001) {
      EXPECT_STREQ(row->flags, expected.flags);
    }
    EXPECT_STREQ(row->text, expected.text);
  }
}

// The text of each row comes out with every placeholder filled, whatever it asks for.
TEST(MessageTable, EveryRowCanBePrinted) {
  std::set<std::string> texts;
  for (const MessageRow& row : MessageTableMonitorTool) {
    if (row.code == kEndOfMessages) continue;
    const MessageArgument argument("");
    const std::string printed = FormatMessage(
        row.code, 2,
        {argument, argument, argument, argument, argument, argument, argument, argument, argument});
    EXPECT_EQ(printed.find("[$"), std::string::npos) << row.code;
    EXPECT_EQ(printed.back(), '\n');
    texts.insert(row.text);
  }
  EXPECT_EQ(texts.size(), 133u) << "two codes with the same text";
}

TEST(SystemErrorTable, HoldsTheCommonErrors) {
  EXPECT_EQ(SystemErrorText(0), "NO_ERROR");  // no error, so nothing to describe
  EXPECT_EQ(SystemErrorText(EPERM), "EPERM - Operation not permitted");
  EXPECT_EQ(SystemErrorText(ENOENT), "ENOENT - No such file or directory");
  EXPECT_EQ(SystemErrorText(EACCES), "EACCES - Permission denied");
  EXPECT_EQ(SystemErrorText(EISDIR), "EISDIR - Is a directory");
  EXPECT_EQ(SystemErrorText(EFBIG), "EFBIG - File too large");
  EXPECT_EQ(SystemErrorText(ENOSPC), "ENOSPC - No space left on device");
  EXPECT_EQ(SystemErrorText(EPIPE), "EPIPE - Broken pipe");
  EXPECT_EQ(SystemErrorText(EOVERFLOW), "EOVERFLOW - value too large to be stored in data type");
  EXPECT_EQ(SystemErrorText(9999), "");
}

// The numbers that this library gives to what can go wrong with a file.
TEST(SystemErrorTable, CoversTheErrorsOfFiles) {
  for (const int number :
       {EPERM,  ENOENT,  EINTR,  EIO,       ENXIO,   EBADF,  EAGAIN, ENOMEM,    EACCES,
        EFAULT, EBUSY,   EEXIST, ENODEV,    ENOTDIR, EISDIR, EINVAL, ENFILE,    EMFILE,
        ENOTTY, ETXTBSY, EFBIG,  ENOSPC,    ESPIPE,  EROFS,  EPIPE,  EDEADLK,   ENAMETOOLONG,
        ENOLCK, ENOSYS,  ELOOP,  EOVERFLOW, EILSEQ,  ESTALE, EDQUOT, ETIMEDOUT, ENOTEMPTY}) {
    EXPECT_NE(SystemErrorText(number), "(no row)") << number;
  }
}

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 32)
TEST(SystemErrorTable, EverySymbolIsThatOfItsNumber) {
  int rows = 0;
  for (const SystemErrorRow& row : MessageTable) {
    if (row.number == kEndOfMessages || row.number == 0) continue;
    const std::string text = row.text;
    const char* symbol = strerrorname_np(row.number);
    ASSERT_NE(symbol, nullptr) << text;
    // The library calls 95 by the other of its two symbols.
    if (row.number != EOPNOTSUPP) {
      EXPECT_EQ(text.substr(0, text.find(" - ")), symbol);
    }
    ++rows;
  }
  EXPECT_EQ(rows, 108);
}
#endif

TEST(FormatMessage, SpacerIsALineWithOneBlank) {
  EXPECT_EQ(FormatMessage(0, 0, {}), " \n");
}

TEST(FormatMessage, UnknownCode) {
  EXPECT_EQ(FormatMessage(1234, 0, {"x"}), "(Unknown message id)\n");
  EXPECT_EQ(FormatMessage(-1, 0, {}), "(Unknown message id)\n");
  EXPECT_EQ(FormatMessage(9999, 0, {}), "(Unknown message id)\n");
}

TEST(FormatMessage, FailedOpenOfAMissingFile) {
  ASSERT_EQ(std::fopen("no/such/file", "r"), nullptr);
  EXPECT_EQ(FormatMessage(1001, -1, {"no/such/file", "open"}),
            "File I/O error. \n"
            "  File      : no/such/file\n"
            "  Operation : open\n"
            "  Result    : ENOENT - No such file or directory (2).\n");
}

TEST(FormatMessage, ResultCodeIsUsedUnlessItIsMinusOne) {
  errno = ENOENT;
  EXPECT_EQ(FormatMessage(1010, ENOSPC, {}),
            "No more memory is available.  ENOSPC - No space left on device (28)\n");
  EXPECT_EQ(FormatMessage(1010, -1, {}),
            "No more memory is available.  ENOENT - No such file or directory (2)\n");
  EXPECT_EQ(FormatMessage(1010, -2, {}), "No more memory is available.   (-2)\n");
  EXPECT_EQ(FormatMessage(1010, 128, {}), "No more memory is available.   (128)\n");
  EXPECT_EQ(FormatMessage(1, -1, {"no result in this text"}), "no result in this text\n");
}

TEST(FormatMessage, IntegersInEachForm) {
  EXPECT_EQ(FormatMessage(4015, 0, {"(no locale info)", 943}),
            "Locale      : (no locale info)   CCSID : 943\n");
  EXPECT_EQ(FormatMessage(4019, 0, {-1}), "Max rec len : -1\n");
  EXPECT_EQ(FormatMessage(4019, 0, {std::numeric_limits<std::int32_t>::min()}),
            "Max rec len : -2147483648\n");
  EXPECT_EQ(FormatMessage(3100, 0, {"ZKMD", -1}), "Unknown API structure : ZKMD version 4294967295\n");
  EXPECT_EQ(FormatMessage(3100, 0, {"ZKMD", 0x80000000u}),
            "Unknown API structure : ZKMD version 2147483648\n");
  EXPECT_EQ(FormatMessage(3101, 0, {"ZKMD - ZKPER_...", 0x1a}),
            "Unknown API attribute : ZKMD - ZKPER_... value 0x0000001A\n");
  EXPECT_EQ(FormatMessage(3101, 0, {"A", -1}), "Unknown API attribute : A value 0xFFFFFFFF\n");
}

TEST(FormatMessage, InvalidRecord) {
  EXPECT_EQ(FormatMessage(2006, 0, {"in.txt", 17, "00000010: zz"}),
            "Invalid record in input file.  (File in.txt, Line 17, Data \"00000010: zz\")\n");
}

TEST(FormatMessage, NineArguments) {
  EXPECT_EQ(FormatMessage(9, 0, {"a", "b", "c", "d", "e", "f", "g", "h", "i"}), "abcdefghi\n");
}

TEST(FormatMessage, ArgumentsThatAreMissingOrTooMany) {
  EXPECT_EQ(FormatMessage(2, 0, {"only"}), "only[$2s]\n");
  EXPECT_EQ(FormatMessage(2, 0, {}), "[$1s][$2s]\n");
  EXPECT_EQ(FormatMessage(1, 0, {"first", "second"}), "first\n");
}

TEST(FormatMessage, ArgumentOfTheOtherKindIsEmptyOrZero) {
  EXPECT_EQ(FormatMessage(1, 0, {5}), "\n");
  EXPECT_EQ(FormatMessage(4019, 0, {"text"}), "Max rec len : 0\n");
}

// Each search starts at the front of the text, arguments included.
TEST(FormatMessage, PlaceholderInsideAnArgumentTakesTheNextArgument) {
  EXPECT_EQ(FormatMessage(1001, 2, {"a[$2s]b", "open"}),
            "File I/O error. \n"
            "  File      : aopenb\n"
            "  Operation : [$2s]\n"
            "  Result    : ENOENT - No such file or directory (2).\n");
  // The string form is looked for before the decimal one, so the line number stays unfilled.
  EXPECT_EQ(FormatMessage(2006, 0, {"[$2s]", 7, "data"}),
            "Invalid record in input file.  (File , Line [$2d], Data \"data\")\n");
  // Its own number is past, time and result are filled before the arguments.
  EXPECT_EQ(FormatMessage(1, 0, {"[$1s][$t][$0s][$0d]"}), "[$1s][$t][$0s][$0d]\n");
  EXPECT_EQ(FormatMessage(1, 0, {"[$2s]"}), "[$2s]\n");
  EXPECT_EQ(FormatMessage(1, 0, {"[$2s][$2s]", "[$2s]"}), "[$2s][$2s]\n");
}

TEST(FormatMessage, NumberThatIsMissingEndsTheFilling) {
  // The argument carries placeholder 3 into a text that has no placeholder 2.
  EXPECT_EQ(FormatMessage(1, 0, {"[$3s]", "two", "three"}), "[$3s]\n");
}

TEST(FormatMessage, PercentSignsAreText) {
  EXPECT_EQ(FormatMessage(1, 0, {"%s%n%d 100%"}), "%s%n%d 100%\n");
}

TEST(FormatMessage, LongArgumentsArePrintedWhole) {
  const std::string name(100000, 'x');
  EXPECT_EQ(FormatMessage(4020, 0, {name}), "Input file  : " + name + "\n");
  std::string placeholders;
  for (int count = 0; count < 5000; ++count) placeholders += "[$2s]";
  EXPECT_EQ(FormatMessage(2, 0, {placeholders, "b"}).size(), placeholders.size() - 5 + 1 + 5 + 1);
}

using Clock = std::chrono::system_clock;

TEST(FormatMessage, ProcessEndHasTheLocalTimeAndAnEmptyLine) {
  setenv("TZ", "AAA-5:30", 1);
  tzset();
  // Not std::time: it may lag behind a clock that tells microseconds.
  const std::time_t before = Clock::to_time_t(Clock::now());
  const std::string text = FormatMessage(4005, 0, {});
  const std::time_t after = Clock::to_time_t(Clock::now());
  unsetenv("TZ");
  tzset();

  std::string shape;
  for (const char c : text) shape += c >= '0' && c <= '9' ? '9' : c;
  ASSERT_EQ(shape, "Process end. 9999/99/99 99:99:99.999999\n\n");
  std::set<std::string> possible;
  for (std::time_t second = before; second <= after; ++second) {
    const std::time_t shifted = second + (5 * 60 + 30) * 60;
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y/%m/%d %H:%M:%S", std::gmtime(&shifted));
    possible.insert(stamp);
  }
  EXPECT_TRUE(possible.count(text.substr(13, 19))) << text;
}

TEST(PutMessage, WritesToTheTerminalOnly) {
  ReportCapture capture;
  PutMessage(capture.Context(), 0, 0);
  PutMessage(capture.Context(), 4016, -1, "out.txt");
  PutMessage(capture.Context(), 3101, 0, std::string("ZKMD"), 255);
  EXPECT_EQ(capture.Terminal(), " \nOutput file : out.txt\nUnknown API attribute : ZKMD value 0x000000FF\n");
  EXPECT_EQ(capture.Report(), "");
}

TEST(PutMessage, TerminalThatTakesNoTextIsHarmless) {
  PutMessageTo(nullptr, 1, 0, {"nowhere"});
  if (std::FILE* full = std::fopen("/dev/full", "w")) {
    for (int line = 0; line < 5000; ++line) PutMessageTo(full, 1, 0, {"no space"});
    EXPECT_TRUE(std::ferror(full));
    std::fclose(full);
  }
  if (std::FILE* readOnly = std::fopen("/dev/null", "r")) {
    PutMessageTo(readOnly, 1, 0, {"not writable"});
    std::fclose(readOnly);
  }
}

TEST(StringSearch, FirstOccurrenceOrMinusOne) {
  EXPECT_EQ(StringSearch("abcabc", "bc"), 1);
  EXPECT_EQ(StringSearch("abc", "abc"), 0);
  EXPECT_EQ(StringSearch("xabc", "abc"), 1);
  EXPECT_EQ(StringSearch("ab", "abc"), -1);
  EXPECT_EQ(StringSearch("", "a"), -1);
  EXPECT_EQ(StringSearch("aab", "ab"), 1);
  EXPECT_EQ(StringSearch("abc", "C"), -1);
  EXPECT_EQ(StringSearch("abc", ""), 0);
}

TEST(StringReplace, ShorterLongerAndEqual) {
  std::string text = "one two three";
  StringReplace(text, 4, "2", 3);
  EXPECT_EQ(text, "one 2 three");
  StringReplace(text, 4, "twenty", 1);
  EXPECT_EQ(text, "one twenty three");
  StringReplace(text, 0, "ONE", 3);
  EXPECT_EQ(text, "ONE twenty three");
  StringReplace(text, 11, "", 5);
  EXPECT_EQ(text, "ONE twenty ");
  StringReplace(text, 11, "end", 0);
  EXPECT_EQ(text, "ONE twenty end");
}

TEST(StringReplace, OutsideOfTheText) {
  std::string text = "abc";
  StringReplace(text, 2, "X", 100);
  EXPECT_EQ(text, "abX");
  StringReplace(text, 100, "Y", 5);
  EXPECT_EQ(text, "abXY");
}

}  // namespace
}  // namespace quillon
