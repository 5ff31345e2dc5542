#include "base/checksum.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace vexa {
namespace {

std::string RandomBytes(std::mt19937& random, std::size_t size) {
    std::string bytes(size, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
    return bytes;
}

TEST(Checksum, PiecesAndInstructionsMakeNoDifference) {
    std::mt19937 random(7);
    for (const Instructions most : {Instructions::Plain, Instructions::Sse2}) {
        for (std::size_t size = 0; size < 600; ++size) {
            const std::string bytes = RandomBytes(random, size);
            Checksum sum(most);
            for (std::size_t i = 0, piece = 0; i < size; i += piece) {
                piece = random() % 200;
                sum.add(std::string_view(bytes).substr(i, piece));
            }
            ASSERT_EQ(sum.value(), ChecksumOf(bytes)) << size;
        }
    }
}

// In both halves of the number, of which either is used alone.
TEST(Checksum, EveryChangeShows) {
    using Change = void (*)(std::string & bytes, std::size_t at);
    struct Case {
        const char* name;
        Change change;
    };
    const Case cases[] = {
        {"a bit", [](std::string& bytes, std::size_t at) { bytes[at] ^= static_cast<char>(1 << at % 8); }},
        {"a byte", [](std::string& bytes,
                      std::size_t at) { bytes[at] = static_cast<char>(bytes[at] + static_cast<int>(at % 255) + 1); }},
        {"two words swapped",
         [](std::string& bytes, std::size_t at) { std::swap_ranges(&bytes[at], &bytes[at] + 4, &bytes[at] + 4); }},
        {"two rows swapped",
         [](std::string& bytes, std::size_t at) { std::swap_ranges(&bytes[at], &bytes[at] + 64, &bytes[at] + 64); }},
        {"a block moved",
         [](std::string& bytes, std::size_t at) { std::rotate(&bytes[at], &bytes[at] + at / 2 + 1, &*bytes.end()); }},
        {"one up, one down a row later",
         [](std::string& bytes, std::size_t at) {
             ++bytes[at];
             --bytes[at + 64];
         }},
        {"a bit, and the same half a lane before it in the next row",
         [](std::string& bytes, std::size_t at) {
             bytes[at] ^= 1;
             bytes[at + 60] ^= 1;
         }},
        {"a zero inserted", [](std::string& bytes, std::size_t at) { bytes.insert(at, 1, '\0'); }},
        {"zeros at the end", [](std::string& bytes, std::size_t at) { bytes.append(at + 1, '\0'); }},
        {"cut", [](std::string& bytes, std::size_t at) { bytes.resize(at); }},
    };
    std::mt19937 random(7);
    for (const std::string& bytes : {RandomBytes(random, 500), std::string(500, '\0')}) {
        const std::uint64_t sum = ChecksumOf(bytes);
        for (const Case& c : cases) {
            for (std::size_t at = 0; at < 300; ++at) {
                std::string changed = bytes;
                c.change(changed, at);
                if (changed == bytes) continue;
                const std::uint64_t difference = ChecksumOf(changed) ^ sum;
                ASSERT_TRUE(difference >> 32 != 0 && difference << 32 != 0) << c.name << " at " << at;
            }
        }
    }
}

}  // namespace
}  // namespace vexa
