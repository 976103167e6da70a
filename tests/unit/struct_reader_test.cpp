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
  EXPECT_EQ(reader.Bytes(1).At(0), 'Z');
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

TEST(StructReader, ReadsWidePointersInTheirAlignment) {
  const std::vector<std::uint8_t> bytes =
      BytesOfHex("00000001 EEEEEEEE 0000007F 20001000 00000002 EEEEEEEE 00000000 00000003 00000004");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Big, true);
  EXPECT_EQ(reader.Int32(), 1);
  EXPECT_EQ(reader.Pointer(), 0x0000007F20001000U);
  EXPECT_EQ(reader.Offset(), 16);
  EXPECT_EQ(reader.Int32(), 2);
  reader.SkipPointer();
  EXPECT_EQ(reader.Offset(), 32);
  EXPECT_EQ(reader.Int32(), 4);
}

TEST(StructReader, ReadsReversedWidePointers) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("00100020 7F000000");
  EXPECT_EQ(StructReader(ViewOf(bytes), ByteOrder::Little, ByteOrder::Little, true).Pointer(),
            0x0000007F20001000U);
}

TEST(StructReader, ReadsWideStringDescriptors) {
  const std::vector<std::uint8_t> bytes =
      BytesOfHex("01000000 EEEEEEEE 00100020 7F000000 FCFFFFFF 03000000 04000000 B8040000 05000000 00000000");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Little, true);
  reader.Skip(4);
  const VariableString text = reader.Charv();
  EXPECT_EQ(text.address, 0x0000007F20001000U);
  EXPECT_EQ(text.offset, -4);
  EXPECT_EQ(text.bufferSize, 3);
  EXPECT_EQ(text.length, 4);
  EXPECT_EQ(text.ccsid, 1208);
  EXPECT_EQ(reader.Offset(), 32) << "24 bytes from the next multiple of 8";
}

TEST(StructReader, ReadsAMessageHandleAsOneInteger) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("08070605 04030201");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Little);
  const MessageHandle handle = reader.StoredMessageHandle();
  EXPECT_EQ(handle.high, 0x01020304U);
  EXPECT_EQ(handle.low, 0x05060708U);
}

/// What the functions that make readers do on each platform.
class ReaderOrders : public testing::Test {
 protected:
  const std::vector<std::uint8_t> big = BytesOfHex("58582020 00000001");
  const std::vector<std::uint8_t> little = BytesOfHex("58582020 01000000");
  const std::vector<std::uint8_t> littleChannel =
      BytesOfHex("41414141 41414141 41414141 41414141 41414141 01000000");
  std::unique_ptr<RunContext> context = std::make_unique<RunContext>();

  ByteOrder AsStored(const std::vector<std::uint8_t>& bytes) {
    return ReaderAsStored(*context, ViewOf(bytes)).Order();
  }
};

TEST_F(ReaderOrders, StoredOrderIsThatOfThePlatform) {
  EXPECT_EQ(AsStored(little), ByteOrder::Big);
  EXPECT_EQ(ReaderByVersion(*context, ViewOf(little)).Order(), ByteOrder::Little);
  EXPECT_EQ(context->storedOrder, ByteOrder::Big) << "a structure's own order is not handed on";
  EXPECT_EQ(OrderOfSavedCopy(*context, ViewOf(little)), ByteOrder::Big);
  EXPECT_EQ(OrderOfSavedEncoding(*context, ViewOf(little)), ByteOrder::Big);

  context->platform = {.littleEndian = true};
  context->storedOrder = ByteOrder::Little;
  EXPECT_EQ(AsStored(big), ByteOrder::Little);
  EXPECT_EQ(ReaderByVersion(*context, ViewOf(big)).Order(), ByteOrder::Big);
  EXPECT_EQ(ReaderOfRecords(*context, ViewOf(big)).Order(), ByteOrder::Little);
  EXPECT_EQ(OrderOfSavedCopy(*context, ViewOf(big)), ByteOrder::Little);
  EXPECT_EQ(OrderOfSavedEncoding(*context, ViewOf(big)), ByteOrder::Big) << "in the descriptor's own order";
}

TEST_F(ReaderOrders, AutoTakesTheOrderOfEachVersion) {
  context->platform = {.autoDetect = true};
  EXPECT_EQ(AsStored(little), ByteOrder::Little);
  EXPECT_EQ(ReaderOfRecords(*context, ViewOf(big)).Order(), ByteOrder::Little) << "as the structure before";
  EXPECT_EQ(ReaderByEncoding(*context, ViewOf(big), 273).Order(), ByteOrder::Big);
  EXPECT_EQ(context->storedOrder, ByteOrder::Little) << "message data says nothing about the process";
  EXPECT_EQ(ReaderByVersion(*context, ViewOf(big)).Order(), ByteOrder::Big);
  EXPECT_EQ(ReaderOfRecords(*context, ViewOf(little)).Order(), ByteOrder::Big);
  EXPECT_EQ(OrderOfSavedCopy(*context, ViewOf(little)), ByteOrder::Little) << "the copy has a version";
  EXPECT_EQ(OrderOfSavedEncoding(*context, ViewOf(little)), ByteOrder::Little);
  EXPECT_EQ(ReaderAsStored(*context, ViewOf(littleChannel), kChannelVersionOffset).Order(),
            ByteOrder::Little);
}

TEST(StructReader, ReadsZerosBehindTheDump) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("0102");
  StructReader reader(ViewOf(bytes), ByteOrder::Big, ByteOrder::Big);
  EXPECT_EQ(reader.UInt32(), 0x01020000U);
  EXPECT_EQ(reader.Charv().length, 0);
  EXPECT_EQ(reader.Bytes(48).Size(), 48);
  EXPECT_EQ(reader.Offset(), 4 + 20 + 48);
}

}  // namespace
}  // namespace quillon
