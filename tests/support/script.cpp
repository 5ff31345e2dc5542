#include "support/script.h"

#include <climits>
#include <sstream>

#include "base/platform.h"

namespace vexa::test {

namespace {

// What stands between braces, or nothing when it is no escape.
std::optional<std::string> Named(const std::string& name, const std::string& disk) {
    static const std::map<std::string, std::string> kNames = {{"", ""},    {"r", "\r"},    {"n", "\n"},
                                                              {"t", "\t"}, {"rn", "\r\n"}, {"..", "..."}};
    if (name == "disk") return disk;
    if (const auto known = kNames.find(name); known != kNames.end()) return known->second;
    if (name.size() == 2 && name.find_first_not_of("0123456789ABCDEF") == std::string::npos)
        return std::string(1, static_cast<char>(std::stoi(name, nullptr, 16)));
    const std::size_t star = name.find('*');
    if (star == std::string::npos || star + 1 == name.size()) return std::nullopt;
    const std::string once = Named(name.substr(0, star), disk).value_or(name.substr(0, star));
    std::string all;
    for (int count = std::stoi(name.substr(star + 1)); count > 0; --count)
        all += once;
    return all;
}

std::string Expanded(const std::string& text, const std::string& disk) {
    std::string all;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = text[i] == '{' ? text.find('}', i) : std::string::npos;
        const auto named = end == std::string::npos ? std::nullopt : Named(text.substr(i + 1, end - i - 1), disk);
        all += named.value_or(std::string(1, text[i]));
        if (named) i = end;
    }
    return all;
}

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

std::vector<ScriptCase> ParseScript(const std::string& topic, const std::string& content) {
    std::vector<ScriptCase> cases;
    std::istringstream lines(content);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.empty()) continue;
        if (line.starts_with("# ")) {
            cases.push_back({topic, line.substr(2), {}});
            continue;
        }
        const std::size_t arrow = line.find(" ->");
        const std::string step = line.substr(0, arrow);
        const std::size_t blank = std::min(step.find(' '), step.size());
        std::optional<std::string> outcome;
        if (arrow != std::string::npos) outcome = line.substr(std::min(arrow + 4, line.size()));
        cases.back().steps.push_back(
            {number, step.substr(0, blank), step.substr(std::min(blank + 1, step.size())), outcome});
    }
    return cases;
}

std::string Words::word() {
    const std::size_t end = std::min(text_.find(' '), text_.size());
    const std::string word = text_.substr(0, end);
    text_.erase(0, end + 1);
    return Expanded(word, disk_);
}

int Words::number() {
    const std::string text = word();
    return text.empty() ? 0 : std::stoi(text);
}

std::string Words::rest() const {
    return Expanded(text_, disk_);
}

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
        const std::string part = Expanded(pattern.substr(at, end - at), disk);
        const std::size_t found = end == std::string::npos && at > 0 ? text.rfind(part) : text.find(part, from);
        if (found == std::string::npos || found < from || (at == 0 && found > 0)) return false;
        from = found + part.size();
        if (end == std::string::npos) return from == text.size();
        at = end + kAny.size();
    }
}

}  // namespace

void ExpectOutcome(const ScriptStage& stage, const ScriptStep& step, const Told& told) {
    if (!step.outcome) return;
    EXPECT_TRUE(Fits(told.text, *step.outcome, stage.disk.path()))
        << step.line << ": " << step.verb << " " << step.words << "\n  is  " << told.text << "\n  not "
        << *step.outcome;
}

}  // namespace vexa::test
