#include "message_composer_text.h"

namespace quillon::compose {

namespace {

// The bytes are written out, so that neither the encoding of this file nor a locale has a say in them.

constexpr std::string_view kLatin1[] = {
    "order",              // plain
    "commande",           // plain
    "re\xE7ue",           // received
    "d\xE9p\xF4t",        // depot
    "Z\xFCrich",          // a city
    "colis",              // parcel
    "pr\xEAt",            // ready
    "livr\xE9",           // delivered
    "Stra\xDF\x65",       // street
    "fa\xE7\x61\x64\x65"  // front
};

constexpr std::string_view kUtf8[] = {"order",
                                      "gr\xC3\xB6\xC3\x9F\x65",    // size, two 2-byte characters
                                      "\xE6\xB3\xA8\xE6\x96\x87",  // order, 3-byte characters
                                      "\xE7\x95\xAA\xE5\x8F\xB7",  // number
                                      "\xE5\x80\x89\xE5\xBA\xAB",  // depot
                                      "\xEC\xA3\xBC\xEB\xAC\xB8",  // order
                                      "\xE2\x82\xAC\x31\x32\x35",  // an amount
                                      "\xE5\xAE\x8C\xE4\xBA\x86",  // done
                                      "\xF0\x9F\x93\xA6",          // a parcel, a 4-byte character
                                      "colis"};

constexpr std::string_view kShiftJis932[] = {
    "order",
    "\x92\x8D\x95\xB6",      // order
    "\x94\xD4\x8D\x86",      // number
    "\x8E\xF3\x95t",         // accepted; the second trail byte is a letter
    "\x91q\x8C\xC9",         // depot
    "\xB5\xB0\xC0\xDE\xB0",  // order in half-width characters, one byte each
    "\x95\\\x8E\xA6",        // display; a trail byte is a backslash
    "\x94\\\x97\xCD",        // capacity
    "lot"};

constexpr std::string_view kShiftJis943[] = {"order",
                                             "\x8Fo\x89\xD7",   // sent
                                             "\x97\\\x92\xE8",  // planned
                                             "\x87@",           // a circled one, from the rows of extensions
                                             "\x8F\xAC\x95\xEF",  // small parcel
                                             "\xC6\xD3\xC2",      // freight in half-width characters
                                             "\x83\\\x81[\x83g",  // sorting
                                             "\x8A\xAE\x97\xB9",  // done
                                             "box"};

constexpr std::string_view kEucJapanese[] = {
    "order",
    "\xC3\xED\xCA\xB8",          // order
    "\xC8\xD6\xB9\xE6",          // number
    "\x8E\xC6\x8E\xD3\x8E\xC2",  // freight in half-width characters, two bytes each
    "\xBD\xD0\xB2\xD9"           // sent
};

constexpr std::string_view kEucKorean[] = {
    "order",
    "\xC1\xD6\xB9\xAE",  // order
    "\xB9\xF8\xC8\xA3",  // number
    "\xC3\xE2\xC7\xCF"   // sent
};

constexpr std::string_view kChineseGbk[] = {
    "order",
    "\xB6\xA9\xB5\xA5",  // order
    "\xBA\xC5\xC2\xEB",  // number
    "\xB7\xA2\xBB\xF5"   // sent
};

constexpr std::string_view kEbcdic500[] = {
    "\xD6\xD9\xC4\xC5\xD9",              // ORDER
    "\xD9\xC5\xC3\xC5\xC9\xE5\xC5\xC4",  // RECEIVED
    "\xC4\xC5\xD7\xD6\xE3",              // DEPOT
    "\xF4\xF7\xF1\xF1",                  // 4711
    "\xA2\x88\x89\x97\x97\x85\x84"       // shipped
};

constexpr Vocabulary kVocabularies[] = {
    {819, ' ', kLatin1},      {1208, ' ', kUtf8},     {932, ' ', kShiftJis932}, {943, ' ', kShiftJis943},
    {954, ' ', kEucJapanese}, {970, ' ', kEucKorean}, {1386, ' ', kChineseGbk}, {500, '\x40', kEbcdic500},
};

}  // namespace

std::span<const Vocabulary> Vocabularies() {
  return kVocabularies;
}

const Vocabulary& VocabularyOf(std::int32_t ccsid) {
  for (const Vocabulary& vocabulary : kVocabularies)
    if (vocabulary.ccsid == ccsid) return vocabulary;
  return kVocabularies[0];
}

}  // namespace quillon::compose
