// The search for the byte that ends a line.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/instructions.h"

namespace vexa {

// Prepared once for many lines.
class LineEndSearch {
  public:
    enum class Sought { Lf, LfAndCr };

    // The instructions make no difference to what is found.
    explicit LineEndSearch(Sought sought, Instructions most = Instructions::Sse2);

    // How many bytes stand before the first such byte; all when there is none.
    std::size_t find(std::string_view text) const { return find_(text); }

  private:
    std::size_t (*find_)(std::string_view text);
};

}  // namespace vexa
