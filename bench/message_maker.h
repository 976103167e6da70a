// Message bodies with pseudo-random content, one function for each form that a body can have.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "message_composer.h"
#include "split_mix.h"

namespace quillon::compose {

/// One form of message body.
struct MessageKind {
  std::string_view name;
  MessageBody (*make)(SplitMix64& random, std::int32_t encoding);
};

/// Every form once: text in each coded character set, XML, each header, chains, each sort of PCF message.
std::span<const MessageKind> MessageKinds();
/// The forms that hold programmable commands, replies, events and records.
std::span<const MessageKind> PcfMessageKinds();
/// A body whose form is drawn so that plain text is common and chains of headers are rare.
MessageBody MakeMessage(SplitMix64& random, std::int32_t encoding);

/// Text of about `length` bytes in the words of one coded character set.
std::string MakeText(SplitMix64& random, std::int32_t ccsid, std::size_t length);
/// A length in bytes: mostly some hundreds, now and then many thousands.
std::size_t MakeLength(SplitMix64& random);
/// A queue name of the depot ("PARCEL.LABEL.17").
std::string MakeQueueName(SplitMix64& random);

}  // namespace quillon::compose
