// The text of one open file in memory, with its name, its history and its marked area.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/editor_options.h"
#include "base/notices.h"
#include "base/strings.h"
#include "base/units.h"
#include "document/text/bookmarks.h"
#include "document/text/column_marks.h"
#include "document/text/disk_state.h"
#include "document/text/dyn_array.h"
#include "document/text/file_rules.h"
#include "document/text/line_arena.h"
#include "document/text/line_end.h"
#include "document/text/line_states.h"
#include "document/text/marked_area.h"
#include "document/text/text_writer.h"
#include "document/text/undo_history.h"
#include "language/extension_profile.h"
#include "language/token_rules.h"

namespace vexa {

inline constexpr std::int32_t kLoadGrowth = 500;       // slots by which the lines grow during a load
inline constexpr std::int32_t kNewDocumentLine = 200;  // index of a new document's only line

// What the automatic backup remembers of a document.
struct BackupState {
    std::int64_t time = 0;   // seconds since 1970 from which the interval is counted; 0 until first asked
    bool isWriting = false;  // a backup of the document is being written
};

class TextDocument {
  public:
    TextDocument(const EditorOptions& options, Notices& notices);
    ~TextDocument();
    TextDocument(const TextDocument&) = delete;
    TextDocument& operator=(const TextDocument&) = delete;

    // ---- name and file ----

    // Replaces the text and history by those of the file at the path. False when it cannot be opened or read
    // to its end, or the path is empty; the document is then empty and not named, so that it cannot be saved over the
    // file.
    bool load() { return load(FileRules(options_.habits)); }
    bool load(const FileRules& rules);
    // Writes the text to the path and forgets the history. False when the document is not named or the file could not
    // be written whole; the file's old contents are then as they were, and the document stays modified with its
    // history.
    bool write() { return tryWrite(false).result == WriteResult::Written; }
    // The same, with what stands against it; the user may then allow a write without a safety copy. A file that no
    // longer holds what was loaded from it or written there is not written over.
    WriteOutcome tryWrite(bool withoutCopy);
    bool newEmpty();
    void setName(const std::optional<std::string>& path);
    // The name is only a suggestion: the first save asks for one.
    void forgetFile() { named_ = false; }
    // Takes a profile, which must stay where it is, and its rules of colouring as they now are.
    void setProfile(const ExtensionProfile& profile);
    const ExtensionProfile* profile() const { return profile_; }

    // What is known of the file of this name.
    DiskState& disk() { return disk_; }
    const DiskState& disk() const { return disk_; }
    // By which it was loaded or made.
    const FileRules& rules() const { return rules_; }
    // Why the last load has failed.
    TextId loadFailure() const { return loadFailure_; }
    const std::string& fullPath() const { return path_; }
    const std::string& baseName() const { return baseName_; }
    bool isNamed() const { return named_; }
    bool isTruncated() const { return truncated_; }
    bool areLinesWrapped() const { return linesWrapped_; }
    bool isModified() const { return modifiedCount_ != 0; }
    void clearModified() { modifiedCount_ = 0; }
    // Whether a line of a modified document is not as it was loaded or last saved; with every change undone, none is.
    bool isLineChanged(LineIndex index) const;
    void countChange(std::int32_t step);
    // Another number after each change and each taking back.
    std::uint32_t revision() const { return revision_; }
    // The text has become that of another document, which was just loaded from the file of this name: this one is
    // unmodified, and knows of the file what the other knows.
    void becomeAsLoaded(const TextDocument& other);

    // ---- lines ----

    // The index of the last line in use; that of a new document's line before the first load.
    LineIndex lastLine(LastUsed mode) const;
    // The line at an index; none beyond the capacity of the line store. Vacant slots read as an empty line.
    const TextLine* line(LineIndex index) const { return lines_.at(index.value); }
    std::string_view text(LineIndex index) const {
        const TextLine* found = line(index);
        return found ? found->text() : std::string_view();
    }
    // The line at an index, to be changed (before another one is asked for) or to keep a cursor column; a vacant slot
    // gets a line of its own first.
    TextLine& editableLine(LineIndex index);
    static LinePtr makeLine(std::string_view text);
    // Of lines that keep their ends, as they were read, or last written or changed all at once.
    LineEndStyle& lineEndStyle() { return lineEndStyle_; }
    const LineEndStyle& lineEndStyle() const { return lineEndStyle_; }
    DynArray& lines() { return lines_; }
    const DynArray& lines() const { return lines_; }

    // ---- colouring ----

    // None without a profile.
    const TokenRules* tokenRules() const { return tokenRules_.get(); }
    // What a line starts inside of.
    LineState startState(LineIndex line) const { return lineStates_.startOf(line); }
    // Finds out about comments and quotes in lines that are not shown yet, at most that many; false when all are known.
    // To be called while the user does nothing.
    bool lookAheadForComments(std::int32_t lines) { return lineStates_.advance(lines); }
    // Whether lines have been shown as outside a comment or quote of which that is known only now.
    bool takeGuessedComments() { return lineStates_.takeGuessed(); }

    // ---- cursor ----

    LineIndex currentLine() const { return currentLine_; }
    void setCurrentLine(LineIndex line) { currentLine_ = line; }
    TextLine& current() { return editableLine(currentLine_); }
    CharColumn column() const;
    DisplayColumn displayColumn() const;
    std::int32_t tabSize() const;
    DisplayColumn toDisplay(LineIndex line, CharColumn column) const;
    CharColumn toCharacter(LineIndex line, DisplayColumn column) const;
    // From where the columns of a line may be counted up to this one.
    ColumnMark markBefore(LineIndex line, DisplayColumn column) const;

    // ---- marking and history ----

    MarkedArea& marked() { return marked_; }
    const MarkedArea& marked() const { return marked_; }
    UndoHistory& history() { return history_; }
    const UndoHistory& history() const { return history_; }

    // ---- bookmarks and backup ----

    // Sets a bookmark to the current line.
    BookmarkResult dropBookmark(std::int32_t n) { return bookmarks_.drop(n, currentLine_); }
    void setBookmarks(const Bookmarks& kept) { bookmarks_ = kept; }
    const Bookmarks& bookmarks() const { return bookmarks_; }
    BackupState& backup() { return backup_; }

    const EditorOptions& options() const { return options_; }
    Notices& notices() const { return notices_; }

  private:
    friend class TextLoader;
    void discardText();
    // Whether the document as it is would be written with other bytes than its file was loaded from.
    bool changesWhenWritten() const;
    void clearChangedLines();
    void takeLineEnds(const LineEndTally& tally);
    DisplayColumn toDisplay(const TextLine& shown, CharColumn column) const;

    const EditorOptions& options_;
    Notices& notices_;
    const ExtensionProfile* profile_ = nullptr;
    std::string path_;
    std::string baseName_;
    FileRules rules_;
    TextId loadFailure_ = TextId::CannotOpenFile;
    LineEndStyle lineEndStyle_;
    DiskState disk_;
    LineArena arena_;
    DynArray lines_;
    std::unique_ptr<const TokenRules> tokenRules_;
    mutable LineStates lineStates_{lines_, rules_.limits};  // fills itself in when it is asked
    UndoHistory history_;
    MarkedArea marked_;
    mutable ColumnMarks columnMarks_;  // fills itself in when it is asked
    Bookmarks bookmarks_;
    BackupState backup_;
    LineIndex currentLine_;
    std::int32_t modifiedCount_ = 0;
    std::uint32_t revision_ = 0;
    bool loaded_ = false;
    bool named_ = false;
    bool linesWrapped_ = false;
    bool truncated_ = false;
};

}  // namespace vexa
