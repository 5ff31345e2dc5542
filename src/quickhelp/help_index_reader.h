// Reads the text of a keyword index (.ZIX). Any bytes give lines.
#pragma once

#include <optional>
#include <string_view>

namespace vexa {

class HelpIndexReader {
  public:
    // The text must live as long as its lines are used.
    explicit HelpIndexReader(std::string_view text) : rest_(text) {}

    // The next line without its end; none at the end of the text.
    std::optional<std::string_view> nextLine();
    // Whether one of the lines that are left begins with a keyword, letter case ignored.
    bool hasLineThatBeginsWith(std::string_view keyword);

  private:
    std::string_view rest_;
};

}  // namespace vexa
