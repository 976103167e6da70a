#include "trace_composer.h"

#include <algorithm>
#include <cstdio>

namespace quillon::compose {

namespace {

constexpr std::size_t kBytesPerLine = 16;
constexpr std::size_t kBytesPerGroup = 4;
constexpr std::size_t kHexWidth = 35;
constexpr std::size_t kNameWidth = 10;
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

void AppendHex(std::string& text, std::uint64_t value, int digits) {
  for (int place = digits - 1; place >= 0; --place) text += kHexDigits[(value >> (4 * place)) & 0xF];
}

/// A number with at least `digits` decimal digits.
std::string Decimal(std::int64_t value, std::size_t digits) {
  std::string text = std::to_string(value);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

char ImageCharacter(std::uint8_t byte) {
  return byte >= 0x20 && byte <= 0x7E ? static_cast<char>(byte) : '.';
}

void AppendDumpLine(std::string& text, const Bytes& bytes, std::size_t offset) {
  const std::size_t end = std::min(offset + kBytesPerLine, bytes.size());
  AppendHex(text, offset, 8);
  text += ':';
  const std::size_t hexStart = text.size();
  for (std::size_t position = offset; position < end; ++position) {
    if (position > offset && position % kBytesPerGroup == 0) text += ' ';
    AppendHex(text, bytes[position], 2);
  }
  text.append(kHexWidth - (text.size() - hexStart), ' ');
  text += "  [";
  for (std::size_t position = offset; position < end; ++position) text += ImageCharacter(bytes[position]);
  text += "]\n";
}

/// Whether the line at `offset` may be left out: it equals the line before it and is not the last one.
bool IsRepeat(const Bytes& bytes, std::size_t offset) {
  if (offset == 0 || offset + kBytesPerLine >= bytes.size()) return false;
  const auto line = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
  return std::equal(line, line + kBytesPerLine, line - kBytesPerLine);
}

struct CalendarTime {
  std::chrono::year_month_day date;
  std::chrono::hh_mm_ss<std::chrono::microseconds> time;
};

CalendarTime CalendarOf(TraceComposer::Clock now) {
  const auto day = std::chrono::floor<std::chrono::days>(now);
  return {std::chrono::year_month_day(day), std::chrono::hh_mm_ss(now - day)};
}

std::string DateText(const std::chrono::year_month_day& date, std::string_view separator) {
  std::string text = Decimal(int(date.year()), 4);
  text += separator;
  text += Decimal(static_cast<std::int64_t>(unsigned(date.month())), 2);
  text += separator;
  return text + Decimal(static_cast<std::int64_t>(unsigned(date.day())), 2);
}

std::string TimeStamp(TraceComposer::Clock now) {
  const CalendarTime calendar = CalendarOf(now);
  return DateText(calendar.date, "/") + " " + Decimal(calendar.time.hours().count(), 2) + ":" +
         Decimal(calendar.time.minutes().count(), 2) + ":" + Decimal(calendar.time.seconds().count(), 2) +
         "." + Decimal(calendar.time.subseconds().count(), 6);
}

}  // namespace

std::string DumpText(const Bytes& bytes) {
  std::string text;
  for (std::size_t offset = 0; offset < bytes.size(); offset += kBytesPerLine) {
    if (!IsRepeat(bytes, offset)) {
      AppendDumpLine(text, bytes, offset);
      continue;
    }
    const std::size_t first = offset;
    while (IsRepeat(bytes, offset + kBytesPerLine)) offset += kBytesPerLine;
    AppendHex(text, first, 8);
    text += '-';
    AppendHex(text, offset + kBytesPerLine - 1, 8);
    text += " same as above\n";
  }
  return text;
}

std::string DataNameLine(std::string_view name, std::size_t length) {
  std::string line(name);
  if (line.size() < kNameWidth) line.append(kNameWidth - line.size(), ' ');
  line += ":(" + std::to_string(length) + " = 0x";
  int digits = 1;
  while (digits < 8 && (length >> (4 * digits)) != 0) ++digits;
  AppendHex(line, length, digits);
  return line + " bytes)\n";
}

void TraceComposer::Header(const TraceHeader& header) {
  const std::string rule = "|" + std::string(96, '-');
  Line(rule);
  Line("|");
  Line("|   ZK API trace");
  Line("|");
  Line("|  Program name       : " + header.programName);
  Line("|  Addressing mode    : " + header.addressingMode);
  Line("|  Operating system   : " + header.operatingSystem);
  Line("|  Process id          : " + std::to_string(processId));
  Line("|  Start time          : " + TimeStamp(now));
  Line("|");
  Line(rule);
}

void TraceComposer::BeginSection(std::string_view call, Phase phase) {
  text += '<';
  Line(call);
  Line(phase == Phase::Before ? "(BEFORE" : "(AFTER");
  Line(TimeStamp(now) + "  Pid " + std::to_string(processId) + "  Tid " + std::to_string(threadId));
}

void TraceComposer::EndSection() {
  text.append(80, '-');
  text += '\n';
  if (!sectionSink) return;
  sectionSink(text);
  text.clear();
}

void TraceComposer::Line(std::string_view line) {
  text += line;
  text += '\n';
}

void TraceComposer::Number(std::string_view name, std::int64_t value) {
  Text(name, std::to_string(value));
}

void TraceComposer::Hex(std::string_view name, std::uint32_t value) {
  text += name;
  text += ":0x";
  AppendHex(text, value, 8);
  text += '\n';
}

void TraceComposer::Text(std::string_view name, std::string_view value) {
  text += name;
  text += ':';
  Line(value);
}

void TraceComposer::Outcome(std::int32_t compCode, std::int32_t reason) {
  Number("CompCode", compCode);
  Number("Reason", reason);
}

void TraceComposer::Item(std::string_view name, const Bytes& bytes) {
  text += DataNameLine(name, bytes.size());
  text += DumpText(bytes);
}

void TraceComposer::VariableItem(std::string_view name, std::string_view value) {
  Item("Variable-" + std::string(name), BytesOf(value));
}

std::string TraceComposer::PutDate() const {
  return DateText(CalendarOf(now).date, "");
}

std::string TraceComposer::PutTime() const {
  const auto time = CalendarOf(now).time;
  return Decimal(time.hours().count(), 2) + Decimal(time.minutes().count(), 2) +
         Decimal(time.seconds().count(), 2) + Decimal(time.subseconds().count() / 10000, 2);
}

}  // namespace quillon::compose
