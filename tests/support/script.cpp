#include "support/script.h"

#include <algorithm>
#include <climits>

#include "base/platform.h"

namespace vexa::test {

namespace {

FileStep StepNamed(const std::string& name) {
    static const std::map<std::string, FileStep> kSteps = {{"open", FileStep::Open},   {"read", FileStep::Read},
                                                           {"write", FileStep::Write}, {"end", FileStep::End},
                                                           {"flush", FileStep::Flush}, {"close", FileStep::Close}};
    return kSteps.at(name);
}

// Which step fails: after so many that pass, so many times.
struct Fault {
    FileStep step = FileStep::Open;
    int passing = 0;
    int failing = 0;
} g_fault;

Told BeginFault(ScriptStage&, Words words) {
    g_fault = {StepNamed(words.word()), 0, INT_MAX};
    if (words.more()) g_fault.passing = words.number();
    if (words.more()) g_fault.failing = words.number();
    SetFileFault([](FileStep step) {
        if (step != g_fault.step || g_fault.passing-- > 0) return false;
        return g_fault.failing-- > 0;
    });
    return {};
}

Told Answer(ScriptStage& stage, Words words) {
    static const std::map<std::string, BoxAnswer> kAnswers = {
        {"yes", BoxAnswer::Yes}, {"no", BoxAnswer::No}, {"cancel", BoxAnswer::Cancel}};
    while (words.more())
        stage.notices.answers.push_back(kAnswers.at(words.word()));
    return {};
}

Told LastBox(ScriptStage& stage, Words) {
    return stage.notices.boxes.empty() ? "none" : stage.notices.boxes.back().text;
}

Told LastCaption(ScriptStage& stage, Words) {
    const BoxNotice& box = stage.notices.boxes.at(stage.notices.boxes.size() - 1);
    return box.caption + (box.buttons == BoxButtons::Ok      ? ""
                          : box.buttons == BoxButtons::YesNo ? " yes no"
                                                             : " yes no cancel");
}

Told LastStatus(ScriptStage& stage, Words) {
    return stage.notices.statuses.empty() ? "none" : stage.notices.lastStatus();
}

Told LastManner(ScriptStage& stage, Words) {
    const StatusNotice& last = stage.notices.statuses.at(stage.notices.statuses.size() - 1);
    return std::string(last.beep ? "beep" : "quiet") + (last.highlight ? " red" : "");
}

Told Forget(ScriptStage& stage, Words) {
    stage.notices.statuses.clear();
    stage.notices.boxes.clear();
    stage.notices.busyCount = stage.notices.pumpCount = 0;
    return {};
}

Told Put(ScriptStage& stage, Words words) {
    const std::string name = words.word();
    return stage.disk.put(name, words.rest()), Told();
}

Told Take(ScriptStage& stage, Words words) {
    const std::string name = words.rest();
    const bool isThere = stage.disk.has(name);
    if (isThere) stage.disk.remove(name);
    return isThere;
}

// What stands in the only file of a pattern.
Told GetOnly(ScriptStage& stage, Words words) {
    const std::string folder = words.word();
    const auto names = platform::FindFiles(stage.disk.path(folder + "\\" + words.rest()));
    return names.size() == 1 ? Told(stage.disk.get(folder + "\\" + names[0])) : Told(names.size());
}

Told PutMany(ScriptStage& stage, Words words) {
    const std::string name = words.word();
    std::string all;
    const int count = words.number();
    const std::string text = words.rest();
    for (int i = 0; i < count; ++i)
        all += text;
    return stage.disk.put(name, all), Told();
}

Told Link(ScriptStage& stage, Words words) {
    const std::string name = words.word();
    return stage.disk.link(name, words.rest()), Told();
}

Told Get(ScriptStage& stage, Words words) {
    const std::string name = words.rest();
    return stage.disk.has(name) ? stage.disk.get(name) : "none";
}

}  // namespace

Told::Told(const std::vector<std::string>& given) {
    for (const std::string& one : given)
        text += (&one == given.data() ? "" : ";") + one;
}

std::string ScriptStage::path(const std::string& name) const {
    return name.size() > 1 && (name[1] == ':' || name.starts_with("\\\\")) ? name : disk.path(name);
}

const Verbs<ScriptStage>& CommonVerbs() {
    static const Verbs<ScriptStage> kVerbs = {
        {"put", &Put},
        {"put-many", &PutMany},
        {"get", &Get},
        {"get-only", &GetOnly},
        {"take", &Take},
        {"remember", [](ScriptStage& s, Words w) { return s.remembered = s.disk.get(w.rest()), Told(); }},
        {"same", [](ScriptStage& s, Words w) { return Told(s.disk.get(w.rest()) == s.remembered); }},
        {"files", [](ScriptStage& s, Words w) { return Told(s.disk.count(w.rest())); }},
        {"folder", [](ScriptStage& s, Words w) { return s.disk.makeDirectory(w.rest()), Told(); }},
        {"remove", [](ScriptStage& s, Words w) { return s.disk.remove(w.rest()), Told(); }},
        {"link", &Link},
        {"read-only", [](ScriptStage& s, Words w) { return s.disk.setReadOnly(w.rest(), true), Told(); }},
        {"writable", [](ScriptStage& s, Words w) { return s.disk.setReadOnly(w.rest(), false), Told(); }},
        {"lock", [](ScriptStage& s, Words w) { return s.locked.emplace(s.path(w.rest())), Told(); }},
        {"unlock", [](ScriptStage& s, Words) { return s.locked.reset(), Told(); }},
        {"fault", &BeginFault},
        {"no-fault", [](ScriptStage&, Words) { return SetFileFault(nullptr), Told(); }},
        {"go-to", [](ScriptStage& s, Words w) { return Told(platform::ChangeDirectory(s.path(w.rest()))); }},
        {"here", [](ScriptStage&, Words) { return Told(platform::CurrentDirectory()); }},
        {"answer", &Answer},
        {"box", &LastBox},
        {"caption", &LastCaption},
        {"boxes", [](ScriptStage& s, Words) { return Told(s.notices.boxes.size()); }},
        {"status", &LastStatus},
        {"manner", &LastManner},
        {"statuses", [](ScriptStage& s, Words) { return Told(s.notices.statuses.size()); }},
        {"busy",
         [](ScriptStage& s, Words) {
             return Told(std::to_string(s.notices.busyCount) + " " + std::to_string(s.notices.busyDepth));
         }},
        {"pumps", [](ScriptStage& s, Words) { return Told(s.notices.pumpCount); }},
        {"quit-at-pump", [](ScriptStage& s, Words w) { return s.notices.quitAtPump = w.number(), Told(); }},
        {"forget", &Forget},
        {"host-only", [](ScriptStage&, Words) { return Told(); }},
    };
    return kVerbs;
}

namespace {

// Whether the parts between "..." stand in the text in their order, the first at its start and the last at its end.
bool Fits(const std::string& text, const std::string& pattern, const std::string& disk) {
    constexpr std::string_view kAny = "...";
    std::size_t from = 0;
    for (std::size_t at = 0;;) {
        const std::size_t end = pattern.find(kAny, at);
        const std::string part = Unbraced(pattern.substr(at, end - at), disk);
        const std::size_t found = end == std::string::npos && at > 0 ? text.rfind(part) : text.find(part, from);
        if (found == std::string::npos || found < from || (at == 0 && found > 0)) return false;
        from = found + part.size();
        if (end == std::string::npos) return from == text.size();
        at = end + kAny.size();
    }
}

}  // namespace

ScriptStep::ScriptStep(const CaseStep& line) : step(line) {
    const std::size_t arrow = line.text.find(" ->");
    Words all(line.text.substr(0, arrow));
    verb = all.word();
    words = all.rest();
    if (arrow != std::string::npos) outcome = line.text.substr(std::min(arrow + 4, line.text.size()));
}

void ScriptStep::expect(const Told& told, const std::string& disk) const {
    if (!outcome) return;
    EXPECT_TRUE(Fits(told.text, *outcome, disk))
        << step.number << ": " << verb << " " << words << "\n  is  " << told.text << "\n  not " << *outcome;
}

}  // namespace vexa::test
