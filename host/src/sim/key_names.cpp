#include "key_names.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <string>

namespace hullhost::sim {

namespace {

struct NamedKey {
    std::string_view name;
    DWORD code;
};

// Named keys; letters, digits and F1..F12 follow below from their codes.
constexpr NamedKey kNames[] = {
    {"ESCAPE", OAPI_KEY_ESCAPE},
    {"ESC", OAPI_KEY_ESCAPE},
    {"MINUS", OAPI_KEY_MINUS},
    {"EQUALS", OAPI_KEY_EQUALS},
    {"BACK", OAPI_KEY_BACK},
    {"BACKSPACE", OAPI_KEY_BACK},
    {"TAB", OAPI_KEY_TAB},
    {"LBRACKET", OAPI_KEY_LBRACKET},
    {"RBRACKET", OAPI_KEY_RBRACKET},
    {"RETURN", OAPI_KEY_RETURN},
    {"ENTER", OAPI_KEY_RETURN},
    {"LCONTROL", OAPI_KEY_LCONTROL},
    {"LCTRL", OAPI_KEY_LCONTROL},
    {"RCONTROL", OAPI_KEY_RCONTROL},
    {"RCTRL", OAPI_KEY_RCONTROL},
    {"SEMICOLON", OAPI_KEY_SEMICOLON},
    {"APOSTROPHE", OAPI_KEY_APOSTROPHE},
    {"GRAVE", OAPI_KEY_GRAVE},
    {"LSHIFT", OAPI_KEY_LSHIFT},
    {"RSHIFT", OAPI_KEY_RSHIFT},
    {"BACKSLASH", OAPI_KEY_BACKSLASH},
    {"COMMA", OAPI_KEY_COMMA},
    {"PERIOD", OAPI_KEY_PERIOD},
    {"SLASH", OAPI_KEY_SLASH},
    {"LALT", OAPI_KEY_LALT},
    {"RALT", OAPI_KEY_RALT},
    {"SPACE", OAPI_KEY_SPACE},
    {"CAPITAL", OAPI_KEY_CAPITAL},
    {"CAPSLOCK", OAPI_KEY_CAPITAL},
    {"NUMLOCK", OAPI_KEY_NUMLOCK},
    {"SCROLL", OAPI_KEY_SCROLL},
    {"OEM_102", OAPI_KEY_OEM_102},
    {"SYSRQ", OAPI_KEY_SYSRQ},
    {"PAUSE", OAPI_KEY_PAUSE},
    {"HOME", OAPI_KEY_HOME},
    {"END", OAPI_KEY_END},
    {"UP", OAPI_KEY_UP},
    {"DOWN", OAPI_KEY_DOWN},
    {"LEFT", OAPI_KEY_LEFT},
    {"RIGHT", OAPI_KEY_RIGHT},
    {"PRIOR", OAPI_KEY_PRIOR},
    {"PAGEUP", OAPI_KEY_PRIOR},
    {"NEXT", OAPI_KEY_NEXT},
    {"PAGEDOWN", OAPI_KEY_NEXT},
    {"INSERT", OAPI_KEY_INSERT},
    {"DELETE", OAPI_KEY_DELETE},
    // The keypad.
    {"KP_PLUS", OAPI_KEY_ADD},
    {"ADD", OAPI_KEY_ADD},
    {"KP_MINUS", OAPI_KEY_SUBTRACT},
    {"SUBTRACT", OAPI_KEY_SUBTRACT},
    {"KP_MULTIPLY", OAPI_KEY_MULTIPLY},
    {"MULTIPLY", OAPI_KEY_MULTIPLY},
    {"KP_DIVIDE", OAPI_KEY_DIVIDE},
    {"DIVIDE", OAPI_KEY_DIVIDE},
    {"KP_DECIMAL", OAPI_KEY_DECIMAL},
    {"DECIMAL", OAPI_KEY_DECIMAL},
    {"KP_ENTER", OAPI_KEY_NUMPADENTER},
    {"NUMPADENTER", OAPI_KEY_NUMPADENTER},
    {"KP_0", OAPI_KEY_NUMPAD0},
    {"KP_1", OAPI_KEY_NUMPAD1},
    {"KP_2", OAPI_KEY_NUMPAD2},
    {"KP_3", OAPI_KEY_NUMPAD3},
    {"KP_4", OAPI_KEY_NUMPAD4},
    {"KP_5", OAPI_KEY_NUMPAD5},
    {"KP_6", OAPI_KEY_NUMPAD6},
    {"KP_7", OAPI_KEY_NUMPAD7},
    {"KP_8", OAPI_KEY_NUMPAD8},
    {"KP_9", OAPI_KEY_NUMPAD9},
    {"NUMPAD0", OAPI_KEY_NUMPAD0},
    {"NUMPAD1", OAPI_KEY_NUMPAD1},
    {"NUMPAD2", OAPI_KEY_NUMPAD2},
    {"NUMPAD3", OAPI_KEY_NUMPAD3},
    {"NUMPAD4", OAPI_KEY_NUMPAD4},
    {"NUMPAD5", OAPI_KEY_NUMPAD5},
    {"NUMPAD6", OAPI_KEY_NUMPAD6},
    {"NUMPAD7", OAPI_KEY_NUMPAD7},
    {"NUMPAD8", OAPI_KEY_NUMPAD8},
    {"NUMPAD9", OAPI_KEY_NUMPAD9},
};

// The letters in the order of their codes, row by row of the keyboard.
constexpr std::string_view kLetterRows[] = {"QWERTYUIOP", "ASDFGHJKL", "ZXCVBNM"};
constexpr DWORD kLetterRowStart[] = {OAPI_KEY_Q, OAPI_KEY_A, OAPI_KEY_Z};

std::optional<DWORD> SingleCharacter(char c) {
    if (c >= '1' && c <= '9')
        return static_cast<DWORD>(OAPI_KEY_1 + (c - '1'));
    if (c == '0')
        return OAPI_KEY_0;
    for (size_t row = 0; row < std::size(kLetterRows); ++row) {
        size_t at = kLetterRows[row].find(c);
        if (at != std::string_view::npos)
            return static_cast<DWORD>(kLetterRowStart[row] + at);
    }
    return std::nullopt;
}

std::optional<DWORD> FunctionKey(std::string_view name) {
    if (name.size() < 2 || name.size() > 3 || name[0] != 'F')
        return std::nullopt;
    int n = 0;
    for (char c : name.substr(1)) {
        if (c < '0' || c > '9')
            return std::nullopt;
        n = n * 10 + (c - '0');
    }
    if (n >= 1 && n <= 10)
        return static_cast<DWORD>(OAPI_KEY_F1 + (n - 1));
    if (n == 11)
        return OAPI_KEY_F11;
    if (n == 12)
        return OAPI_KEY_F12;
    return std::nullopt;
}

} // namespace

std::optional<DWORD> KeyCode(std::string_view name) {
    std::string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); });
    if (upper.size() == 1)
        return SingleCharacter(upper[0]);
    if (auto f = FunctionKey(upper))
        return f;
    for (const auto &k : kNames)
        if (k.name == upper)
            return k.code;
    return std::nullopt;
}

std::string KeyName(DWORD code) {
    for (char c : std::string_view("1234567890QWERTYUIOPASDFGHJKLZXCVBNM"))
        if (SingleCharacter(c) == code)
            return std::string(1, c);
    for (int n = 1; n <= 12; ++n)
        if (std::string name = "F" + std::to_string(n); FunctionKey(name) == code)
            return name;
    for (const auto &k : kNames)
        if (k.code == code)
            return std::string(k.name);
    char hex[8];
    std::snprintf(hex, sizeof hex, "0x%02X", static_cast<unsigned>(code & 0xFF));
    return hex;
}

std::string KeyNameWithModifiers(DWORD code, const char *kstate) {
    struct Modifier {
        const char *prefix;
        DWORD left, right;
    };
    constexpr Modifier kModifiers[] = {{"Ctrl+", OAPI_KEY_LCONTROL, OAPI_KEY_RCONTROL},
                                       {"Shift+", OAPI_KEY_LSHIFT, OAPI_KEY_RSHIFT},
                                       {"Alt+", OAPI_KEY_LALT, OAPI_KEY_RALT}};
    std::string name;
    for (const auto &m : kModifiers)
        if (code != m.left && code != m.right && (KEYDOWN(kstate, m.left) || KEYDOWN(kstate, m.right)))
            name += m.prefix;
    return name + KeyName(code);
}

} // namespace hullhost::sim
