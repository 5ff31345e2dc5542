// Reading a file into a document's lines.
#pragma once

#include <cstddef>

#include "base/checksum.h"
#include "base/file.h"
#include "base/strings.h"
#include "document/text/disk_state.h"
#include "document/text/file_rules.h"
#include "document/text/line_arena.h"
#include "document/text/line_end.h"
#include "document/text/text_line.h"

namespace vexa {

class TextDocument;

// Reads a file block by block into an arena, cuts it into lines in place, and tells the user about a text with too many
// lines or too long ones. Every byte but the line ends is kept; nothing after the last line that is kept is read.
//
// As text, a line ends with LF or CR LF; as bytes with LF alone; where its end is kept, with CR alone, too. Where the
// length of a line is limited, one of 298 characters and more is split: after its
// last blank among the characters read, or 5 characters before their end; the rest begins the next line. When the line
// end had been read with the 298 characters, it is gone and the rest runs on into the text that follows.
class TextLoader {
  public:
    TextLoader(TextDocument& document, LineArena& arena, const FileRules& rules, bool bytes)
        : document_(document), arena_(arena), rules_(rules), bytes_(bytes) {}

    // False when the file could not be read to its end, or memory ran out. Else the document knows its file's kind and
    // line ends, and its checksum if all of it was read.
    bool read(File& file);
    const LineEndTally& tally() const { return tally_; }

  private:
    struct Cut;  // how the next line is cut from the text

    bool mayBeWhole();
    bool fail(TextId why);
    bool readLines();
    bool refill();
    bool mayGoOn(Cut cut) const;
    LinesEndWith endsOfLines() const;
    Cut nextCut() const;
    void noteRead(std::size_t count);
    void storeCut(Cut cut);
    void storeSplit(Cut cut);
    void store(LinePtr line);
    std::size_t available() const { return static_cast<std::size_t>(end_ - next_); }

    TextDocument& document_;
    LineArena& arena_;
    const FileRules& rules_;
    const bool bytes_;
    File* file_ = nullptr;
    char* next_ = nullptr;  // the unread part of the present block
    char* end_ = nullptr;
    LineCutter cutter_{{}, LinesEndWith::Lf};  // of that part
    LineEndTally tally_;                       // of the lines' ends as the file has them
    std::uint64_t bytesRead_ = 0;
    Checksum checksum_;
    bool endOfFile_ = false;
    int lines_ = 0;
};

}  // namespace vexa
