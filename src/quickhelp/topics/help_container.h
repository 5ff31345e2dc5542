// A help file as the container of the files inside it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::topics {

class HelpContainer {
  public:
    // Takes the bytes of a whole help file.
    explicit HelpContainer(std::string bytes);
    HelpContainer(const HelpContainer&) = delete;
    HelpContainer& operator=(const HelpContainer&) = delete;

    // False when the bytes are no help file or its directory cannot be read at all.
    bool isValid() const { return !entries_.empty(); }
    // The contents of an internal file, as far as they lie in the file; none for a name that does not occur. Letter
    // case matters. Valid as long as the container.
    std::string_view file(std::string_view name) const;
    std::size_t size() const { return bytes_.size(); }

  private:
    struct Entry {
        std::string_view name;
        std::int64_t offset;
    };
    std::string_view contentAt(std::int64_t offset) const;

    const std::string bytes_;
    std::vector<Entry> entries_;
};

}  // namespace vexa::topics
