#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "base/dump_bytes.h"
#include "display/attribute_tables.h"
#include "display/constants.h"
#include "report_capture.h"
#include "structs/attribute_values.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr std::int32_t kHugeCount = 2147483647;
constexpr char kLabel[] = "ZKINQ/ZKSET - Attribute Selector";

std::vector<std::uint8_t> Words(std::initializer_list<std::int32_t> values) {
  std::vector<std::uint8_t> bytes;
  for (const std::int32_t value : values)
    for (int shift = 24; shift >= 0; shift -= 8)
      bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> shift));
  return bytes;
}

std::vector<std::uint8_t> Text(const std::string& text) {
  return {text.begin(), text.end()};
}

/// `text` padded with blanks.
std::string Padded(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

/// The name column.
std::string Field(const std::string& name) {
  return "|> " + (name.size() < 25 ? Padded(name, 25) : name) + ": ";
}

std::string Hex8(std::int32_t value) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%08X", static_cast<std::uint32_t>(value));
  return text;
}

std::string Notice(const std::string& label, std::int32_t value) {
  return "|**********************************\n|* Unknown : " + label + " " + Hex8(value) +
         "\n|**********************************\n";
}

/// The arrays of one call. Counts that a test does not set are those of the arrays.
struct Call {
  std::vector<std::uint8_t> selectors;
  std::vector<std::uint8_t> integers = {};
  std::vector<std::uint8_t> characters = {};
  std::int32_t selectorCount = static_cast<std::int32_t>(selectors.size() / 4);
  std::int32_t integerCount = static_cast<std::int32_t>(integers.size() / 4);
  std::int32_t characterLength = static_cast<std::int32_t>(characters.size());
};

void ShowIntegers(ReportCapture& capture, const Call& call) {
  ShowParsedZkinqZksetOptionsInt(capture.Context(), call.selectorCount, ViewOf(call.selectors),
                                 call.integerCount, ViewOf(call.integers));
}

void ShowCharacters(ReportCapture& capture, const Call& call) {
  ShowParsedZkinqZksetOptionsChar(capture.Context(), call.selectorCount, ViewOf(call.selectors),
                                  call.integerCount, ViewOf(call.integers), call.characterLength,
                                  ViewOf(call.characters));
}

std::string IntegerReport(const Call& call) {
  ReportCapture capture;
  ShowIntegers(capture, call);
  return capture.Report();
}

std::string CharacterReport(const Call& call) {
  ReportCapture capture;
  ShowCharacters(capture, call);
  return capture.Report();
}

const IntAttributeRow& RowOf(RunContext& runContext, std::int32_t selector) {
  const IntAttributeRow* row = nullptr;
  EXPECT_EQ(SearchZkAttributeTable(runContext, selector, nullptr, &row, nullptr), 0) << selector;
  return *row;
}

/// What an attribute's value shows behind a field name that the caller has written.
std::string ValueReport(std::int32_t selector, std::int32_t value, bool fixedWidth,
                        const std::string& description = "") {
  ReportCapture capture;
  const IntAttributeRow& row = RowOf(capture.Context(), selector);
  SearchIntZkAttrValueAndSetString(capture.Context(), value, row, fixedWidth, description);
  return capture.Report();
}

TEST(Selectors, ShowsIntegerAttributesOfASetCall) {
  const Call call = {Words({2, 136, 2016}), Words({819, 1}), Text(Padded("ORDERS.IN", 48))};
  EXPECT_EQ(IntegerReport(call),
            "|> CODED_CHAR_SET_ID        : 819 (ISO 8859-1 ASCII)\n"
            "|> ACCOUNTING_CONN_OVERRIDE : on / enabled\n");
  EXPECT_EQ(CharacterReport(call), "|> Q_NAME                   : ORDERS.IN\n");
}

TEST(Selectors, ShowsNamesAloneWithoutValues) {
  const Call call = {Words({2, 136, 2016, 2020, 3})};
  EXPECT_EQ(IntegerReport(call),
            "|> CODED_CHAR_SET_ID        : \n"
            "|> ACCOUNTING_CONN_OVERRIDE : \n"
            "|> CURRENT_Q_DEPTH          : \n");
  EXPECT_EQ(CharacterReport(call),
            "|> Q_NAME                   : \n"
            "|> NAMES                    : \n");
}

TEST(Selectors, ShowsNothingWithoutSelectors) {
  Call call = {Words({2, 2016}), Words({819}), Text("ABC")};
  for (const std::int32_t count : {0, -1, -2147483647 - 1}) {
    call.selectorCount = count;
    EXPECT_EQ(IntegerReport(call), "") << count;
    EXPECT_EQ(CharacterReport(call), "") << count;
  }
}

TEST(Selectors, ShowsNameAloneWhenIntegerValuesRunOut) {
  EXPECT_EQ(IntegerReport({Words({3, 15}), Words({7})}),
            "|> CURRENT_Q_DEPTH          : 7\n"
            "|> MAX_Q_DEPTH              : \n");
}

TEST(Selectors, ShowsValueThatNoTableNames) {
  EXPECT_EQ(IntegerReport({Words({136}), Words({5})}), "|> ACCOUNTING_CONN_OVERRIDE : 5 (Unknown value)\n");
}

TEST(Selectors, ShowsAttributesWithADisplayOfTheirOwnAsNumbers) {
  EXPECT_EQ(IntegerReport({Words({1228, 1243, 1021}), Words({256, 273, -3})}),
            "|> IACF_AUTH_OPTIONS        : 256\n"
            "|> IACF_ENCODING            : 273\n"
            "|> IACF_COMMAND             : -3\n");
}

TEST(Selectors, UnknownIntegerSelectorTakesAValueAndTheDisplayGoesOn) {
  ReportCapture capture;
  ShowIntegers(capture, {Words({2000, 3, 1999}), Words({41, 42})});
  EXPECT_EQ(capture.Report(), "|> (Unknown value)          : 41\n" + Notice(kLabel, 2000) +
                                  "|> CURRENT_Q_DEPTH          : 42\n"
                                  "|> (Unknown value)          : \n" +
                                  Notice(kLabel, 1999));
  EXPECT_EQ(capture.Terminal(),
            "Unknown API attribute : ZKINQ/ZKSET - Attribute Selector value 0x000007D0\n"
            "Unknown API attribute : ZKINQ/ZKSET - Attribute Selector value 0x000007CF\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(Selectors, SelectorsOutsideBothRangesAreShownNowhere) {
  const Call call = {Words({0, -1, -987, 3}), Words({8}), Text("X")};
  EXPECT_EQ(IntegerReport(call), "|> CURRENT_Q_DEPTH          : 8\n");
  EXPECT_EQ(CharacterReport(call), "");
}

TEST(Selectors, CutsCharacterValuesByTheirLengths) {
  const std::string buffer = Padded("FIRST", 48) + "20240305    " + Padded("rest of it", 10);
  EXPECT_EQ(CharacterReport({Words({2016, 2027, 2013, 2014, 2017}), {}, Text(buffer)}),
            "|> Q_NAME                   : FIRST\n"
            "|> ALTERATION_DATE          : 20240305\n"
            "|> Q_DESC                   : rest of it\n"
            "|> Q_MGR_DESC               : \n"
            "|> REMOTE_Q_MGR_NAME        : \n");
}

TEST(Selectors, NamesTakesItsCountFromNameCount) {
  const std::string buffer = Padded("NAME.ONE", 48) + Padded("NAME.TWO", 48) + "NAME";
  ASSERT_EQ(buffer.size(), 100U);
  EXPECT_EQ(CharacterReport({Words({19, 2020}), Words({3}), Text(buffer)}),
            "|> NAMES                    : NAME.ONE\n"
            "|> NAMES                    : NAME.TWO\n"
            "|> NAMES                    : NAME\n");
}

TEST(Selectors, NamesBeyondTheBufferHaveNoText) {
  EXPECT_EQ(CharacterReport({Words({19, 2020, 2016}), Words({3}), Text(Padded("ONLY.ONE", 48))}),
            "|> NAMES                    : ONLY.ONE\n"
            "|> NAMES                    : \n"
            "|> NAMES                    : \n"
            "|> Q_NAME                   : \n");
}

TEST(Selectors, NamesWithoutNameCountTakesNothing) {
  const std::string buffer = Padded("ORDERS.IN", 48);
  EXPECT_EQ(CharacterReport({Words({3, 2020, 2016}), Words({5}), Text(buffer)}),
            "|> Q_NAME                   : ORDERS.IN\n");
  // The selector is there, its value is not.
  EXPECT_EQ(CharacterReport({Words({3, 19, 2020, 2016}), Words({5}), Text(buffer)}),
            "|> Q_NAME                   : ORDERS.IN\n");
  EXPECT_EQ(CharacterReport({Words({19, 2020, 2016}), Words({0}), Text(buffer)}),
            "|> Q_NAME                   : ORDERS.IN\n");
  EXPECT_EQ(CharacterReport({Words({19, 2020, 2016}), Words({-4}), Text(buffer)}),
            "|> Q_NAME                   : ORDERS.IN\n");
}

TEST(Selectors, NameCountIsPairedWithSelectorsUpTo252Only) {
  const std::string buffer = Padded("ONE", 48) + Padded("TWO", 48) + Padded("THREE", 48);
  // 252 takes the first value, so NAME_COUNT has the second.
  EXPECT_EQ(CharacterReport({Words({252, 19, 2020}), Words({1, 2}), Text(buffer)}),
            "|> NAMES                    : ONE\n"
            "|> NAMES                    : TWO\n");
  // 253 takes none here although the integer display gives it the first value.
  EXPECT_EQ(CharacterReport({Words({253, 19, 2020}), Words({1, 2}), Text(buffer)}),
            "|> NAMES                    : ONE\n");
}

TEST(Selectors, UnknownCharacterSelectorEndsTheDisplay) {
  ReportCapture capture;
  ShowCharacters(capture, {Words({2016, 2125, 2017}), {}, Text(Padded("ORDERS.IN", 96))});
  EXPECT_EQ(capture.Report(), "|> Q_NAME                   : ORDERS.IN\n" + Notice(kLabel, 2125));
  EXPECT_EQ(capture.Terminal(),
            "Unknown API attribute : ZKINQ/ZKSET - Attribute Selector value 0x0000084D\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(Selectors, IdentifiersAboveTheCharacterSelectorsAreUnknownToo) {
  // 3501 is the name of a channel in a command, not an attribute that a call can inquire.
  EXPECT_EQ(CharacterReport({Words({3501, 2016}), {}, Text("X")}), Notice(kLabel, 3501));
  // 2054 lies inside the range and has no row.
  EXPECT_EQ(CharacterReport({Words({2054, 2016}), {}, Text("X")}), Notice(kLabel, 2054));
}

TEST(Selectors, CountsBeyondTheDataReadZeros) {
  Call call = {Words({3, 19, 2020, 2016}), Words({7}), Text("ONE")};
  call.selectorCount = kHugeCount;
  call.integerCount = kHugeCount;
  EXPECT_EQ(IntegerReport(call),
            "|> CURRENT_Q_DEPTH          : 7\n"
            "|> NAME_COUNT               : 0\n");
  EXPECT_EQ(CharacterReport(call), "|> Q_NAME                   : ONE\n");
}

TEST(Selectors, CharacterLengthBeyondTheDataReadsNuls) {
  Call call = {Words({2016, 2017, 2018}), {}, Text("ONE")};
  call.characterLength = 100;
  EXPECT_EQ(CharacterReport(call),
            "|> Q_NAME                   : ONE\n"
            "|> REMOTE_Q_MGR_NAME        : \n"
            "|> REMOTE_Q_NAME            : \n");
  call.characterLength = -5;
  EXPECT_EQ(CharacterReport(call),
            "|> Q_NAME                   : \n"
            "|> REMOTE_Q_MGR_NAME        : \n"
            "|> REMOTE_Q_NAME            : \n");
}

TEST(Selectors, HugeNameCountIsBoundedByTheBuffer) {
  Call call = {Words({19, 2020, 2020}), Words({kHugeCount}), Text(Padded("ONE", 48) + "TWO")};
  call.selectorCount = kHugeCount;
  call.characterLength = kHugeCount;
  std::string expected =
      "|> NAMES                    : ONE\n"
      "|> NAMES                    : TWO\n";
  for (int line = 2; line < 51; ++line) expected += "|> NAMES                    : \n";
  EXPECT_EQ(CharacterReport(call), expected);
}

TEST(Selectors, ClaimedSelectorsEndSoon) {
  DumpBytes dump;
  dump.Start(kHugeCount);
  for (const std::uint8_t byte : Words({3})) ASSERT_TRUE(dump.Append(byte));
  ReportCapture capture;
  ShowParsedZkinqZksetOptionsInt(capture.Context(), kHugeCount, dump.Declared(), 0, ByteView());
  ShowParsedZkinqZksetOptionsChar(capture.Context(), kHugeCount, dump.Declared(), 0, ByteView(), 0,
                                  ByteView());
  EXPECT_EQ(capture.Report(), "|> CURRENT_Q_DEPTH          : \n");
}

TEST(Selectors, TruncatedArraysOfEveryLength) {
  const std::vector<std::uint8_t> selectors = Words({2, 136, 19, 2020, 2016, 1014});
  const std::vector<std::uint8_t> integers = Words({819, 1, 2, 2016});
  for (std::size_t length = 0; length <= selectors.size(); ++length) {
    Call call = {{selectors.begin(), selectors.begin() + static_cast<std::ptrdiff_t>(length)},
                 {integers.begin(), integers.begin() + static_cast<std::ptrdiff_t>(length * 2 / 3)},
                 Text(std::string(length, 'x'))};
    call.selectorCount = 6;
    call.integerCount = 4;
    call.characterLength = 24;
    const std::string report = IntegerReport(call) + CharacterReport(call);
    if (length >= 4) {
      EXPECT_EQ(report.substr(0, 30), "|> CODED_CHAR_SET_ID        : ") << length;
    }
  }
}

TEST(Selectors, ReadsAsStored) {
  ReportCapture capture;
  capture.Context().storedOrder = ByteOrder::Little;
  ShowIntegers(capture, {BytesOfHex("03000000"), BytesOfHex("07000000")});
  EXPECT_EQ(capture.Report(), "|> CURRENT_Q_DEPTH          : 7\n");
}

/// The first row of each key, as reports show it.
template <typename Row>
std::map<std::int32_t, const Row*> FirstRows(const Row* table) {
  std::map<std::int32_t, const Row*> rows;
  for (; RowKey(*table) != kEndOfTable; ++table) rows.emplace(RowKey(*table), table);
  return rows;
}

TEST(Selectors, EveryIntegerSelectorShowsItsNameAndNumber) {
  const auto rows = FirstRows(Constant_ZkAttrsZkia);
  EXPECT_EQ(rows.size(), 807U);  // 814 rows, seven of them second ones
  for (const auto& [selector, row] : rows) {
    EXPECT_EQ(IntegerReport({Words({selector})}), Field(row->name) + "\n") << selector;
    if (row->values != nullptr || selector == 2) continue;
    EXPECT_EQ(IntegerReport({Words({selector}), Words({-77})}), Field(row->name) + "-77\n") << selector;
  }
}

TEST(Selectors, EveryValueOfEveryValueTableIsNamed) {
  int tables = 0;
  for (const auto& [selector, row] : FirstRows(Constant_ZkAttrsZkia)) {
    if (row->values == nullptr || row->values == kValueIsSelector) continue;
    ++tables;
    for (const auto& [value, valueRow] : FirstRows(row->values)) {
      const std::string name = valueRow->name;
      EXPECT_EQ(IntegerReport({Words({selector}), Words({value})}), Field(row->name) + name + "\n");
      char fixed[200];
      std::snprintf(fixed, sizeof fixed, "%6d (%s) (text)\n", value, name.c_str());
      EXPECT_EQ(ValueReport(selector, value, true, "text"), fixed) << selector;
    }
    EXPECT_EQ(IntegerReport({Words({selector}), Words({-986})}), Field(row->name) + "-986 (Unknown value)\n");
    EXPECT_EQ(IntegerReport({Words({selector}), Words({kEndOfTable})}),
              Field(row->name) + "-987 (Unknown value)\n");
    EXPECT_EQ(ValueReport(selector, -986, true), "  -986 (Unknown value)\n");
  }
  EXPECT_GE(tables, 200);
}

TEST(Selectors, EveryIdentifierIsNamedAsAValue) {
  std::map<std::int32_t, std::string> names;
  for (const auto& [selector, row] : FirstRows(Constant_ZkAttrsZkia)) names.emplace(selector, row->name);
  for (const auto& [selector, row] : FirstRows(Constant_ZkAttrsZkca)) names.emplace(selector, row->name);
  for (const ConstantRow* table :
       {Constant_ZkAttrsZkbacf, Constant_ZkAttrsZkgacf, Constant_ZkAttrsZkcacfcachcamo})
    for (const auto& [identifier, row] : FirstRows(table)) names.emplace(identifier, row->name);
  int markers = 0;
  for (const auto& [selector, row] : FirstRows(Constant_ZkAttrsZkia)) {
    if (row->values != kValueIsSelector) continue;
    ++markers;
    EXPECT_EQ(ValueReport(selector, 2016, false), "Q_NAME\n") << selector;
    EXPECT_EQ(ValueReport(selector, 2016, true), "  2016 (Q_NAME)\n") << selector;
    EXPECT_EQ(ValueReport(selector, 2125, true, "why"), "  2125 (Unknown value) (why)\n") << selector;
  }
  EXPECT_EQ(markers, 26);
  for (const auto& [identifier, name] : names)
    EXPECT_EQ(IntegerReport({Words({1014}), Words({identifier})}), Field("IACF_SELECTOR") + name + "\n");
}

TEST(Selectors, EveryCharacterSelectorTakesItsLength) {
  const auto rows = FirstRows(Constant_ZkAttrsZkca);
  EXPECT_EQ(rows.size(), 106U);  // 107 rows, one of them a second one
  for (const auto& [selector, row] : rows) {
    if (selector == 2020) continue;  // NAMES needs a count
    const std::string value(static_cast<std::size_t>(row->length), 'v');
    EXPECT_EQ(CharacterReport({Words({selector, 2016}), {}, Text(value + "NEXT")}),
              Field(row->name) + value + "\n" + Field("Q_NAME") + "NEXT\n")
        << selector;
  }
}

TEST(AttributeValues, PlainNumber) {
  EXPECT_EQ(ValueReport(3, 5, false), "5\n");
  EXPECT_EQ(ValueReport(3, 5, true), "     5\n");
  EXPECT_EQ(ValueReport(3, -5, true, "why"), "    -5 (why)\n");
  EXPECT_EQ(ValueReport(3, 1234567, true), "1234567\n");
}

TEST(AttributeValues, AuthOptions) {
  EXPECT_EQ(ValueReport(1228, 0x173, true, "left out"),
            "CUMULATIVE / ENTITY_EXPLICIT / ENTITY_SET / NAME_ALL_MATCHING / NAME_AS_WILDCARD / "
            "NAME_EXPLICIT\n");
  EXPECT_EQ(ValueReport(1228, 0x101, true), "CUMULATIVE / ENTITY_EXPLICIT\n");
  EXPECT_EQ(ValueReport(1228, 0, true), "(none)\n");
  EXPECT_EQ(ValueReport(1228, 0x80, true), "(none)\n" + Notice("ZKIACF_AUTH_OPTIONS", 0x80));
  EXPECT_EQ(ValueReport(1228, 0x82, false), "ENTITY_SET\n" + Notice("ZKIACF_AUTH_OPTIONS", 0x82));
}

TEST(AttributeValues, ReportAndMessageFlagsEndOnALineOfTheirOwn) {
  EXPECT_EQ(ValueReport(1255, 0x7000001, true, "left out"),
            "0x07000001 (EXCEPTION_WITH_FULL_DATA / PAN\n)\n");
  EXPECT_EQ(ValueReport(1255, 0, true), "0x00000000 ((none)\n)\n");
  // Unknown bits of these two are not reported here.
  EXPECT_EQ(ValueReport(1255, 8, true), "0x00000008 ((none)\n)\n");
  EXPECT_EQ(ValueReport(1247, 0x18, true, "left out"), "0x00000018 (MSG_IN_GROUP / LAST_MSG_IN_GROUP\n)\n");
  EXPECT_EQ(ValueReport(1247, -1, false),
            "0xFFFFFFFF (SEGMENTATION_ALLOWED / MSG_IN_GROUP / LAST_MSG_IN_GROUP / SEGMENT / "
            "LAST_SEGMENT\n)\n");
}

TEST(AttributeValues, Reasons) {
  for (const std::int32_t selector : {1013, 1072, 1245}) {
    EXPECT_EQ(ValueReport(selector, 2035, true, "left out"), "  2035 (ZKRC_NOT_AUTHORIZED)\n") << selector;
    EXPECT_EQ(ValueReport(selector, 0, false), "0 (none)\n") << selector;
    EXPECT_EQ(ValueReport(selector, -9, true), "    -9 ((Unknown VZK Reason code))\n") << selector;
  }
}

TEST(AttributeValues, Command) {
  EXPECT_EQ(ValueReport(1021, 13, true, "left out"), "    13 (INQUIRE_Q)\n");
  EXPECT_EQ(ValueReport(1021, 213, false), "213 (RESET_CF_STRUC)\n");
  EXPECT_EQ(ValueReport(1021, 210, false), "210 ((Unknown value))\n");
}

TEST(AttributeValues, EncodingLineFollowsTheNumber) {
  EXPECT_EQ(ValueReport(1243, 273, true, "left out"),
            "   273 |> Encoding                 : 273 (Native encoding) INTEGER_NORMAL / DECIMAL_NORMAL / "
            "FLOAT_IEEE_NORMAL\n");
  EXPECT_EQ(ValueReport(1243, 546, false),
            "546 |> Encoding                 : 546 INTEGER_REVERSED / DECIMAL_REVERSED / "
            "FLOAT_IEEE_REVERSED\n");
}

TEST(AttributeValues, RegistrationOptions) {
  EXPECT_EQ(ValueReport(1081, 0x3FFFFF, true, "left out"),
            "CORREL_ID_AS_IDENTITY / ANONYMOUS / LOCAL / DIRECT_REQUESTS / NEW_PUBLICATION_ONLY / "
            "PUBLISH_ON_REQUEST_ONLY / DEREGISTER_ALL / INCLUDE_STREAM_NAME / INFORM_IF_RETAINED / "
            "DUPLICATES_OK / NON_PERSISTENT / PERSISTENT / PERSISTENT_AS_PUBLISH / PERSISTENT_AS_Q / "
            "ADD_NAME / NO_ALTERATION / FULL_RESPONSE / JOIN_SHARED / JOIN_EXCLUSIVE / LEAVE_ONLY / "
            "VARIABLE_USER_ID / LOCKED\n");
  EXPECT_EQ(ValueReport(1081, 0, true), "(none)\n");
  EXPECT_EQ(ValueReport(1081, 0x400000, true), "(none)\n" + Notice("ZKIACF_REGISTRATION_OPTIONS", 0x400000));
  EXPECT_EQ(ValueReport(1081, -0x7FFFFFFF, true),
            "CORREL_ID_AS_IDENTITY\n" + Notice("ZKIACF_REGISTRATION_OPTIONS", -0x7FFFFFFF));
}

TEST(AttributeValues, PublicationOptions) {
  EXPECT_EQ(ValueReport(1082, 31, true),
            "CORREL_ID_AS_IDENTITY / RETAIN_PUBLICATION / OTHER_SUBSCRIBERS_ONLY / NO_REGISTRATION / "
            "IS_RETAINED_PUBLICATION\n");
  EXPECT_EQ(ValueReport(1082, 0, true), "(none)\n");
  EXPECT_EQ(ValueReport(1082, 32, true), "(none)\n" + Notice("ZKIACF_PUBLICATION_OPTIONS", 32));
}

TEST(AttributeValues, DeleteOptions) {
  EXPECT_EQ(ValueReport(1092, 4, true), "LOCAL\n");
  EXPECT_EQ(ValueReport(1092, 0, true), "(none)\n");
  EXPECT_EQ(ValueReport(1092, 5, true), "LOCAL\n" + Notice("ZKIACF_DELETE_OPTIONS", 5));
  EXPECT_EQ(ValueReport(1092, 8, true), "(none)\n" + Notice("ZKIACF_DELETE_OPTIONS", 8));
}

}  // namespace
}  // namespace quillon
