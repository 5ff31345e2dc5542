// A list of documents of which the user chooses some and what is done with them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "base/strings.h"

namespace vexa {

class DocumentChoice {
  public:
    struct Texts {
        TextId caption;
        TextId explanation;
        std::array<TextId, 3> buttons;  // the first is the one that Enter presses
        std::size_t buttonCount;
    };

    virtual ~DocumentChoice() = default;
    virtual const Texts& texts() const = 0;
    // With none left there is nothing to ask.
    virtual std::vector<std::string> rows() const = 0;
    // Asked before a button's work is begun with that many rows.
    virtual bool mayAct(std::size_t button, std::size_t rows) = 0;
    // Does with a row what a button says. The row is gone then.
    virtual void act(std::size_t button, std::size_t row) = 0;
};

}  // namespace vexa
