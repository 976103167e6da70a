#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_Zkcacf_Zkcach[] = {
    {3025, "CACF_USER_IDENTIFIER"},
    {3058, "CACF_APPL_TAG"},
    {3501, "CACH_CHANNEL_NAME"},
    {3506, "CACH_CONNECTION_NAME"},
    {3527, "CACH_MCA_USER_ID"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcacf_Zkcach, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zkdisconnect[] = {
    {0, "normal"},
    {1, "implicit"},
    {2, "queue manager"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkdisconnect, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkfc[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkfc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkrp[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrp, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkpo[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpo, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkmode[] = {
    {0, "force"},
    {1, "quiesce"},
    {2, "terminate"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmode, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkevo[] = {
    {0, "other"},
    {1, "console"},
    {2, "init"},
    {3, "message"},
    {4, "ZKSET"},
    {5, "internal"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkevo, {.rows = 6}));

// clang-format off
constexpr ConstantRow Constant_Zket[] = {
    {1, "ZKSC"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zket, {.rows = 1}));

// clang-format off
constexpr ConstantRow Constant_Zkrq[] = {
    {1, "connect not authorized"},
    {2, "open not authorized"},
    {3, "close not authorized"},
    {4, "command not authorized"},
    {5, "queue manager stopping"},
    {6, "queue manager quiescing"},
    {7, "channel stopped ok"},
    {8, "channel stopped error"},
    {9, "channel stopped retry"},
    {10, "channel stopped disabled"},
    {11, "bridge stopped ok"},
    {12, "bridge stopped error"},
    {13, "SSL handshake error"},
    {14, "SSL cipher spec error"},
    {15, "SSL client auth error"},
    {16, "SSL peer name error"},
    {17, "subscribe not authorized"},
    {18, "subscription destination not authorized"},
    {19, "SSL unknown revocation"},
    {20, "system connect not authorized"},
    {21, "channel blocked address"},
    {22, "channel blocked user id"},
    {23, "channel blocked no access"},
    {24, "max active channels"},
    {25, "max channels"},
    {26, "SVRCONN instance limit"},
    {27, "client instance limit"},
    {28, "client attachment not installed"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrq, {.rows = 28}));

// clang-format off
constexpr ConstantRow Constant_Zkbt[] = {
    {1, "OTMA"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkbt, {.rows = 1}));

// clang-format off
constexpr ConstantRow Constant_Zkact[] = {
    {1, "force remove"},
    {2, "advance log"},
    {3, "collect statistics"},
    {4, "pubsub"},
    {5, "add"},
    {6, "replace"},
    {7, "remove"},
    {8, "remove all"},
    {9, "fail"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkact, {.rows = 9}));

// clang-format off
constexpr ConstantRow Constant_Zksus[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksus, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkcfo_refreshrepos[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfo_refreshrepos, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkcfo_removequeues[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfo_removequeues, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksectype[] = {
    {1, "authorization service"},
    {2, "SSL"},
    {3, "classes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksectype, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkauth[] = {
    {0, "none"},
    {1, "alternate user authority"},
    {2, "browse"},
    {3, "change"},
    {4, "clear"},
    {5, "connect"},
    {6, "create"},
    {7, "delete"},
    {8, "display"},
    {9, "input"},
    {10, "inquire"},
    {11, "output"},
    {12, "pass all context"},
    {13, "pass identity context"},
    {14, "set"},
    {15, "set all context"},
    {16, "set identity context"},
    {17, "control"},
    {18, "control extended"},
    {19, "publish"},
    {20, "subscribe"},
    {21, "resume"},
    {22, "system"},
    {-1, "all"},
    {-2, "all admin"},
    {-3, "all ZKI"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkauth, {.rows = 26}));

// clang-format off
constexpr ConstantRow Constant_Zkzaet[] = {
    {0, "none"},
    {1, "principal"},
    {2, "group"},
    {3, "unknown"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkzaet, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkuowst[] = {
    {0, "none"},
    {1, "active"},
    {2, "prepared"},
    {3, "unresolved"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkuowst, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkuowt[] = {
    {0, "queue manager"},
    {1, "transaction monitor"},
    {2, "recovery coordinator"},
    {3, "database transaction manager"},
    {4, "XA"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkuowt, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zkroute[] = {
    {2, "detail low"},
    {8, "detail medium"},
    {32, "detail high"},
    {256, "forward all"},
    {512, "forward if supported"},
    {4096, "deliver yes"},
    {8192, "deliver no"},
    {65539, "accumulate none"},
    {65540, "accumulate in message"},
    {65541, "accumulate and reply"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkroute, {.rows = 10}));

// clang-format off
constexpr ConstantRow Constant_Zkoper[] = {
    {0, "unknown"},
    {1, "browse"},
    {2, "discard"},
    {3, "get"},
    {4, "put"},
    {5, "put reply"},
    {6, "put report"},
    {7, "receive"},
    {8, "send"},
    {9, "transform"},
    {10, "publish"},
    {11, "excluded publish"},
    {12, "discarded publish"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkoper, {.rows = 13}));

// clang-format off
constexpr ConstantRow Constant_Zkuidsupp[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkuidsupp, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkas[] = {
    {0, "none"},
    {1, "started"},
    {2, "start wait"},
    {3, "stopped"},
    {4, "suspended"},
    {5, "suspended temporary"},
    {6, "active"},
    {7, "inactive"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkas, {.rows = 8}));

// clang-format off
constexpr ConstantRow Constant_Zkcbt[] = {
    {1, "MESSAGE_CONSUMER"},
    {2, "EVENT_HANDLER"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcbt, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkext[] = {
    {0, "all"},
    {1, "object"},
    {2, "authority"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkext, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkextattrs[] = {
    {0, "all"},
    {1, "nondefault"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkextattrs, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksysobj[] = {
    {0, "yes"},
    {1, "no"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksysobj, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkrar[] = {
    {1, "yes"},
    {0, "no"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrar, {.rows = 2}));

}  // namespace quillon
