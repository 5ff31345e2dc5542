// Which functions are found in a text, and the rules of the dialog that lists them.
#include <gtest/gtest.h>

#include "regexp/regex_matcher.h"
#include "search/function_list.h"
#include "search/function_list_model.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

// A document of that name with the text, whose lines end in line feeds.
class Source {
  public:
    Source(const std::string& name, std::string_view text) {
        document.newEmpty();
        document.setName("C:\\" + name);
        for (std::int32_t line = 0; !text.empty(); ++line) {
            const std::size_t length = std::min(text.find('\n'), text.size());
            document.lines().put(document.makeLine(text.substr(0, length)), line);
            text.remove_prefix(std::min(length + 1, text.size()));
        }
    }
    // "line name;" for each, the line counted from 1.
    std::string functions() const {
        std::string shown;
        for (const FunctionEntry& entry : FunctionsOf(document))
            shown += std::to_string(entry.line.value + 1) + " " + entry.name + ";";
        return shown;
    }

    EditorOptions options;
    test::RecordingNotices notices;
    TextDocument document{options, notices};
};

struct Case {
    const char* text;
    const char* functions;
};

TEST(FunctionList, FindsDefinitionsInC) {
    const Case cases[] = {
        {"", ""},
        {"int main(void)\n{\n    return 0;\n}\n", "1 int main;"},
        {"static char *\tname (int a,\n   int b)\n{\n}\nvoid g(){}", "1 static char * name;5 void g;"},
        {"int\nmain (argc)\n{\n}\n", "2 main;"},
        {"int f\n  (int a)\n{\n}", "1 int f;"},
        {"int f(int);\nextern int g(int a,\n  int b);\nint a[] = { f(1), g(2, 3) };\nint x = f(3);", ""},
        {"int f(int a), g(int b);\nstruct s *h(int a) {}", "2 struct s *h;"},
        {"void f() {\n  if (a) { g(b); }\n  while (x(1)) {}\n  for (;;) { h(y) {} }\n}\nvoid k() {}",
         "1 void f;6 void k;"},
        {"#define F(a) \\\n  a \\\n  int g(a) {\n/* int h() {\n */ // int i() {\nint j() {}", "6 int j;"},
        {"int \x80() {}", "1 int \x80;"},
        {"char *s = \"int f() {\";\nchar c = '{', d = '\\'', e = '\"';\nint g() { return '}'; }\nint h() {}",
         "3 int g;4 int h;"},
        {"void f() {\n#if A\n  if (a) {\n#else\n  if (b) {\n#endif\n  }\n}\nvoid g() {}", "1 void f;9 void g;"},
        {"typedef struct {\n  int (*f)(int);\n} t;\nenum e { A = F(1), B };\nint g() {}", "5 int g;"},
        {"void f(int a,\n#ifdef X\n  int b,\n#endif\n  int c)\n{\n}", "1 void f;"},
        {"int f(a, b) /* ( */ // {\n{ }", "1 int f;"},
        {"int f() __attribute__((noreturn(1))) {\n}\n__declspec(dllexport) int g() {}",
         "1 int f;3 __declspec(dllexport) int g;"},
        {"int broken(\n}\nint f() {}", "3 int f;"},
        {"BEGIN(a)\nEND()\nvoid f() {}", "3 void f;"},
        {"PUSH(1)\nclass A {\n  void f() {}\n};\nPOP()\ntemplate <class T, bool = F(1)>\nstruct S { void g() {} };",
         "3 void f;7 void g;"},
        {"namespace n VISIBLE(all)\n{\nvoid f()\n  NO_THROW(1) {\n}\n}", "3 void f;"},
        {"int f() { return 1'000 + 0x1'F; }\nint g() {}", "1 int f;2 int g;"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(Source("a.c", one.text).functions(), one.functions) << one.text;
}

TEST(FunctionList, FindsDefinitionsInCPlusPlus) {
    const Case cases[] = {
        {"A::A(int a) : b(a), c{a}, d<int>{1} {\n  x();\n}\nA::~A() {}", "1 A::A;4 A::~A;"},
        {"A::A()\n    : b(1)\n    , c{2}\n{\n}\nvoid A::f() const noexcept(true) override {}", "1 A::A;6 void A::f;"},
        {"bool operator==(const A& a, const A& b) {}\nvoid A::operator()(int) {}\nA::operator bool() const {}\n"
         "void* operator new[] (size_t n) {}\nA& A::operator,(int) {}",
         "1 bool operator==;2 void A::operator();3 A::operator bool;4 void* operator new[];5 A& A::operator,;"},
        {"class A : public B {\n  public: void f() { g(); }\n  void h(int);\n  int i() = 0;\n  A() = default;\n"
         "  ~A() {}\n};",
         "2 void f;6 ~A;"},
        {"namespace n {\nextern \"C\" {\nvoid f(std::function<void(int)> g = {}, int a = h(1)) {\n}\n}\n}",
         "3 void f;"},
        {"template <class T = int, class U = A<T>>\nstd::vector<T> f(T a) {\n}\ntemplate <>\nvoid g<int>(int) {}",
         "2 std::vector<T> f;5 void g<int>;"},
        {"template <class T>\nstruct S : B<T(int)> {\n  auto f() -> decltype(g()) { }\n};", "3 auto f;"},
        {"auto l = [](int a) { return f(a); };\nstd::function<void()> g{h(1)};\nint k() { }", "3 int k;"},
        {"class EXPORT(1) A final {\n void f() {}\n};\nenum class E : int { X };\nvoid g() try { } catch (...) { }",
         "2 void f;5 void g;"},
        {"void f() {\n  run([&](int a) {\n    b();\n  });\n}\nvoid g() {}", "1 void f;6 void g;"},
        {"int a = f([] {\n}\nint g() {}", "3 int g;"},
        {"struct A {\n    void f() {\n    }\n    struct B {\n        void g() {}\n    };\n};\nint h() {}",
         "2 void f;5 void g;8 int h;"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(Source("a.cpp", one.text).functions(), one.functions) << one.text;
}

TEST(FunctionList, OtherLanguagesHaveTheirOwnRules) {
    struct Row {
        const char* name;
        Case found;
    };
    const Row rows[] = {
        {"a.py",
         {"class A(B):\n    def f(self):\n        pass\nasync  def g():\ndefine(x)\n# def h():",
          "1 class A;2 def f;4 async  def g;"}},
        {"a.PAS",
         {"Procedure P(a: Integer);\n  FUNCTION TA.f: Integer;\nprocedures;", "1 Procedure P;2 FUNCTION TA.f;"}},
        {"a.bas",
         {"Public Static Sub S(a)\nFunction f()\nEnd Sub\nPrivate Property Get p",
          "1 Public Static Sub S;"
          "2 Function f;4 Private Property Get p;"}},
        {"a.pl", {"sub f {\n  subtract();\n  sub g($$);", "1 sub f;3 sub g;"}},
        {"a.asm", {"main PROC near ; (x)\nmain ENDP\n  _f proc\nprocess", "1 main PROC near;3 _f proc;"}},
        {"a.java", {"class A {\n  @X(1) public void f(int a) throws B {\n  }\n}", "2 @X(1) public void f;"}},
        {"a.unknown", {"int f() {\n}", "1 int f;"}},
        {"py", {"int f() {\n}", "1 int f;"}},
        {"a.py pyw", {"int f() {\n}", "1 int f;"}},
    };
    for (const bool ignoresCase : {true, false}) {
        SetRegExpIgnoreCase(ignoresCase);
        for (const Row& row : rows)
            EXPECT_EQ(Source(row.name, row.found.text).functions(), row.found.functions) << row.name;
        EXPECT_EQ(RegExpIgnoresCase(), ignoresCase) << "the mode of the others";
    }
}

class FunctionsDialog : public testing::Test {
  protected:
    static FunctionListModel at(std::int32_t line) {
        return FunctionListModel(
            {{"int alpha", LineIndex(4)}, {"int beta", LineIndex(9)}, {"void Alphabet", LineIndex(20)}},
            LineIndex(line));
    }
};

TEST_F(FunctionsDialog, TheFunctionWithTheCaretIsChosen) {
    const std::pair<int, int> rows[] = {{0, 4}, {4, 4}, {8, 4}, {9, 9}, {19, 9}, {500, 20}};
    for (const auto& [line, chosen] : rows)
        EXPECT_EQ(at(line).chosenLine(), LineIndex(chosen)) << line;
    const FunctionListModel none({}, LineIndex(3));
    EXPECT_EQ(none.chosenRow(), std::nullopt);
    EXPECT_EQ(none.chosenLine(), std::nullopt);
}

TEST_F(FunctionsDialog, TheFilterKeepsTheChosenFunctionWhileItIsShown) {
    FunctionListModel model = at(25);
    model.setFilter("ALPHA");
    EXPECT_EQ(model.rows(), (std::vector<std::string>{"5\tint alpha", "21\tvoid Alphabet"}));
    EXPECT_EQ(model.chosenRow(), 1u);
    model.setFilter("int");
    EXPECT_EQ(model.chosenRow(), 0u) << "it is no longer shown";
    model.setFilter("none");
    EXPECT_EQ(model.rows().size(), 0u);
    EXPECT_EQ(model.chosenLine(), std::nullopt);
    model.setFilter("a");
    model.chooseRow(2);
    model.chooseRow(3);
    EXPECT_EQ(model.chosenLine(), LineIndex(20));
}

}  // namespace
}  // namespace vexa
