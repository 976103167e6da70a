#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr ConstantRow Constant_Zkcdc[] = {
    {0, "NO_SENDER_CONVERSION"},
    {1, "SENDER_CONVERSION"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcdc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkchids[] = {
    {0, "not indoubt"},
    {1, "indoubt"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchids, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkchs[] = {
    {0, "inactive"},
    {1, "binding"},
    {2, "starting"},
    {3, "running"},
    {4, "stopping"},
    {5, "retrying"},
    {6, "stopped"},
    {7, "requesting"},
    {8, "paused"},
    {9, "disconnected"},
    {13, "initializing"},
    {14, "switching"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchs, {.rows = 12}));

// clang-format off
constexpr ConstantRow Constant_Zkchsr[] = {
    {0, "stop not requested"},
    {1, "stop requested"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchsr, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkcht[] = {
    {1, "SENDER"},
    {2, "SERVER"},
    {3, "RECEIVER"},
    {4, "REQUESTER"},
    {5, "ALL"},
    {6, "CLNTCONN"},
    {7, "SVRCONN"},
    {8, "CLUSRCVR"},
    {9, "CLUSSDR"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcht, {.rows = 9}));

// clang-format off
constexpr ConstantRow Constant_Zkchtab[] = {
    {1, "queue manager"},
    {2, "CLNTCONN"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchtab, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkido[] = {
    {1, "commit"},
    {2, "backout"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkido, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkmcas[] = {
    {0, "stopped"},
    {3, "running"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmcas, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkmcat[] = {
    {1, "PROCESS"},
    {2, "THREAD"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmcat, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zknpms[] = {
    {1, "NORMAL"},
    {2, "FAST"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zknpms, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkpa[] = {
    {1, "DEFAULT"},
    {2, "CONTEXT"},
    {3, "ONLY_MCA"},
    {4, "ALTERNATE_OR_MCA"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkpa, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zksca[] = {
    {0, "REQUIRED"},
    {1, "OPTIONAL"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zksca, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkxpt[] = {
    {-1, "ALL"},
    {0, "LOCAL"},
    {1, "LU62"},
    {2, "TCP"},
    {3, "NETBIOS"},
    {4, "SPX"},
    {5, "DECNET"},
    {6, "UDP"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkxpt, {.rows = 8}));

// clang-format off
constexpr ConstantRow Constant_Zkmulc[] = {
    {0, "standard"},
    {1, "refined"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmulc, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkadopt_check[] = {
    {0, "none"},
    {1, "all"},
    {2, "queue manager name"},
    {4, "network address"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkadopt_check, {.rows = 4}));

// clang-format off
constexpr ConstantRow Constant_Zkadopt_type[] = {
    {0, "no"},
    {1, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkadopt_type, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkchad[] = {
    {0, "disabled"},
    {1, "enabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchad, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktraxstr[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktraxstr, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkipaddr[] = {
    {0, "IPv4"},
    {1, "IPv6"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkipaddr, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkrcvtime[] = {
    {0, "multiply"},
    {1, "add"},
    {2, "equal"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkrcvtime, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkssl[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkssl, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktcpkeep[] = {
    {0, "no"},
    {1, "yes"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktcpkeep, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zktcpstack[] = {
    {0, "single"},
    {1, "multiple"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zktcpstack, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkcompress[] = {
    {-1, "not available"},
    {0, "none"},
    {1, "RLE"},
    {2, "ZLIBFAST"},
    {4, "ZLIBHIGH"},
    {8, "SYSTEM"},
    {268435455, "any"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcompress, {.rows = 7}));

// clang-format off
constexpr ConstantRow Constant_Zkinbd[] = {
    {0, "queue manager"},
    {3, "group"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkinbd, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkchsstate[] = {
    {0, "other"},
    {100, "end of batch"},
    {200, "sending"},
    {300, "receiving"},
    {400, "serializing"},
    {500, "resynching"},
    {600, "heartbeating"},
    {700, "in security exit"},
    {800, "in receive exit"},
    {900, "in send exit"},
    {1000, "in message exit"},
    {1100, "in message retry exit"},
    {1200, "in channel auto definition exit"},
    {1250, "net connecting"},
    {1300, "SSL handshaking"},
    {1400, "name server"},
    {1500, "in ZKPUT"},
    {1600, "in ZKGET"},
    {1700, "in ZKI call"},
    {1800, "compressing"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchsstate, {.rows = 20}));

// clang-format off
constexpr ConstantRow Constant_Zkchla[] = {
    {0, "disabled"},
    {1, "enabled"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkchla, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkcaut[] = {
    {0, "all"},
    {1, "block user"},
    {2, "block address"},
    {3, "SSL peer map"},
    {4, "address map"},
    {5, "user map"},
    {6, "queue manager map"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkcaut, {.rows = 7}));

// clang-format off
constexpr ConstantRow Constant_Zkmcp[] = {
    {2, "reply"},
    {1, "user"},
    {0, "none"},
    {-1, "all"},
    {-2, "compatibility"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkmcp, {.rows = 5}));

// clang-format off
constexpr ConstantRow Constant_Zknsh[] = {
    {0, "none"},
    {-1, "all"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zknsh, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkuci[] = {
    {1, "yes"},
    {0, "no"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkuci, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkusrc[] = {
    {0, "map"},
    {1, "no access"},
    {2, "channel"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkusrc, {.rows = 3}));

// clang-format off
constexpr ConstantRow Constant_Zkwarn[] = {
    {1, "yes"},
    {0, "no"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkwarn, {.rows = 2}));

// clang-format off
constexpr ConstantRow Constant_Zkclxq[] = {
    {0, "SCTQ"},
    {1, "channel"},
    {kEndOfTable, "(Unknown value)"},
};
// clang-format on
static_assert(CheckTable(Constant_Zkclxq, {.rows = 2}));

}  // namespace quillon
