#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// clang-format off
constexpr IntListRow Constant_SelectorsForIntList[] = {
    {714, "", Constant_ZkIntListZkdiscType},
    {733, "", Constant_ZkIntListZkot},
    {751, "", Constant_ZkIntListZkot},
    {709, "", Constant_ZkIntListZkot},
    {757, "", Constant_ZkIntListZkot},
    {727, "", Constant_ZkIntListZkot},
    {752, "", Constant_ZkIntListZkot},
    {744, "", Constant_ZkIntListZkot},
    {753, "", Constant_ZkIntListZkot},
    {735, "", Constant_ZkIntListPersistence},
    {734, "", Constant_ZkIntListPersistence},
    {748, "", Constant_ZkIntListPersistence},
    {722, "", Constant_ZkIntListPersistence},
    {747, "", Constant_ZkIntListPersistence},
    {705, "", Constant_ZkIntListPersistence},
    {745, "", Constant_ZkIntListPersistence},
    {728, "", Constant_ZkIntListPersistence},
    {758, "", Constant_ZkIntListPersistence},
    {746, "", Constant_ZkIntListPersistence},
    {737, "", Constant_ZkIntListPersistence},
    {736, "", Constant_ZkIntListPersistence},
    {724, "", Constant_ZkIntListPersistence},
    {723, "", Constant_ZkIntListPersistence},
    {707, "", Constant_ZkIntListPersistence},
    {706, "", Constant_ZkIntListPersistence},
    {743, "", Constant_ZkIntListPersistence},
    {741, "", Constant_ZkIntListPersistence},
    {742, "", Constant_ZkIntListPersistence},
    {1226, "", Constant_ZkIntListPeriod},
    {1607, "", Constant_ZkIntListPeriod},
    {1611, "", Constant_ZkIntListPeriod},
    {1612, "", Constant_ZkIntListPeriod},
    {1606, "", Constant_ZkIntListPeriod},
    {1605, "", Constant_ZkIntListPeriod},
    {1604, "", Constant_ZkIntListPeriod},
    {1575, "", Constant_ZkIntListCompression},
    {1576, "", Constant_ZkIntListCompression},
    {kEndOfTable, "", nullptr},
};
// clang-format on
static_assert(CheckIntListTable(Constant_SelectorsForIntList, {.rows = 37, .endText = ""}));
static_assert(FindRow(714, Constant_SelectorsForIntList)->positions == Constant_ZkIntListZkdiscType);
static_assert(FindRow(753, Constant_SelectorsForIntList)->positions == Constant_ZkIntListZkot);
static_assert(FindRow(735, Constant_SelectorsForIntList)->positions == Constant_ZkIntListPersistence);
static_assert(FindRow(1604, Constant_SelectorsForIntList)->positions == Constant_ZkIntListPeriod);
static_assert(FindRow(1576, Constant_SelectorsForIntList)->positions == Constant_ZkIntListCompression);

}  // namespace quillon
