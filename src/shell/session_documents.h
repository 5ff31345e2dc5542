// All documents of a session, for the habit that each of them comes back as it was left. They are kept in a file of
// their own, as their number has no limit.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/text/bookmarks.h"
#include "document/text/text_document.h"
#include "document/text/text_position.h"

namespace vexa {

struct SessionDocument {
    std::string path;
    TextPosition caret;
    Bookmarks bookmarks;
    bool isActive = false;
};

SessionDocument DescribeForSession(const TextDocument& document, bool isActive);

// A line for each document. What is no such line is passed over; any number is taken as it is.
std::string SessionText(std::span<const SessionDocument> documents);
std::vector<SessionDocument> ReadSessionText(std::string_view text);

// What the user is told of files that have gone, in one box for all of them.
std::string TextOfMissing(std::span<const std::string> paths);

// Keeps the documents under a file's name; none removes it. A file that cannot be written stays as it was.
void KeepSession(const std::string& file, std::span<const SessionDocument> documents);
// The documents that the file keeps, which is removed: what stops the editor while it opens them is not tried again.
// None when there is no file or it cannot be read.
std::vector<SessionDocument> TakeSession(const std::string& file);

}  // namespace vexa
