#include "message_composer_pcf.h"

namespace quillon::compose {

namespace {

constexpr std::int32_t kHeaderLength = 36;
constexpr std::size_t kLengthOffset = 4;

std::int32_t Length(std::size_t size) {
  return static_cast<std::int32_t>(size);
}

}  // namespace

PcfComposer::PcfComposer(const PcfHeader& header, std::int32_t messageEncoding)
    : encoding(messageEncoding), writer(OrderOf(messageEncoding)) {
  writer.Int32(header.type);
  writer.Int32(kHeaderLength);
  writer.Int32(header.version);
  writer.Int32(header.command);
  writer.Int32(header.msgSeqNumber);
  writer.Int32(header.control);
  writer.Int32(header.compCode);
  writer.Int32(header.reason);
  levels.push_back({writer.Size(), 0});
  writer.Int32(0);
}

void PcfComposer::Begin(std::int32_t type, std::int32_t id) {
  ++levels.back().count;
  parameterStart = writer.Size();
  writer.Int32(type);
  writer.Int32(0);
  writer.Int32(id);
}

void PcfComposer::End() {
  writer.FillTo(4, 0);
  writer.ReplaceInt32(parameterStart + kLengthOffset, Length(writer.Size() - parameterStart));
}

void PcfComposer::Integer(std::int32_t id, std::int32_t value) {
  Begin(kPcfInteger, id);
  writer.Int32(value);
  End();
}

void PcfComposer::Integer64(std::int32_t id, std::int64_t value) {
  Begin(kPcfInteger64, id);
  writer.Int32(0);
  writer.Int64(value);
  End();
}

void PcfComposer::IntegerList(std::int32_t id, const std::vector<std::int32_t>& values) {
  Begin(kPcfIntegerList, id);
  writer.Int32(Length(values.size()));
  for (const std::int32_t value : values) writer.Int32(value);
  End();
}

void PcfComposer::Integer64List(std::int32_t id, const std::vector<std::int64_t>& values) {
  Begin(kPcfInteger64List, id);
  writer.Int32(Length(values.size()));
  for (const std::int64_t value : values) writer.Int64(value);
  End();
}

void PcfComposer::String(std::int32_t id, std::string_view text, std::size_t width, std::int32_t ccsid) {
  if (width == 0) width = text.size();
  Begin(kPcfString, id);
  writer.Int32(ccsid);
  writer.Int32(Length(width));
  writer.Text(text, width);
  End();
}

void PcfComposer::StringList(std::int32_t id, const std::vector<std::string>& texts, std::size_t width,
                             std::int32_t ccsid) {
  Begin(kPcfStringList, id);
  writer.Int32(ccsid);
  writer.Int32(Length(texts.size()));
  writer.Int32(Length(width));
  for (const std::string& text : texts) writer.Text(text, width);
  End();
}

void PcfComposer::ByteString(std::int32_t id, const Bytes& value) {
  Begin(kPcfByteString, id);
  writer.Int32(Length(value.size()));
  writer.Raw(value);
  End();
}

void PcfComposer::IntegerFilter(std::int32_t id, std::int32_t filterOperator, std::int32_t value) {
  Begin(kPcfIntegerFilter, id);
  writer.Int32(filterOperator);
  writer.Int32(value);
  End();
}

void PcfComposer::StringFilter(std::int32_t id, std::int32_t filterOperator, std::string_view text,
                               std::int32_t ccsid) {
  Begin(kPcfStringFilter, id);
  writer.Int32(filterOperator);
  writer.Int32(ccsid);
  writer.Int32(Length(text.size()));
  writer.Raw(text);
  End();
}

void PcfComposer::ByteStringFilter(std::int32_t id, std::int32_t filterOperator, const Bytes& value) {
  Begin(kPcfByteStringFilter, id);
  writer.Int32(filterOperator);
  writer.Int32(Length(value.size()));
  writer.Raw(value);
  End();
}

void PcfComposer::BeginGroup(std::int32_t id) {
  Begin(kPcfGroup, id);
  levels.push_back({writer.Size(), 0});
  writer.Int32(0);
  End();  // a group's length covers only its own 16 bytes
}

void PcfComposer::EndGroup() {
  writer.ReplaceInt32(levels.back().countPosition, levels.back().count);
  levels.pop_back();
}

void PcfComposer::Parameter(std::int32_t type, std::int32_t id, const Bytes& rest) {
  Begin(type, id);
  writer.Raw(rest);
  End();
}

Bytes PcfComposer::Take() {
  writer.ReplaceInt32(levels.front().countPosition, levels.front().count);
  return writer.Take();
}

MessageBody PcfBody(PcfComposer& parameters, std::string format) {
  return {std::move(format), parameters.Encoding(), 819, parameters.Take()};
}

MessageBody EmbeddedPcfBody(const EmbeddedPcfHeader& fields, PcfComposer& parameters) {
  constexpr std::int32_t kOwnLength = 32;
  const Bytes message = parameters.Take();
  ByteWriter writer(OrderOf(parameters.Encoding()));
  writer.Text("EPH", 4);
  writer.Int32(fields.version);
  writer.Int32(kOwnLength + Length(message.size()));
  writer.Int32(parameters.Encoding());
  writer.Int32(819);
  writer.Text(fields.format, 8);
  writer.Int32(fields.flags);
  writer.Raw(message);
  return {"ZKHEPCF", parameters.Encoding(), 819, writer.Take()};
}

}  // namespace quillon::compose
