// The indexes of a help file: what finds a topic by context, number, title or keyword. A damaged index gives the
// entries before the fault.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_container.h"

namespace vexa::topics {

struct Keyword {
    std::string_view text;    // valid as long as the help file
    std::uint32_t count = 0;  // of the topics it leads to
    std::uint32_t start = 0;  // byte of the first one in the keyword data
};

struct TopicTitle {
    std::uint32_t offset = 0;
    std::string_view text;
};

// The hash that stands for a context's name in the file; letter case does not matter.
std::int32_t HashOfContext(std::string_view name);

class TopicIndex {
  public:
    explicit TopicIndex(const HelpContainer& container);

    std::optional<std::uint32_t> offsetOfContext(std::int32_t hash) const;
    // By the number that a program asks for.
    std::optional<std::uint32_t> offsetOfNumber(std::int32_t number) const;
    // By the number that links of the first version use; 0 is the contents topic.
    std::optional<std::uint32_t> offsetOfTopicNumber(std::int32_t number) const;
    std::string_view titleOf(std::uint32_t offset) const;
    // All titles in the order of the topics; topics without one have none or an empty one.
    const std::vector<TopicTitle>& titles() const { return titles_; }
    // In the order of the file. The letter is K for the keywords that are shown, A for those that macros use.
    std::vector<Keyword> keywords(char letter = 'K') const;
    std::vector<std::uint32_t> offsetsOf(const Keyword& keyword, char letter = 'K') const;

  private:
    const HelpContainer& container_;
    std::map<std::int32_t, std::uint32_t> contexts_;
    std::map<std::int32_t, std::uint32_t> numbers_;
    std::vector<TopicTitle> titles_;
    std::string_view topicNumbers_;
};

}  // namespace vexa::topics
