#include "document/text/dyn_array.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace vexa {
namespace {

LinePtr Line(const std::string& text) {
    return LinePtr(new TextLine(text));
}

std::string TextAt(const DynArray& array, std::int32_t i) {
    const TextLine* line = array.at(i);
    return line ? std::string(line->text()) : "(none)";
}

// The rules, told with one slot after the other: "-" is a vacant slot.
class SlotModel {
  public:
    explicit SlotModel(std::int32_t growBy) : growBy_(growBy), slots_(static_cast<std::size_t>(growBy), "-") {}

    std::int32_t capacity() const { return static_cast<std::int32_t>(slots_.size()); }
    const std::string& at(std::int32_t i) const { return slots_[static_cast<std::size_t>(i)]; }
    std::int32_t lastUsed(bool text) const {
        std::int32_t i = capacity() - 1;
        while (i > 0 && (at(i) == "-" || (text && at(i).empty())))
            --i;
        return i;
    }
    void room(std::int32_t i) {
        if (i < capacity()) return;
        const std::int32_t grown = capacity() + growBy_;
        slots_.resize(static_cast<std::size_t>(grown >= i + 1 ? grown : i + growBy_), "-");
    }
    void put(const std::string& text, std::int32_t i) {
        room(i);
        slots_[static_cast<std::size_t>(i)] = text;
    }
    bool putIfVacant(const std::string& text, std::int32_t i) {
        room(i);
        if (at(i) != "-") return false;
        put(text, i);
        return true;
    }
    bool insertAt(const std::string& text, std::int32_t i) {
        if (i >= capacity()) return putIfVacant(text, i);
        const std::int32_t last = lastUsed(false);
        if (last + 1 >= capacity()) slots_.resize(slots_.size() + static_cast<std::size_t>(growBy_), "-");
        for (std::int32_t k = last; k >= i; --k)
            slots_[static_cast<std::size_t>(k) + 1] = at(k);
        slots_[static_cast<std::size_t>(i)] = text;
        return true;
    }
    void remove(std::int32_t i) {
        slots_.erase(slots_.begin() + i);
        slots_.push_back("-");
    }

  private:
    std::int32_t growBy_;
    std::vector<std::string> slots_;
};

void ExpectSame(const DynArray& array, const SlotModel& model) {
    ASSERT_EQ(array.capacity(), model.capacity());
    ASSERT_EQ(array.lastUsed(LastUsed::Plain), model.lastUsed(false));
    ASSERT_EQ(array.lastUsed(LastUsed::Text), model.lastUsed(true));
    for (std::int32_t i = 0; i < model.capacity(); ++i) {
        ASSERT_EQ(array.isVacant(i), model.at(i) == "-") << i;
        ASSERT_EQ(TextAt(array, i), model.at(i) == "-" ? "" : model.at(i)) << i;
    }
}

TEST(DynArray, BehavesLikePlainSlotsUnderAnyOperations) {
    std::mt19937 random(7);
    for (int round = 0; round < 40; ++round) {
        const std::int32_t growBy = 1 + static_cast<std::int32_t>(random() % 12);
        DynArray array(growBy);
        SlotModel model(growBy);
        for (int step = 0; step < 120; ++step) {
            const std::string text = random() % 4 == 0 ? "" : "t" + std::to_string(step);
            const auto anywhere = static_cast<std::int32_t>(random() % static_cast<unsigned>(model.capacity() + 3));
            const auto inside = anywhere % model.capacity();
            switch (random() % 6) {
                case 0:
                    array.put(Line(text), anywhere);
                    model.put(text, anywhere);
                    break;
                case 1:
                    EXPECT_EQ(array.putIfVacant(Line(text), anywhere), model.putIfVacant(text, anywhere));
                    break;
                case 2:
                    EXPECT_EQ(array.append(Line(text)), model.putIfVacant(text, model.lastUsed(false) + 1));
                    break;
                case 3: {
                    const std::string held = model.at(inside);
                    const LinePtr line = array.detach(inside);
                    EXPECT_EQ(line ? std::string(line->text()) : "-", held);
                    model.remove(inside);
                    break;
                }
                default:
                    EXPECT_EQ(array.insertAt(Line(text), anywhere), model.insertAt(text, anywhere));
            }
            ASSERT_NO_FATAL_FAILURE(ExpectSame(array, model)) << "round " << round << " step " << step;
        }
    }
}

TEST(DynArray, StartsWithOneGrowthOfVacantSlots) {
    const DynArray array;
    EXPECT_EQ(array.capacity(), 10);
    EXPECT_EQ(TextAt(array, 9), "");
    EXPECT_EQ(TextAt(array, 10), "(none)");
    EXPECT_EQ(array.lastUsed(LastUsed::Plain), 0);
}

TEST(DynArray, GrowsByOneStepOrToAStepBehindTheIndex) {
    DynArray array;
    array.put(Line("a"), 10);
    EXPECT_EQ(array.capacity(), 20);
    array.put(Line("b"), 200);
    EXPECT_EQ(array.capacity(), 210);
    EXPECT_TRUE(array.takeGrown());
    EXPECT_FALSE(array.takeGrown());
}

TEST(DynArray, RefusesNegativeAndAbsurdIndexes) {
    DynArray array;
    EXPECT_FALSE(array.put(Line("a"), -1));
    EXPECT_FALSE(array.putIfVacant(Line("a"), -1));
    EXPECT_FALSE(array.insertAt(Line("a"), -1));
    EXPECT_FALSE(array.put(Line("a"), 0x7FFFFFFF));
    EXPECT_FALSE(array.removeAt(-1));
    EXPECT_FALSE(array.removeAt(10));
    EXPECT_EQ(array.detach(10), nullptr);
    EXPECT_EQ(array.at(-1), nullptr);
    EXPECT_EQ(array.capacity(), 10);
}

TEST(DynArray, ARemovedLineBelongsToItsHolder) {
    DynArray array;
    array.put(Line("mine"), 3);
    const LinePtr mine(array.occupied(3));
    EXPECT_TRUE(array.removeAt(3));
    EXPECT_TRUE(array.isVacant(3));
    EXPECT_EQ(mine->text(), "mine");
}

}  // namespace
}  // namespace vexa
