// The end of a benchmark whose figures would be worth nothing.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace vexa::bench {

[[noreturn]] inline void Fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

}  // namespace vexa::bench
