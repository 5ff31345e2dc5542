// Which files of a directory are meant by patterns such as "*.c;*.h".
#pragma once

#include <string>
#include <string_view>

namespace vexa {

// "*" stands for any characters and "?" for one, letter case ignored; patterns are separated by ";", blanks around them
// do not count. "*.*" means every name, also one without a dot, and so does a text without a pattern.
class FilePatterns {
  public:
    explicit FilePatterns(std::string_view patterns) : patterns_(patterns) {}

    bool match(std::string_view name) const;

  private:
    const std::string patterns_;
};

}  // namespace vexa
