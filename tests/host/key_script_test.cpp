// Key names and the key script syntax.
#include <gtest/gtest.h>

#include <sstream>

#include "sim/key_names.h"
#include "sim/key_script.h"
#include "sim/usage_error.h"

using hullhost::sim::KeyAction;
using hullhost::sim::KeyCode;
using hullhost::sim::ParseKeyScript;
using hullhost::sim::UsageError;

namespace {

std::string ScriptError(const std::string &text) {
    try {
        ParseKeyScript(text, "k.txt");
    } catch (const UsageError &e) {
        return e.what();
    }
    return "(no error)";
}

TEST(KeyNamesTest, MapsNamesToScanCodesAndNoOthers) {
    // The ends of each letter row and the digit row catch a shifted table.
    std::istringstream names("M j Q P A L Z 1 9 0 F1 F10 F11 f12 TAB Space RETURN KP_PLUS KP_MINUS "
                             "KP_MULTIPLY KP_DIVIDE KP_ENTER KP_0 KP_7 UP left");
    for (int code :
         {OAPI_KEY_M,      OAPI_KEY_J,           OAPI_KEY_Q,       OAPI_KEY_P,        OAPI_KEY_A,
          OAPI_KEY_L,      OAPI_KEY_Z,           OAPI_KEY_1,       OAPI_KEY_9,        OAPI_KEY_0,
          OAPI_KEY_F1,     OAPI_KEY_F10,         OAPI_KEY_F11,     OAPI_KEY_F12,      OAPI_KEY_TAB,
          OAPI_KEY_SPACE,  OAPI_KEY_RETURN,      OAPI_KEY_ADD,     OAPI_KEY_SUBTRACT, OAPI_KEY_MULTIPLY,
          OAPI_KEY_DIVIDE, OAPI_KEY_NUMPADENTER, OAPI_KEY_NUMPAD0, OAPI_KEY_NUMPAD7,  OAPI_KEY_UP,
          OAPI_KEY_LEFT}) {
        std::string name;
        names >> name;
        EXPECT_EQ(KeyCode(name), DWORD(code)) << name;
    }
    for (const char *name : {"", "F0", "F13", "F1x", "KP_", "KP_10", "PLUS", "+", "MM", "Ä"})
        EXPECT_FALSE(KeyCode(name).has_value()) << name;
}

// The names written for codes read back as the same codes, so that a key in
// the event log can be pressed again by a key script.
TEST(KeyNamesTest, NamesOfCodesReadBack) {
    int named = 0;
    for (DWORD code = 0; code < 256; ++code) {
        const std::string name = hullhost::sim::KeyName(code);
        if (name.starts_with("0x"))
            continue;
        ++named;
        EXPECT_EQ(KeyCode(name), code) << name;
    }
    EXPECT_GT(named, 90);
    EXPECT_EQ(hullhost::sim::KeyName(OAPI_KEY_ADD), "KP_PLUS");
    char kstate[256] = {};
    kstate[OAPI_KEY_RCONTROL] = kstate[OAPI_KEY_LSHIFT] = static_cast<char>(0x80);
    EXPECT_EQ(hullhost::sim::KeyNameWithModifiers(OAPI_KEY_M, kstate), "Ctrl+Shift+M");
    EXPECT_EQ(hullhost::sim::KeyNameWithModifiers(OAPI_KEY_LSHIFT, kstate), "Ctrl+LSHIFT");
}

TEST(KeyScriptTest, ReadsPressesHoldsAndModifiers) {
    auto actions = ParseKeyScript("; flight keys\n"
                                  "\n"
                                  "2.5 Ctrl+Shift+M   ; modifiers in any case\n"
                                  "1 KP_PLUS 0.5\n"
                                  "  1   alt+j\t\n"
                                  "0 TAB\r\n");
    ASSERT_EQ(actions.size(), 4u);
    // Sorted by time; lines of equal time keep their order.
    EXPECT_EQ(actions[0].time, 0.0);
    EXPECT_EQ(actions[0].key, DWORD(OAPI_KEY_TAB));
    EXPECT_EQ(actions[0].line, 6);

    EXPECT_EQ(actions[1].key, DWORD(OAPI_KEY_ADD));
    ASSERT_TRUE(actions[1].hold.has_value());
    EXPECT_EQ(*actions[1].hold, 0.5);
    EXPECT_TRUE(actions[1].modifiers.empty());

    EXPECT_EQ(actions[2].key, DWORD(OAPI_KEY_J));
    EXPECT_EQ(actions[2].modifiers, std::vector<DWORD>{OAPI_KEY_LALT});
    EXPECT_FALSE(actions[2].hold.has_value());

    EXPECT_EQ(actions[3].time, 2.5);
    EXPECT_EQ(actions[3].key, DWORD(OAPI_KEY_M));
    EXPECT_EQ(actions[3].modifiers, (std::vector<DWORD>{OAPI_KEY_LCONTROL, OAPI_KEY_LSHIFT}));
    EXPECT_EQ(actions[3].line, 3);
}

TEST(KeyScriptTest, ErrorsNameTheLine) {
    EXPECT_EQ(ScriptError("0 M\n1 FOO\n"), "k.txt:2: unknown key 'FOO'");
    EXPECT_EQ(ScriptError("1 Ctrl+\n"), "k.txt:1: unknown key 'Ctrl+'");
    EXPECT_EQ(ScriptError("1 Meta+M\n"), "k.txt:1: unknown key 'Meta+M'");
    EXPECT_EQ(ScriptError("M 1\n"), "k.txt:1: bad time 'M': expected seconds, 0 or more");
    EXPECT_EQ(ScriptError("-1 M\n"), "k.txt:1: bad time '-1': expected seconds, 0 or more");
    EXPECT_EQ(ScriptError("nan M\n"), "k.txt:1: bad time 'nan': expected seconds, 0 or more");
    EXPECT_EQ(ScriptError("1 M 0\n"), "k.txt:1: bad hold time '0': expected seconds, more than 0");
    EXPECT_EQ(ScriptError("1 M 2s\n"), "k.txt:1: bad hold time '2s': expected seconds, more than 0");
    EXPECT_EQ(ScriptError("\n\n1\n"), "k.txt:3: expected 'TIME KEY [SECONDS]'");
    EXPECT_EQ(ScriptError("1 M 2 3\n"), "k.txt:1: expected 'TIME KEY [SECONDS]'");
}

} // namespace
