// The rules of the "Electric Keyboard" dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "language/electric_list.h"

namespace vexa {

// Works on a copy of the list, so that the dialog can be left without a change.
class ElectricModel {
  public:
    // The first entry is in the fields.
    explicit ElectricModel(ElectricWords& words);

    std::string keyword;
    std::string expansion;

    std::vector<std::string> keywords() const;
    // The entry that the keyword in the field names.
    std::optional<std::size_t> chosen() const { return list_.find(keyword); }
    // Brings an entry into the fields.
    void choose(std::size_t row);

    // Each is the text to be shown when it is refused, the list being as it was.
    // "Set": takes the fields into the list. They then hold what the list has made of them.
    std::optional<std::string> set();
    // "Update": the dialog may close. Fields that were filled in but not set are set first.
    std::optional<std::string> update();

    // "Delete": takes the entry that the field names out of the list and brings its neighbour into the fields.
    void remove();
    bool canRemove() const { return chosen().has_value(); }

  private:
    ElectricWords& words_;
    ElectricList list_;
};

}  // namespace vexa
