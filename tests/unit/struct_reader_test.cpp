#include "base/struct_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "report_capture.h"

namespace quillon {
namespace {

TEST(ByteOrderOfAStructure, IsToldByTheHighByteOfItsVersion) {
  const auto context = std::make_unique<RunContext>();
  const std::vector<std::uint8_t> big = BytesOfHex("4D442020 00000002");
  const std::vector<std::uint8_t> little = BytesOfHex("4D442020 02000000");
  EXPECT_EQ(ReaderByVersion(*context, ViewOf(big)).Order(), ByteOrder::Big);
  EXPECT_EQ(ReaderByVersion(*context, ViewOf(little)).Order(), ByteOrder::Little);
  EXPECT_EQ(ReaderByVersion(*context, ByteView()).Order(), ByteOrder::Big) << "no version: as zero";
}

TEST(ByteOrderOfAStructure, FollowsItsEncoding) {
  const auto context = std::make_unique<RunContext>();
  for (const std::uint32_t encoding : {0U, 1U, 273U, 0xFFFFFFFFU})
    EXPECT_EQ(ReaderByEncoding(*context, ByteView(), encoding).Order(), ByteOrder::Big) << encoding;
  for (const std::uint32_t encoding : {2U, 4U, 546U, 0x80000000U})
    EXPECT_EQ(ReaderByEncoding(*context, ByteView(), encoding).Order(), ByteOrder::Little) << encoding;
}

TEST(StructReader, ReadsFieldAfterField) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("01020304 FFFFFFFE 4142 5A 000000 0A0B0C0D");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Big);
  EXPECT_EQ(reader.UInt32(), 0x01020304U);
  EXPECT_EQ(reader.Int32(), -2);
  const ByteView text = reader.Bytes(2);
  EXPECT_EQ(text.Size(), 2);
  EXPECT_EQ(text.At(1), 'B');
  EXPECT_EQ(reader.Byte(), 'Z');
  reader.Skip(3);
  EXPECT_EQ(reader.Offset(), 14);
  EXPECT_EQ(reader.Pointer(), 0x0A0B0C0DU);
  EXPECT_EQ(reader.Offset(), 18);
}

TEST(StructReader, ReadsStoredFieldsInTheirOwnOrder) {
  const std::vector<std::uint8_t> bytes =
      BytesOfHex("02000000 00000001 FFFFFFFC 00000003 00000004 00000005 00000006 00000007 08000000");
  StructReader reader(ViewOf(bytes), ByteOrder::Little, ByteOrder::Big);
  EXPECT_EQ(reader.Int32(), 2);
  const VariableString text = reader.Charv();
  EXPECT_EQ(text.address, 1U);
  EXPECT_EQ(text.offset, -4);
  EXPECT_EQ(text.bufferSize, 3);
  EXPECT_EQ(text.length, 4);
  EXPECT_EQ(text.ccsid, 5);
  const MessageHandle handle = reader.StoredMessageHandle();
  EXPECT_EQ(handle.high, 6U);
  EXPECT_EQ(handle.low, 7U);
  EXPECT_EQ(reader.Int32(), 8);
}

TEST(StructReader, ReadsZerosBehindTheDump) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("0102");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Big);
  EXPECT_EQ(reader.UInt32(), 0x01020000U);
  EXPECT_EQ(reader.Charv().length, 0);
  EXPECT_EQ(reader.Bytes(48).Size(), 48);
  EXPECT_EQ(reader.Byte(), 0);
  EXPECT_EQ(reader.Offset(), 4 + 20 + 48 + 1);
}

}  // namespace
}  // namespace quillon
