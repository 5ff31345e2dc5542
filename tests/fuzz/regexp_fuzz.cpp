// Any pattern is refused or finds in any subject what plain backtracking finds; any damaged program is survived.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "../regexp/reference_check.h"

namespace vexa::fuzz {
namespace {

constexpr std::uint8_t kIgnoreCase = 1;
constexpr std::uint8_t kDamage = 2;
// Longer ones take the reference too long.
constexpr std::size_t kLongestPattern = 40;
constexpr std::size_t kLongestSubject = 80;

// Writes the bytes, as pairs of a place and a value, over a program.
void ExecuteDamaged(const std::string& pattern, const std::string& subject, std::string_view changes) {
    const std::unique_ptr<RegExp> good = RegExp::Compile(pattern.c_str());
    if (!good) return;
    std::vector<std::uint8_t> bytes(good->program().begin(), good->program().end());
    for (std::size_t i = 0; i + 1 < changes.size(); i += 2)
        bytes[static_cast<std::uint8_t>(changes[i]) % bytes.size()] = static_cast<std::uint8_t>(changes[i + 1]);
    const std::unique_ptr<RegExp> damaged = RegExp::FromProgram(bytes);
    RegExp::Execute(damaged.get(), subject.c_str());
}

}  // namespace

// A byte with flags and the start of the search, then the pattern, the subject and the changes, each up to a NUL.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto take = [&](std::size_t most) {
        const std::string_view field = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(field.size() + 1, rest.size()));
        return std::string(field.substr(0, most));
    };
    const std::string pattern = take(kLongestPattern);
    const std::string subject = take(kLongestSubject);
    if ((data[0] & kDamage) != 0) {
        ExecuteDamaged(pattern, subject, rest);
        return 0;
    }
    const std::string difference =
        test::DifferenceFromReference(pattern, subject, (data[0] & kIgnoreCase) != 0, data[0] >> 4);
    if (difference.empty()) return 0;
    std::fprintf(stderr, "\"%s\" on \"%s\": %s\n", pattern.c_str(), subject.c_str(), difference.c_str());
    std::abort();
}

}  // namespace vexa::fuzz
