#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_Zkmt[] = {
    {1, "REQUEST"},
    {2, "REPLY"},
    {8, "DATAGRAM"},
    {4, "REPORT"},
    {112, "ZKE_FIELDS_FROM_ZKE"},
    {113, "ZKE_FIELDS"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmt, {.rows = 6}));
static_assert(NameOf(2, Constant_Zkmt) == "REPLY");
static_assert(NameOf(4, Constant_Zkmt) == "REPORT");
static_assert(NameOf(113, Constant_Zkmt) == "ZKE_FIELDS");

// clang-format off
constexpr ConstantRow Constant_Zkot[] = {
    {0, "none"},
    {1, "queue"},
    {2, "name list"},
    {3, "process"},
    {4, "storage class"},
    {5, "queue manager"},
    {6, "channel"},
    {7, "authentication info"},
    {8, "topic"},
    {10, "CF_STRUC"},
    {11, "listener"},
    {12, "service"},
    {999, "reserved 1"},
    {1001, "all"},
    {1002, "alias queue"},
    {1003, "model queue"},
    {1004, "local queue"},
    {1005, "remote queue"},
    {1007, "SDR channel"},
    {1008, "SVR channel"},
    {1009, "RQSTR channel"},
    {1010, "RCVR channel"},
    {1011, "current channel"},
    {1012, "saved channel"},
    {1013, "SVRCONN channel"},
    {1014, "CLNTCONN channel"},
    {1015, "short channel"},
    {1016, "chl auth"},
    {1017, "remote qmgr name"},
    {1019, "prot policy"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkot, {.rows = 30}));
static_assert(NameOf(0, Constant_Zkot) == "none");
static_assert(NameOf(999, Constant_Zkot) == "reserved 1");
static_assert(NameOf(1019, Constant_Zkot) == "prot policy");

// clang-format off
constexpr ConstantRow Constant_Zkrcn[] = {
    {0, "no"},
    {1, "yes"},
    {2, "queue manager"},
    {3, "disabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrcn, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_EPH_Flags[] = {
    {1, "ccsid embedded"},
    {0, "(none)"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_EPH_Flags, {.rows = 2}));
static_assert(NameOf(0, Constant_EPH_Flags) == "(none)");

// Kept: the second row of 26 is never found; broker applications read "BROKER".
// clang-format off
constexpr ConstantRow Constant_ApplType[] = {
    {-1, "unknown"},
    {0, "no context"},
    {1, "transaction monitor"},
    {2, "mainframe system"},
    {3, "database transaction manager"},
    {4, "desktop system"},
    {5, "DOS"},
    {6, "UNIX"},
    {7, "queue manager"},
    {8, "midrange system"},
    {9, "Windows"},
    {10, "small mainframe transaction monitor"},
    {11, "Windows"},
    {12, "HP OpenVMS"},
    {13, "Compaq NonStop Kernel"},
    {14, "VOS"},
    {15, "Open TP1"},
    {18, "virtual machine system"},
    {19, "database transaction manager bridge"},
    {20, "coupling group"},
    {21, "transaction monitor bridge"},
    {22, "groupware agent"},
    {23, "high-volume transaction system"},
    {25, "USER"},
    {26, "BROKER"},
    {26, "PUBLISH"},
    {28, "JAVA"},
    {29, "DQM"},
    {30, "CHANNEL_INITIATOR"},
    {31, "workload balancer"},
    {32, "BATCH"},
    {33, "batch with recovery coordinator"},
    {34, "message bus"},
    {35, "SYSTEM_EXTENSION"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_ApplType, {.rows = 34, .shadowedRows = 1}));
static_assert(NameOf(-1, Constant_ApplType) == "unknown");
static_assert(NameOf(26, Constant_ApplType) == "BROKER");
static_assert(NameOf(35, Constant_ApplType) == "SYSTEM_EXTENSION");

// clang-format off
constexpr ConstantRow Constant_Zkcafty[] = {
    {0, "none"},
    {1, "preferred"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcafty, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkmon[] = {
    {-3, "queue manager"},
    {-1, "none"},
    {0, "off / disabled"},
    {1, "on / enabled"},
    {17, "low"},
    {33, "medium"},
    {65, "high"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmon, {.rows = 7}));
static_assert(NameOf(-3, Constant_Zkmon) == "queue manager");
static_assert(NameOf(0, Constant_Zkmon) == "off / disabled");
static_assert(NameOf(1, Constant_Zkmon) == "on / enabled");
static_assert(NameOf(65, Constant_Zkmon) == "high");

// clang-format off
constexpr ConstantRow Constant_Zkprop[] = {
    {0, "compatibility"},
    {1, "none"},
    {2, "all durable subscribers"},
    {3, "force ZKRFH2"},
    {-1, "unrestricted length"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkprop, {.rows = 5}));
static_assert(NameOf(-1, Constant_Zkprop) == "unrestricted length");

// clang-format off
constexpr ConstantRow Constant_Zkusedlq[] = {
    {0, "as parent"},
    {1, "no"},
    {2, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkusedlq, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkcert[] = {
    {0, "any"},
    {1, "RFC 5280"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcert, {.rows = 2}));

}  // namespace quillon
