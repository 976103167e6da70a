#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_Zkcqt[] = {
    {1, "local queue"},
    {2, "alias queue"},
    {3, "remote queue"},
    {4, "queue manager alias"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcqt, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkclwl[] = {
    {0, "local"},
    {1, "any"},
    {-3, "as queue manager"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkclwl, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkbnd[] = {
    {0, "BIND_ON_OPEN"},
    {1, "BIND_NOT_FIXED"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkbnd, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkoo_showpart[] = {
    {2, "INPUT_SHARED"},
    {4, "INPUT_EXCLUSIVE"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkoo_showpart, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkper[] = {
    {-1, "PERSISTENCE_AS_PARENT"},
    {0, "NOT_PERSISTENT"},
    {1, "PERSISTENT"},
    {2, "PERSISTENCE_AS_Q_DEF"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkper, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkprt[] = {
    {1, "SYNC_RESPONSE"},
    {2, "ASYNC_RESPONSE"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkprt, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkreada[] = {
    {0, "no"},
    {1, "yes"},
    {2, "disabled"},
    {3, "inhibited"},
    {4, "backlog"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkreada, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zkqdt[] = {
    {1, "predefined"},
    {2, "permanent dynamic"},
    {3, "temporary dynamic"},
    {4, "shared dynamic"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqdt, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkdl[] = {
    {0, "not supported"},
    {1, "supported"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkdl, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqa_backout[] = {
    {0, "not hardened"},
    {1, "hardened"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqa_backout, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkit[] = {
    {0, "none"},
    {1, "message id"},
    {2, "correlation id"},
    {4, "message token"},
    {5, "group id"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkit, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zkqa_get[] = {
    {0, "allowed"},
    {1, "inhibited"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqa_get, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqa_put[] = {
    {0, "allowed"},
    {1, "inhibited"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqa_put, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkmds[] = {
    {0, "priority"},
    {1, "FIFO"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmds, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zknt[] = {
    {0, "none"},
    {1, "queue"},
    {2, "cluster"},
    {4, "authentication info"},
    {1001, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zknt, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zknpm[] = {
    {0, "normal"},
    {10, "high"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zknpm, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqsie[] = {
    {0, "none"},
    {1, "high"},
    {2, "ok"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqsie, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkqt[] = {
    {1, "local queue"},
    {2, "model queue"},
    {3, "alias queue"},
    {6, "remote queue"},
    {7, "cluster queue"},
    {1001, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqt, {.rows = 6}));

// clang-format off
constexpr ConstantRow Constant_Zksco[] = {
    {1, "queue manager"},
    {2, "cell"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksco, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqa_share[] = {
    {0, "not shareable"},
    {1, "shareable"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqa_share, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktc[] = {
    {0, "off"},
    {1, "on"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktt[] = {
    {0, "none"},
    {1, "first"},
    {2, "every"},
    {3, "depth"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktt, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkus[] = {
    {0, "normal"},
    {1, "transmission"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkus, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqsot[] = {
    {1, "all"},
    {2, "input"},
    {3, "output"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqsot, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkqsum[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqsum, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkhstate[] = {
    {0, "inactive"},
    {1, "active"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkhstate, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqso_yesno[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqso_yesno, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqso_share[] = {
    {0, "no"},
    {1, "shared"},
    {2, "exclusive"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqso_share, {.rows = 3}));

}  // namespace quillon
