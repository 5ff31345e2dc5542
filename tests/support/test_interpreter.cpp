#include "support/test_interpreter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>

namespace vexa::test {

#ifdef _WIN32

void PutInterpreter(const TestDisk& disk) {
    std::ifstream program(VEXA_INTERPRETER, std::ios::binary);
    ASSERT_TRUE(program.is_open()) << VEXA_INTERPRETER;
    disk.put("VexaDOS.PIF", std::string(std::istreambuf_iterator<char>(program), {}));
}

#else

// Batch files are carried out line by line.
void PutInterpreter(const TestDisk& disk) {
    disk.put("VexaDOS.PIF", R"SH(
on_host() { printf '%s' "$1" | tr -d '\r' | sed -e "s|[Cc]:\\\\|$VEXA_DISK/c/|g" -e 's|\\|/|g'; }
if [ -n "$VEXA_STDERR" ]; then exec 2>"$(on_host "$VEXA_STDERR")"; fi
command=$(on_host "${1#/C }")
case $command in
    *.BAT\ *)
        while IFS= read -r line; do
            case $line in @echo*) ;; *) eval "$(on_host "$line")" ;; esac
        done <"${command%%.BAT *}.BAT"
        ;;
    *) eval "$command" ;;
esac
)SH");
}

#endif

bool WaitFor(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

}  // namespace vexa::test
