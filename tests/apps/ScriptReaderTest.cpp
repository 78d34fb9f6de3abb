#include "apps/cadhost/ScriptReader.h"

#include "platform/base/Messages.h"

#include <gtest/gtest.h>

namespace {

using Command = ScriptLine::Command;

std::vector<ScriptLine> ReadAll(const std::string& text) {
    std::vector<ScriptLine> lines;
    std::string error;
    EXPECT_TRUE(ScriptReader::Read(text, &lines, &error)) << error;
    return lines;
}

TEST(ScriptReader, PointerLinesTakeAnOptionalControlAndCoordinates) {
    const struct {
        const char* line;
        Command command;
        std::optional<int> control;
        POINT point;
        int amount;
    } cases[] = {
        {"click 10 20", Command::Click, {}, {10, 20}, 0},
        {"DblClick @102 5 -3", Command::DoubleClick, 102, {5, -3}, 0},
        {"rclick @-1 0 0", Command::RightClick, -1, {0, 0}, 0},
        {"  press\t1 2 ", Command::Press, {}, {1, 2}, 0},
        {"move 3 4", Command::Move, {}, {3, 4}, 0},
        {"release @7 5 6\r", Command::Release, 7, {5, 6}, 0},
        {"wheel @104 1 1 -120", Command::Wheel, 104, {1, 1}, -120},
        {"button 6", Command::Button, {}, {0, 0}, 6},
        {"wait 250", Command::Wait, {}, {0, 0}, 250},
    };
    for (const auto& c : cases) {
        const std::vector<ScriptLine> lines = ReadAll(c.line);
        ASSERT_EQ(lines.size(), 1u) << c.line;
        EXPECT_EQ(lines[0].command, c.command) << c.line;
        EXPECT_EQ(lines[0].control, c.control) << c.line;
        EXPECT_EQ(lines[0].point.x, c.point.x) << c.line;
        EXPECT_EQ(lines[0].point.y, c.point.y) << c.line;
        EXPECT_EQ(lines[0].amount, c.amount) << c.line;
    }
}

TEST(ScriptReader, CommentsAndBlankLinesAreSkippedButCounted) {
    const std::vector<ScriptLine> lines =
        ReadAll("# a comment\n\n   \n  # another\ndump\r\nscreenshot  /tmp/a b.png  \n");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].number, 5);
    EXPECT_EQ(lines[0].command, Command::Dump);
    EXPECT_EQ(lines[1].number, 6);
    EXPECT_EQ(lines[1].text, "/tmp/a b.png");
}

TEST(ScriptReader, TypeTakesTheRestOfTheLineAsItStands) {
    const std::vector<ScriptLine> lines = ReadAll("type  two  blanks # not a comment\ntype x\ntype "
                                                  "M\xC3\xBCller \xE2\x82\xAC \xE2\x86\x92\n");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].text, " two  blanks # not a comment");
    EXPECT_EQ(lines[1].text, "x");
    // UTF-8 in the script, the host's code page in the field; an arrow has no place there.
    EXPECT_EQ(lines[2].text, "M\xFCller \x80 ?");
}

TEST(ScriptReader, KeysWithTheirPrefixes) {
    const struct {
        const char* name;
        int vk;
        bool shift, ctrl, alt;
    } cases[] = {
        {"Enter", VK_RETURN, false, false, false},
        {"escape", VK_ESCAPE, false, false, false},
        {"shift+Tab", VK_TAB, true, false, false},
        {"ctrl+alt+Delete", VK_DELETE, false, true, true},
        {"Shift+Ctrl+Home", VK_HOME, true, true, false},
        {"PageUp", VK_PRIOR, false, false, false},
        {"PageDown", VK_NEXT, false, false, false},
        {"Backspace", VK_BACK, false, false, false},
        {"Space", VK_SPACE, false, false, false},
        {"F1", VK_F1, false, false, false},
        {"f12", VK_F12, false, false, false},
        {"a", 'A', false, false, false},
        {"ctrl+C", 'C', false, true, false},
        {"7", '7', false, false, false},
        {"Up", VK_UP, false, false, false},
        {"Right", VK_RIGHT, false, false, false},
    };
    for (const auto& c : cases) {
        const std::optional<KeyStroke> key = ScriptReader::ReadKey(c.name);
        ASSERT_TRUE(key) << c.name;
        EXPECT_EQ(key->vk, c.vk) << c.name;
        EXPECT_EQ(key->shift, c.shift) << c.name;
        EXPECT_EQ(key->ctrl, c.ctrl) << c.name;
        EXPECT_EQ(key->alt, c.alt) << c.name;
    }
    for (const char* name : {"F0", "F13", "F01", "meta+A", "shift+", "+A", "ab", "Enterr", "é"})
        EXPECT_FALSE(ScriptReader::ReadKey(name)) << name;

    const std::vector<ScriptLine> lines = ReadAll("key Tab shift+Tab Enter");
    ASSERT_EQ(lines.size(), 1u);
    ASSERT_EQ(lines[0].keys.size(), 3u);
    EXPECT_TRUE(lines[0].keys[1].shift);
}

TEST(ScriptReader, FirstBadLineIsNamedAndNothingIsRead) {
    const struct {
        const char* text;
        const char* error;
    } cases[] = {
        {"dump\njump 3\n", "script line 2: unknown command jump"},
        {"click 1\n", "script line 1: click wants [@ID] X Y"},
        {"click 1 2 3\n", "script line 1: click wants [@ID] X Y"},
        {"press @x 1 2\n", "script line 1: press wants [@ID] X Y"},
        {"move 1.5 2\n", "script line 1: move wants [@ID] X Y"},
        {"wheel 1 2\n", "script line 1: wheel wants [@ID] X Y DELTA"},
        {"key\n", "script line 1: key wants one or more keys"},
        {"key Enter Foo\n", "script line 1: unknown key Foo"},
        {"type\n", "script line 1: type wants the text to type"},
        {"button\n", "script line 1: button wants a control id"},
        {"button 1 2\n", "script line 1: button wants a control id"},
        {"wait -1\n", "script line 1: wait wants milliseconds, 0 to 86400000"},
        {"wait 99999999999\n", "script line 1: wait wants milliseconds, 0 to 86400000"},
        {"dump all\n", "script line 1: dump takes nothing more"},
        {"\n\nscreenshot   \n", "script line 3: screenshot wants a path"},
    };
    for (const auto& c : cases) {
        std::vector<ScriptLine> lines;
        std::string error;
        EXPECT_FALSE(ScriptReader::Read(c.text, &lines, &error)) << c.text;
        EXPECT_EQ(error, c.error);
    }
}

} // namespace
