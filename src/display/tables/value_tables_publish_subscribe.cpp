#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_Zksub[] = {
    {0, "as parent"},
    {1, "allowed / yes"},
    {2, "inhibited / no"},
    {-1, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksub, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkta_pub[] = {
    {0, "as parent"},
    {1, "inhibited"},
    {2, "allowed"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkta_pub, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkta_sub[] = {
    {0, "as parent"},
    {1, "inhibited"},
    {2, "allowed"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkta_sub, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkmaster[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmaster, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkdlv[] = {
    {0, "as parent"},
    {1, "all subscribers"},
    {2, "all durable subscribers"},
    {3, "all available subscribers"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkdlv, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_ProxySub[] = {
    {1, "force"},
    {2, "first use"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_ProxySub, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkscope[] = {
    {0, "all"},
    {1, "as parent"},
    {4, "queue manager"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkscope, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkpsclus[] = {
    {0, "disabled"},
    {1, "enabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpsclus, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkpsm[] = {
    {0, "disabled"},
    {1, "compatibility"},
    {2, "enabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpsm, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkundelivered[] = {
    {0, "normal"},
    {1, "safe"},
    {2, "discard"},
    {3, "keep"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkundelivered, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zksyncpoint[] = {
    {0, "yes"},
    {1, "if persistent"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksyncpoint, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktopt[] = {
    {0, "local"},
    {1, "cluster"},
    {2, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktopt, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkta_wildcard[] = {
    {1, "block"},
    {2, "passthru"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkta_wildcard, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkpsprop[] = {
    {0, "none"},
    {1, "compatibility"},
    {2, "RFH2"},
    {3, "message property"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpsprop, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkdc[] = {
    {1, "managed"},
    {2, "provided"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkdc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktscope[] = {
    {1, "queue manager"},
    {2, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktscope, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkvu[] = {
    {1, "fixed user"},
    {2, "any user"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkvu, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkru[] = {
    {1, "publish on request"},
    {2, "publish all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkru, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkws[] = {
    {0, "default"},
    {1, "char"},
    {2, "topic"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkws, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zksubtype[] = {
    {1, "API"},
    {2, "admin"},
    {3, "proxy"},
    {-1, "all"},
    {-2, "user"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksubtype, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Topicstatus[] = {
    {1295, "topic status"},
    {1296, "topic sub"},
    {1297, "topic pub"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Topicstatus, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkclrt[] = {
    {1, "retained"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkclrt, {.rows = 1}));

// clang-format off
constexpr ConstantRow Constant_Zkom[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkom, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkps_status[] = {
    {0, "inactive"},
    {1, "starting"},
    {2, "stopping"},
    {3, "active"},
    {4, "compatibility"},
    {5, "error"},
    {6, "refused"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkps_status, {.rows = 7}));

// clang-format off
constexpr ConstantRow Constant_Zkpsst[] = {
    {0, "all"},
    {1, "local"},
    {2, "parent"},
    {3, "child"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpsst, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkseltype[] = {
    {0, "none"},
    {1, "standard"},
    {2, "extended"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkseltype, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zksr[] = {
    {1, "PUBLICATION"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksr, {.rows = 1}));

}  // namespace quillon
