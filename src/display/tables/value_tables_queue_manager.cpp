#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// Kept: 13 stands twice, as the value has two published names; the text is the same.
// clang-format off
constexpr ConstantRow Constant_Zkpl[] = {
    {1, "mainframe system"},
    {2, "desktop system"},
    {3, "UNIX"},
    {4, "midrange system"},
    {5, "Windows"},
    {11, "Windows"},
    {12, "HP OpenVMS"},
    {13, "Compaq NonStop Kernel"},
    {13, "Compaq NonStop Kernel"},
    {15, "Open TP1"},
    {18, "virtual machine system"},
    {23, "high-volume transaction system"},
    {27, "small mainframe system"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpl, {.rows = 13, .shadowedRows = 1}));

// clang-format off
constexpr ConstantRow Constant_Zkopmode[] = {
    {0, "compatibility"},
    {1, "new function"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkopmode, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkrecording[] = {
    {0, "disabled"},
    {1, "queue"},
    {2, "message"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrecording, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkait[] = {
    {1, "CRL LDAP"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkait, {.rows = 1}));

// clang-format off
constexpr ConstantRow Constant_Zkevr[] = {
    {0, "disabled"},
    {1, "enabled"},
    {2, "exception"},
    {3, "no display"},
    {4, "API only"},
    {5, "admin only"},
    {6, "user only"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkevr, {.rows = 7}));

// clang-format off
constexpr ConstantRow Constant_Zkcfr[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfr, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksvc_control[] = {
    {0, "queue manager"},
    {1, "queue manager start"},
    {2, "manual"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksvc_control, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkigqpa[] = {
    {1, "default"},
    {2, "context"},
    {3, "only IGQ"},
    {4, "alternate or IGQ"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkigqpa, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkigq[] = {
    {0, "disabled"},
    {1, "enabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkigq, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkscyc[] = {
    {0, "upper"},
    {1, "mixed"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkscyc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksvc_type[] = {
    {0, "command"},
    {1, "server"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksvc_type, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksqqm[] = {
    {0, "use"},
    {1, "ignore"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksqqm, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zksp[] = {
    {0, "not available"},
    {1, "available"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksp, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqmdt[] = {
    {1, "explicit cluster sender"},
    {2, "auto cluster sender"},
    {3, "cluster receiver"},
    {4, "auto explicit cluster sender"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqmdt, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkqmt[] = {
    {0, "normal"},
    {1, "repository"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqmt, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkqsgd[] = {
    {-1, "all"},
    {0, "queue manager"},
    {1, "copy"},
    {2, "shared"},
    {3, "group"},
    {4, "private"},
    {6, "live"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqsgd, {.rows = 7}));

// clang-format off
constexpr ConstantRow Constant_Zkqmsta[] = {
    {1, "starting"},
    {2, "running"},
    {3, "quiescing"},
    {4, "standby"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkqmsta, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zksvc_status[] = {
    {0, "stopped"},
    {1, "starting"},
    {2, "running"},
    {3, "stopping"},
    {4, "retrying"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksvc_status, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zkcfconlos[] = {
    {0, "terminate"},
    {1, "tolerate"},
    {2, "as queue manager"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfconlos, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkcfoffld[] = {
    {0, "none"},
    {1, "SMDS"},
    {2, "database"},
    {3, "both"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfoffld, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkrecauto[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrecauto, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkdse[] = {
    {0, "default"},
    {1, "yes"},
    {2, "no"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkdse, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkcfaccess[] = {
    {0, "enabled"},
    {1, "suspended"},
    {2, "disabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcfaccess, {.rows = 3}));

}  // namespace quillon
