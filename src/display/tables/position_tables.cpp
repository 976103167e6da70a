#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_ZkIntListZkdiscType[] = {
    {0, "Disconnect type - normal"},
    {1, "Disconnect type - implicit"},
    {2, "Disconnect type - queue manager"},
    {kEndOfTable, ""},
};
// clang-format on
static_assert(CheckTable(Constant_ZkIntListZkdiscType, {.rows = 3, .endText = ""}));
static_assert(NameOf(1, Constant_ZkIntListZkdiscType) == "Disconnect type - implicit");

// Kept: keyed by object type although the search is by list position: position 9 has no text, and the rows
// from 999 on are found in lists of that length only.
// clang-format off
constexpr ConstantRow Constant_ZkIntListZkot[] = {
    {0, "Object type - none"},
    {1, "Object type - queue"},
    {2, "Object type - name list"},
    {3, "Object type - process"},
    {4, "Object type - storage class"},
    {5, "Object type - queue manager"},
    {6, "Object type - channel"},
    {7, "Object type - auth info"},
    {8, "Object type - topic"},
    {10, "Object type - CF structure"},
    {11, "Object type - listener"},
    {12, "Object type - service"},
    {999, "Object type - reserved 1"},
    {1001, "Object type - all"},
    {1002, "Object type - alias queue"},
    {1003, "Object type - model queue"},
    {1004, "Object type - local queue"},
    {1005, "Object type - remote queue"},
    {1007, "Object type - SDR channel"},
    {1008, "Object type - SVR channel"},
    {1009, "Object type - RQSTR channel"},
    {1010, "Object type - RCVR channel"},
    {1011, "Object type - current channel"},
    {1012, "Object type - saved channel"},
    {1013, "Object type - SVRCONN channel"},
    {1014, "Object type - CLNTCONN channel"},
    {1015, "Object type - short channel"},
    {1016, "Object type - chl auth"},
    {1017, "Object type - remote qmgr name"},
    {1019, "Object type - prot policy"},
    {kEndOfTable, ""},
};
// clang-format on
static_assert(CheckTable(Constant_ZkIntListZkot, {.rows = 30, .endText = ""}));
static_assert(NameOf(5, Constant_ZkIntListZkot) == "Object type - queue manager");
static_assert(NameOf(10, Constant_ZkIntListZkot) == "Object type - CF structure");

// clang-format off
constexpr ConstantRow Constant_ZkIntListPersistence[] = {
    {0, "for nonpersistent messages"},
    {1, "for persistent messages"},
    {kEndOfTable, ""},
};
// clang-format on
static_assert(CheckTable(Constant_ZkIntListPersistence, {.rows = 2, .endText = ""}));
static_assert(NameOf(0, Constant_ZkIntListPersistence) == "for nonpersistent messages");
static_assert(NameOf(1, Constant_ZkIntListPersistence) == "for persistent messages");

// clang-format off
constexpr ConstantRow Constant_ZkIntListPeriod[] = {
    {0, "based on recent activity over a short period of time"},
    {1, "based on activity over a longer period of time"},
    {kEndOfTable, ""},
};
// clang-format on
static_assert(CheckTable(Constant_ZkIntListPeriod, {.rows = 2, .endText = ""}));

// clang-format off
constexpr ConstantRow Constant_ZkIntListCompression[] = {
    {0, "default header data compression value negotiated for this channel"},
    {1, "header data compression value used for the last message sent"},
    {kEndOfTable, ""},
};
// clang-format on
static_assert(CheckTable(Constant_ZkIntListCompression, {.rows = 2, .endText = ""}));

}  // namespace quillon
