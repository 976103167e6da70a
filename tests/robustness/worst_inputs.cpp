#include "robustness/worst_inputs.h"

#include <string_view>

namespace quillon {
namespace {

constexpr std::int64_t kHuge = 2147483647;

constexpr std::string_view kCut = " \n";  // ends a dump before its declared length
constexpr std::string_view kWholeAddressSpace = "00000000-7FFFFFFF same as above\n";
constexpr std::string_view kShortRepeat = "        -1\n";  // to offset 0x10000000

std::string Repeated(std::string_view text, std::size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

/// Copies of the text up to about `size` bytes; at least one.
std::string Filled(std::string_view text, std::size_t size) {
  return Repeated(text, size / text.size() + 1);
}

/// Bytes of a dump, written field by field.
struct Bytes {
  std::string bytes = {};

  Bytes& Word(std::int64_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
    return *this;
  }
  Bytes& Text(std::string_view text) {
    bytes += text;
    return *this;
  }
  Bytes& Zeros(std::size_t count) {
    bytes.append(count, '\0');
    return *this;
  }
  Bytes& FillTo(std::size_t offset, std::string_view text) {
    while (bytes.size() < offset) bytes += text[bytes.size() % text.size()];
    return *this;
  }
};

/// A dump's lines; of the last line no byte is missing when `declared` is not larger than the bytes.
std::string Dump(std::string_view name, std::int64_t declared, std::string_view bytes,
                 std::string_view tail = "") {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text = std::string(name) + ":(" + std::to_string(declared) + "=)\n";
  for (std::size_t offset = 0; offset == 0 || offset < bytes.size(); offset += 16) {
    text += "00000000:";
    for (const char byte : bytes.substr(offset, 16)) {
      text += digits[static_cast<unsigned char>(byte) >> 4];
      text += digits[static_cast<unsigned char>(byte) & 0xF];
    }
    text += '\n';
  }
  return text + std::string(tail);
}

/// A message descriptor that names the format of the bodies behind it.
std::string Descriptor(std::string_view format) {
  return Dump("MD", 40, Bytes().Text("MD  ").Word(1).Zeros(24).Text(format).bytes);
}

/// The header of a PCF message, whose parameters follow.
Bytes PcfHeader(std::int64_t parameters) {
  return Bytes().Zeros(32).Word(parameters);
}

/// A message of one parameter whose values are one word, repeated to the end of what a length can claim.
std::string ClaimedIntegerList(std::int64_t identifier, std::int64_t value, std::int64_t declared) {
  const std::int64_t length = declared - 36;
  Bytes body = PcfHeader(1);
  body.Word(5).Word(length).Word(identifier).Word((length - 16) / 4);
  for (int i = 0; i < 4; ++i) body.Word(value);
  return Dump("D", declared, body.bytes, std::string(kShortRepeat) + std::string(kCut));
}

std::string Call(std::string_view name, std::string_view phase) {
  return "<" + std::string(name) + "\n(" + std::string(phase) + "\n";
}

// --- lengths and repeats that the trace does not carry

std::string DeclaredLengths(std::size_t size) {
  return Filled(Dump("Data", kHuge, "A", kCut) + Dump("Data", kHuge, "A", kWholeAddressSpace) +
                    Dump("Data", 1, "", kCut),
                size);
}

std::string ClaimedXml(std::size_t size) {
  return Filled(Dump("D", 2147483632, Repeated("<>", 8), kShortRepeat) + std::string(kCut), size);
}

/// Repeats that are short enough to stand in memory.
std::string ShortXml(std::size_t size) {
  return Filled(Dump("D", 400, Repeated("<>", 8), kShortRepeat), size);
}

std::string CarriedXml(std::size_t size) {
  return Dump("D", static_cast<std::int64_t>(size / 41 * 16), Repeated("<>", size / 41 * 8));
}

std::string ClaimedFlagList(std::size_t size) {
  return Descriptor("ZKPCF   ") + Filled(ClaimedIntegerList(1081, 0xFFFFFFFF, kHuge - 3), size);
}

std::string ShortFlagList(std::size_t size) {
  return Descriptor("ZKPCF   ") + Filled(ClaimedIntegerList(1081, 0xFFFFFFFF, 36 + 16 + 944), size);
}

std::string ClaimedEmptyStrings(std::size_t size) {
  const std::string body = PcfHeader(1).Word(6).Word(kHuge - 36).Word(0).Word(0).Word(kHuge).Word(0).bytes;
  return Descriptor("ZKPCF   ") + Filled(Dump("D", kHuge, body, kCut), size);
}

std::string CarriedEmptyStrings(std::size_t size) {
  const auto length = static_cast<std::int64_t>(size / 41 * 16);
  const std::string body = PcfHeader(1).Word(6).Word(length).Word(0).Word(0).Word(kHuge).Word(0).bytes;
  return Descriptor("ZKPCF   ") + Dump("D", length + 36, body + std::string(size / 41 * 16 - 24, 'A'));
}

std::string ClaimedBlankTexts(std::size_t size) {
  return Filled(
      Dump("CNO->SCO->AIR->LDAPUserName", kHuge, std::string(16, ' '), kShortRepeat) + std::string(kCut),
      size);
}

std::string ZeroLengthParameters(std::size_t size) {
  // Byte 0 of every 16 is 7F, so that the parameter count is huge; the first parameter is all zeros.
  return Descriptor("ZKPCF   ") + Filled(Dump("D", 48, "\x7F", kShortRepeat), size);
}

std::string ZeroLengthGroups(std::size_t size) {
  const std::string body = PcfHeader(kHuge).Word(20).Word(0).Word(0).Word(kHuge).bytes;
  return Descriptor("ZKPCF   ") + Filled(Dump("D", 52, body), size);
}

std::string ClaimedSelectors(std::size_t size) {
  const std::string selectors = Bytes().Word(1999).Word(1999).Word(1999).Word(1999).bytes;
  return Call("ZKINQ", "BEFORE") + "SelectorCount:2147483647\n" +
         Filled(Dump("Selectors", kHuge, selectors, kShortRepeat) + std::string(kCut), size);
}

/// One long array of selectors, and many values behind it.
std::string SelectorsShownAgain(std::size_t size) {
  std::string selectors;
  for (std::size_t i = 0; i < size / 10; ++i) selectors += Bytes().Word(1999).bytes;
  return Call("ZKINQ", "AFTER") + "SelectorCount:2147483647\n" +
         Dump("Selectors", static_cast<std::int64_t>(selectors.size()), selectors) +
         Filled(Dump("IntAttrs", 1, std::string(1, '\0')) + Dump("CharAttrs", 1, "A"), size / 2);
}

std::string FlagsOfFewSelectors(std::size_t size) {
  std::string selectors;
  for (int i = 0; i < 64; ++i) selectors += Bytes().Word(1081).bytes;
  return Call("ZKINQ", "AFTER") + "SelectorCount:64\nIntAttrCount:64\n" + Dump("Selectors", 256, selectors) +
         Filled(Dump("IntAttrs", 145, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF",
                     kShortRepeat),
                size);
}

std::string ClaimedNames(std::size_t size) {
  const std::string selectors = Bytes().Word(19).Word(2020).bytes;
  return Call("ZKINQ", "AFTER") +
         "SelectorCount:2147483647\nIntAttrCount:2147483647\nCharAttrLength:2147483647\n" +
         Dump("Selectors", 8, selectors) + Dump("IntAttrs", kHuge, Bytes().Word(kHuge).bytes, kCut) +
         Filled(Dump("CharAttrs", kHuge, "A", kCut), size);
}

std::string ClaimedRecords(std::size_t size) {
  const std::string od = Bytes().Text("OD  ").Word(2).Zeros(160).Word(kHuge).Zeros(28).bytes;
  const std::string pmo =
      Bytes().Text("PMO ").Word(2).Zeros(120).Word(kHuge).Word(8).Zeros(16).Word(kHuge).bytes;
  const std::string ones = std::string(16, '\1');
  const std::string records = Dump("OD->OR", kHuge, ones, kShortRepeat) + std::string(kCut) +
                              Dump("OD->RR", kHuge, ones, kShortRepeat) + std::string(kCut) +
                              Dump("PMO->RR", kHuge, ones, kShortRepeat) + std::string(kCut) +
                              Dump("PMO->PMR", kHuge, ones, kShortRepeat) + std::string(kCut);
  return Dump("OD", 200, od) + "end\n" + Dump("PMO", static_cast<std::int64_t>(pmo.size()), pmo) +
         Filled(records, size);
}

std::string ClaimedItems(std::size_t size) {
  std::string structure = Bytes().Text("SD  ").Word(1).Zeros(16).bytes;
  for (int i = 0; i < 30; ++i) structure += Bytes().Word(0).Word(40).Word(kHuge).Word(kHuge).Word(0).bytes;
  std::string one = Dump("SD", static_cast<std::int64_t>(structure.size()), structure);
  for (int i = 0; i < 5; ++i) one += Dump("Variable-V", kHuge, std::string(16, 'A'), kShortRepeat) + " \n";
  return Filled(one + "end\n", size);
}

std::string DescriptorOfFormat(std::string_view format) {
  return Dump("MD", 40, Bytes().Text("MD  ").Word(1).Zeros(24).Text(format).bytes);
}

// Five headers, each with a folder of XML whose first 16 bytes are carried: many parts of one dump are shown.
std::string ClaimedFolders(std::size_t size) {
  constexpr std::int64_t kFolder = 16 + 1048576;
  std::string body = "D:(" + std::to_string(5 * (40 + kFolder)) + "=)\n";
  for (int i = 0; i < 5; ++i) {
    const std::string header = Bytes()
                                   .Text("RFH ")
                                   .Word(2)
                                   .Word(40 + kFolder)
                                   .Zeros(8)
                                   .Text("ZKHRF2  ")
                                   .Zeros(8)
                                   .Word(kFolder)
                                   .bytes;
    const std::string lines = Dump("", 0, header + Repeated("<>", 8), "00000000-00100000\n");
    body += lines.substr(lines.find('\n') + 1);
  }
  return Filled(DescriptorOfFormat("ZKHRF2  ") + body + "end\n", size);
}

// Two lists of integers of which the first items are carried.
std::string ClaimedLists(std::size_t size) {
  constexpr std::int64_t kList = 16 + 16 + 1048576;
  std::string body = "D:(" + std::to_string(36 + 2 * kList) + "=)\n";
  const std::string list =
      Bytes().Word(5).Word(kList).Word(1081).Word((kList - 16) / 4).bytes + std::string(16, '\xFF');
  for (const std::string& piece : {Bytes().Zeros(32).Word(2).bytes + list, list}) {
    const std::string lines = Dump("", 0, piece, "00000000-00100000\n");
    body += lines.substr(lines.find('\n') + 1);
  }
  return Filled(DescriptorOfFormat("ZKPCF   ") + body + "end\n", size);
}

// Each line of an item ends the dump of the one before it and names its own.
std::string ItemsOfOneLine(std::size_t size) {
  std::string one = "SD:(304=\n00000000:01000000010000000000000001\n";
  for (int i = 0; i < 5; ++i) one += "Variable-1:(1=\n";
  return Filled(one + " \n", size);
}

// Strings of one byte whose descriptors tell two thousand million.
std::string TextsBeyondTheirItems(std::size_t size) {
  std::string one =
      Dump("OD", 400, Bytes().Text("OD  ").Word(4).Word(kHuge).Word(kHuge).bytes, "00000010-0000018F\n");
  for (int i = 0; i < 3; ++i) one += Dump("Variable-", 1, "A");
  return Filled(one + "e\n", size);
}

// --- structures of few bytes

std::string ChannelOfFewBytes(std::size_t size) {
  // Byte 4 of every 16 is 7F: the version is the highest, and so are many other numbers.
  return Filled(Dump("CNO->CD", 145, Bytes().Zeros(4).Text("\x7F").bytes, kShortRepeat), size);
}

std::string SubscriptionOfFewBytes(std::size_t size) {
  return Filled(Dump("SD", 145, std::string(16, '\x7F'), kShortRepeat) + "end\n", size);
}

std::string OptionWords(std::size_t size) {
  return Call("ZKOPEN", "BEFORE") + Filled("Options:0xFFFFFFFF\n", size);
}

// --- carried bytes

std::string NestedGroups(std::size_t size) {
  std::string body = PcfHeader(kHuge).bytes;
  for (std::size_t i = 0; i < size / 41; ++i) body += Bytes().Word(20).Word(16).Word(1).Word(kHuge).bytes;
  return Descriptor("ZKPCF   ") + Dump("D", static_cast<std::int64_t>(body.size()), body);
}

std::string ClaimedGroups(std::size_t size) {
  Bytes body = PcfHeader(kHuge);
  for (int i = 0; i < 3; ++i) body.Word(20).Word(16).Word(1).Word(kHuge);
  return Descriptor("ZKPCF   ") + Filled(Dump("D", kHuge, body.bytes, kShortRepeat) + " \n", size);
}

std::string CountsOfParameters(std::size_t size) {
  std::string body = PcfHeader(kHuge).bytes;
  for (std::size_t i = 0; i < size / 1000; ++i) {
    for (const std::int64_t type : {3, 4, 5, 6, 9, 13, 14, 15, 20, 23, 25, 99})
      body += Bytes().Word(type).Word(32).Word(kHuge).Word(kHuge).Word(kHuge).Word(kHuge).Zeros(8).bytes;
  }
  return Descriptor("ZKPCF   ") + Dump("D", static_cast<std::int64_t>(body.size()), body);
}

std::string DistributionLists(std::size_t size) {
  const auto header = [](std::int64_t records, std::int64_t objects, std::int64_t puts) {
    return Bytes()
        .Text("DH  ")
        .Word(1)
        .Word(48)
        .Word(0)
        .Word(0)
        .Text("ZKHDIST ")
        .Word(0)
        .Word(8)
        .Word(records)
        .Word(objects)
        .Word(puts)
        .bytes;
  };
  const std::string few = header(4, 48, 48) + std::string(400, '\1');
  return Descriptor("ZKHDIST ") +
         Filled(Dump("D", kHuge, header(kHuge, 48, 48), kShortRepeat) + " \n" +
                    Dump("D", kHuge, header(20000000, 48, 48), kShortRepeat) + " \n" + Dump("D", 448, few),
                size);
}

std::string EmptyFolders(std::size_t size) {
  const auto length = static_cast<std::int64_t>(size / 41 * 16);
  const std::string header = Bytes().Text("RFH ").Word(2).Word(36 + length).Zeros(24).bytes;
  return Descriptor("ZKHRF2  ") + Dump("D", 36 + length, header + std::string(size / 41 * 16, '\0'));
}

std::string ChainOfHeaders(std::size_t size) {
  const std::string header =
      Bytes().Text("RFH ").Word(2).Word(36).Word(0).Word(0).Text("ZKHRF2  ").Word(0).Word(0).bytes;
  const std::string chain = Filled(header, size / 3);
  return Descriptor("ZKHRF2  ") + Dump("D", static_cast<std::int64_t>(chain.size()), chain);
}

std::string Tokens(std::size_t size) {
  const std::string text = Repeated("a ", size / 6);
  const std::string header =
      Bytes().Text("RFH ").Word(1).Word(32 + static_cast<std::int64_t>(text.size())).Zeros(20).bytes;
  return Descriptor("ZKHRF   ") +
         Dump("D", static_cast<std::int64_t>(header.size() + text.size()), header + text);
}

std::string ReferenceItems(std::size_t size) {
  // Four items, each of which is the whole message.
  const auto length = static_cast<std::int64_t>(size / 41 * 16);
  Bytes header = Bytes().Text("RMH ").Word(1).Word(108).Zeros(64);
  for (int i = 0; i < 4; ++i) header.Word(length).Word(1);
  std::string body = header.Zeros(2).bytes;
  for (std::size_t i = body.size(); i < size / 41 * 16 + 1; ++i) body += static_cast<char>(i * i >> 4);
  return Descriptor("ZKHREF  ") + Dump("D", static_cast<std::int64_t>(body.size()), body);
}

/// A byte and a repeat, a byte and a repeat: each begins a folded run of its own.
std::string ManyFoldedRuns(std::size_t size) {
  std::string text = "D:(2147483647=)\n00000000:00\n";
  text.reserve(size + 64);
  for (unsigned i = 0; text.size() < size; ++i) {
    constexpr char digits[] = "0123456789ABCDEF";
    text += "00000000:";
    text += digits[i % 15 + 1];
    text += digits[i / 16 % 16];
    text += "\n       0-00000100\n";
  }
  return text + std::string(kCut);
}

std::string ManyRepeatLines(std::size_t size) {
  return "D:(2147483647=)\n00000000:3C3E\n" +
         Filled("        -0001\n80000000-7FFFFFFF\n0-\n        -1\n", size) + std::string(kCut);
}

// --- open objects

/// Half of the trace opens objects; then the newest is put before all others again and again.
std::string ObjectsInBadOrder(std::size_t size) {
  std::string text;
  for (std::size_t i = 0; i < size / 4; ++i) {
    if (i == 0) text += Call("ZKOPEN", "BEFORE");
    text += "-\n";
  }
  return text + Call("ZKOPEN", "AFTER") + "Hobj:0xF\n" + Filled("-\n", size / 2);
}

std::string ObjectsThatAreSearched(std::size_t size) {
  std::string text = Call("ZKOPEN", "BEFORE") + Filled("-\n", size / 2);
  return text + Filled(Dump("GMO", 72, Bytes().Zeros(24).Text("Q").bytes, kCut), size / 2);
}

// --- lines

std::string OneLine(std::size_t size) {
  return std::string(size, 'x');
}
std::string Nuls(std::size_t size) {
  return std::string(size, '\0');
}
std::string LineEnds(std::size_t size) {
  return std::string(size, '\n');
}
std::string LongDumpLines(std::size_t size) {
  return "D:(2147483647=)\n" + Filled("00000000:" + std::string(980, '4') + "\n", size) + std::string(kCut);
}
std::string BrokenDumps(std::size_t size) {
  return Filled("00000000:", size);
}

}  // namespace

std::string DumpsOfEveryKind(std::size_t dumpSize) {
  const auto declared = static_cast<std::int64_t>(dumpSize);
  std::string bytes(dumpSize, '\0');
  for (std::size_t i = 0; i < dumpSize; ++i) bytes[i] = static_cast<char>(i * 7 >> 3);
  bytes.replace(0, 8, std::string("SD  \0\0\0\1", 8));
  // More objects than so short a trace may open are opened first.
  std::string text = Call("ZKOPEN", "BEFORE") + Repeated("-\n", 140000);
  for (const char* const name : {"SD", "OD"}) {
    text += Dump(name, declared, bytes);
    for (int item = 0; item < 20; ++item) text += Dump("Variable-V", declared, bytes);
    text += "end\n";
  }
  for (const char* const name : {"PMO", "Selectors", "IntAttrs", "CharAttrs", "MD", "GMO", "Data"})
    text += Dump(name, declared, bytes);
  return text;
}

const std::vector<WorstInput> kWorstInputs = {
    {"DeclaredLengths", DeclaredLengths},
    {"ClaimedXml", ClaimedXml},
    {"ClaimedXmlInLongLines", ClaimedXml, {.maxXmlLineLength = 999}},
    {"ShortXml", ShortXml},
    {"ShortXmlInLongLines", ShortXml, {.maxXmlLineLength = 999}},
    {"CarriedXml", CarriedXml},
    {"CarriedXmlInLongLines", CarriedXml, {.maxXmlLineLength = 999}},
    {"ClaimedFlagList", ClaimedFlagList},
    {"ShortFlagList", ShortFlagList},
    {"ClaimedEmptyStrings", ClaimedEmptyStrings},
    {"CarriedEmptyStrings", CarriedEmptyStrings},
    {"ClaimedBlankTexts", ClaimedBlankTexts},
    {"ZeroLengthParameters", ZeroLengthParameters},
    {"ZeroLengthGroups", ZeroLengthGroups},
    {"ClaimedSelectors", ClaimedSelectors},
    {"SelectorsShownAgain", SelectorsShownAgain},
    {"FlagsOfFewSelectors", FlagsOfFewSelectors},
    {"ClaimedNames", ClaimedNames},
    {"ClaimedRecords", ClaimedRecords},
    {"ClaimedItems", ClaimedItems},
    {"ClaimedItemsWithoutLimit", ClaimedItems, {.maxCharvLength = -1}},
    {"TextsBeyondTheirItems", TextsBeyondTheirItems},
    {"TextsBeyondTheirItemsWithoutLimit", TextsBeyondTheirItems, {.maxCharvLength = -1}},
    {"ClaimedFolders", ClaimedFolders, {.maxXmlLineLength = 999}},
    {"ClaimedLists", ClaimedLists},
    {"ItemsOfOneLine", ItemsOfOneLine},
    {"ItemsOfOneLineWithoutLimit", ItemsOfOneLine, {.maxXmlLineLength = 40, .maxCharvLength = -1}},
    {"ChannelOfFewBytes", ChannelOfFewBytes},
    {"SubscriptionOfFewBytes", SubscriptionOfFewBytes},
    {"OptionWords", OptionWords},
    {"NestedGroups", NestedGroups},
    {"ClaimedGroups", ClaimedGroups},
    {"CountsOfParameters", CountsOfParameters},
    {"DistributionLists", DistributionLists},
    {"EmptyFolders", EmptyFolders},
    {"ChainOfHeaders", ChainOfHeaders},
    {"Tokens", Tokens},
    {"ReferenceItems", ReferenceItems},
    {"ManyFoldedRuns", ManyFoldedRuns},
    {"ManyRepeatLines", ManyRepeatLines},
    {"ObjectsInBadOrder", ObjectsInBadOrder},
    {"ObjectsThatAreSearched", ObjectsThatAreSearched},
    {"OneLine", OneLine},
    {"Nuls", Nuls},
    {"LineEnds", LineEnds},
    {"LongDumpLines", LongDumpLines},
    {"BrokenDumps", BrokenDumps},
};

}  // namespace quillon
