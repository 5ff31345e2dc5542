// Where a help file is that another one names.
#pragma once

#include <optional>
#include <string>

namespace vexa {

// A file of that name, ".hlp" added to one without an extension, beside the help file with the link, else among the
// installed ones, whose indexes are in a directory given without "\" at its end. Directories in the name are passed
// over: a help file leads to no other places. None when there is no such file.
std::optional<std::string> FindLinkedHelpFile(const std::string& name, const std::string& from,
                                              const std::string& indexDirectory);

}  // namespace vexa
