#include "display/attribute_tables.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <set>

#include "base/run_context.h"
#include "display/constants.h"

namespace quillon {
namespace {

/// What a lookup hands out.
struct Found {
  int returnCode = 99;
  const char* name = nullptr;
  const IntAttributeRow* intRow = nullptr;
  const CharAttributeRow* charRow = nullptr;
};

Found Search(std::int32_t identifier) {
  RunContext runContext;
  Found found;
  found.returnCode =
      SearchZkAttributeTable(runContext, identifier, &found.name, &found.intRow, &found.charRow);
  return found;
}

void ExpectNotFound(std::int32_t identifier) {
  SCOPED_TRACE(identifier);
  const Found found = Search(identifier);
  EXPECT_EQ(found.returnCode, -1);
  EXPECT_STREQ(found.name, "(Unknown value)");
  EXPECT_EQ(found.intRow, Constant_ZkAttrsZkiaUnknown);
  EXPECT_EQ(found.charRow, Constant_ZkAttrsZkcaUnknown);
}

void ExpectInteger(std::int32_t identifier, const char* name) {
  SCOPED_TRACE(identifier);
  const Found found = Search(identifier);
  EXPECT_EQ(found.returnCode, 0);
  EXPECT_STREQ(found.name, name);
  EXPECT_EQ(found.intRow->selector, identifier);
  EXPECT_STREQ(found.intRow->name, name);
  EXPECT_EQ(found.charRow, Constant_ZkAttrsZkcaUnknown);
}

void ExpectCharacter(std::int32_t identifier, const char* name, std::int32_t length) {
  SCOPED_TRACE(identifier);
  const Found found = Search(identifier);
  EXPECT_EQ(found.returnCode, 0);
  EXPECT_STREQ(found.name, name);
  EXPECT_EQ(found.charRow->selector, identifier);
  EXPECT_STREQ(found.charRow->name, name);
  EXPECT_EQ(found.charRow->length, length);
  EXPECT_EQ(found.intRow, Constant_ZkAttrsZkiaUnknown);
}

void ExpectNameOnly(std::int32_t identifier, const char* name) {
  SCOPED_TRACE(identifier);
  const Found found = Search(identifier);
  EXPECT_EQ(found.returnCode, 0);
  EXPECT_STREQ(found.name, name);
  EXPECT_EQ(found.intRow, Constant_ZkAttrsZkiaUnknown);
  EXPECT_EQ(found.charRow, Constant_ZkAttrsZkcaUnknown);
}

const char* PositionText(std::int32_t parameter, std::int32_t position) {
  RunContext runContext;
  return SearchIntListEntryDescrption(runContext, parameter, position);
}

TEST(AttributeTables, UnknownRows) {
  EXPECT_EQ(Constant_ZkAttrsZkiaUnknown->selector, -987);
  EXPECT_STREQ(Constant_ZkAttrsZkiaUnknown->name, "(Unknown value)");
  EXPECT_EQ(Constant_ZkAttrsZkiaUnknown->values, nullptr);
  EXPECT_EQ(Constant_ZkAttrsZkcaUnknown->selector, -987);
  EXPECT_STREQ(Constant_ZkAttrsZkcaUnknown->name, "(Unknown value)");
  EXPECT_EQ(Constant_ZkAttrsZkcaUnknown->length, 0);
}

TEST(AttributeTables, IntegersLieFrom1To2000) {
  ExpectInteger(1, "APPL_TYPE");
  ExpectInteger(2, "CODED_CHAR_SET_ID");
  ExpectInteger(136, "ACCOUNTING_CONN_OVERRIDE");
  ExpectInteger(1642, "IACH_CHANNEL_SUMMARY_ATTRS");
  ExpectNotFound(0);
  ExpectNotFound(253);
  ExpectNotFound(2000);
}

TEST(AttributeTables, CharactersLieFrom2001To2124) {
  ExpectCharacter(2001, "APPL_ID", 256);
  ExpectCharacter(2016, "Q_NAME", 48);
  ExpectCharacter(2124, "CLUS_CHL_NAME", 20);
  ExpectNotFound(2054);
  ExpectNotFound(2125);
}

TEST(AttributeTables, ByteStringsLieFrom7001To7035) {
  ExpectNotFound(7000);
  ExpectNameOnly(7001, "BACF_EVENT_ACCOUNTING_TOKEN");
  ExpectNotFound(7017);
  ExpectNameOnly(7035, "BACF_XQH_MSG_ID");
  ExpectNotFound(7036);
}

TEST(AttributeTables, GroupsLieFrom8001To8014) {
  ExpectNotFound(8000);
  ExpectNameOnly(8001, "GACF_COMMAND_CONTEXT");
  ExpectNameOnly(8014, "GACF_APP_DIST_LIST");
  ExpectNotFound(8015);
}

TEST(AttributeTables, EverythingElseIsACharacterIdentifierOfPcf) {
  ExpectNotFound(2700);
  ExpectNameOnly(2701, "CAMO_CLOSE_DATE");
  ExpectNameOnly(2712, "CAMO_START_TIME");
  ExpectNotFound(3000);
  ExpectNameOnly(3001, "CACF_FROM_Q_NAME");
  ExpectNameOnly(3204, "CACF_XQH_PUT_DATE");
  ExpectNameOnly(3501, "CACH_CHANNEL_NAME");
  ExpectNameOnly(3559, "CACH_SSL_KEY_RESET_TIME");
  ExpectNameOnly(3560, "ZKCACH_REMOTE_VERSION");
  ExpectNameOnly(3569, "ZKCACH_SSL_CIPHER_SUITE");
  ExpectNotFound(3570);
}

TEST(AttributeTables, NegativeIdentifiersAndTheEndRowsAreNotFound) {
  ExpectNotFound(-1);
  ExpectNotFound(-987);
  ExpectNotFound(std::numeric_limits<std::int32_t>::min());
  ExpectNotFound(std::numeric_limits<std::int32_t>::max());
}

TEST(AttributeTables, TheFirstOfTwoRowsWins) {
  ExpectInteger(1008, "IACF_QUIESCE");
  ExpectInteger(1013, "IACF_ERROR_ID");
  ExpectInteger(1529, "IACH_LAST_SEQ_NUMBER");
  ExpectInteger(1532, "IACH_CURRENT_SEQ_NUMBER");
  ExpectInteger(1536, "IACH_BYTES_RCVD");
  ExpectInteger(1539, "IACH_BUFFERS_RCVD");
  ExpectInteger(1634, "IACH_MSGS_RECEIVED");
  ExpectCharacter(2002, "BASE_Q_NAME", 48);
}

TEST(AttributeTables, OutputsMayBeAbsent) {
  RunContext runContext;
  for (const std::int32_t identifier : {1, 2001, 3001, 7001, 8001}) {
    EXPECT_EQ(SearchZkAttributeTable(runContext, identifier, nullptr, nullptr, nullptr), 0) << identifier;
  }
  EXPECT_EQ(SearchZkAttributeTable(runContext, 0, nullptr, nullptr, nullptr), -1);

  const char* name = nullptr;
  EXPECT_EQ(SearchZkAttributeTable(runContext, 19, &name, nullptr, nullptr), 0);
  EXPECT_STREQ(name, "NAME_COUNT");
  const CharAttributeRow* charRow = nullptr;
  EXPECT_EQ(SearchZkAttributeTable(runContext, 19, nullptr, nullptr, &charRow), 0);
  EXPECT_EQ(charRow, Constant_ZkAttrsZkcaUnknown);
  const IntAttributeRow* intRow = nullptr;
  EXPECT_EQ(SearchZkAttributeTable(runContext, 19, nullptr, &intRow, nullptr), 0);
  EXPECT_EQ(intRow->selector, 19);
}

TEST(AttributeTables, EveryRowIsFoundUnlessAnEarlierOneHasItsKey) {
  std::set<std::int32_t> seen;
  for (const IntAttributeRow* row = Constant_ZkAttrsZkia; row->selector != kEndOfTable; ++row) {
    const Found found = Search(row->selector);
    EXPECT_EQ(found.returnCode, 0);
    EXPECT_EQ(found.intRow == row, seen.insert(row->selector).second) << row->name;
  }
  EXPECT_EQ(seen.size(), 807u);
  seen.clear();
  for (const CharAttributeRow* row = Constant_ZkAttrsZkca; row->selector != kEndOfTable; ++row) {
    const Found found = Search(row->selector);
    EXPECT_EQ(found.returnCode, 0);
    EXPECT_EQ(found.charRow == row, seen.insert(row->selector).second) << row->name;
  }
  EXPECT_EQ(seen.size(), 106u);
  for (const ConstantRow* table :
       {&Constant_ZkAttrsZkbacf[0], &Constant_ZkAttrsZkgacf[0], &Constant_ZkAttrsZkcacfcachcamo[0]}) {
    for (; table->value != kEndOfTable; ++table) ExpectNameOnly(table->value, table->name);
  }
}

TEST(AttributeTables, FirstLastAndEndRow) {
  EXPECT_EQ(Constant_ZkAttrsZkia[0].selector, 136);
  EXPECT_EQ(Constant_ZkAttrsZkia[813].selector, 1642);
  EXPECT_EQ(Constant_ZkAttrsZkia[814].selector, -987);
  EXPECT_STREQ(Constant_ZkAttrsZkia[814].name, "(Unknown value)");
  EXPECT_EQ(Constant_ZkAttrsZkia[814].values, nullptr);
  EXPECT_EQ(Constant_ZkAttrsZkca[0].selector, 2027);
  EXPECT_EQ(Constant_ZkAttrsZkca[106].selector, 2124);
  EXPECT_EQ(Constant_ZkAttrsZkca[107].selector, -987);
  EXPECT_STREQ(Constant_ZkAttrsZkca[107].name, "(Unknown value)");
  EXPECT_EQ(Constant_ZkAttrsZkca[107].length, 0);
}

TEST(AttributeTables, ValueTables) {
  for (const std::int32_t selector : {136, 133, 134, 124, 122, 123, 129, 130, 127, 128}) {
    EXPECT_EQ(Search(selector).intRow->values, Constant_Zkmon) << selector;
  }
  EXPECT_STREQ(SearchConstantInt(1, Search(136).intRow->values), "on / enabled");
  EXPECT_STREQ(SearchConstantInt(-3, Search(136).intRow->values), "queue manager");
  EXPECT_STREQ(SearchConstantInt(2, Search(136).intRow->values), "(Unknown value)");
  EXPECT_EQ(Search(2).intRow->values, nullptr);
  EXPECT_EQ(Search(19).intRow->values, nullptr);
  EXPECT_EQ(Search(1228).intRow->values, nullptr);
}

TEST(AttributeTables, NumberOfDifferentValueTables) {
  std::set<const ConstantRow*> valueTables;
  for (const IntAttributeRow* row = Constant_ZkAttrsZkia; row->selector != kEndOfTable; ++row) {
    if (row->values != nullptr && row->values != kValueIsSelector) valueTables.insert(row->values);
  }
  EXPECT_EQ(valueTables.size(), 148u);
}

TEST(AttributeTables, SelectorsWhoseValuesAreSelectors) {
  const std::set<std::int32_t> expected = {1001, 1002, 1003, 1004, 1012, 1014, 1015, 1019, 1026,
                                           1093, 1103, 1107, 1110, 1114, 1222, 1223, 1224, 1225,
                                           1229, 1264, 1269, 1287, 1291, 1301, 1318, 1524};
  std::set<std::int32_t> marked;
  for (const IntAttributeRow* row = Constant_ZkAttrsZkia; row->selector != kEndOfTable; ++row) {
    if (row->values == kValueIsSelector) marked.insert(row->selector);
  }
  EXPECT_EQ(marked, expected);
  EXPECT_EQ(kValueIsSelector->value, kEndOfTable);
}

TEST(AttributeTables, CharacterAttributeLengths) {
  // clang-format off
  const CharAttributeRow expected[] = {
    {2027, "ALTERATION_DATE", 12},
    {2028, "ALTERATION_TIME", 8},
    {2001, "APPL_ID", 256},
    {2053, "AUTH_INFO_CONN_NAME", 264},
    {2046, "AUTH_INFO_DESC", 64},
    {2045, "AUTH_INFO_NAME", 48},
    {2091, "AUTO_REORG_CATALOG", 44},
    {2090, "AUTO_REORG_START_TIME", 4},
    {2019, "BACKOUT_REQ_Q_NAME", 48},
    {2002, "BASE_Q_NAME", 48},
    {2068, "BATCH_INTERFACE_ID", 8},
    {2052, "CF_STRUC_DESC", 64},
    {2039, "CF_STRUC_NAME", 12},
    {2026, "CHANNEL_AUTO_DEF_EXIT", 128},
    {2076, "CHINIT_SERVICE_PARM", 32},
    {2037, "CLUSTER_DATE", 12},
    {2029, "CLUSTER_NAME", 48},
    {2030, "CLUSTER_NAMELIST", 48},
    {2031, "CLUSTER_Q_MGR_NAME", 48},
    {2038, "CLUSTER_TIME", 8},
    {2034, "CLUSTER_WORKLOAD_DATA", 32},
    {2033, "CLUSTER_WORKLOAD_EXIT", 128},
    {2003, "COMMAND_INPUT_Q_NAME", 48},
    {2067, "COMMAND_REPLY_Q_NAME", 48},
    {2004, "CREATION_DATE", 12},
    {2005, "CREATION_TIME", 8},
    {2006, "DEAD_LETTER_Q_NAME", 48},
    {2025, "DEF_XMIT_Q_NAME", 48},
    {2071, "DNS_GROUP", 18},
    {2007, "ENV_DATA", 128},
    {2041, "IGQ_USER_ID", 12},
    {2008, "INITIATION_Q_NAME", 48},
    {2048, "LDAP_PASSWORD", 32},
    {2047, "LDAP_USER_NAME", 1024},
    {2072, "LU_GROUP_NAME", 8},
    {2073, "LU_NAME", 8},
    {2074, "LU62_ARM_SUFFIX", 2},
    {2066, "MONITOR_Q_NAME", 48},
    {2009, "NAMELIST_DESC", 64},
    {2010, "NAMELIST_NAME", 48},
    {2020, "NAMES", 48},
    {2086, "PASS_TICKET_APPL", 8},
    {2011, "PROCESS_DESC", 64},
    {2012, "PROCESS_NAME", 48},
    {2013, "Q_DESC", 64},
    {2014, "Q_MGR_DESC", 64},
    {2032, "Q_MGR_IDENTIFIER", 48},
    {2015, "Q_MGR_NAME", 48},
    {2016, "Q_NAME", 48},
    {2040, "QSG_NAME", 4},
    {2017, "REMOTE_Q_MGR_NAME", 48},
    {2018, "REMOTE_Q_NAME", 48},
    {2035, "REPOSITORY_NAME", 48},
    {2036, "REPOSITORY_NAMELIST", 48},
    {2078, "SERVICE_DESC", 64},
    {2077, "SERVICE_NAME", 32},
    {2080, "SERVICE_START_ARGS", 255},
    {2079, "SERVICE_START_COMMAND", 255},
    {2082, "SERVICE_STOP_ARGS", 255},
    {2081, "SERVICE_STOP_COMMAND", 255},
    {2084, "STDERR_DESTINATION", 255},
    {2083, "STDOUT_DESTINATION", 255},
    {2050, "SSL_CRL_NAMELIST", 48},
    {2051, "SSL_CRYPTO_HARDWARE", 256},
    {2069, "SSL_KEY_LIBRARY", 44},
    {2070, "SSL_KEY_MEMBER", 8},
    {2049, "SSL_KEY_REPOSITORY", 256},
    {2022, "STORAGE_CLASS", 8},
    {2042, "STORAGE_CLASS_DESC", 64},
    {2065, "SYSTEM_LOG_Q_NAME", 48},
    {2075, "TCP_NAME", 8},
    {2085, "TPIPE_NAME", 8},
    {2064, "TRIGGER_CHANNEL_NAME", 20},
    {2023, "TRIGGER_DATA", 64},
    {2062, "TRIGGER_PROGRAM_NAME", 8},
    {2063, "TRIGGER_TERM_ID", 4},
    {2061, "TRIGGER_TRANS_ID", 4},
    {2021, "USER_DATA", 128},
    {2024, "XMIT_Q_NAME", 48},
    {2105, "ADMIN_TOPIC_NAME", 48},
    {2101, "CHILD", 48},
    {2096, "MODEL_DURABLE_Q", 48},
    {2097, "MODEL_NON_DURABLE_Q", 48},
    {2102, "PARENT", 48},
    {2098, "RESUME_DATE", 12},
    {2099, "RESUME_TIME", 8},
    {2093, "TOPIC_DESC", 64},
    {2092, "TOPIC_NAME", 48},
    {2094, "TOPIC_STRING", 10240},
    {2109, "AUTH_INFO_OCSP_URL", 256},
    {2110, "COMM_INFO_NAME", 48},
    {2111, "COMM_INFO_DESC", 64},
    {2112, "POLICY_NAME", 48},
    {2113, "SIGNER_DN", 1024},
    {2120, "VERSION", 8},
    {2115, "INSTALLATION_DESC", 64},
    {2116, "INSTALLATION_NAME", 16},
    {2117, "INSTALLATION_PATH", 256},
    {2118, "CHLAUTH_DESC", 64},
    {2119, "CUSTOM", 128},
    {2122, "XR_VERSION", 8},
    {2123, "XR_SSL_CIPHER_SUITES", 32},
    {2124, "CLUS_CHL_NAME", 20},
  };
  // clang-format on
  for (const CharAttributeRow& row : expected) ExpectCharacter(row.selector, row.name, row.length);
  EXPECT_EQ(Search(2060).charRow->length, 8);
  EXPECT_EQ(Search(2043).charRow->length, 8);
  EXPECT_EQ(Search(2044).charRow->length, 16);
}

TEST(IntListPositions, EveryListHasItsTexts) {
  struct Expected {
    std::int32_t parameter;
    const ConstantRow* positions;
    const char* textOfFirst;
  };
  // clang-format off
  const Expected expected[] = {
    {714, Constant_ZkIntListZkdiscType, "Disconnect type - normal"},
    {733, Constant_ZkIntListZkot, "Object type - none"},
    {751, Constant_ZkIntListZkot, "Object type - none"},
    {709, Constant_ZkIntListZkot, "Object type - none"},
    {757, Constant_ZkIntListZkot, "Object type - none"},
    {727, Constant_ZkIntListZkot, "Object type - none"},
    {752, Constant_ZkIntListZkot, "Object type - none"},
    {744, Constant_ZkIntListZkot, "Object type - none"},
    {753, Constant_ZkIntListZkot, "Object type - none"},
    {735, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {734, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {748, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {722, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {747, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {705, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {745, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {728, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {758, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {746, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {737, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {736, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {724, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {723, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {707, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {706, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {743, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {741, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {742, Constant_ZkIntListPersistence, "for nonpersistent messages"},
    {1226, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1607, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1611, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1612, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1606, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1605, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1604, Constant_ZkIntListPeriod, "based on recent activity over a short period of time"},
    {1575, Constant_ZkIntListCompression, "default header data compression value negotiated for this channel"},
    {1576, Constant_ZkIntListCompression, "default header data compression value negotiated for this channel"},
  };
  // clang-format on
  const IntListRow* row = Constant_SelectorsForIntList;
  for (const Expected& list : expected) {
    SCOPED_TRACE(list.parameter);
    EXPECT_EQ(row->identifier, list.parameter);
    EXPECT_STREQ(row->text, "");
    EXPECT_EQ(row->positions, list.positions);
    EXPECT_STREQ(PositionText(list.parameter, 0), list.textOfFirst);
    ++row;
  }
  EXPECT_EQ(row->identifier, kEndOfTable);
}

TEST(IntListPositions, TextByPosition) {
  EXPECT_STREQ(PositionText(735, 0), "for nonpersistent messages");
  EXPECT_STREQ(PositionText(735, 1), "for persistent messages");
  EXPECT_STREQ(PositionText(735, 2), "");
  EXPECT_STREQ(PositionText(714, 2), "Disconnect type - queue manager");
  EXPECT_STREQ(PositionText(1226, 1), "based on activity over a longer period of time");
  EXPECT_STREQ(PositionText(1576, 1), "header data compression value used for the last message sent");
}

TEST(IntListPositions, ObjectTypesAreKeyedByValueNotByPlace) {
  EXPECT_STREQ(PositionText(733, 8), "Object type - topic");
  EXPECT_STREQ(PositionText(733, 9), "");
  EXPECT_STREQ(PositionText(733, 10), "Object type - CF structure");
  EXPECT_STREQ(PositionText(733, 13), "");
  EXPECT_STREQ(PositionText(733, 999), "Object type - reserved 1");
}

TEST(IntListPositions, NoTextWithoutARow) {
  EXPECT_STREQ(PositionText(136, 0), "");
  EXPECT_STREQ(PositionText(0, 0), "");
  EXPECT_STREQ(PositionText(-987, 0), "");
  EXPECT_STREQ(PositionText(735, -1), "");
  EXPECT_STREQ(PositionText(735, -987), "");
}

}  // namespace
}  // namespace quillon
