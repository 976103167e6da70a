#include "display/constants.h"

#include "display/table_index.h"

namespace quillon {

const char* SearchConstantInt(std::int32_t value, const ConstantRow* table) {
  return FindRow(value, table)->name;
}

const char* FindConstant(std::int32_t value, const ConstantRow* table) {
  const ConstantRow* row = FindRow(value, table);
  return row->value == kEndOfTable ? nullptr : row->name;
}

const char* SearchConstantCcsidString(std::int32_t ccsid, int flag) {
  if (ccsid == 0 && flag == 0) return "default / queue_manager";
  return FindRow(ccsid, Constant_Ccsid_description, Index_Ccsid_description)->name;
}

const char* SearchConstantReasonString(std::int32_t reason) {
  return FindRow(reason, Constant_Zkrc, Index_Zkrc)->name;
}

}  // namespace quillon
