#include "ui/key_script.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "ui/wait.h"

namespace vexa::test {
namespace {

struct NamedKey {
    std::string_view name;
    BYTE key;
    bool extended;
};

constexpr NamedKey kNamedKeys[] = {
    {"Enter", VK_RETURN, false},   {"Esc", VK_ESCAPE, false},
    {"Tab", VK_TAB, false},        {"Backspace", VK_BACK, false},
    {"Left", VK_LEFT, true},       {"Right", VK_RIGHT, true},
    {"Up", VK_UP, true},           {"Down", VK_DOWN, true},
    {"Home", VK_HOME, true},       {"End", VK_END, true},
    {"PgUp", VK_PRIOR, true},      {"PgDn", VK_NEXT, true},
    {"Del", VK_DELETE, true},      {"Ins", VK_INSERT, true},
    {"KeypadPlus", VK_ADD, false}, {"KeypadMinus", VK_SUBTRACT, false},
    {"Minus", 0xBD, false},        {"F1", VK_F1, false},
    {"F3", VK_F3, false},          {"F4", VK_F4, false},
    {"F5", VK_F5, false},          {"F6", VK_F6, false},
    {"F7", VK_F7, false},          {"F8", VK_F8, false},
    {"F10", VK_F10, false},        {"F2", VK_F2, false},
    {"F9", VK_F9, false},          {"F11", VK_F11, false},
    {"F12", VK_F12, false},        {"F13", VK_F13, false},
    {"F14", VK_F14, false},        {"F15", VK_F15, false},
    {"F16", VK_F16, false},        {"F17", VK_F17, false},
    {"Menu", VK_APPS, true},
};

struct Modifier {
    std::string_view prefix;
    BYTE key;
};

constexpr Modifier kModifiers[] = {{"Ctrl+", VK_CONTROL}, {"Alt+", VK_MENU}, {"Shift+", VK_SHIFT}};

class KeyQueue {
  public:
    void press(BYTE key, bool extended) { add(key, extended, false), add(key, extended, true); }
    void hold(BYTE key) { add(key, false, false); }
    void release(BYTE key) { add(key, false, true); }
    void send() { SendInput(static_cast<UINT>(inputs_.size()), inputs_.data(), sizeof(INPUT)); }

  private:
    void add(BYTE key, bool extended, bool up) {
        inputs_.push_back(KeyInput(key, (extended ? KEYEVENTF_EXTENDEDKEY : 0u) | (up ? KEYEVENTF_KEYUP : 0u)));
    }

    std::vector<INPUT> inputs_;
};

void PressCharacter(KeyQueue& queue, char c) {
    const SHORT key = VkKeyScanA(c);
    if (key == -1) throw std::invalid_argument(std::string("no key types ") + c);
    const bool shifted = HIBYTE(key) & 1;
    if (shifted) queue.hold(VK_SHIFT);
    queue.press(LOBYTE(key), false);
    if (shifted) queue.release(VK_SHIFT);
}

void PressNamed(KeyQueue& queue, std::string_view name) {
    for (const NamedKey& named : kNamedKeys) {
        if (named.name == name) return queue.press(named.key, named.extended);
    }
    if (name.size() != 1) throw std::invalid_argument("no key is named " + std::string(name));
    queue.press(LOBYTE(VkKeyScanA(name[0])), false);
}

// What stands between braces.
void PressChord(KeyQueue& queue, std::string_view chord) {
    int times = 1;
    if (const auto star = chord.find('*'); star != std::string_view::npos) {
        times = std::stoi(std::string(chord.substr(star + 1)));
        chord = chord.substr(0, star);
    }
    std::vector<BYTE> held;
    for (const Modifier& modifier : kModifiers) {
        if (!chord.starts_with(modifier.prefix)) continue;
        chord.remove_prefix(modifier.prefix.size());
        held.push_back(modifier.key);
    }
    for (const BYTE key : held)
        queue.hold(key);
    for (int i = 0; i < times; ++i)
        PressNamed(queue, chord);
    for (const BYTE key : held)
        queue.release(key);
}

}  // namespace

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, 0));
    input.ki.dwFlags = flags;
    return input;
}

void PressKeys(std::string_view script) {
    KeyQueue queue;
    while (!script.empty()) {
        if (script.front() == '{') {
            const auto end = script.find('}');
            PressChord(queue, script.substr(1, end - 1));
            script.remove_prefix(end + 1);
        } else {
            PressCharacter(queue, script.front());
            script.remove_prefix(1);
        }
    }
    AwaitDisplaysNews();
    queue.send();
}

}  // namespace vexa::test
