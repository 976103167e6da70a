// The choice of the CCSID of character data, and the character patterns that are valid in it.
#include "driver/ccsid_choice.h"

#include <clocale>
#include <cstdlib>

#include "display/character_walk.h"

namespace quillon {

// The comparison is exact: "JA_JP", "Ja_JP" and "ja_JP" are three locales with different encodings.
constexpr LocaleCcsidRow LocaleCcsidTable[kLocaleCcsidRows] = {
    {"JA_JP", 1208},
    {"JA_JP.UTF-8", 1208},
    {"Ja_JP", 943},
    {"Ja_JP.ORX-932", 932},
    {"Ja_JP.ORX-943", 943},
    {"ja_JP", 954},
    {"ja_JP.ORX-eucJP", 33722},
    {"ja_JP.PCK", 943},
    {"ja_JP.SJIS", 932},
    {"ja_JP.UTF-8", 1208},
    {"ja_JP.eucJP", 954},
    {"ja_JP.eucjp", 954},
    {"ja_JP.ujis", 954},
    {"ja_JP.utf8", 1208},
    {"japanese", 954},
    {"japanese.euc", 954},
    {"ja", 5050},
    {"KO_KR", 1208},
    {"KO_KR.UTF-8", 1208},
    {"ko_KR", 970},
    {"ko_KR.ORX-eucKR", 970},
    {"ko_KR.UTF-8", 1208},
    {"ko_KR.eucKR", 970},
    {"ko_KR.euckr", 970},
    {"ko_KR.utf8", 1208},
    {"korean", 970},
    {"korean.euc", 970},
    {"ko", 970},
    {"ZH_CN", 1208},
    {"ZH_CN.UTF-8", 1208},
    {"Zh_CN", 1386},
    {"Zh_CN.GBK", 1386},
    {"zh_CN", 1383},
    {"zh_CN.ORX-eucCN", 1383},
    {"zh_CN.UTF-8", 1208},
    {"zh_CN.gb18030", 5488},
    {"zh_CN.gb2312", 1386},
    {"zh_CN.gbk", 1386},
    {"zh_CN.hp15CN", 1386},
    {"zh_CN.utf8", 1208},
    {"ZH_TW", 1208},
    {"ZH_TW.UTF-8", 1208},
    {"Zh_TW.big5", 950},
    {"Zh_TW", 950},
    {"zh_TW", 964},
    {"zh_TW.BIG5", 950},
    {"zh_TW.ORX-eucTW", 964},
    {"zh_TW.UTF-8", 1208},
    {"zh_TW.big5", 950},
    {"zh_TW.ccdc", 950},
    {"zh_TW.eucTW", 964},
    {"zh_TW.euctw", 964},
    {"zh_TW.utf8", 1208},
    {"en_US", 819},
    {"", 0},
};

constexpr CcsidRangeRow CcsidRangeTable[kCcsidRangeRows] = {
    {819, {{0x20, 0x7E}}},
    {819, {{0xA0, 0xFF}}},
    {437, {{0x20, 0x7E}}},
    {437, {{0x80, 0xFE}}},
    {850, {{0x20, 0x7E}}},
    {850, {{0x80, 0xFE}}},
    {932, {{0x20, 0x7E}}},
    {932, {{0xA1, 0xDF}}},
    {932, {{0x81, 0x9F}, {0x40, 0x7E}}},
    {932, {{0x81, 0x9F}, {0x80, 0xFC}}},
    {932, {{0xE0, 0xFC}, {0x40, 0x7E}}},
    {932, {{0xE0, 0xFC}, {0x80, 0xFC}}},
    {942, {{0x20, 0x7E}}},
    {942, {{0x80, 0x80}}},
    {942, {{0xA0, 0xDF}}},
    {942, {{0xFD, 0xFF}}},
    {942, {{0x81, 0x9F}, {0x40, 0x7E}}},
    {942, {{0x81, 0x9F}, {0x80, 0xFC}}},
    {942, {{0xE0, 0xFC}, {0x40, 0x7E}}},
    {942, {{0xE0, 0xFC}, {0x80, 0xFC}}},
    {943, {{0x20, 0x7E}}},
    {943, {{0xA1, 0xDF}}},
    {943, {{0x81, 0x9F}, {0x40, 0x7E}}},
    {943, {{0x81, 0x9F}, {0x80, 0xFC}}},
    {943, {{0xE0, 0xFC}, {0x40, 0x7E}}},
    {943, {{0xE0, 0xFC}, {0x80, 0xFC}}},
    {954, {{0x20, 0x7E}}},
    {954, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {954, {{0x8E, 0x8E}, {0xA1, 0xE4}}},
    {954, {{0x8F, 0x8F}, {0xA1, 0xFE}, {0xA1, 0xFE}}},
    {5050, {{0x20, 0x7E}}},
    {5050, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {5050, {{0x8E, 0x8E}, {0xA1, 0xE4}}},
    {5050, {{0x8F, 0x8F}, {0xA1, 0xFE}, {0xA1, 0xFE}}},
    {33722, {{0x20, 0x7E}}},
    {33722, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {33722, {{0x8E, 0x8E}, {0xA1, 0xE4}}},
    {33722, {{0x8F, 0x8F}, {0xA1, 0xFE}, {0xA1, 0xFE}}},
    {17338, {{0x20, 0x7E}}},
    {17338, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {17338, {{0x8E, 0x8E}, {0xA1, 0xE4}}},
    {17338, {{0x8F, 0x8F}, {0xA1, 0xFE}, {0xA1, 0xFE}}},
    {949, {{0x20, 0x7F}}},
    {949, {{0x8F, 0xFE}, {0xA1, 0xFE}}},
    {1363, {{0x20, 0x7F}}},
    {1363, {{0x81, 0xFE}, {0x41, 0xFE}}},
    {970, {{0x20, 0x7E}}},
    {970, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {1383, {{0x20, 0x7E}}},
    {1383, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {1381, {{0x20, 0x7E}}},
    {1381, {{0x80, 0x84}}},
    {1381, {{0x8C, 0xFE}, {0xA1, 0xFE}}},
    {1386, {{0x20, 0x80}}},
    {1386, {{0x81, 0xFE}, {0x40, 0xFE}}},
    {5488, {{0x20, 0x80}}},
    {5488, {{0x81, 0xFE}, {0x40, 0xFE}}},
    {5488, {{0x81, 0xFE}, {0x30, 0x39}, {0x81, 0xFE}, {0x30, 0x39}}},
    {950, {{0x20, 0x7F}}},
    {950, {{0x81, 0xFE}, {0x40, 0x7E}}},
    {950, {{0x81, 0xFE}, {0x81, 0xFE}}},
    {1370, {{0x20, 0x80}}},
    {1370, {{0x81, 0xFE}, {0x40, 0x7E}}},
    {1370, {{0x81, 0xFE}, {0x81, 0xFE}}},
    {964, {{0x20, 0x7E}}},
    {964, {{0xA1, 0xFE}, {0xA1, 0xFE}}},
    {964, {{0x8E, 0x8E}, {0xA2, 0xB0}, {0xA1, 0xFE}, {0xA1, 0xFE}}},
    {1208, {{0x20, 0x7F}}},
    {1208, {{0xC2, 0xDF}, {0x80, 0xBF}}},
    {1208, {{0xE0, 0xEF}, {0x80, 0xBF}, {0x80, 0xBF}}},
    {0, {{0x20, 0x7E}}},
};

namespace {

consteval bool LocalesAreComplete() {
  for (std::size_t index = 0; index + 1 < kLocaleCcsidRows; ++index)
    if (*LocaleCcsidTable[index].locale == '\0' || LocaleCcsidTable[index].ccsid <= 0) return false;
  const LocaleCcsidRow& last = LocaleCcsidTable[kLocaleCcsidRows - 1];
  return *last.locale == '\0' && last.ccsid == 0;
}

/// The end row last and only last, and every pattern begun.
consteval bool RangesAreComplete() {
  for (std::size_t index = 0; index < kCcsidRangeRows; ++index) {
    const CcsidRangeRow& row = CcsidRangeTable[index];
    if ((row.ccsid == 0) != (index + 1 == kCcsidRangeRows) || row.pairs[0].high == 0) return false;
    for (const ByteRange& pair : row.pairs)
      if (pair.low > pair.high) return false;
  }
  return true;
}

/// The rows of a CCSID stand together, so each change begins another one.
consteval int CountCcsids() {
  int count = 0;
  std::int32_t previous = 0;
  for (const CcsidRangeRow& row : CcsidRangeTable) {
    if (row.ccsid != previous && row.ccsid != 0) ++count;
    previous = row.ccsid;
  }
  return count;
}

static_assert(LocalesAreComplete());
static_assert(RangesAreComplete());
static_assert(CountCcsids() == 21);

/// Switches a category of the program to the user's locale and returns its name; when that locale is not
/// installed, switches nothing and returns an empty name.
std::string SwitchToUserLocale(int category) {
  // NOLINTNEXTLINE(concurrency-mt-unsafe): the program has one thread
  const char* name = std::setlocale(category, "");
  return name == nullptr ? std::string() : name;
}

/// One slot of the map: the bytes that `row` allows at each position, and the positions after its last.
void FillPattern(std::uint8_t (&slot)[CharacterPatternMap::kPositions][256], const CcsidRangeRow& row) {
  for (int position = 0; position < CharacterPatternMap::kPositions; ++position) {
    const ByteRange pair = row.pairs[position];
    if (pair.high == 0) {
      slot[position][0] = CharacterPatternMap::kEnd;
      continue;
    }
    for (int byte = pair.low; byte <= pair.high; ++byte) slot[position][byte] = CharacterPatternMap::kAllowed;
  }
}

}  // namespace

std::string GetEnvValue(const char* name) {
  // NOLINTNEXTLINE(concurrency-mt-unsafe): the program has one thread
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

std::string GetEnvLocale() {
  // The library tells the user's locale only by switching to it. The program itself stays with the locale
  // that every program starts in: its numbers and characters do not depend on where it runs.
  std::string name = SwitchToUserLocale(LC_MESSAGES);
  if (name.empty()) name = SwitchToUserLocale(LC_ALL);
  // NOLINTNEXTLINE(concurrency-mt-unsafe): the program has one thread
  static_cast<void>(std::setlocale(LC_ALL, "C"));
  return name;
}

std::int32_t SearchCcsidOfLocale(std::string_view localeName) {
  if (localeName.ends_with(".UTF-8") || localeName.ends_with(".utf8")) return 1208;
  const LocaleCcsidRow* row = LocaleCcsidTable;
  while (*row->locale != '\0' && localeName != row->locale) ++row;
  return row->ccsid;
}

std::int32_t SelectCcsidByLocale(std::string& localeName) {
  localeName = GetEnvLocale();
  if (localeName.empty()) localeName = GetEnvValue("LC_ALL");
  if (localeName.empty()) localeName = GetEnvValue("LANG");
  return SearchCcsidOfLocale(localeName);
}

void FillCharacterPatterns(CharacterPatternMap& patterns, std::int32_t ccsid,
                           std::span<const CcsidRangeRow> table) {
  patterns = {};
  // The last slot is left for the mark that no more patterns follow.
  constexpr int kUsableSlots = CharacterPatternMap::kSlots - 1;
  int slot = 0;
  for (const CcsidRangeRow& row : table.first(table.size() - 1))
    if (row.ccsid == ccsid && slot < kUsableSlots) FillPattern(patterns.entry[slot++], row);
  if (slot == 0) FillPattern(patterns.entry[slot++], table.back());
  patterns.entry[slot][0][0] = CharacterPatternMap::kEnd;
  FillCharacterImages(patterns);
}

void SetValueForCodeRangeCheck(RunContext& runContext) {
  FillCharacterPatterns(runContext.characterPatterns, runContext.ccsid, CcsidRangeTable);
}

}  // namespace quillon
