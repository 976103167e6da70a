#include "hexdump/regeneration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "unit/report_capture.h"

namespace quillon {
namespace {

/// A trace in memory, its readers and the report that they write.
class Trace {
 public:
  explicit Trace(const std::string& text)
      : stream(std::tmpfile()),
        reader(std::make_unique<LineReader>(stream)),
        context(std::make_unique<TraceLineContext>()) {
    std::fwrite(text.data(), 1, text.size(), stream);
    std::rewind(stream);
    context->input = reader.get();
    context->inputFileName = "in";
  }
  Trace(const Trace&) = delete;
  Trace& operator=(const Trace&) = delete;
  ~Trace() { std::fclose(stream); }

  /// Takes the next two lines: the second one is the current line then.
  void ToFirstDumpLine() {
    ASSERT_TRUE(AdvanceLine(*context));
    ASSERT_TRUE(AdvanceLine(*context));
  }
  std::int32_t Rebuild(Echo echo = Echo::Off) {
    ToFirstDumpLine();
    return RegenerateHexData(capture.Context(), *context, dataName, context->dump, echo);
  }
  /// The declared bytes of the last dump as text; a zero byte shows as "0".
  std::string Text() const { return TextOf(context->dump.Declared()); }
  std::string ItemText(int item) const { return TextOf(context->variableItems[item].bytes.Declared()); }
  bool ItemPresent(int item) const { return context->variableItems[item].present; }
  std::string CurrentLine() const { return std::string(context->currentLine->View()); }

  static std::string TextOf(ByteView bytes) {
    std::string text;
    for (std::int64_t i = 0; i < bytes.Size(); ++i)
      text += bytes.At(i) == 0 ? '0' : static_cast<char>(bytes.At(i));
    return text;
  }

  ReportCapture capture;
  std::string dataName;
  std::FILE* stream;
  std::unique_ptr<LineReader> reader;
  std::unique_ptr<TraceLineContext> context;
};

DataNameLine Parsed(const std::string& text, bool expected = true) {
  TraceLine line = {};
  line.Set(text);
  DataNameLine result;
  EXPECT_EQ(ParseDataNameLine(line, result), expected) << text;
  return result;
}

TEST(DataNameLine, HasANameAndALength) {
  const DataNameLine line = Parsed("MD        :(364 = 0x16C bytes)\n");
  EXPECT_EQ(line.name, "MD");
  EXPECT_EQ(line.length, 364);
}

TEST(DataNameLine, MayHaveThePrefix) {
  const DataNameLine line = Parsed("AgentBuffer-Data ...:(64=...)\n");
  EXPECT_EQ(line.name, "Data");
  EXPECT_EQ(line.length, 64);
  EXPECT_EQ(Parsed("AgentBuffer-:(1=)").name, "");
  EXPECT_EQ(Parsed("agentBuffer-Data:(1=)").name, "agentBuffer-Data");
  EXPECT_EQ(Parsed("AgentBuffer-AgentBuffer-Data:(1=)").name, "AgentBuffer-Data");
}

TEST(DataNameLine, SearchesTheColonThatABracketFollows) {
  EXPECT_EQ(Parsed("A:b: (5=)c:(7=)\n").length, 7);
  EXPECT_EQ(Parsed("A::(7=)").length, 7);
  EXPECT_EQ(Parsed("A:(7=):(8=)").length, 7);
}

TEST(DataNameLine, MayHaveAnEmptyName) {
  EXPECT_EQ(Parsed(":(5=)").name, "");
  EXPECT_EQ(Parsed(" Data:(5=)").name, "");
}

TEST(DataNameLine, EndsTheLengthWithItsDigits) {
  EXPECT_EQ(Parsed("A:(12x34=)").length, 12);
  EXPECT_EQ(Parsed("A:(=12)").length, 0);
  EXPECT_EQ(Parsed("A:( 12=)").length, 0);
  EXPECT_EQ(Parsed("A:(-12=)").length, 0);
  EXPECT_EQ(Parsed("A:(99999999999=)").length, 2147483647);
}

TEST(DataNameLine, LacksAPiece) {
  for (const char* text : {"", "\n", "Data", "Data\n", "Data ", "Data:", "Data:5=", "Data: (5=)", "Data:(5)",
                           "Data=:(5)", "AgentBuffer-", "AgentBuffer-Data\n", "Data :"})
    Parsed(text, false);
}

TEST(RegenerateHexData, ReadsTheLinesOfTheDumpAndNoMore) {
  Trace trace(
      "Data:(20 = 0x14)\n00000000:41424344 45464748 494A4B4C 4D4E4F50  [x]\n00000010:51525354\nnext\n");
  EXPECT_EQ(trace.Rebuild(), 20);
  EXPECT_EQ(trace.dataName, "Data");
  EXPECT_EQ(trace.Text(), "ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(trace.CurrentLine(), "00000010:51525354\n");
  EXPECT_EQ(trace.context->lineNumber, 3u);
  EXPECT_EQ(trace.context->previousLine->View(), "Data:(20 = 0x14)\n");
  EXPECT_EQ(trace.capture.Report(), "");
}

TEST(RegenerateHexData, CopiesTheLinesBehindTheFirstWhenItIsTo) {
  Trace trace("Data:(3=)\n00000000:41\n00000001:42\n00000002:43\n");
  EXPECT_EQ(trace.Rebuild(Echo::On), 3);
  EXPECT_EQ(trace.capture.Report(), "00000001:42\n00000002:43\n");
}

TEST(RegenerateHexData, ReadsNoLineForALengthOf0) {
  Trace trace("Data:(0=)\n00000000:41\nnext\n");
  EXPECT_EQ(trace.Rebuild(), 0);
  EXPECT_EQ(trace.CurrentLine(), "00000000:41\n");
  EXPECT_EQ(trace.context->dump.Declared().Size(), 0);
}

TEST(RegenerateHexData, StopsAtALineThatBeginsWithABlank) {
  Trace trace("Data:(8=)\n00000000:4142\n anything\nnext\n");
  EXPECT_EQ(trace.Rebuild(), 8);
  EXPECT_EQ(trace.Text(), "AB000000");
  EXPECT_EQ(trace.CurrentLine(), " anything\n");
  EXPECT_EQ(trace.capture.Terminal(), "");
}

TEST(RegenerateHexData, ShowsNothingOfTheDumpBefore) {
  Trace trace("Data:(4=)\n00000000:41424344\nData:(4=)\n00000000:58\n \n");
  EXPECT_EQ(trace.Rebuild(), 4);
  EXPECT_EQ(trace.Rebuild(), 4);
  EXPECT_EQ(trace.Text(), "X000");
}

/// Message 2006 for a line.
std::string Broken(int number, const std::string& line) {
  return "Invalid record in input file.  (File in, Line " + std::to_string(number) + ", Data \"" + line +
         "\")\n";
}

TEST(RegenerateHexData, ReportsABrokenNameLineWithItsNumber) {
  Trace trace("Data 5=\n00000000:41\n");
  EXPECT_EQ(trace.Rebuild(), -1);
  EXPECT_EQ(trace.capture.Terminal(), Broken(1, "Data 5=\n"));
}

TEST(RegenerateHexData, ReportsAStrangeLineWithItsNumber) {
  for (const std::string line : {"strange\n", "\n", "00000010\n", "|> x     y\n", "00000010 41\n"}) {
    Trace trace("Data:(5=)\n00000000:41\n" + line + "never\n");
    EXPECT_EQ(trace.Rebuild(), -1) << line;
    EXPECT_EQ(trace.capture.Terminal(), Broken(3, line));
  }
}

TEST(RegenerateHexData, ReportsTheEndOfTheInput) {
  Trace trace("Data:(5=)\n00000000:41\n");
  EXPECT_EQ(trace.Rebuild(), -1);
  EXPECT_EQ(trace.capture.Terminal().find("File I/O error. \n  File      : in\n  Operation : read (2)\n"),
            0u);
}

/// What one data line gives for a dump of `length` bytes that is cut short behind it.
std::string BytesOfLine(const std::string& line, int length) {
  Trace trace("Data:(" + std::to_string(length) + "=)\n" + line + "\n \n");
  EXPECT_EQ(trace.Rebuild(), length) << line;
  return trace.Text();
}

TEST(DataLine, TakesPairsOfDigits) {
  EXPECT_EQ(BytesOfLine("00000000:4142 4344 [ABCD]", 6), "ABCD00");
  EXPECT_EQ(BytesOfLine("00000000:   41  42   ", 3), "AB0");
  EXPECT_EQ(BytesOfLine("00000000:4a4B6a6B", 4), "JKjk");
  EXPECT_EQ(BytesOfLine("????????:41", 2), "A0");
  EXPECT_EQ(BytesOfLine("00000000:", 2), "00");
}

TEST(DataLine, TakesTheCharacterBehindADigitWhateverItIs) {
  EXPECT_EQ(BytesOfLine("00000000:4 41", 3), "@A0");
  EXPECT_EQ(BytesOfLine("00000000:4[41", 3), "@A0");
  EXPECT_EQ(BytesOfLine("00000000:41 4", 3), "A@0");
  EXPECT_EQ(BytesOfLine("00000000:4x4141", 3), "@AA");
}

TEST(DataLine, EndsAtTheImageOrAControlCharacter) {
  EXPECT_EQ(BytesOfLine("00000000:41[42]", 3), "A00");
  EXPECT_EQ(BytesOfLine("00000000:41\t42", 3), "A00");
  EXPECT_EQ(BytesOfLine("00000000:41\x1f"
                        "42",
                        3),
            "A00");
  EXPECT_EQ(BytesOfLine("00000000:41\r", 3), "A00");
  // Neither a bracket nor a control character: pairs that count as 0.
  EXPECT_EQ(BytesOfLine("00000000:41|.|.42", 4), "A00B");
  EXPECT_EQ(BytesOfLine("00000000:41\xff\xff"
                        "42",
                        4),
            "A0B0");
}

unsigned DigitValue(char character) {
  const std::size_t index = std::string("0123456789abcdef").find(character);
  if (index != std::string::npos) return static_cast<unsigned>(index);
  return character >= 'A' && character <= 'F' ? static_cast<unsigned>(character - 'A' + 10) : 0;
}

/// The bytes of a line's content, pair by pair; a zero byte shows as "0".
std::string PairByPair(const std::string& content) {
  std::string bytes;
  for (std::size_t column = 0; column < content.size();) {
    const char character = content[column];
    if (character == '[' || static_cast<unsigned char>(character) < 0x20) break;
    if (character == ' ') {
      ++column;
      continue;
    }
    const char second = column + 1 < content.size() ? content[column + 1] : '0';
    const auto byte = static_cast<char>(DigitValue(character) << 4 | DigitValue(second));
    bytes += byte == '\0' ? '0' : byte;
    column += 2;
  }
  return bytes;
}

// Full lines are read in another way than others; each way must see the same in what is nearly a full line.
TEST(DataLine, OfFullLengthIsReadAsPairsToo) {
  const std::string full = "01234567 89ABCDEF 89abcdef 76543210";
  const std::string image = " [.#Eg.........vT2.]\n";
  for (std::size_t column = 0; column <= full.size(); ++column) {
    for (const char strange : std::string("0aF gG/:@`[\t\x1f\x7f\x80\xb0\xc1\xff")) {
      std::string replaced = full;
      if (column < full.size()) replaced[column] = strange;
      const std::string longer = full.substr(0, column) + strange + full.substr(column);
      const std::string shorter = full.substr(0, column) + full.substr(std::min(column + 1, full.size()));
      for (const std::string& content : {replaced, longer, shorter, full.substr(0, column) + strange}) {
        for (const std::string& end : {image, std::string(), std::string("41 42")}) {
          const std::string bytes = PairByPair(content + end);
          if (bytes.empty()) continue;
          ASSERT_EQ(BytesOfLine("00000000:" + content + end, static_cast<int>(bytes.size())), bytes)
              << content << end;
        }
      }
    }
  }
}

TEST(DataLine, OfTheLongestKindIsReadWhole) {
  const std::string line = "00000000:" + std::string(988, '4');
  EXPECT_EQ(BytesOfLine(line, 500), std::string(494, 'D') + "000000");
}

TEST(DataLine, BeyondTheLengthIsSeenOnlyByTheWholeDump) {
  Trace trace("Data:(2=)\n00000000:41424344\n");
  EXPECT_EQ(trace.Rebuild(), 2);
  EXPECT_EQ(trace.Text(), "AB");
  EXPECT_EQ(Trace::TextOf(trace.context->dump.Whole()), "ABCD");
}

/// What a repeat line gives behind "ABCDEFGHIJKLMNOP" in a dump of `length` bytes.
std::string BytesOfRepeat(const std::string& repeat, int length) {
  Trace trace("Data:(" + std::to_string(length) + "=)\n00000000:4142434445464748494A4B4C4D4E4F50\n" + repeat +
              "\n \n");
  EXPECT_EQ(trace.Rebuild(), length) << repeat;
  return trace.Text();
}

const std::string kLine = "ABCDEFGHIJKLMNOP";
const std::string kZeros(16, '0');

TEST(RepeatLine, CopiesUntilItsStartHasReachedItsEnd) {
  EXPECT_EQ(BytesOfRepeat("00000010-00000020", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000010-0000001F same as above", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000010-00000011", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000010-00000021", 64), kLine + kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000010-00000010", 32), kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000020-00000010", 32), kLine + kZeros);
}

TEST(RepeatLine, ReadsItsOffsetsAsSignedWords) {
  EXPECT_EQ(BytesOfRepeat("FFFFFFF0-00000000", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("80000000-7FFFFFFF", 64), kLine + kLine + kLine + kLine);
  EXPECT_EQ(BytesOfRepeat("00000000-80000000", 32), kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("80000000-80000010", 48), kLine + kLine + kZeros);
}

TEST(RepeatLine, ReadsWrongAndMissingDigitsAsZeros) {
  EXPECT_EQ(BytesOfRepeat("xxxxxxxx-00000010", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000000-0000001", 48), kLine + kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000000-", 32), kLine + kZeros);
  EXPECT_EQ(BytesOfRepeat("00000000-000000100", 48), kLine + kLine + kZeros);
}

TEST(RepeatLine, NeverGoesBeyondTheDeclaredLength) {
  Trace trace("Data:(20=)\n00000000:4142434445464748494A4B4C4D4E4F50\n00000010-7FFFFFFF\nnext\n");
  EXPECT_EQ(trace.Rebuild(), 20);
  EXPECT_EQ(trace.context->dump.Count(), 20);
  EXPECT_EQ(trace.CurrentLine(), "00000010-7FFFFFFF\n");
}

TEST(RepeatLine, TakesBytesBeforeTheStartForZeros) {
  Trace trace("Data:(20=)\n00000000:4142\n00000002-00000012\n00000012:4344\n");
  EXPECT_EQ(trace.Rebuild(), 20);
  EXPECT_EQ(trace.Text(), "AB" + std::string(14, '0') + "ABCD");
}

TEST(RepeatLine, AddsNothingToADumpThatIsComplete) {
  // The first line carries more than the dump has; a repeat can only stand before its end.
  Trace trace("Data:(2=)\n00000000:414243\n00000003-7FFFFFFF\n");
  EXPECT_EQ(trace.Rebuild(), 2);
  EXPECT_EQ(trace.context->dump.Count(), 3);
}

// --- items

struct Items {
  explicit Items(const std::string& text) : trace("CTLO:(2=)\n00000000:4142\n" + text) {
    EXPECT_EQ(trace.Rebuild(), 2);
    result = RegenerateVariableData(trace.capture.Context(), *trace.context);
  }
  int Present() const {
    int count = 0;
    for (int i = 0; i < kVariableItems; ++i) count += trace.ItemPresent(i) ? 1 : 0;
    return count;
  }
  std::string Report() { return trace.capture.Report(); }

  Trace trace;
  int result = 0;
};

TEST(RegenerateVariableData, FindsNoItems) {
  Items items("next\nlast\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 0);
  EXPECT_EQ(items.Report(), "next\n");
  EXPECT_EQ(items.trace.CurrentLine(), "next\n");
}

TEST(RegenerateVariableData, RebuildsItems) {
  const std::string text =
      "Variable-One:(3 = 0x3 bytes)\n00000000:4A4B4C  [JKL]\n"
      "Variable-Two:(17 = 0x11 bytes)\n00000000:4142434445464748494A4B4C4D4E4F50\n00000010:51\n";
  Items items(text + "next\nlast\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 2);
  EXPECT_EQ(items.trace.ItemText(0), "JKL");
  EXPECT_EQ(items.trace.ItemText(1), "ABCDEFGHIJKLMNOPQ");
  EXPECT_EQ(items.Report(), text + "next\n");
}

TEST(RegenerateVariableData, LeavesAnItemOfLength0Absent) {
  Items items("Variable-One:(0=)\nVariable-Two:(0=)\nVariable-Three:(1=)\n00000000:41\nnext\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 1);
  // Every second name line is read as the line behind the one before it, and is itself the name of an item.
  EXPECT_TRUE(items.trace.ItemPresent(2));
  EXPECT_EQ(items.trace.ItemText(2), "A");
}

TEST(RegenerateVariableData, ForgetsTheItemsOfTheStructureBefore) {
  Trace trace("CTLO:(2=)\n00000000:4142\nVariable-One:(1=)\n00000000:41\nCTLO:(2=)\n00000000:4142\nnext\n");
  EXPECT_EQ(trace.Rebuild(), 2);
  EXPECT_EQ(RegenerateVariableData(trace.capture.Context(), *trace.context), 0);
  EXPECT_TRUE(trace.ItemPresent(0));
  ASSERT_TRUE(AdvanceLine(*trace.context));
  EXPECT_EQ(RegenerateHexData(trace.capture.Context(), *trace.context, trace.dataName, trace.context->dump,
                              Echo::Off),
            2);
  EXPECT_EQ(RegenerateVariableData(trace.capture.Context(), *trace.context), 0);
  EXPECT_FALSE(trace.ItemPresent(0));
}

TEST(RegenerateVariableData, DropsTheReportLineThatEndsTheItems) {
  Items items("Variable-One:(1=)\n00000000:41\n|> x\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 1);
  EXPECT_EQ(items.Report(), "Variable-One:(1=)\n00000000:41\n");
  EXPECT_EQ(items.trace.CurrentLine(), "|> x\n");
}

TEST(RegenerateVariableData, PassesOverLinesThatBeginWithZero) {
  Items items("00000010:4344\n0\nVariable-One:(1=)\n00000000:41\nnext\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 1);
  EXPECT_EQ(items.Report(), "00000010:4344\n0\nVariable-One:(1=)\n00000000:41\nnext\n");
}

TEST(RegenerateVariableData, ReadsTwentyItems) {
  std::string twenty;
  for (int i = 0; i < 20; ++i)
    twenty += "Variable-" + std::to_string(i) + ":(1=)\n00000000:" + std::to_string(41 + i % 9) + "\n";
  Items items(twenty + "Variable-20:(1=)\n00000000:41\nnext\n");
  EXPECT_EQ(items.result, 0);
  EXPECT_EQ(items.Present(), 20);
  EXPECT_EQ(items.trace.ItemText(19), "B");
  EXPECT_EQ(items.Report(), twenty);
}

TEST(RegenerateVariableData, ReportsTheEndOfTheInput) {
  for (const std::string text : {"", "Variable-One:(1=)\n", "Variable-One:(1=)\n00000000:41\n", "0\n"}) {
    Items items(text);
    EXPECT_EQ(items.result, -1) << text;
    EXPECT_EQ(
        items.trace.capture.Terminal().find("File I/O error. \n  File      : in\n  Operation : read (1)\n"),
        0u)
        << text;
    EXPECT_EQ(items.Report(), text);
  }
}

TEST(RegenerateVariableData, ReportsABrokenItem) {
  Items broken("Variable-One:(9=)\n00000000:41\nstrange\n");
  EXPECT_EQ(broken.result, -1);
  EXPECT_EQ(broken.trace.capture.Terminal(), Broken(5, "strange\n"));
  Items nameless("Variable-One\n00000000:41\n");
  EXPECT_EQ(nameless.result, -1);
  EXPECT_EQ(nameless.trace.capture.Terminal(), Broken(3, "Variable-One\n"));
}

}  // namespace
}  // namespace quillon
