// The phrases that texts of a help file are shortened with: none, those of |Phrases, or those of |PhrIndex and
// |PhrImage.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_container.h"

namespace vexa::topics {

class Phrases {
  public:
    // The largest text of all phrases together.
    static constexpr std::size_t kImageLimit = std::size_t{4} << 20;

    Phrases(const HelpContainer& container, bool isFirstVersion);

    // The text that a stored one stands for, of at most limit bytes. A phrase that does not exist stands for nothing.
    std::string expand(std::string_view stored, std::size_t limit) const;

  private:
    enum class Kind : std::uint8_t { None, Old, Hall };

    void readOld(std::string_view file, bool isFirstVersion);
    void readHall(std::string_view index, std::string_view image);
    std::string_view phrase(std::size_t number) const;
    void expandOld(std::string_view stored, std::size_t limit, std::string& out) const;
    void expandHall(std::string_view stored, std::size_t limit, std::string& out) const;

    Kind kind_ = Kind::None;
    std::string image_;
    std::vector<std::uint32_t> offsets_;  // one more than there are phrases
};

}  // namespace vexa::topics
