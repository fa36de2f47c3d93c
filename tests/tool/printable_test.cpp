#include "ToolTest.h"

namespace {

/// The text as a message repeats it: here as the name of a file that does not exist.
class Printable : public ToolTest {
protected:
    [[nodiscard]] std::string shown(const std::string& text) const {
        const std::string reason = ": error: No such file or directory\n";
        std::string message = run({"format", text}).error;
        EXPECT_EQ(message.substr(message.size() - std::min(message.size(), reason.size())), reason);
        return message.substr(0, message.size() - reason.size());
    }
};

TEST_F(Printable, LeavesTextOfAnyLanguage) {
    for (const std::string text : {"plain name.xml", "Größe", "色.xml", "\U0001F3A8", "~", "\u00A0", "\uD7FF\uE000"}) {
        EXPECT_EQ(shown(text), text);
    }
}

TEST_F(Printable, EscapesControlCharacters) {
    EXPECT_EQ(shown("a\nb\r\tc"), "a\\x0Ab\\x0D\\x09c");
    EXPECT_EQ(shown("\x1B[2J"), "\\x1B[2J");
    EXPECT_EQ(shown("\x1F \x7F"), "\\x1F \\x7F");
}

TEST_F(Printable, EscapesTheControlCharactersAndLineSeparatorsOfUnicode) {
    EXPECT_EQ(shown("a\u0080b\u0085c\u009Fd"), "a\\xC2\\x80b\\xC2\\x85c\\xC2\\x9Fd");
    EXPECT_EQ(shown("a\u2028b\u2029c"), "a\\xE2\\x80\\xA8b\\xE2\\x80\\xA9c");
    EXPECT_EQ(shown("\u2027\u202F"), "\u2027\u202F");
}

TEST_F(Printable, EscapesCharactersThatReorderText) {
    EXPECT_EQ(shown("a\u202Eb\u2066c\u2069"), "a\\xE2\\x80\\xAEb\\xE2\\x81\\xA6c\\xE2\\x81\\xA9");
    EXPECT_EQ(shown("\u200F\u061C"), "\\xE2\\x80\\x8F\\xD8\\x9C");
}

}  // namespace
