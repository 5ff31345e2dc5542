// The B+ trees of a help file: the directory and every index is one.
#pragma once

#include <string_view>

#include "base/callback.h"
#include "quickhelp/topics/byte_reader.h"

namespace vexa::topics {

// Calls readEntry, which takes exactly one entry off the reader, for each entry of the leaves in their order. False
// when the tree is damaged: the entries before the fault have been read, and the reader of the last may have failed.
bool ReadTree(std::string_view tree, const Callback<void(ByteReader&)>& readEntry);

}  // namespace vexa::topics
