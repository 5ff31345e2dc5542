#include "shell/unsaved/line_differences.h"

#include <algorithm>
#include <cstdint>

#include "base/strings.h"

namespace vexa {

namespace {

// Goes through both texts at once. Where they part, it looks for the nearest lines at which they meet again, so that a
// text of any length costs no more than this many lines for each difference.
class Comparison {
  public:
    Comparison(const LineViews& mine, const LineViews& theirs, std::size_t mostRows)
        : mine_(mine), theirs_(theirs), mostRows_(mostRows) {}

    std::vector<std::string> rows() {
        while (rows_.size() < mostRows_ && (a_ < mine_.size() || b_ < theirs_.size())) {
            if (areEqual(a_, b_)) {
                ++a_;
                ++b_;
            } else {
                tellDifference();
            }
        }
        return std::move(rows_);
    }

  private:
    static constexpr std::size_t kReach = 500;

    bool areEqual(std::size_t a, std::size_t b) const {
        return a < mine_.size() && b < theirs_.size() && mine_[a] == theirs_[b];
    }

    // The number of lines to go on in both texts together until they meet; they meet at their ends, too.
    void tellDifference() {
        const std::size_t most = std::min(kReach, mine_.size() - a_ + theirs_.size() - b_);
        for (std::size_t away = 1; away <= most; ++away) {
            for (std::size_t skipped = 0; skipped <= away; ++skipped) {
                if (areEqual(a_ + skipped, b_ + away - skipped)) return tell(skipped, away - skipped);
            }
        }
        tell(std::min(kReach, mine_.size() - a_), std::min(kReach, theirs_.size() - b_));
    }

    void tell(std::size_t mine, std::size_t theirs) {
        const std::size_t first = a_;
        for (std::size_t i = 0; i < mine; ++i)
            add(a_, "<", mine_[a_]), ++a_;
        for (std::size_t i = 0; i < theirs; ++i)
            add(std::min(first + i, a_), ">", theirs_[b_]), ++b_;
    }

    void add(std::size_t line, std::string_view mark, std::string_view text) {
        if (rows_.size() == mostRows_) return;
        rows_.push_back(FillText(TextId::DifferentLine, {std::to_string(line + 1), mark, text}));
    }

    const LineViews& mine_;
    const LineViews& theirs_;
    const std::size_t mostRows_;
    std::size_t a_ = 0;
    std::size_t b_ = 0;
    std::vector<std::string> rows_;
};

}  // namespace

std::vector<std::string> LineDifferences(const LineViews& mine, const LineViews& theirs, std::size_t mostRows) {
    return Comparison(mine, theirs, mostRows).rows();
}

}  // namespace vexa
