#include "display/constants.h"

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
  return SearchConstantInt(ccsid, Constant_Ccsid_description);
}

}  // namespace quillon
