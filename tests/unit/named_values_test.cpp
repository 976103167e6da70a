#include "display/named_values.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "message_bytes.h"
#include "report_capture.h"

namespace quillon {
namespace {

constexpr ConstantRow kList[] = {{1, "ONE"}, {2, "TWO"}, {1, "HIDDEN"}, {kEndOfTable, "(Unknown value)"}};

template <typename Show>
std::string Shown(Show show) {
  ReportCapture capture;
  show(capture.Context());
  return capture.Report();
}

TEST(FieldConstant, ShowsTheTextOfTheTable) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldConstant(c, "Name", 1, kList);
              ShowFieldConstant(c, "Name", 7, kList);
              ShowFieldConstant(c, "Name", kEndOfTable, kList);
            }),
            Field("Name", "ONE") + Field("Name", "(Unknown value)") + Field("Name", "(Unknown value)"));
}

TEST(FieldConstantOrNumber, ShowsTheNumberOfAValueWithoutARow) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldConstantOrNumber(c, "MsgType", 8, Constant_Zkmt);
              ShowFieldConstantOrNumber(c, "MsgType", 12345, Constant_Zkmt);
              ShowFieldConstantOrNumber(c, "MsgType", -987, Constant_Zkmt);
            }),
            Field("MsgType", "DATAGRAM") + Field("MsgType", "12345") + Field("MsgType", "-987"));
}

TEST(FieldConstantOrNumber, AnEmptyTextGivesWayToTheNumber) {
  constexpr ConstantRow gap[] = {{1, ""}, {kEndOfTable, "(Unknown value)"}};
  constexpr ConstantRow nothing[] = {{kEndOfTable, ""}};
  EXPECT_EQ(Shown([&](RunContext& c) {
              ShowFieldConstantOrNumber(c, "Name", 1, gap);
              ShowFieldConstantOrNumber(c, "Name", 2, nothing);
            }),
            Field("Name", "1") + Field("Name", "2"));
}

TEST(FieldReason, ShowsNumberAndName) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldReason(c, "Reason", 0);
              ShowFieldReason(c, "Reason", 2035);
              ShowFieldReason(c, "Reason", -1);
            }),
            Field("Reason", "0") + Field("Reason", "2035 (ZKRC_NOT_AUTHORIZED)") +
                Field("Reason", "-1 ((Unknown VZK Reason code))"));
}

TEST(FieldEnumeration, ShowsTheNameAlone) {
  ReportCapture capture;
  ShowFieldEnumeration(capture.Context(), "Type", 2, kList, UnknownForm::NumberOnly, "LABEL");
  EXPECT_EQ(capture.Report(), Field("Type", "TWO"));
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

TEST(FieldEnumeration, AValueOutsideTheListIsReported) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldEnumeration(c, "Type", 3, kList, UnknownForm::NumberOnly, "LABEL");
            }),
            Field("Type", "3") + Notice("LABEL 0x00000003"));
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldEnumeration(c, "Type", -3, kList, UnknownForm::NameTwice, "LABEL");
            }),
            "|> Type                     : " + Field("Type", "-3") + Notice("LABEL 0xFFFFFFFD"));
}

}  // namespace
}  // namespace quillon
