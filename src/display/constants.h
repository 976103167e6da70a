// Constant tables: the names of enumerated values, and their lookup.
#pragma once

#include <cstdint>

#include "display/tables/constant_row.h"
#include "display/tables/value_tables.h"

namespace quillon {

/// Name of the first row with this value, else the table's text for a value without a row. Never fails, never
/// null; the text is the table's own.
const char* SearchConstantInt(std::int32_t value, const ConstantRow* table);

/// Name of the first row with this value, or null when the table has no row for it.
const char* FindConstant(std::int32_t value, const ConstantRow* table);

/// Description of a CCSID. CCSID 0 with flag 0 (fields) is the queue manager's default; with any other flag
/// (the head of the report) CCSID 0 has its row in the table like every other.
const char* SearchConstantCcsidString(std::int32_t ccsid, int flag);

/// Name of a feedback or reason code.
const char* SearchConstantReasonString(std::int32_t reason);

/// A message format: its name, 8 bytes padded with blanks, and what it is. The last row is {nullptr, ""}.
struct MsgFormatRow {
  const char* name;
  const char* description;
};

extern const MsgFormatRow Constant_MsgFormat[];

extern const ConstantRow Constant_Ccsid_description[];
extern const ConstantRow Constant_Zkrc[];  ///< feedback and reason codes

extern const ConstantRow Constant_ZkAttrsPcfType[];  ///< of a PCF header and of a PCF parameter
extern const ConstantRow Constant_ZkAttrsPcfControl[];
extern const ConstantRow Constant_ZkAttrsZkcfop[];  ///< filter operators
extern const ConstantRow Constant_ZkAttrsPcfCommand[];

}  // namespace quillon
