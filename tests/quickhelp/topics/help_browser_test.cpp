#include "quickhelp/topics/help_browser.h"

#include <gtest/gtest.h>

#include "quickhelp/topics/made_help_file.h"
#include "support/test_disk.h"

namespace vexa::topics::test {
namespace {

struct MacroCase {
    std::string text;
    std::vector<std::string> calls;  // name and arguments behind each other
};

std::vector<std::string> Flat(const std::vector<MacroCall>& calls) {
    std::vector<std::string> all;
    for (const MacroCall& call : calls) {
        all.push_back(call.name);
        all.insert(all.end(), call.arguments.begin(), call.arguments.end());
    }
    return all;
}

TEST(ReadMacrosTest, CallsAndTheirArguments) {
    const MacroCase cases[] = {
        {"", {}},
        {"Back()", {"Back"}},
        {"Back", {"Back"}},
        {"JI(`a.hlp>main',\"ctx\"):Exit()", {"JI", "a.hlp>main", "ctx", "Exit"}},
        {"IfThen(IsMark(\"a,b\"),`JI(`x', `y')'); CW( \"main\" )",
         {"IfThen", "IsMark(\"a,b\")", "JI(`x', `y')", "CW", "main"}},
        {"Open(\"no end", {"Open", "no en"}},
        {"));;(((", {"))"}},
    };
    for (const MacroCase& made : cases)
        EXPECT_EQ(Flat(ReadMacros(made.text)), made.calls) << made.text;
}

class HelpBrowserTest : public ::testing::Test {
  protected:
    HelpBrowserTest() { folder.put("MADE.HLP", MakeHelpFile()); }

    std::string title() const { return browser.current() ? browser.current()->topic->title : "none"; }
    BrowserOutcome macro(const std::string& text) {
        Link link;
        link.action = LinkAction::Macro;
        link.macro = text;
        return browser.follow(*browser.current(), link);
    }

    vexa::test::TestDisk folder;
    const std::string path = folder.path("MADE.HLP");
    HelpBrowser browser{[this](const std::string& name, const std::string&) -> std::optional<std::string> {
        if (name == "MADE.HLP") return path;
        return std::nullopt;
    }};
};

TEST_F(HelpBrowserTest, OpensAtContentsNumberAndKeyword) {
    EXPECT_EQ(browser.openContents(folder.path("NONE.HLP")), BrowserOutcome::Nothing);
    EXPECT_EQ(browser.current(), nullptr);
    EXPECT_EQ(browser.openNumber(path, 7), BrowserOutcome::Show);
    EXPECT_EQ(title(), "Second");
    EXPECT_EQ(browser.openNumber(path, 8), BrowserOutcome::Show);
    EXPECT_EQ(title(), "First");
    EXPECT_EQ(browser.openKeyword(path, "gamma"), BrowserOutcome::Index);
    EXPECT_EQ(browser.openKeyword(path, "BE"), BrowserOutcome::Show);
    EXPECT_EQ(title(), "Second");
    EXPECT_EQ(browser.openKeyword(path, "ALPHA"), BrowserOutcome::Choice);
    ASSERT_EQ(browser.found().size(), 2U);
    EXPECT_EQ(browser.found()[1].title, "Second");
}

TEST_F(HelpBrowserTest, ReadsAFileAnewOnlyWhenItHasChanged) {
    ASSERT_EQ(browser.openContents(path), BrowserOutcome::Show);
    const HelpFile* first = browser.current()->file.get();
    EXPECT_EQ(browser.openKeyword(path, "beta"), BrowserOutcome::Show);
    EXPECT_EQ(browser.current()->file.get(), first);
    EXPECT_EQ(browser.back(), BrowserOutcome::Show);
    EXPECT_FALSE(browser.canGoBack());
    folder.put("MADE.HLP", MakeHelpFile() + "longer");
    EXPECT_EQ(browser.openKeyword(path, "beta"), BrowserOutcome::Show);
    EXPECT_NE(browser.current()->file.get(), first);
    folder.remove("MADE.HLP");
    EXPECT_EQ(browser.openContents(path), BrowserOutcome::Nothing);
    EXPECT_EQ(title(), "Second");
}

TEST_F(HelpBrowserTest, JumpsAndComesBack) {
    ASSERT_EQ(browser.openContents(path), BrowserOutcome::Show);
    EXPECT_FALSE(browser.canGoBack());
    const Link jump = browser.current()->topic->links.at(0);
    EXPECT_EQ(browser.follow(*browser.current(), jump), BrowserOutcome::Show);
    EXPECT_EQ(title(), "Second");
    EXPECT_EQ(browser.back(), BrowserOutcome::Show);
    EXPECT_EQ(title(), "First");
    EXPECT_EQ(browser.back(), BrowserOutcome::Nothing);
    Link elsewhere = jump;
    elsewhere.file = "GONE.HLP";
    EXPECT_EQ(browser.follow(*browser.current(), elsewhere), BrowserOutcome::Nothing);
    EXPECT_EQ(title(), "First");
}

TEST_F(HelpBrowserTest, ComesBackToWhereItHasScrolledTo) {
    ASSERT_EQ(browser.openContents(path), BrowserOutcome::Show);
    EXPECT_LT(browser.current()->scroll, 0);
    browser.keepScroll(123);
    EXPECT_EQ(macro("JumpId(`', `second')"), BrowserOutcome::Show);
    EXPECT_LT(browser.current()->scroll, 0);
    EXPECT_EQ(browser.back(), BrowserOutcome::Show);
    EXPECT_EQ(browser.current()->scroll, 123);
}

TEST_F(HelpBrowserTest, ShowsTopicsAsTheWindowsOfTheAuthor) {
    const auto look = [this] { return browser.current()->caption(); };
    const Colour grey = {0xC0, 0xC0, 0xC0};
    const Colour blue = {0, 0, 0x80};
    ASSERT_EQ(browser.openContents(path), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Made - First");
    EXPECT_EQ(browser.current()->background(true), grey);
    EXPECT_EQ(browser.current()->background(false), std::nullopt);
    EXPECT_EQ(macro("JumpId(`>side', `second')"), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Beside - Second");
    EXPECT_EQ(browser.current()->background(true), blue);
    EXPECT_EQ(browser.toContents(), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Made - First");
    Link jump = browser.current()->topic->links.at(0);
    jump.windowNumber = 1;
    EXPECT_EQ(browser.follow(*browser.current(), jump), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Beside - Second");
    jump.windowNumber = 99;
    EXPECT_EQ(browser.follow(*browser.current(), jump), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Beside - Second") << "no such window";
    EXPECT_EQ(macro("JumpId(`>none', `second')"), BrowserOutcome::Show);
    EXPECT_EQ(look(), "Made - Second");
    EXPECT_EQ(browser.current()->background(true), std::nullopt);
}

TEST_F(HelpBrowserTest, CarriesOutHarmlessMacrosAlone) {
    ASSERT_EQ(browser.openContents(path), BrowserOutcome::Show);
    EXPECT_EQ(macro("JumpId(`MADE.HLP>main', `second')"), BrowserOutcome::Show);
    EXPECT_EQ(title(), "Second");
    EXPECT_EQ(macro("PC(\"\", 7)"), BrowserOutcome::PopUp);
    EXPECT_EQ(browser.popUp().topic->title, "Second");
    EXPECT_EQ(macro("KL(`alpha;none')"), BrowserOutcome::Choice);
    EXPECT_EQ(macro("Exit()"), BrowserOutcome::Close);
    EXPECT_EQ(macro("ExecFile(`calc.exe'); Contents()"), BrowserOutcome::Show);
    EXPECT_EQ(title(), "First");
    EXPECT_EQ(browser.takeRefused(), std::vector<std::string>{"ExecFile(`calc.exe')"});
    EXPECT_TRUE(browser.takeRefused().empty());
}

}  // namespace
}  // namespace vexa::topics::test
