// The two binary formats of profile files, field by field. All numbers are 16-bit little-endian; texts are padded with
// bytes 0 and end at the first one.
//
// Current format: offset 0 the magic "TLCNJ" and the version digit, in 10 bytes; 10 description (36 bytes); 46 comment
// start (3); 49 extension (4); 53 comment end (3); 56 delimiters (61); 117 line comment (3); 120 string character;
// 121 preprocessor character; 122 keyword count; from 124 on, for each keyword, its length (2) and its text (21).
//
// Old format: without the magic, so it begins with the description, and keyword texts have 16 bytes. Only read.
#pragma once

#include <string>
#include <string_view>

#include "language/extension_profile.h"

namespace vexa {

// The size of a current file with as many keywords as its count can name; nothing beyond is looked at.
inline constexpr std::size_t kLargestProfileFile = 124 + 23 * kKeywordCountLimit;

// Fills the profile from the bytes of a file. False when they end before what they promise: whole fields and whole
// keywords up to there are then in place, the others as they were.
bool DecodeProfile(std::string_view bytes, ExtensionProfile& profile);

// The current format, keywords in the profile's order.
std::string EncodeProfile(const ExtensionProfile& profile);

}  // namespace vexa
