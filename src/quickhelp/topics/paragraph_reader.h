// Reads the paragraphs of one text record into a topic.
#pragma once

#include <string_view>

#include "quickhelp/topics/topic.h"
#include "quickhelp/topics/topic_links.h"

namespace vexa::topics {

// A topic keeps this many runs and paragraphs at most; more are passed over.
inline constexpr std::size_t kMostRuns = 60000;

// The characters that a text record counts as, for the offsets of what follows it; 0 in the first version.
std::uint32_t CharactersOf(LinkType type, std::string_view format);

// format is the record's first part, text its second, unpacked; offset is the TOPICOFFSET of the first character.
void ReadParagraphs(LinkType type, std::string_view format, std::string_view text, std::uint32_t offset, Topic& topic);

}  // namespace vexa::topics
