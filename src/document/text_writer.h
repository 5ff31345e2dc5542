// Writing a document to a file without ever losing what the file held before.
#pragma once

#include <string>

namespace vexa {

class File;
class TextDocument;

// Writes the lines up to the last that is not empty, each with its line end: CR LF as text; LF as bytes, and then a
// Ctrl-Z behind the last line. False when the file has not taken all of it.
bool WriteLines(const TextDocument& document, File& file, bool bytes);

// Writes the lines to the file of that path.
//
// What the file held is first copied to its safety copy, which is on the disk before the file is touched; the file is
// then overwritten in place, so that its attributes, links and permissions stay, and its end is set last. When any step
// fails, the old contents are put back and false is returned; a file that was not there before is taken away again.
// Should putting back fail too, the safety copy stays and the user is told its name.
bool WriteText(const TextDocument& document, const std::string& path, bool bytes);

// Where the safety copy of a file stands while it is being written. One that is there at another time was left behind
// by an interruption; it is not overwritten: the next free name of the same form is taken.
std::string SafetyCopyOf(const std::string& path);
// The latest safety copy that an interrupted save has left for a file; empty when there is none.
std::string LeftSafetyCopy(const std::string& path);

}  // namespace vexa
