// Reads the format of a paragraph.
#pragma once

#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/topic.h"

namespace vexa::topics {

ParagraphFormat ReadParagraphFormat(ByteReader& in);

}  // namespace vexa::topics
