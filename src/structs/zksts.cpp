// Status structure (ZKSTS).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "structs/formatters.h"

namespace quillon {

int ShowParsedZksts(RunContext& runContext, ByteView structure) {
  StructReader sts = ReaderAsStored(runContext, structure);
  sts.Skip(4);  // structure id
  const std::int32_t version = sts.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "CompCode", sts.Int32());
  ShowFieldReason(runContext, "Reason", sts.Int32());
  ShowFieldValueZklong(runContext, "PutSuccessCount", sts.Int32());
  ShowFieldValueZklong(runContext, "PutWarningCount", sts.Int32());
  ShowFieldValueZklong(runContext, "PutFailureCount", sts.Int32());
  ShowFieldConstant(runContext, "ObjectType", sts.Int32(), Constant_Zkot);
  ShowFieldValueStringFixed(runContext, "ObjectName", sts.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ObjectQMgrName", sts.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ResolvedObjectName", sts.Bytes(48));
  int result = ShowFieldValueStringFixed(runContext, "ResolvedQMgrName", sts.Bytes(48));
  if (version < 2) return result;

  // The trace carries no separate texts for this structure: they stand in the dump itself.
  const CharvText inStructure = {CharvText::Place::InStructure, {}};
  ShowDataVersion(runContext, "STS", 2);
  ShowZKCHARV(runContext, "ObjectString", sts.Charv(), structure, inStructure);
  ShowZKCHARV(runContext, "SubName", sts.Charv(), structure, inStructure);
  // Kept: the two option words are read as status types, so a word other than 0, 1 and 2 gives a notice and
  // no line of its own.
  ShowParsedZkstatType(runContext, "OpenOptions", sts.Int32());
  result = ShowParsedZkstatType(runContext, "SubOptions", sts.Int32());
  return result;
}

}  // namespace quillon
