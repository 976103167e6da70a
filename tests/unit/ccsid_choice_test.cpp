// CCSID choice: environment, locale names, character patterns.
#include "driver/ccsid_choice.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "report_capture.h"

namespace quillon {
namespace {

/// Clears the variables that decide on the locale and puts them back at the end of a test.
class LocaleEnvironment : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : kNames) {
      const char* value = getenv(name);
      saved.push_back(value == nullptr ? std::optional<std::string>() : value);
      unsetenv(name);
    }
  }
  void TearDown() override {
    for (std::size_t index = 0; index < saved.size(); ++index) {
      if (saved[index]) {
        setenv(kNames[index], saved[index]->c_str(), 1);
      } else {
        unsetenv(kNames[index]);
      }
    }
  }

 private:
  static constexpr const char* kNames[] = {"LC_ALL",     "LC_MESSAGES", "LC_CTYPE", "LC_NUMERIC", "LC_TIME",
                                           "LC_COLLATE", "LC_MONETARY", "LANG",     "LANGUAGE",   "ZKCCSID"};
  std::vector<std::optional<std::string>> saved;
};

TEST_F(LocaleEnvironment, EnvironmentVariables) {
  EXPECT_EQ(GetEnvValue("ZKCCSID"), "");
  setenv("ZKCCSID", "943", 1);
  EXPECT_EQ(GetEnvValue("ZKCCSID"), "943");
  setenv("ZKCCSID", "", 1);
  EXPECT_EQ(GetEnvValue("ZKCCSID"), "");
}

// The names need not be installed: then the variables themselves are read.
TEST_F(LocaleEnvironment, NameInLang) {
  const std::map<std::string, int> expected = {
      {"de_DE.UTF-8", 1208}, {"de_DE", 0}, {"zh_CN.gb18030", 5488}, {"en_US", 819}, {"Ja_JP", 943}};
  for (const auto& [locale, ccsid] : expected) {
    setenv("LANG", locale.c_str(), 1);
    std::string name;
    EXPECT_EQ(SelectCcsidByLocale(name), ccsid) << locale;
    EXPECT_EQ(name, locale);
  }
}

TEST_F(LocaleEnvironment, LcAllComesBeforeLang) {
  setenv("LANG", "ko_KR", 1);
  setenv("LC_ALL", "Zh_TW.big5", 1);
  std::string name;
  EXPECT_EQ(SelectCcsidByLocale(name), 950);
  EXPECT_EQ(name, "Zh_TW.big5");
  setenv("LC_ALL", "", 1);
  EXPECT_EQ(SelectCcsidByLocale(name), 970);
  EXPECT_EQ(name, "ko_KR");
}

TEST_F(LocaleEnvironment, MessagesCategoryDecidesFirst) {
  setenv("LC_MESSAGES", "C", 1);
  setenv("LANG", "xx_XX.UTF-8", 1);
  std::string name;
  EXPECT_EQ(SelectCcsidByLocale(name), 0);
  EXPECT_EQ(name, "C");
  // The messages category follows "LANG"; it answers although another category is not installed.
  setenv("LC_MESSAGES", "", 1);
  setenv("LANG", "C", 1);
  setenv("LC_CTYPE", "xx_XX.UTF-8", 1);
  EXPECT_EQ(GetEnvLocale(), "C");
}

TEST_F(LocaleEnvironment, NothingSetIsTheCLocale) {
  std::string name = "old";
  EXPECT_EQ(SelectCcsidByLocale(name), 0);
  EXPECT_EQ(name, "C");
}

TEST_F(LocaleEnvironment, NoNameAtAll) {
  setenv("LC_MESSAGES", "xx_XX.nowhere", 1);
  std::string name = "old";
  EXPECT_EQ(GetEnvLocale(), "");
  EXPECT_EQ(SelectCcsidByLocale(name), 0);
  EXPECT_EQ(name, "");
}

TEST_F(LocaleEnvironment, ProgramKeepsItsOwnLocale) {
  for (const char* locale : {"C.UTF-8", "C.utf8", "de_DE.UTF-8", "ja_JP.eucJP"}) {
    setenv("LC_ALL", locale, 1);
    std::string name;
    SelectCcsidByLocale(name);
    EXPECT_EQ(name, locale);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    char number[16];
    std::snprintf(number, sizeof number, "%.1f", 1.5);
    EXPECT_STREQ(number, "1.5");
  }
}

TEST(SearchCcsidOfLocale, WalksEveryRow) {
  for (const LocaleCcsidRow& row : LocaleCcsidTable) EXPECT_EQ(SearchCcsidOfLocale(row.locale), row.ccsid);
  EXPECT_STREQ(LocaleCcsidTable[0].locale, "JA_JP");
  EXPECT_STREQ(LocaleCcsidTable[53].locale, "en_US");
  EXPECT_STREQ(LocaleCcsidTable[54].locale, "");
}

TEST(SearchCcsidOfLocale, RowsOfEachCcsid) {
  std::map<std::int32_t, int> rows;
  for (const LocaleCcsidRow& row : LocaleCcsidTable) ++rows[row.ccsid];
  const std::map<std::int32_t, int> expected = {{0, 1},    {819, 1},  {932, 2},  {943, 3},   {950, 5},
                                                {954, 6},  {964, 4},  {970, 7},  {1208, 16}, {1383, 2},
                                                {1386, 5}, {5050, 1}, {5488, 1}, {33722, 1}};
  EXPECT_EQ(rows, expected);
}

TEST(SearchCcsidOfLocale, CaseAndWholeNameCount) {
  EXPECT_EQ(SearchCcsidOfLocale("JA_JP"), 1208);
  EXPECT_EQ(SearchCcsidOfLocale("Ja_JP"), 943);
  EXPECT_EQ(SearchCcsidOfLocale("ja_JP"), 954);
  EXPECT_EQ(SearchCcsidOfLocale("ja"), 5050);
  EXPECT_EQ(SearchCcsidOfLocale("jA_JP"), 0);
  EXPECT_EQ(SearchCcsidOfLocale("ja_J"), 0);
  EXPECT_EQ(SearchCcsidOfLocale("ja_JP.eucJP "), 0);
  EXPECT_EQ(SearchCcsidOfLocale(""), 0);
  EXPECT_EQ(SearchCcsidOfLocale("C"), 0);
}

TEST(SearchCcsidOfLocale, UnicodeEndingDecides) {
  EXPECT_EQ(SearchCcsidOfLocale("de_DE.UTF-8"), 1208);
  EXPECT_EQ(SearchCcsidOfLocale("de_DE.utf8"), 1208);
  EXPECT_EQ(SearchCcsidOfLocale("C.UTF-8"), 1208);
  EXPECT_EQ(SearchCcsidOfLocale(".UTF-8"), 1208);
  EXPECT_EQ(SearchCcsidOfLocale("UTF-8"), 0);
  EXPECT_EQ(SearchCcsidOfLocale("de_DE.UTF8"), 0);
  EXPECT_EQ(SearchCcsidOfLocale("de_DE.utf-8"), 0);
  EXPECT_EQ(SearchCcsidOfLocale("de_DE.UTF-8@euro"), 0);
}

TEST(CcsidRangeTable, RowsOfEachCcsid) {
  std::map<std::int32_t, int> rows;
  for (const CcsidRangeRow& row : CcsidRangeTable) ++rows[row.ccsid];
  const std::map<std::int32_t, int> expected = {
      {0, 1},    {437, 2},  {819, 2},  {850, 2},  {932, 6},   {942, 8},  {943, 6},  {949, 2},
      {950, 3},  {954, 4},  {964, 3},  {970, 2},  {1208, 3},  {1363, 2}, {1370, 3}, {1381, 3},
      {1383, 2}, {1386, 2}, {5050, 4}, {5488, 3}, {17338, 4}, {33722, 4}};
  EXPECT_EQ(rows, expected);
}

/// The pattern in a slot as text ("81-9F 40-7E"); "end" when the slot says that no more patterns follow.
std::string Pattern(const CharacterPatternMap& map, int slot) {
  if (map.entry[slot][0][0] == CharacterPatternMap::kEnd) return "end";
  std::string pattern;
  for (int position = 0; position < CharacterPatternMap::kPositions; ++position) {
    const std::uint8_t* entries = map.entry[slot][position];
    if (entries[0] == CharacterPatternMap::kEnd) {
      // A position after the last allows no byte at all.
      for (int byte = 1; byte < 256; ++byte) EXPECT_EQ(entries[byte], 0);
      continue;
    }
    int low = 0;
    while (low < 256 && entries[low] == 0) ++low;
    int high = 255;
    while (high > low && entries[high] == 0) --high;
    for (int byte = low; byte <= high && byte < 256; ++byte)
      EXPECT_EQ(entries[byte], CharacterPatternMap::kAllowed);
    char range[32];
    std::snprintf(range, sizeof range, "%s%02X-%02X", pattern.empty() ? "" : " ", low, high);
    pattern += range;
  }
  return pattern;
}

std::vector<std::string> PatternsOf(const CharacterPatternMap& map) {
  std::vector<std::string> patterns;
  for (int slot = 0; slot < CharacterPatternMap::kSlots; ++slot) {
    const std::string pattern = Pattern(map, slot);
    if (pattern == "end") return patterns;
    patterns.push_back(pattern);
  }
  ADD_FAILURE() << "no end mark";
  return patterns;
}

std::vector<std::string> PatternsOf(std::int32_t ccsid) {
  ReportCapture capture;
  capture.Context().ccsid = ccsid;
  SetValueForCodeRangeCheck(capture.Context());
  return PatternsOf(capture.Context().characterPatterns);
}

using Patterns = std::vector<std::string>;

TEST(SetValueForCodeRangeCheck, SingleByteCcsids) {
  EXPECT_EQ(PatternsOf(819), (Patterns{"20-7E", "A0-FF"}));
  EXPECT_EQ(PatternsOf(437), (Patterns{"20-7E", "80-FE"}));
  EXPECT_EQ(PatternsOf(850), PatternsOf(437));
}

TEST(SetValueForCodeRangeCheck, JapaneseCcsids) {
  EXPECT_EQ(PatternsOf(932),
            (Patterns{"20-7E", "A1-DF", "81-9F 40-7E", "81-9F 80-FC", "E0-FC 40-7E", "E0-FC 80-FC"}));
  EXPECT_EQ(PatternsOf(943), PatternsOf(932));
  EXPECT_EQ(PatternsOf(942), (Patterns{"20-7E", "80-80", "A0-DF", "FD-FF", "81-9F 40-7E", "81-9F 80-FC",
                                       "E0-FC 40-7E", "E0-FC 80-FC"}));
  EXPECT_EQ(PatternsOf(954), (Patterns{"20-7E", "A1-FE A1-FE", "8E-8E A1-E4", "8F-8F A1-FE A1-FE"}));
  EXPECT_EQ(PatternsOf(5050), PatternsOf(954));
  EXPECT_EQ(PatternsOf(33722), PatternsOf(954));
  EXPECT_EQ(PatternsOf(17338), PatternsOf(954));
}

TEST(SetValueForCodeRangeCheck, KoreanAndChineseCcsids) {
  EXPECT_EQ(PatternsOf(949), (Patterns{"20-7F", "8F-FE A1-FE"}));
  EXPECT_EQ(PatternsOf(1363), (Patterns{"20-7F", "81-FE 41-FE"}));
  EXPECT_EQ(PatternsOf(970), (Patterns{"20-7E", "A1-FE A1-FE"}));
  EXPECT_EQ(PatternsOf(1383), PatternsOf(970));
  EXPECT_EQ(PatternsOf(1381), (Patterns{"20-7E", "80-84", "8C-FE A1-FE"}));
  EXPECT_EQ(PatternsOf(1386), (Patterns{"20-80", "81-FE 40-FE"}));
  EXPECT_EQ(PatternsOf(5488), (Patterns{"20-80", "81-FE 40-FE", "81-FE 30-39 81-FE 30-39"}));
  EXPECT_EQ(PatternsOf(950), (Patterns{"20-7F", "81-FE 40-7E", "81-FE 81-FE"}));
  EXPECT_EQ(PatternsOf(1370), (Patterns{"20-80", "81-FE 40-7E", "81-FE 81-FE"}));
  EXPECT_EQ(PatternsOf(964), (Patterns{"20-7E", "A1-FE A1-FE", "8E-8E A2-B0 A1-FE A1-FE"}));
}

TEST(SetValueForCodeRangeCheck, Unicode) {
  EXPECT_EQ(PatternsOf(1208), (Patterns{"20-7F", "C2-DF 80-BF", "E0-EF 80-BF 80-BF"}));
}

TEST(SetValueForCodeRangeCheck, OtherCcsidsAllowPrintableAscii) {
  for (const std::int32_t ccsid : {0, -1, 500, 1200, 2147483647})
    EXPECT_EQ(PatternsOf(ccsid), (Patterns{"20-7E"})) << ccsid;
}

TEST(SetValueForCodeRangeCheck, NothingOfAnEarlierChoiceRemains) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  runContext.ccsid = 942;
  SetValueForCodeRangeCheck(runContext);
  runContext.ccsid = 819;
  SetValueForCodeRangeCheck(runContext);
  ReportCapture fresh;
  fresh.Context().ccsid = 819;
  SetValueForCodeRangeCheck(fresh.Context());
  EXPECT_EQ(std::memcmp(&runContext.characterPatterns, &fresh.Context().characterPatterns,
                        sizeof runContext.characterPatterns),
            0);
}

TEST(FillCharacterPatterns, TakesNineRowsAtMost) {
  std::vector<CcsidRangeRow> table;
  for (std::uint8_t row = 0; row < 12; ++row)
    table.push_back({77, {{static_cast<std::uint8_t>(0x40 + row), static_cast<std::uint8_t>(0x40 + row)}}});
  table.push_back({0, {{0x20, 0x7E}}});
  CharacterPatternMap map;
  FillCharacterPatterns(map, 77, table);
  const Patterns patterns = PatternsOf(map);
  ASSERT_EQ(patterns.size(), 9u);
  EXPECT_EQ(patterns.front(), "40-40");
  EXPECT_EQ(patterns.back(), "48-48");
  EXPECT_EQ(map.entry[9][0][0], CharacterPatternMap::kEnd);
}

TEST(FillCharacterPatterns, FivePositionsAndEmptyRanges) {
  const CcsidRangeRow table[] = {
      {77, {{0x01, 0x01}, {0x02, 0x02}, {0x03, 0x03}, {0x04, 0x04}, {0x00, 0xFF}}},
      {77, {{0x50, 0x40}}},
      {0, {{0x20, 0x7E}}},
  };
  CharacterPatternMap map;
  FillCharacterPatterns(map, 77, table);
  EXPECT_EQ(Pattern(map, 0), "01-01 02-02 03-03 04-04 00-FF");
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(map.entry[1][0][byte], 0) << "low above high allows nothing";
  EXPECT_EQ(map.entry[1][1][0], CharacterPatternMap::kEnd);
  EXPECT_EQ(Pattern(map, 2), "end");
}

TEST(FillCharacterPatterns, TableOfOnlyAnEndRow) {
  const CcsidRangeRow table[] = {{0, {{0x30, 0x39}}}};
  CharacterPatternMap map;
  FillCharacterPatterns(map, 819, table);
  EXPECT_EQ(PatternsOf(map), (Patterns{"30-39"}));
}

}  // namespace
}  // namespace quillon
