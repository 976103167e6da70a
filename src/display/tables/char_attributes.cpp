#include "display/attribute_tables.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr CharAttributeRow Constant_ZkAttrsZkcaUnknown[] = {
    {kEndOfTable, "(Unknown value)", 0},
};
// clang-format on
static_assert(CheckTable(Constant_ZkAttrsZkcaUnknown, {.rows = 0}));
static_assert(Constant_ZkAttrsZkcaUnknown[0].length == 0);

// Kept: 2002 stands twice; reports show the first name.
// clang-format off
constexpr CharAttributeRow Constant_ZkAttrsZkca[] = {
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
    {2060, "TRAN_MONITOR_FILE_NAME", 8},
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
    {2043, "COUPLING_GROUP_NAME", 8},
    {2044, "COUPLING_MEMBER_NAME", 16},
    {2024, "XMIT_Q_NAME", 48},
    {2105, "ADMIN_TOPIC_NAME", 48},
    {2002, "BASE_OBJECT_NAME", 48},
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
    {kEndOfTable, "(Unknown value)", 0},
};
// clang-format on
static_assert(CheckTable(Constant_ZkAttrsZkca, {.rows = 107, .shadowedRows = 1}));
static_assert(SmallestKey(Constant_ZkAttrsZkca) == 2001 && LargestKey(Constant_ZkAttrsZkca) == 2124);
static_assert(AllRowsHaveLengths(Constant_ZkAttrsZkca));
static_assert(NameOf(2002, Constant_ZkAttrsZkca) == "BASE_Q_NAME");
static_assert(FindRow(2002, Constant_ZkAttrsZkca)->length == 48);
static_assert(NameOf(2020, Constant_ZkAttrsZkca) == "NAMES");
static_assert(FindRow(2020, Constant_ZkAttrsZkca)->length == 48);
static_assert(NameOf(2060, Constant_ZkAttrsZkca) == "TRAN_MONITOR_FILE_NAME");
static_assert(FindRow(2060, Constant_ZkAttrsZkca)->length == 8);
static_assert(NameOf(2043, Constant_ZkAttrsZkca) == "COUPLING_GROUP_NAME");
static_assert(FindRow(2043, Constant_ZkAttrsZkca)->length == 8);
static_assert(NameOf(2044, Constant_ZkAttrsZkca) == "COUPLING_MEMBER_NAME");
static_assert(FindRow(2044, Constant_ZkAttrsZkca)->length == 16);
static_assert(NameOf(2094, Constant_ZkAttrsZkca) == "TOPIC_STRING");
static_assert(FindRow(2094, Constant_ZkAttrsZkca)->length == 10240);
static_assert(NameOf(2124, Constant_ZkAttrsZkca) == "CLUS_CHL_NAME");
static_assert(FindRow(2124, Constant_ZkAttrsZkca)->length == 20);

}  // namespace quillon
