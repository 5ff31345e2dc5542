// Runs the key-replay cases of the folder replay/, one test a case.
#include <gtest/gtest.h>

#include "document/replay_case.h"

namespace vexa::test {

// How GoogleTest names a case in its messages.
void PrintTo(const ReplayCase& replayCase, std::ostream* out) {
    *out << replayCase.name;
}

namespace {

struct ReplayFile {
    const char* topic;
    const char* content;
};

const ReplayFile kFiles[] = {
#include "replay_files.inc"
};

std::vector<ReplayCase> AllCases() {
    std::vector<ReplayCase> all;
    for (const ReplayFile& file : kFiles) {
        for (ReplayCase& one : ParseReplayCases(file.topic, file.content))
            all.push_back(std::move(one));
    }
    return all;
}

class Replay : public testing::TestWithParam<ReplayCase> {};

TEST_P(Replay, Case) {
    SCOPED_TRACE(GetParam().topic + ": " + GetParam().name);
    RunReplayCase(GetParam());
}

std::string CaseName(const testing::TestParamInfo<ReplayCase>& info) {
    std::string name = info.param.topic + "_" + info.param.name;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Keys, Replay, testing::ValuesIn(AllCases()), CaseName);

}  // namespace
}  // namespace vexa::test
