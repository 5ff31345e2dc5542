// The one set of find and replace texts and options of the program, and what the last search has left behind.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/config_store.h"
#include "base/habits.h"
#include "base/units.h"

namespace vexa {

// The match that the last search found; at no line when there is none.
struct LastMatch {
    bool isNone() const { return line.value < 0; }

    LineIndex line{-1};
    LineIndex endLine{-1};
    CharColumn column{-1};
    std::int32_t length = 0;  // characters
    // What was marked: from the match's screen column on a column a character, and at least one.
    DisplayColumn displayStart;
    DisplayColumn displayEnd;
    // Where the cursor was put, which may not reach the match.
    CharColumn cursorColumn{-1};
};

class SearchOptions {
  public:
    // Characters in each of the texts; setters cut what is longer, and at a byte 0.
    static constexpr std::size_t kTextLimit = 60;

    // The habits, which must stay where they are, say what the texts mean and how far a search goes.
    explicit SearchOptions(const Habits& habits = kGivenHabits) : habits_(&habits) {}
    const Habits& habits() const { return *habits_; }

    // From and to section "Searching".
    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;

    const std::string& findText() const { return values_.findText; }
    const std::string& replaceText() const { return values_.replaceText; }
    // A text that differs from the present one sets whether a match is pending.
    void setFindText(std::string_view text, bool pending);
    void setReplaceText(std::string_view text);

    // The texts as they are searched and inserted. Where the find text is no regular expression, "\t" in either stands
    // for a tab and "\\" for a backslash; any other backslash stands for itself. With regular expressions both are as
    // typed: the find text's backslashes are the pattern's own, and the replacement has no escapes. With the habit of
    // groups in replacements, "\t" and "\n" (a line end) have their meaning in both texts and with both kinds of
    // search; a replacement of a regular expression is as typed still, for its meaning depends on what is found.
    std::string searchedText() const;
    std::string insertedText() const;

    // What a dialog remembers when it opens, to be able to put it back.
    struct Values {
        std::string findText;
        std::string replaceText;
        bool forward = true;
        bool matchCase = false;
        bool wholeWord = false;  // looked at in searches for plain texts alone
        bool replaceAll = false;
        bool regularExpression = false;
        bool matchPending = false;  // the last match is still to be replaced or stepped over
        bool pastLineEnd = false;   // the cursor did not stand before its line's end after the last match
    };
    Values snapshot() const { return values_; }
    void restore(const Values& snapshot) { values_ = snapshot; }

    bool forward() const { return values_.forward; }
    bool matchCase() const { return values_.matchCase; }
    bool wholeWord() const { return values_.wholeWord; }
    bool replaceAll() const { return values_.replaceAll; }
    bool regularExpression() const { return values_.regularExpression; }
    bool matchPending() const { return values_.matchPending; }
    bool pastLineEnd() const { return values_.pastLineEnd; }
    void setForward(bool forward) { values_.forward = forward; }
    void setMatchCase(bool matchCase) { values_.matchCase = matchCase; }
    void setWholeWord(bool wholeWord) { values_.wholeWord = wholeWord; }
    void setReplaceAll(bool replaceAll) { values_.replaceAll = replaceAll; }
    void setRegularExpression(bool regularExpression) { values_.regularExpression = regularExpression; }
    void setMatchPending(bool pending) { values_.matchPending = pending; }
    void setPastLineEnd(bool past) { values_.pastLineEnd = past; }

    LastMatch lastMatch;
    // After a replacement nothing is left that a search could step over.
    void forgetMatch() {
        lastMatch = {};
        values_.matchPending = values_.pastLineEnd = false;
    }

  private:
    static constexpr Habits kGivenHabits{};

    Values values_;
    const Habits* habits_;
};

}  // namespace vexa
