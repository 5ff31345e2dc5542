// What the dialogs "File Extensions", "Edit File Extension" and "Electric Keyboard" show, ask, refuse and write, in the
// cases of the folder dialogs/.
#include "language/electric_model.h"
#include "language/file_extensions_model.h"
#include "language/profile_file.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "dialog_scripts.inc"
};

struct DialogStage : ScriptStage {
    DialogStage() { disk.makeDirectory("vConfig"); }

    ElectricModel& electric() { return model ? *model : model.emplace(words); }
    FileExtensionsModel& extensions() { return list ? *list : list.emplace(profiles); }

    ProfileList profiles{disk.path("vConfig")};
    std::optional<FileExtensionsModel> list;
    std::optional<ExtensionEditModel> edited;
    ElectricWords words{disk.path()};
    std::optional<ElectricModel> model;
};

const std::map<std::string, std::string ExtensionEditModel::*> kFields = {
    {"extension", &ExtensionEditModel::extension},
    {"description", &ExtensionEditModel::description},
    {"preprocessor", &ExtensionEditModel::preprocessor},
    {"string", &ExtensionEditModel::stringCharacter},
    {"line-comment", &ExtensionEditModel::lineComment},
    {"start", &ExtensionEditModel::commentStart},
    {"end", &ExtensionEditModel::commentEnd},
    {"delimiters", &ExtensionEditModel::delimiters}};

std::vector<std::string> All(Words words) {
    std::vector<std::string> all;
    while (words.more())
        all.push_back(words.word());
    return all;
}

Told Store(DialogStage& stage, Words words) {
    ExtensionProfile profile;
    profile.setExtension(words.word());
    profile.setDescription(words.word());
    profile.replaceKeywords(All(words));
    return profile.write(stage.profiles.profilePath(profile.extension()));
}

Told Stored(DialogStage& stage, Words words) {
    ExtensionProfile profile;
    if (!profile.read(stage.profiles.profilePath(words.rest()))) return "none";
    const std::string characters{profile.preprocessor() ? profile.preprocessor() : '-', profile.stringQuote()};
    return profile.extension() + "|" + profile.description() + "|" + characters + "|" + profile.lineComment() + "|" +
           profile.commentStart() + "|" + profile.commentEnd() + "|" + profile.delimiters() + "|" +
           Told(profile.keywords()).text;
}

Told Rows(DialogStage& stage, Words) {
    std::vector<std::string> rows;
    for (const FileExtensionRow& row : stage.list.emplace(stage.profiles).rows())
        rows.push_back(row.extension + " " + row.description);
    return rows;
}

Told ElectricRows(const ElectricList& list) {
    std::vector<std::string> rows;
    for (const ElectricEntry& entry : list.entries())
        rows.push_back(entry.keyword + "=" + entry.expansion);
    return rows;
}

Told SetElectric(DialogStage& stage, Words words) {
    stage.electric().keyword = words.word();
    stage.electric().expansion = words.rest();
    return stage.electric().set();
}

Told FillElectric(DialogStage& stage, Words words) {
    const bool isKeyword = words.word() == "keyword";
    return (isKeyword ? stage.electric().keyword : stage.electric().expansion) = words.rest(), Told();
}

const Verbs<DialogStage> kVerbs = {
    {"store", &Store},
    {"stored", &Stored},
    {"rows", &Rows},
    {"row-of", [](DialogStage& s, Words w) { return Told(s.extensions().rowOf(w.rest())); }},
    {"delete",
     [](DialogStage& s, Words w) {
         return Told(s.extensions().deleteProfile(static_cast<std::size_t>(w.number()), s.notices));
     }},
    {"new", [](DialogStage& s, Words) { return s.edited.emplace(s.profiles), Told(); }},
    {"edit", [](DialogStage& s, Words w) { return s.edited.emplace(s.profiles, w.rest()), Told(); }},
    {"set", [](DialogStage& s, Words w) { return SetField(*s.edited, kFields, w); }},
    {"field", [](DialogStage& s, Words w) { return Told((*s.edited).*kFields.at(w.word())); }},
    {"extension-enabled", [](DialogStage& s, Words) { return Told(s.edited->isExtensionEnabled()); }},
    {"add", [](DialogStage& s, Words w) { return Told(s.edited->addKeywords(w.rest(), s.notices)); }},
    {"drop",
     [](DialogStage& s, Words w) { return s.edited->removeKeyword(static_cast<std::size_t>(w.number())), Told(); }},
    {"keywords", [](DialogStage& s, Words) { return Told(s.edited->keywords()); }},
    {"keyword-count", [](DialogStage& s, Words) { return Told(s.edited->keywords().size()); }},
    {"import", [](DialogStage& s, Words w) { return s.edited->importFiles(All(w), s.notices), Told(); }},
    {"update", [](DialogStage& s, Words) { return Told(s.edited->update(s.notices)); }},
    // the electric words
    {"electric", [](DialogStage& s, Words) { return ElectricRows(s.words.list()); }},
    {"electric-file", [](DialogStage& s, Words) { return ElectricRows(DecodeElectricList(s.disk.get("vexa.elc"))); }},
    {"set-electric", &SetElectric},
    {"fill-electric", &FillElectric},
    {"electric-fields",
     [](DialogStage& s, Words) { return Told(s.electric().keyword + "|" + s.electric().expansion); }},
    {"electric-keywords", [](DialogStage& s, Words) { return Told(s.electric().keywords()); }},
    {"electric-chosen", [](DialogStage& s, Words) { return Told(s.electric().chosen()); }},
    {"choose-electric",
     [](DialogStage& s, Words w) { return s.electric().choose(static_cast<std::size_t>(w.number())), Told(); }},
    {"can-remove-electric", [](DialogStage& s, Words) { return Told(s.electric().canRemove()); }},
    {"remove-electric", [](DialogStage& s, Words) { return s.electric().remove(), Told(); }},
    {"update-electric", [](DialogStage& s, Words) { return Told(s.electric().update()); }},
};

TEST(KeywordFile, WordsStandBetweenBlanksAndControlCharacters) {
    const std::string twenty(20, 'k');
    struct Case {
        std::string text;
        KeywordWords words;
    };
    const Case cases[] = {
        {"", {}},
        {" \r\n\t\x1A", {}},
        {"if", {{"if"}, 0}},
        {"if then\r\nelse\nfi\rdo\tod", {{"if", "then", "else", "fi", "do", "od"}, 0}},
        {"b a b", {{"b", "a", "b"}, 0}},
        {std::string("a\0b\x7F"
                     "c",
                     5),
         {{"a", "b", "c"}, 0}},
        {twenty + " " + twenty + "x y", {{twenty, "y"}, 1}},
        {"\xEF\xBB\xBFif \xFC", {{"if", "\xFC"}, 0}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CutKeywords(c.text), c.words) << c.text;
}

TEST(Dialogs, AFullListTakesTheFirstKeywordsAndCountsTheRest) {
    DialogStage stage;
    std::string text;
    for (int i = 0; i < 65535 - 55; ++i)
        text += "k" + std::to_string(i) + "\n";
    stage.disk.put("many.txt", text + "zz1 zz2 zz3");
    ExtensionEditModel& model = stage.edited.emplace(stage.profiles);
    model.importFiles({stage.disk.path("many.txt")}, stage.notices);
    EXPECT_EQ(stage.notices.boxes.back().text,
              "Keywords added to the list: 65480\nLeft out, because the list is full: 3");
    ASSERT_EQ(model.keywords().size(), 65535u);
    EXPECT_EQ(model.addKeywords("zz4", stage.notices), std::nullopt);
    EXPECT_EQ(stage.notices.boxes.back().text, "Left out, because the list is full: 1");
    model.extension = "big";
    ASSERT_TRUE(model.update(stage.notices));
    EXPECT_EQ(stage.profiles.profileFor("a.big").keywords(), model.keywords());
}

VEXA_SCRIPTS(ExtensionDialogs, kFiles, DialogStage, kVerbs);

}  // namespace
}  // namespace vexa::test
