// The edit control's text model and line layout on their own: undo steps, line breaks as one
// character, and breaking lines between words.

#include "platform/controls/EditBuffer.h"
#include "platform/controls/EditLayout.h"
#include "platform/controls/GdiScope.h"

#include <gtest/gtest.h>

namespace {

using plat::EditBuffer;
using plat::EditLayout;

EditBuffer Typed(const std::string& start, size_t at, const std::string& chars) {
    EditBuffer b;
    b.Reset(start);
    b.Select(at, at);
    for (char c : chars) b.Replace(std::string(1, c), true);
    return b;
}

TEST(EditBuffer, TypingInARowIsOneUndoStepTypingElsewhereStartsAnother) {
    EditBuffer b = Typed("----", 1, "ab");
    b.Select(6, 6);
    b.Replace("X", true);
    EXPECT_EQ(b.Text(), "-ab---X");
    b.Undo();
    EXPECT_EQ(b.Text(), "-ab---");
    // Undoing again puts the X back: one level, which undoes itself.
    b.Undo();
    EXPECT_EQ(b.Text(), "-ab---X");

    EditBuffer run = Typed("----", 1, "ab");
    run.Undo();
    EXPECT_EQ(run.Text(), "----");
    EXPECT_EQ(run.SelStart(), 1u);
    EXPECT_EQ(run.SelEnd(), 1u);
}

TEST(EditBuffer, ReplacingASelectionUndoesToTheSelectedText) {
    EditBuffer b;
    b.Reset("hello");
    b.Select(1, 4);
    b.Replace("a", true);
    b.Replace("b", true);
    EXPECT_EQ(b.Text(), "hab"
                        "o");
    b.Undo();
    EXPECT_EQ(b.Text(), "hello");
    EXPECT_EQ(b.Selected(), "ell");
    // A change that cannot be undone forgets the step before it.
    b.Replace("x", false);
    EXPECT_FALSE(b.CanUndo());
}

TEST(EditBuffer, ALineBreakIsOneStepAndNoPlaceLiesInsideIt) {
    EditBuffer b;
    b.Reset("a\r\nb");
    EXPECT_EQ(b.Next(1), 3u);
    EXPECT_EQ(b.Previous(3), 1u);
    b.Select(2, 2);
    EXPECT_EQ(b.Caret(), 1u);
    b.Select(0, 99);
    EXPECT_EQ(b.Caret(), 4u);
}

TEST(EditBuffer, WordsForDoubleClicksAndControlArrows) {
    EditBuffer b;
    b.Reset("one  two three");
    using Span = std::pair<size_t, size_t>;
    EXPECT_EQ(b.WordAt(1), Span(0, 3));
    EXPECT_EQ(b.WordAt(3), Span(3, 5)); // the blanks between
    EXPECT_EQ(b.WordAt(14), Span(9, 14));
    EXPECT_EQ(b.NextWord(0), 5u);
    EXPECT_EQ(b.NextWord(9), 14u);
    EXPECT_EQ(b.WordStart(9), 5u);
    EXPECT_EQ(b.WordStart(5), 0u);
}

class EditLayoutTest : public ::testing::Test {
protected:
    int Width(const std::string& s) {
        SIZE size;
        GetTextExtentPoint32(dc.Dc(), s.data(), static_cast<int>(s.size()), &size);
        return size.cx;
    }
    std::vector<std::string> Lines(const std::string& text, int width) {
        EditLayout layout;
        layout.Build(dc.Dc(), text, true, width);
        std::vector<std::string> out;
        for (int i = 0; i < layout.Count(); ++i)
            out.push_back(text.substr(layout.At(i).start, layout.At(i).length));
        return out;
    }
    plat::MeasureDC dc{GetStockObject(DEFAULT_GUI_FONT)};
};

TEST_F(EditLayoutTest, BreaksAtLineBreaksAndBetweenWords) {
    EXPECT_EQ(Lines("one\r\n\r\ntwo\nthree", 0),
              (std::vector<std::string>{"one", "", "two", "three"}));
    auto lines = Lines("aa bb cc", Width("aa bb "));
    EXPECT_EQ(lines, (std::vector<std::string>{"aa bb ", "cc"}));
}

TEST_F(EditLayoutTest, AWordWiderThanTheLineIsCutBetweenCharacters) {
    int width = Width("abcd");
    auto lines = Lines("abcdefghij xy", width);
    ASSERT_GE(lines.size(), 3u);
    for (const std::string& line : lines)
        EXPECT_LE(Width(line.substr(0, line.find_last_not_of(' ') + 1)), width) << line;
    std::string joined;
    for (const std::string& line : lines) joined += line;
    EXPECT_EQ(joined, "abcdefghij xy");
}

TEST_F(EditLayoutTest, PlacesAndPixelsAgree) {
    EditLayout layout;
    layout.Build(dc.Dc(), "one\r\ntwo words", true, 0);
    EXPECT_EQ(layout.LineOf(3), 0);
    EXPECT_EQ(layout.LineOf(5), 1);
    int x = layout.X(dc.Dc(), 8);
    EXPECT_EQ(x, Width("two"));
    EXPECT_EQ(layout.PlaceAt(dc.Dc(), 1, x + 1), 8u);
    EXPECT_EQ(layout.PlaceAt(dc.Dc(), 1, -10), 5u);
    EXPECT_EQ(layout.PlaceAt(dc.Dc(), 1, 10000), 14u);
}

} // namespace
