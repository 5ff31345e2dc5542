// Writes the keyword index (.ZIX) of a help file (.HLP), in which keywords are looked up afterwards.
//
// An index is a text: the number of keywords in five digits, the full name of the help file in capitals, its title, and
// a line for each keyword. A file without a title has no such line, one with several has as many.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexa {

enum class IndexResult { Written, CannotOpen, CannotWrite, UnknownFormat, NoKeywords, NameTooLong };

// Why there is no index; empty when there is one.
std::string_view TextOf(IndexResult result);

// Of a help file in the current directory, by its name; ".HLP" is added to one without a ".". The index appears whole
// or not at all; after a failure there is none, an older one is taken away.
IndexResult BuildHelpIndex(const std::string& helpFile, const std::string& indexFile);

// The names of the indexes in a directory, sorted.
std::vector<std::string> FindHelpIndexes(const std::string& directory);

// Deletes an index; false for one that is read-only or in use, and when there is none.
bool DeleteHelpIndex(const std::string& indexFile);

}  // namespace vexa
