// Looking keywords up and installing help files, in the cases of the folder scripts/.
#include <algorithm>

#include "base/history_list.h"
#include "quickhelp/help_configuration_model.h"
#include "quickhelp/help_file_writer.h"
#include "quickhelp/linked_help_file.h"
#include "quickhelp/quick_help_commands.h"
#include "quickhelp/quick_help_model.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "quick_help_scripts.inc"
};

struct HelpStage : ScriptStage, QuickHelpHost {
    HelpStage() { disk.makeDirectory("vHelp"); }

    // Puts NAME.HLP, an empty file, and its index on the disk.
    void install(const std::string& name, const std::string& title, const std::vector<std::string>& keywords) const {
        disk.put(name + ".HLP", "");
        std::string index = "00000\r\n" + disk.path(name + ".HLP") + "\r\n" + title + "\r\n";
        for (const std::string& keyword : keywords)
            index += keyword + "\r\n";
        disk.put("vHelp\\" + name + ".ZIX", index);
    }
    QuickHelpModel& dialog() { return model ? *model : model.emplace(lookup, history, notices); }

    bool runDialog(QuickHelpDialog kind) override {
        events.push_back(kind == QuickHelpDialog::QuickHelp ? "dialog" : "search");
        if (userChooses) lookup.choose(1);
        return userChooses;
    }
    bool showHelp(const std::string& helpFile, const std::string& keyword) override {
        events.push_back(helpFile.substr(helpFile.rfind('\\') + 1) + ":" + keyword);
        return viewerWorks;
    }
    void focusEditWindow() override { events.emplace_back("focus"); }

    HelpLookup lookup{disk.path("vHelp"), notices};
    HistoryList history{disk.path(), QuickHelpModel::kHistoryFile};
    std::optional<QuickHelpModel> model;
    QuickHelpCommands commands{lookup, notices, *this};
    std::optional<HelpConfigurationModel> configuration;
    std::vector<std::string> events;
    bool userChooses = true;
    bool viewerWorks = true;
};

std::size_t Index(Words& words) {
    return static_cast<std::size_t>(words.number());
}

Told Install(HelpStage& stage, Words words) {
    const std::string name = words.word();
    const std::string title = words.word();
    std::vector<std::string> keywords;
    while (words.more())
        keywords.push_back(words.word());
    return stage.install(name, title, keywords), Told();
}

Told InstallAlphabet(HelpStage& stage, Words) {
    for (char name = 'A'; name < 'A' + 25; ++name)
        stage.install(std::string(1, name), std::string(1, name), {"key"});
    return {};
}

Told PutHelp(HelpStage& stage, Words words) {
    const std::string name = words.word();
    HelpFileWriter writer;
    writer.addSystem15("Title");
    if (words.more()) writer.addKeywords(Keywords({words.word()}));
    return stage.disk.put(name, writer.bytes()), Told();
}

Told LookUp(HelpStage& stage, Words words) {
    static const std::map<LookupResult, const char*> kResults = {{LookupResult::NoIndexes, "no indexes"},
                                                                 {LookupResult::NoMatch, "none"},
                                                                 {LookupResult::OneMatch, "one"},
                                                                 {LookupResult::SeveralMatches, "several"}};
    return kResults.at(stage.lookup.Lookup(words.rest()));
}

Told Matches(HelpStage& stage, Words) {
    std::vector<std::string> matches;
    for (const HelpMatch& match : stage.lookup.matches())
        matches.push_back(match.helpFile.substr(match.helpFile.rfind('\\') + 1) + " " + match.title);
    return matches;
}

Told Chosen(HelpStage& stage, Words) {
    return stage.lookup.chosen() ? stage.lookup.chosen()->title : "none";
}

Told Accept(HelpStage& stage, Words) {
    static const std::map<QuickHelpModel::Next, const char*> kNext = {{QuickHelpModel::Next::FocusKeyword, "keyword"},
                                                                      {QuickHelpModel::Next::FocusList, "list"},
                                                                      {QuickHelpModel::Next::Close, "close"}};
    return kNext.at(stage.dialog().accept());
}

Told RunQuickHelp(HelpStage& stage, Words words) {
    stage.commands.quickHelp(words.rest());
    return std::exchange(stage.events, {});
}

Told RunQuickHelpNowhere(HelpStage& stage, Words) {
    stage.commands.quickHelp(std::nullopt);
    return std::exchange(stage.events, {});
}

Told RunQuickSearch(HelpStage& stage, Words) {
    stage.commands.quickSearch();
    return std::exchange(stage.events, {});
}

Told Linked(HelpStage& stage, Words words) {
    return FindLinkedHelpFile(words.rest(), stage.disk.path("OTHER\\FROM.HLP"), stage.disk.path("vHelp"));
}

Told Configure(HelpStage& stage, Words words) {
    return stage.configuration.emplace(stage.disk.path(words.rest()), stage.notices), Told();
}

Told Rows(HelpStage& stage, Words) {
    std::vector<std::string> rows;
    for (const HelpFileRow& row : stage.configuration->rows())
        rows.push_back(row.text());
    return rows;
}

Told Choose(HelpStage& stage, Words words) {
    const auto& rows = stage.configuration->rows();
    const auto row = std::ranges::find(rows, words.rest(), &HelpFileRow::text);
    if (row == rows.end()) return false;
    return stage.configuration->chooseRow(static_cast<std::size_t>(row - rows.begin())), Told(true);
}

const Verbs<HelpStage> kVerbs = {
    {"install", &Install},
    {"install-alphabet", &InstallAlphabet},
    {"put-help", &PutHelp},
    {"look-up", &LookUp},
    {"matches", &Matches},
    {"chosen", &Chosen},
    {"keyword", [](HelpStage& s, Words) { return Told(s.lookup.keyword()); }},
    {"text-of-none", [](HelpStage&, Words w) { return Told(TextOf(LookupResult::NoMatch, w.rest())); }},
    {"linked", &Linked},
    // "Quick Help" and "Quick Search"
    {"open-dialog", [](HelpStage& s, Words) { return s.model.emplace(s.lookup, s.history, s.notices), Told(); }},
    {"dialog-keyword", [](HelpStage& s, Words) { return Told(s.dialog().keyword); }},
    {"fill", [](HelpStage& s, Words w) { return s.dialog().keyword = w.rest(), Told(); }},
    {"rows", [](HelpStage& s, Words) { return Told(s.dialog().rows()); }},
    {"chosen-row", [](HelpStage& s, Words) { return Told(s.dialog().chosenRow()); }},
    {"choose-row", [](HelpStage& s, Words w) { return s.dialog().chooseRow(Index(w)), Told(); }},
    {"accept", &Accept},
    {"history", [](HelpStage& s, Words) { return Told(s.history.entries()); }},
    {"quick-help", &RunQuickHelp},
    {"quick-help-nowhere", &RunQuickHelpNowhere},
    {"quick-search", &RunQuickSearch},
    {"user-chooses", [](HelpStage& s, Words w) { return s.userChooses = w.yes(), Told(); }},
    {"viewer-works", [](HelpStage& s, Words w) { return s.viewerWorks = w.yes(), Told(); }},
    // "Help Configuration"
    {"configure", &Configure},
    {"end-configuration", [](HelpStage& s, Words) { return s.configuration.reset(), Told(); }},
    {"listed", [](HelpStage& s, Words) { return Told(s.configuration->path()); }},
    {"files-and-drives", &Rows},
    {"choose-file", &Choose},
    {"chosen-file", [](HelpStage& s, Words) { return Told(s.configuration->chosenRow()); }},
    {"open", [](HelpStage& s, Words) { return Told(s.configuration->open()); }},
    {"add", [](HelpStage& s, Words) { return Told(s.configuration->add()); }},
    {"can-add", [](HelpStage& s, Words) { return Told(s.configuration->canAdd()); }},
    {"installed", [](HelpStage& s, Words) { return Told(s.configuration->installed()); }},
    {"choose-installed", [](HelpStage& s, Words w) { return s.configuration->chooseInstalled(Index(w)), Told(); }},
    {"can-remove", [](HelpStage& s, Words) { return Told(s.configuration->canRemove()); }},
    {"remove-installed", [](HelpStage& s, Words) { return s.configuration->remove(), Told(); }},
};

VEXA_SCRIPTS(QuickHelp, kFiles, HelpStage, kVerbs);

TEST(HelpLookupTest, KeywordsAnywhereInALongIndexAreFound) {
    HelpStage stage;
    std::vector<std::string> words;
    for (int i = 0; i < 30'000; ++i)
        words.push_back("word" + std::to_string(i) + "x");
    words.push_back(std::string(70'000, 'l'));
    words.push_back("last");
    stage.install("A", "First", words);
    for (int i = 0; i < 30'000; i += 499)
        EXPECT_EQ(stage.lookup.Lookup("word" + std::to_string(i) + "X"), LookupResult::OneMatch) << i;
    EXPECT_EQ(stage.lookup.Lookup("last"), LookupResult::OneMatch);
    EXPECT_EQ(stage.lookup.Lookup("ord"), LookupResult::NoMatch);
    EXPECT_EQ(HelpLookup("\\??Oops", stage.notices).Lookup("key"), LookupResult::NoIndexes);
}

}  // namespace
}  // namespace vexa::test
