// Which texts can name a file, and which names say by themselves in which directory it is.
#pragma once

#include <string>
#include <string_view>

namespace vexa {

enum class NameFault {
    None,
    TooLong,   // with its directories more than a path can hold
    NotAFile,  // characters that no name can hold, a device, a "\" at the end, nothing at all
};

// None for the name of anything that exists; others are judged by the rules that all Windows versions share.
NameFault FaultOfName(const std::string& path);

// A name with a drive and more, or one of a file on a share ("\\server\share\a.c"); any other is looked for in the
// current directory.
bool IsFullName(std::string_view path);

// A directory with a "\" at its end, to put a name behind.
std::string PrefixOf(std::string_view directory);

// Whether a text can stand between two "\" of a path; "NUL" and the other devices cannot.
bool IsNamePart(std::string_view part);

}  // namespace vexa
