// All documents of a session, for the habit that each of them comes back as it was left. They are kept in a file of
// their own, as their number has no limit.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
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

// The file that keeps them; without any there is none. One that cannot be written stays as it was, and so does one that
// could not be read, as what it keeps has not come back yet.
class SessionFile {
  public:
    explicit SessionFile(std::string path) : path_(std::move(path)) {}

    // What it kept before comes back with takeBack(), should the end that they are kept for be called off.
    void keep(std::span<const SessionDocument> documents);
    void takeBack();
    // The documents that it keeps, which it then does no more: what stops the editor while it opens them is not tried
    // again.
    std::vector<SessionDocument> take();

  private:
    void write(const std::string& text);

    std::string path_;
    std::optional<std::string> before_;
    bool isUnread_ = false;
};

}  // namespace vexa
