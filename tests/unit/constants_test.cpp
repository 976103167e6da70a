#include "display/constants.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "display/attribute_tables.h"
#include "display/table_index.h"

namespace quillon {
namespace {

struct ExpectedTable {
  const char* title;
  const ConstantRow* table;
  int rowCount;
  ConstantRow first;
  ConstantRow last;
  std::int32_t missingValue;
  const char* notFoundText;
};

// clang-format off
const ExpectedTable kTables[] = {
    {"Constant_Zkmt", Constant_Zkmt, 6, {1, "REQUEST"}, {113, "ZKE_FIELDS"}, 3, "(Unknown value)"},
    {"Constant_Zkot", Constant_Zkot, 30, {0, "none"}, {1019, "prot policy"}, 9, "(Unknown value)"},
    {"Constant_Zkrcn", Constant_Zkrcn, 4, {0, "no"}, {3, "disabled"}, 4, "(Unknown value)"},
    {"Constant_EPH_Flags", Constant_EPH_Flags, 2, {1, "ccsid embedded"}, {0, "(none)"}, 2, "(Unknown value)"},
    {"Constant_ApplType", Constant_ApplType, 34, {-1, "unknown"}, {35, "SYSTEM_EXTENSION"}, 16, "(Unknown value)"},
    {"Constant_Zkcafty", Constant_Zkcafty, 2, {0, "none"}, {1, "preferred"}, 2, "(Unknown value)"},
    {"Constant_Zkmon", Constant_Zkmon, 7, {-3, "queue manager"}, {65, "high"}, -2, "(Unknown value)"},
    {"Constant_Zkprop", Constant_Zkprop, 5, {0, "compatibility"}, {-1, "unrestricted length"}, 4, "(Unknown value)"},
    {"Constant_Zkusedlq", Constant_Zkusedlq, 3, {0, "as parent"}, {2, "yes"}, 3, "(Unknown value)"},
    {"Constant_Zkcert", Constant_Zkcert, 2, {0, "any"}, {1, "RFC 5280"}, 2, "(Unknown value)"},
    {"Constant_Zkcdc", Constant_Zkcdc, 2, {0, "NO_SENDER_CONVERSION"}, {1, "SENDER_CONVERSION"}, 2, "(Unknown value)"},
    {"Constant_Zkchids", Constant_Zkchids, 2, {0, "not indoubt"}, {1, "indoubt"}, 2, "(Unknown value)"},
    {"Constant_Zkchs", Constant_Zkchs, 12, {0, "inactive"}, {14, "switching"}, 10, "(Unknown value)"},
    {"Constant_Zkchsr", Constant_Zkchsr, 2, {0, "stop not requested"}, {1, "stop requested"}, 2, "(Unknown value)"},
    {"Constant_Zkcht", Constant_Zkcht, 9, {1, "SENDER"}, {9, "CLUSSDR"}, 10, "(Unknown value)"},
    {"Constant_Zkchtab", Constant_Zkchtab, 2, {1, "queue manager"}, {2, "CLNTCONN"}, 3, "(Unknown value)"},
    {"Constant_Zkido", Constant_Zkido, 2, {1, "commit"}, {2, "backout"}, 3, "(Unknown value)"},
    {"Constant_Zkmcas", Constant_Zkmcas, 2, {0, "stopped"}, {3, "running"}, 1, "(Unknown value)"},
    {"Constant_Zkmcat", Constant_Zkmcat, 2, {1, "PROCESS"}, {2, "THREAD"}, 3, "(Unknown value)"},
    {"Constant_Zknpms", Constant_Zknpms, 2, {1, "NORMAL"}, {2, "FAST"}, 3, "(Unknown value)"},
    {"Constant_Zkpa", Constant_Zkpa, 4, {1, "DEFAULT"}, {4, "ALTERNATE_OR_MCA"}, 5, "(Unknown value)"},
    {"Constant_Zkpl", Constant_Zkpl, 13, {1, "mainframe system"}, {27, "small mainframe system"}, 6, "(Unknown value)"},
    {"Constant_Zksca", Constant_Zksca, 2, {0, "REQUIRED"}, {1, "OPTIONAL"}, 2, "(Unknown value)"},
    {"Constant_Zkxpt", Constant_Zkxpt, 8, {-1, "ALL"}, {6, "UDP"}, 7, "(Unknown value)"},
    {"Constant_Zkmulc", Constant_Zkmulc, 2, {0, "standard"}, {1, "refined"}, 2, "(Unknown value)"},
    {"Constant_Zkopmode", Constant_Zkopmode, 2, {0, "compatibility"}, {1, "new function"}, 2, "(Unknown value)"},
    {"Constant_Zkcacf_Zkcach", Constant_Zkcacf_Zkcach, 5, {3025, "CACF_USER_IDENTIFIER"}, {3527, "CACH_MCA_USER_ID"}, 3026, "(Unknown value)"},
    {"Constant_Zkrecording", Constant_Zkrecording, 3, {0, "disabled"}, {2, "message"}, 3, "(Unknown value)"},
    {"Constant_Zkadopt_check", Constant_Zkadopt_check, 4, {0, "none"}, {4, "network address"}, 3, "(Unknown value)"},
    {"Constant_Zkadopt_type", Constant_Zkadopt_type, 2, {0, "no"}, {1, "all"}, 2, "(Unknown value)"},
    {"Constant_Zkait", Constant_Zkait, 1, {1, "CRL LDAP"}, {1, "CRL LDAP"}, 2, "(Unknown value)"},
    {"Constant_Zkevr", Constant_Zkevr, 7, {0, "disabled"}, {6, "user only"}, 7, "(Unknown value)"},
    {"Constant_Zkcfr", Constant_Zkcfr, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkchad", Constant_Zkchad, 2, {0, "disabled"}, {1, "enabled"}, 2, "(Unknown value)"},
    {"Constant_Zksvc_control", Constant_Zksvc_control, 3, {0, "queue manager"}, {2, "manual"}, 3, "(Unknown value)"},
    {"Constant_Zktraxstr", Constant_Zktraxstr, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkcqt", Constant_Zkcqt, 4, {1, "local queue"}, {4, "queue manager alias"}, 5, "(Unknown value)"},
    {"Constant_Zkclwl", Constant_Zkclwl, 3, {0, "local"}, {-3, "as queue manager"}, -2, "(Unknown value)"},
    {"Constant_Zkbnd", Constant_Zkbnd, 2, {0, "BIND_ON_OPEN"}, {1, "BIND_NOT_FIXED"}, 2, "(Unknown value)"},
    {"Constant_Zkoo_showpart", Constant_Zkoo_showpart, 2, {2, "INPUT_SHARED"}, {4, "INPUT_EXCLUSIVE"}, 3, "(Unknown value)"},
    {"Constant_Zkper", Constant_Zkper, 4, {-1, "PERSISTENCE_AS_PARENT"}, {2, "PERSISTENCE_AS_Q_DEF"}, 3, "(Unknown value)"},
    {"Constant_Zkprt", Constant_Zkprt, 2, {1, "SYNC_RESPONSE"}, {2, "ASYNC_RESPONSE"}, 3, "(Unknown value)"},
    {"Constant_Zkreada", Constant_Zkreada, 5, {0, "no"}, {4, "backlog"}, 5, "(Unknown value)"},
    {"Constant_Zkqdt", Constant_Zkqdt, 4, {1, "predefined"}, {4, "shared dynamic"}, 5, "(Unknown value)"},
    {"Constant_Zkdl", Constant_Zkdl, 2, {0, "not supported"}, {1, "supported"}, 2, "(Unknown value)"},
    {"Constant_Zksub", Constant_Zksub, 4, {0, "as parent"}, {-1, "all"}, 3, "(Unknown value)"},
    {"Constant_Zkqa_backout", Constant_Zkqa_backout, 2, {0, "not hardened"}, {1, "hardened"}, 2, "(Unknown value)"},
    {"Constant_Zkigqpa", Constant_Zkigqpa, 4, {1, "default"}, {4, "alternate or IGQ"}, 5, "(Unknown value)"},
    {"Constant_Zkit", Constant_Zkit, 5, {0, "none"}, {5, "group id"}, 3, "(Unknown value)"},
    {"Constant_Zkqa_get", Constant_Zkqa_get, 2, {0, "allowed"}, {1, "inhibited"}, 2, "(Unknown value)"},
    {"Constant_Zkqa_put", Constant_Zkqa_put, 2, {0, "allowed"}, {1, "inhibited"}, 2, "(Unknown value)"},
    {"Constant_Zkta_pub", Constant_Zkta_pub, 3, {0, "as parent"}, {2, "allowed"}, 3, "(Unknown value)"},
    {"Constant_Zkta_sub", Constant_Zkta_sub, 3, {0, "as parent"}, {2, "allowed"}, 3, "(Unknown value)"},
    {"Constant_Zkigq", Constant_Zkigq, 2, {0, "disabled"}, {1, "enabled"}, 2, "(Unknown value)"},
    {"Constant_Zkipaddr", Constant_Zkipaddr, 2, {0, "IPv4"}, {1, "IPv6"}, 2, "(Unknown value)"},
    {"Constant_Zkmaster", Constant_Zkmaster, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkmds", Constant_Zkmds, 2, {0, "priority"}, {1, "FIFO"}, 2, "(Unknown value)"},
    {"Constant_Zknt", Constant_Zknt, 5, {0, "none"}, {1001, "all"}, 3, "(Unknown value)"},
    {"Constant_Zknpm", Constant_Zknpm, 2, {0, "normal"}, {10, "high"}, 1, "(Unknown value)"},
    {"Constant_Zkdlv", Constant_Zkdlv, 4, {0, "as parent"}, {3, "all available subscribers"}, 4, "(Unknown value)"},
    {"Constant_ProxySub", Constant_ProxySub, 2, {1, "force"}, {2, "first use"}, 3, "(Unknown value)"},
    {"Constant_Zkscope", Constant_Zkscope, 3, {0, "all"}, {4, "queue manager"}, 2, "(Unknown value)"},
    {"Constant_Zkpsclus", Constant_Zkpsclus, 2, {0, "disabled"}, {1, "enabled"}, 2, "(Unknown value)"},
    {"Constant_Zkpsm", Constant_Zkpsm, 3, {0, "disabled"}, {2, "enabled"}, 3, "(Unknown value)"},
    {"Constant_Zkundelivered", Constant_Zkundelivered, 4, {0, "normal"}, {3, "keep"}, 4, "(Unknown value)"},
    {"Constant_Zksyncpoint", Constant_Zksyncpoint, 2, {0, "yes"}, {1, "if persistent"}, 2, "(Unknown value)"},
    {"Constant_Zkqsie", Constant_Zkqsie, 3, {0, "none"}, {2, "ok"}, 3, "(Unknown value)"},
    {"Constant_Zkqt", Constant_Zkqt, 6, {1, "local queue"}, {1001, "all"}, 4, "(Unknown value)"},
    {"Constant_Zkrcvtime", Constant_Zkrcvtime, 3, {0, "multiply"}, {2, "equal"}, 3, "(Unknown value)"},
    {"Constant_Zksco", Constant_Zksco, 2, {1, "queue manager"}, {2, "cell"}, 3, "(Unknown value)"},
    {"Constant_Zkscyc", Constant_Zkscyc, 2, {0, "upper"}, {1, "mixed"}, 2, "(Unknown value)"},
    {"Constant_Zksvc_type", Constant_Zksvc_type, 2, {0, "command"}, {1, "server"}, 2, "(Unknown value)"},
    {"Constant_Zkqa_share", Constant_Zkqa_share, 2, {0, "not shareable"}, {1, "shareable"}, 2, "(Unknown value)"},
    {"Constant_Zksqqm", Constant_Zksqqm, 2, {0, "use"}, {1, "ignore"}, 2, "(Unknown value)"},
    {"Constant_Zkssl", Constant_Zkssl, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zksp", Constant_Zksp, 2, {0, "not available"}, {1, "available"}, 2, "(Unknown value)"},
    {"Constant_Zktcpkeep", Constant_Zktcpkeep, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zktcpstack", Constant_Zktcpstack, 2, {0, "single"}, {1, "multiple"}, 2, "(Unknown value)"},
    {"Constant_Zktopt", Constant_Zktopt, 3, {0, "local"}, {2, "all"}, 3, "(Unknown value)"},
    {"Constant_Zktc", Constant_Zktc, 2, {0, "off"}, {1, "on"}, 2, "(Unknown value)"},
    {"Constant_Zktt", Constant_Zktt, 4, {0, "none"}, {3, "depth"}, 4, "(Unknown value)"},
    {"Constant_Zkus", Constant_Zkus, 2, {0, "normal"}, {1, "transmission"}, 2, "(Unknown value)"},
    {"Constant_Zkta_wildcard", Constant_Zkta_wildcard, 2, {1, "block"}, {2, "passthru"}, 3, "(Unknown value)"},
    {"Constant_Zkdisconnect", Constant_Zkdisconnect, 3, {0, "normal"}, {2, "queue manager"}, 3, "(Unknown value)"},
    {"Constant_Zkfc", Constant_Zkfc, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkrp", Constant_Zkrp, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkpo", Constant_Zkpo, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkmode", Constant_Zkmode, 3, {0, "force"}, {2, "terminate"}, 3, "(Unknown value)"},
    {"Constant_Zkevo", Constant_Zkevo, 6, {0, "other"}, {5, "internal"}, 6, "(Unknown value)"},
    {"Constant_Zket", Constant_Zket, 1, {1, "ZKSC"}, {1, "ZKSC"}, 2, "(Unknown value)"},
    {"Constant_Zkrq", Constant_Zkrq, 28, {1, "connect not authorized"}, {28, "client attachment not installed"}, 29, "(Unknown value)"},
    {"Constant_Zkqsot", Constant_Zkqsot, 3, {1, "all"}, {3, "output"}, 4, "(Unknown value)"},
    {"Constant_Zkqsum", Constant_Zkqsum, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkhstate", Constant_Zkhstate, 2, {0, "inactive"}, {1, "active"}, 2, "(Unknown value)"},
    {"Constant_Zkbt", Constant_Zkbt, 1, {1, "OTMA"}, {1, "OTMA"}, 2, "(Unknown value)"},
    {"Constant_Zkqmdt", Constant_Zkqmdt, 4, {1, "explicit cluster sender"}, {4, "auto explicit cluster sender"}, 5, "(Unknown value)"},
    {"Constant_Zkqmt", Constant_Zkqmt, 2, {0, "normal"}, {1, "repository"}, 2, "(Unknown value)"},
    {"Constant_Zkact", Constant_Zkact, 9, {1, "force remove"}, {9, "fail"}, 10, "(Unknown value)"},
    {"Constant_Zksus", Constant_Zksus, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkcfo_refreshrepos", Constant_Zkcfo_refreshrepos, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkcfo_removequeues", Constant_Zkcfo_removequeues, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkqso_yesno", Constant_Zkqso_yesno, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkqso_share", Constant_Zkqso_share, 3, {0, "no"}, {2, "exclusive"}, 3, "(Unknown value)"},
    {"Constant_Zksectype", Constant_Zksectype, 3, {1, "authorization service"}, {3, "classes"}, 4, "(Unknown value)"},
    {"Constant_Zkauth", Constant_Zkauth, 26, {0, "none"}, {-3, "all ZKI"}, 23, "(Unknown value)"},
    {"Constant_Zkzaet", Constant_Zkzaet, 4, {0, "none"}, {3, "unknown"}, 4, "(Unknown value)"},
    {"Constant_Zkqsgd", Constant_Zkqsgd, 7, {-1, "all"}, {6, "live"}, 5, "(Unknown value)"},
    {"Constant_Zkuowst", Constant_Zkuowst, 4, {0, "none"}, {3, "unresolved"}, 4, "(Unknown value)"},
    {"Constant_Zkuowt", Constant_Zkuowt, 5, {0, "queue manager"}, {4, "XA"}, 5, "(Unknown value)"},
    {"Constant_Zkqmsta", Constant_Zkqmsta, 4, {1, "starting"}, {4, "standby"}, 5, "(Unknown value)"},
    {"Constant_Zksvc_status", Constant_Zksvc_status, 5, {0, "stopped"}, {4, "retrying"}, 5, "(Unknown value)"},
    {"Constant_Zkroute", Constant_Zkroute, 10, {2, "detail low"}, {65541, "accumulate and reply"}, 3, "(Unknown value)"},
    {"Constant_Zkoper", Constant_Zkoper, 13, {0, "unknown"}, {12, "discarded publish"}, 13, "(Unknown value)"},
    {"Constant_Zkuidsupp", Constant_Zkuidsupp, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkpsprop", Constant_Zkpsprop, 4, {0, "none"}, {3, "message property"}, 4, "(Unknown value)"},
    {"Constant_Zkdc", Constant_Zkdc, 2, {1, "managed"}, {2, "provided"}, 3, "(Unknown value)"},
    {"Constant_Zktscope", Constant_Zktscope, 2, {1, "queue manager"}, {2, "all"}, 3, "(Unknown value)"},
    {"Constant_Zkvu", Constant_Zkvu, 2, {1, "fixed user"}, {2, "any user"}, 3, "(Unknown value)"},
    {"Constant_Zkru", Constant_Zkru, 2, {1, "publish on request"}, {2, "publish all"}, 3, "(Unknown value)"},
    {"Constant_Zkws", Constant_Zkws, 3, {0, "default"}, {2, "topic"}, 3, "(Unknown value)"},
    {"Constant_Zksubtype", Constant_Zksubtype, 5, {1, "API"}, {-2, "user"}, 0, "(Unknown value)"},
    {"Constant_Topicstatus", Constant_Topicstatus, 3, {1295, "topic status"}, {1297, "topic pub"}, 1298, "(Unknown value)"},
    {"Constant_Zkclrt", Constant_Zkclrt, 1, {1, "retained"}, {1, "retained"}, 2, "(Unknown value)"},
    {"Constant_Zkas", Constant_Zkas, 8, {0, "none"}, {7, "inactive"}, 8, "(Unknown value)"},
    {"Constant_Zkom", Constant_Zkom, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkps_status", Constant_Zkps_status, 7, {0, "inactive"}, {6, "refused"}, 7, "(Unknown value)"},
    {"Constant_Zkpsst", Constant_Zkpsst, 4, {0, "all"}, {3, "child"}, 4, "(Unknown value)"},
    {"Constant_Zkseltype", Constant_Zkseltype, 3, {0, "none"}, {2, "extended"}, 3, "(Unknown value)"},
    {"Constant_Zkcompress", Constant_Zkcompress, 7, {-1, "not available"}, {268435455, "any"}, 3, "(Unknown value)"},
    {"Constant_Zkinbd", Constant_Zkinbd, 2, {0, "queue manager"}, {3, "group"}, 1, "(Unknown value)"},
    {"Constant_Zkchsstate", Constant_Zkchsstate, 20, {0, "other"}, {1800, "compressing"}, 1, "(Unknown value)"},
    {"Constant_Zkcbt", Constant_Zkcbt, 2, {1, "MESSAGE_CONSUMER"}, {2, "EVENT_HANDLER"}, 3, "(Unknown value)"},
    {"Constant_Zksr", Constant_Zksr, 1, {1, "PUBLICATION"}, {1, "PUBLICATION"}, 2, "(Unknown value)"},
    {"Constant_Zkext", Constant_Zkext, 3, {0, "all"}, {2, "authority"}, 3, "(Unknown value)"},
    {"Constant_Zkextattrs", Constant_Zkextattrs, 2, {0, "all"}, {1, "nondefault"}, 2, "(Unknown value)"},
    {"Constant_Zksysobj", Constant_Zksysobj, 2, {0, "yes"}, {1, "no"}, 2, "(Unknown value)"},
    {"Constant_Zkcfconlos", Constant_Zkcfconlos, 3, {0, "terminate"}, {2, "as queue manager"}, 3, "(Unknown value)"},
    {"Constant_Zkcfoffld", Constant_Zkcfoffld, 4, {0, "none"}, {3, "both"}, 4, "(Unknown value)"},
    {"Constant_Zkrecauto", Constant_Zkrecauto, 2, {0, "no"}, {1, "yes"}, 2, "(Unknown value)"},
    {"Constant_Zkchla", Constant_Zkchla, 2, {0, "disabled"}, {1, "enabled"}, 2, "(Unknown value)"},
    {"Constant_Zkdse", Constant_Zkdse, 3, {0, "default"}, {2, "no"}, 3, "(Unknown value)"},
    {"Constant_Zkcfaccess", Constant_Zkcfaccess, 3, {0, "enabled"}, {2, "disabled"}, 3, "(Unknown value)"},
    {"Constant_Zkcaut", Constant_Zkcaut, 7, {0, "all"}, {6, "queue manager map"}, 7, "(Unknown value)"},
    {"Constant_Zkrar", Constant_Zkrar, 2, {1, "yes"}, {0, "no"}, 2, "(Unknown value)"},
    {"Constant_Zkmcp", Constant_Zkmcp, 5, {2, "reply"}, {-2, "compatibility"}, 3, "(Unknown value)"},
    {"Constant_Zknsh", Constant_Zknsh, 2, {0, "none"}, {-1, "all"}, 1, "(Unknown value)"},
    {"Constant_Zkuci", Constant_Zkuci, 2, {1, "yes"}, {0, "no"}, 2, "(Unknown value)"},
    {"Constant_Zkusrc", Constant_Zkusrc, 3, {0, "map"}, {2, "channel"}, 3, "(Unknown value)"},
    {"Constant_Zkwarn", Constant_Zkwarn, 2, {1, "yes"}, {0, "no"}, 2, "(Unknown value)"},
    {"Constant_Zkclxq", Constant_Zkclxq, 2, {0, "SCTQ"}, {1, "channel"}, 2, "(Unknown value)"},
    {"Constant_ZkIntListZkdiscType", Constant_ZkIntListZkdiscType, 3, {0, "Disconnect type - normal"}, {2, "Disconnect type - queue manager"}, 3, ""},
    {"Constant_ZkIntListZkot", Constant_ZkIntListZkot, 30, {0, "Object type - none"}, {1019, "Object type - prot policy"}, 9, ""},
    {"Constant_ZkIntListPersistence", Constant_ZkIntListPersistence, 2, {0, "for nonpersistent messages"}, {1, "for persistent messages"}, 2, ""},
    {"Constant_ZkIntListPeriod", Constant_ZkIntListPeriod, 2, {0, "based on recent activity over a short period of time"}, {1, "based on activity over a longer period of time"}, 2, ""},
    {"Constant_ZkIntListCompression", Constant_ZkIntListCompression, 2, {0, "default header data compression value negotiated for this channel"}, {1, "header data compression value used for the last message sent"}, 2, ""},
    {"Constant_Ccsid_description", Constant_Ccsid_description, 693, {0, "7-bit ASCII"}, {65535, "BINARY, NO CONVERSION"}, 1, "(Unknown value)"},
    {"Constant_Zkrc", Constant_Zkrc, 903, {0, "none"}, {6130, "ZKRC_XR_NOT_AVAILABLE"}, 1, "(Unknown VZK Reason code)"},
    {"Constant_ZkAttrsPcfType", Constant_ZkAttrsPcfType, 25, {0, "NONE"}, {26, "APP_ACTIVITY"}, 11, "(Unknown PCF type)"},
    {"Constant_ZkAttrsPcfControl", Constant_ZkAttrsPcfControl, 2, {1, "LAST"}, {0, "NOT_LAST"}, 2, "(Unknown PCF control options)"},
    {"Constant_ZkAttrsZkcfop", Constant_ZkAttrsZkcfop, 12, {1, "LESS"}, {29, "EXCLUDES_GEN"}, 7, "(Unknown PCF Operator)"},
    {"Constant_ZkAttrsPcfCommand", Constant_ZkAttrsPcfCommand, 190, {1, "CHANGE_Q_MGR"}, {0, "NONE"}, 14, "(Unknown value)"},
    {"Constant_ZkAttrsZkbacf", Constant_ZkAttrsZkbacf, 33, {7001, "BACF_EVENT_ACCOUNTING_TOKEN"}, {7035, "BACF_XQH_MSG_ID"}, 7017, "(Unknown value)"},
    {"Constant_ZkAttrsZkgacf", Constant_ZkAttrsZkgacf, 14, {8001, "GACF_COMMAND_CONTEXT"}, {8014, "GACF_APP_DIST_LIST"}, 8015, "(Unknown value)"},
    {"Constant_ZkAttrsZkcacfcachcamo", Constant_ZkAttrsZkcacfcachcamo, 265, {3001, "CACF_FROM_Q_NAME"}, {3569, "ZKCACH_SSL_CIPHER_SUITE"}, 2713, "(Unknown value)"},
};
// clang-format on

int CountRows(const ConstantRow* table) {
  int count = 0;
  while (table[count].value != kEndOfTable) ++count;
  return count;
}

void ExpectRows(const ConstantRow* table, const std::vector<ConstantRow>& expected) {
  ASSERT_EQ(CountRows(table), static_cast<int>(expected.size()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(table[i].value, expected[i].value) << i;
    EXPECT_STREQ(table[i].name, expected[i].name) << i;
  }
}

TEST(Constants, FirstAndLastRowOfEveryTable) {
  for (const ExpectedTable& expected : kTables) {
    SCOPED_TRACE(expected.title);
    const int rowCount = CountRows(expected.table);
    ASSERT_EQ(rowCount, expected.rowCount);
    EXPECT_EQ(expected.table[0].value, expected.first.value);
    EXPECT_EQ(expected.table[rowCount - 1].value, expected.last.value);
    EXPECT_STREQ(SearchConstantInt(expected.first.value, expected.table), expected.first.name);
    EXPECT_STREQ(SearchConstantInt(expected.last.value, expected.table), expected.last.name);
  }
}

TEST(Constants, AValueWithoutARowGivesTheTextOfTheTable) {
  for (const ExpectedTable& expected : kTables) {
    SCOPED_TRACE(expected.title);
    EXPECT_STREQ(SearchConstantInt(expected.missingValue, expected.table), expected.notFoundText);
    EXPECT_STREQ(SearchConstantInt(std::numeric_limits<std::int32_t>::min(), expected.table),
                 expected.notFoundText);
    EXPECT_STREQ(SearchConstantInt(std::numeric_limits<std::int32_t>::max(), expected.table),
                 expected.notFoundText);
  }
}

TEST(Constants, TheValueOfTheEndRowGivesTheTextOfTheTable) {
  for (const ExpectedTable& expected : kTables) {
    SCOPED_TRACE(expected.title);
    EXPECT_STREQ(SearchConstantInt(-987, expected.table), expected.notFoundText);
  }
}

TEST(Constants, EveryRowIsFoundUnlessAnEarlierOneHasItsValue) {
  for (const ExpectedTable& expected : kTables) {
    SCOPED_TRACE(expected.title);
    for (const ConstantRow* row = expected.table; row->value != kEndOfTable; ++row) {
      const ConstantRow* winner = expected.table;
      while (winner->value != row->value) ++winner;
      EXPECT_EQ(SearchConstantInt(row->value, expected.table), winner->name) << row->value;
    }
  }
}

TEST(Constants, MessageTypes) {
  EXPECT_STREQ(SearchConstantInt(2, Constant_Zkmt), "REPLY");
  EXPECT_STREQ(SearchConstantInt(3, Constant_Zkmt), "(Unknown value)");
}

TEST(Constants, ReasonCodes) {
  EXPECT_STREQ(SearchConstantInt(2035, Constant_Zkrc), "ZKRC_NOT_AUTHORIZED");
  EXPECT_STREQ(SearchConstantInt(259, Constant_Zkrc), "ZKFB_COA");
  EXPECT_STREQ(SearchConstantInt(1, Constant_Zkrc), "(Unknown VZK Reason code)");
  EXPECT_STREQ(SearchConstantInt(6131, Constant_Zkrc), "(Unknown VZK Reason code)");
}

TEST(Constants, CcsidZeroDependsOnTheFlag) {
  EXPECT_STREQ(SearchConstantCcsidString(0, 0), "default / queue_manager");
  EXPECT_STREQ(SearchConstantCcsidString(0, 1), "7-bit ASCII");
  EXPECT_STREQ(SearchConstantCcsidString(0, -1), "7-bit ASCII");
}

TEST(Constants, CcsidOtherThanZeroIgnoresTheFlag) {
  for (const int flag : {0, 1}) {
    EXPECT_STREQ(SearchConstantCcsidString(-1, flag), "embedded");
    EXPECT_STREQ(SearchConstantCcsidString(-2, flag), "inherit");
    EXPECT_STREQ(SearchConstantCcsidString(-3, flag), "appl");
    EXPECT_STREQ(SearchConstantCcsidString(37, flag), "COM EUROPE EBCDIC");
    EXPECT_STREQ(SearchConstantCcsidString(819, flag), "ISO 8859-1 ASCII");
    EXPECT_STREQ(SearchConstantCcsidString(1208, flag), "UTF-8 with ORX PUA");
    EXPECT_STREQ(SearchConstantCcsidString(5026, flag), "JAPAN MIX EBCDIC");
    EXPECT_STREQ(SearchConstantCcsidString(-4, flag), "(Unknown value)");
    EXPECT_STREQ(SearchConstantCcsidString(-987, flag), "(Unknown value)");
  }
}

TEST(Constants, TheFirstOfTwoRowsWithAValueWins) {
  const ConstantRow table[] = {{4, "first"}, {4, "second"}, {kEndOfTable, "none"}};
  EXPECT_STREQ(SearchConstantInt(4, table), "first");
  EXPECT_STREQ(SearchConstantInt(26, Constant_ApplType), "BROKER");
}

TEST(Constants, ATableMayHoldItsEndRowOnly) {
  const ConstantRow table[] = {{kEndOfTable, "none"}};
  EXPECT_STREQ(SearchConstantInt(0, table), "none");
  EXPECT_STREQ(SearchConstantInt(kEndOfTable, table), "none");
}

TEST(Constants, RowsBehindTheEndRowAreNotSearched) {
  const ConstantRow table[] = {{1, "one"}, {kEndOfTable, "none"}, {2, "two"}};
  EXPECT_STREQ(SearchConstantInt(2, table), "none");
}

TEST(Constants, ShortTablesRowByRow) {
  ExpectRows(Constant_Zkmt, {{1, "REQUEST"},
                             {2, "REPLY"},
                             {8, "DATAGRAM"},
                             {4, "REPORT"},
                             {112, "ZKE_FIELDS_FROM_ZKE"},
                             {113, "ZKE_FIELDS"}});
  ExpectRows(Constant_Zkot, {{0, "none"},
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
                             {1019, "prot policy"}});
  ExpectRows(Constant_Zkrcn, {{0, "no"}, {1, "yes"}, {2, "queue manager"}, {3, "disabled"}});
  ExpectRows(Constant_EPH_Flags, {{1, "ccsid embedded"}, {0, "(none)"}});
  ExpectRows(Constant_Zkcafty, {{0, "none"}, {1, "preferred"}});
  ExpectRows(Constant_Zkmon, {{-3, "queue manager"},
                              {-1, "none"},
                              {0, "off / disabled"},
                              {1, "on / enabled"},
                              {17, "low"},
                              {33, "medium"},
                              {65, "high"}});
  ExpectRows(Constant_Zkprop, {{0, "compatibility"},
                               {1, "none"},
                               {2, "all durable subscribers"},
                               {3, "force ZKRFH2"},
                               {-1, "unrestricted length"}});
  ExpectRows(Constant_Zkusedlq, {{0, "as parent"}, {1, "no"}, {2, "yes"}});
  ExpectRows(Constant_Zkcert, {{0, "any"}, {1, "RFC 5280"}});
  ExpectRows(Constant_ZkIntListZkdiscType, {{0, "Disconnect type - normal"},
                                            {1, "Disconnect type - implicit"},
                                            {2, "Disconnect type - queue manager"}});
  ExpectRows(Constant_ZkIntListZkot, {{0, "Object type - none"},
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
                                      {1019, "Object type - prot policy"}});
  ExpectRows(Constant_ZkIntListPersistence,
             {{0, "for nonpersistent messages"}, {1, "for persistent messages"}});
  ExpectRows(Constant_ZkIntListPeriod, {{0, "based on recent activity over a short period of time"},
                                        {1, "based on activity over a longer period of time"}});
  ExpectRows(Constant_ZkIntListCompression,
             {{0, "default header data compression value negotiated for this channel"},
              {1, "header data compression value used for the last message sent"}});
}

TEST(Constants, ApplicationTypes) {
  const ConstantRow expected[] = {{-1, "unknown"},
                                  {0, "no context"},
                                  {5, "DOS"},
                                  {6, "UNIX"},
                                  {7, "queue manager"},
                                  {9, "Windows"},
                                  {11, "Windows"},
                                  {12, "HP OpenVMS"},
                                  {13, "Compaq NonStop Kernel"},
                                  {14, "VOS"},
                                  {15, "Open TP1"},
                                  {25, "USER"},
                                  {26, "BROKER"},
                                  {28, "JAVA"},
                                  {29, "DQM"},
                                  {30, "CHANNEL_INITIATOR"},
                                  {32, "BATCH"},
                                  {35, "SYSTEM_EXTENSION"}};
  for (const ConstantRow& row : expected) {
    EXPECT_STREQ(SearchConstantInt(row.value, Constant_ApplType), row.name) << row.value;
  }
  EXPECT_STREQ(SearchConstantInt(16, Constant_ApplType), "(Unknown value)");
  EXPECT_STREQ(SearchConstantInt(27, Constant_ApplType), "(Unknown value)");
}

TEST(Constants, MessageFormats) {
  const MsgFormatRow expected[] = {
      {"ZKADMIN ", "PCF - Administration"},
      {"ZKDEAD  ", "Dead letter header"},
      {"ZKHDIST ", "Distribution header"},
      {"ZKHEPCF ", "Embedded programmable command format"},
      {"ZKEVENT ", "Event"},
      {"ZKHMDE  ", "Message descrptor extension"},
      {"ZKPCF   ", "Programmable command format"},
      {"ZKHREF  ", "Reference message header"},
      {"ZKHRF   ", "Rules and formatting header"},
      {"ZKHRF   ", "Rules and formatting header"},
      {"ZKHRF2  ", "Rules and formatting header 2"},
      {"ZKSTR   ", "String"},
      {"ZKTRIG  ", "Trigger message"},
      {"ZKXMIT  ", "Transmission queue header"},
  };
  const std::size_t rowCount = sizeof expected / sizeof expected[0];
  ASSERT_EQ(rowCount, 14u);
  for (std::size_t i = 0; i < rowCount; ++i) {
    EXPECT_STREQ(Constant_MsgFormat[i].name, expected[i].name);
    EXPECT_STREQ(Constant_MsgFormat[i].description, expected[i].description);
    EXPECT_EQ(std::strlen(Constant_MsgFormat[i].name), 8u);
  }
  EXPECT_EQ(Constant_MsgFormat[rowCount].name, nullptr);
  EXPECT_STREQ(Constant_MsgFormat[rowCount].description, "");
}

// Every key that a row may have, and many that none has.
template <typename Row>
void ExpectSameRows(const Row* table, const TableIndex& index) {
  for (std::int32_t key = -2000; key < 70000; ++key)
    ASSERT_EQ(FindRow(key, table, index), FindRow(key, table)) << key;
  for (const std::int32_t key : {INT32_MIN, INT32_MIN + 1, -70000, 100000, INT32_MAX})
    EXPECT_EQ(FindRow(key, table, index), FindRow(key, table)) << key;
}

TEST(TableIndex, HasTheAnswersOfASearchRowByRow) {
  ExpectSameRows(Constant_Ccsid_description, Index_Ccsid_description);
  ExpectSameRows(Constant_Zkrc, Index_Zkrc);
  ExpectSameRows(&Constant_ZkAttrsZkia[0], Index_ZkAttrsZkia);
}

}  // namespace
}  // namespace quillon
