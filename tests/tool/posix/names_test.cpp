#include "PosixTest.h"

#include <tests/support/lines.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// Names of files: any bytes, up to 255 of them, and pipes that have a name.

namespace {

using nlohmann::json;

using Names = PosixTest;

TEST_F(Names, OutputMayHaveTheLongestName) {
    const std::string longest(255, 'x');
    EXPECT_EQ(formatTo(longest), done());
    EXPECT_EQ(read(longest), tidy);
}

TEST_F(Names, OfAnyBytesAreWrittenInJSON) {
    const std::string name = "\xFF\n\".xml";
    write(name, "<AssetInfo Version='1' MinorVersion='0'><B\xC3 \x80='1'/></AssetInfo>");
    const json report = json::parse(run({"check", "--format=json", "--ignore=003", name}).output, nullptr, false);
    ASSERT_EQ(report["findings"].size(), 1U);
    EXPECT_EQ(report["findings"][0]["file"], "\uFFFD\n\".xml");
    EXPECT_EQ(report["findings"][0]["path"], "/AssetInfo/B\uFFFD");
}

TEST_F(Names, OfBytesThatAreNotUTF8AreEscapedInMessages) {
    const auto shown = [this](const std::string& name) {
        std::string message = run({"format", name}).error;
        EXPECT_TRUE(lv::test::removeEnd(message, ": error: No such file or directory\n")) << message;
        return message;
    };
    EXPECT_EQ(shown("a\x85z"), "a\\x85z");                         // no lead byte
    EXPECT_EQ(shown("\xC3z"), "\\xC3z");                           // no second byte
    EXPECT_EQ(shown("\xE2\x82"), "\\xE2\\x82");                    // cut off
    EXPECT_EQ(shown("\xE0\x81\x81"), "\\xE0\\x81\\x81");           // an A in three bytes
    EXPECT_EQ(shown("\xC1\x81"), "\\xC1\\x81");                    // and in two
    EXPECT_EQ(shown("\xF8\x90\x80\x80"), "\\xF8\\x90\\x80\\x80");  // no lead byte, though a longer one once
    EXPECT_EQ(shown("\xC0\x8A"), "\\xC0\\x8A");                    // a line feed in two bytes
    EXPECT_EQ(shown("\xE0\x80\x8A\xF0\x80\x80\x8A"), "\\xE0\\x80\\x8A\\xF0\\x80\\x80\\x8A");  // in three and four
    EXPECT_EQ(shown("\xED\xA0\x80"), "\\xED\\xA0\\x80");                                      // a surrogate
    EXPECT_EQ(shown("\xF4\x90\x80\x80\xF5"), "\\xF4\\x90\\x80\\x80\\xF5");  // after the last character
}
TEST_F(Names, BelowAFileAreReported) {
    EXPECT_EQ(formatTo("in.xml/out.xml"), failed("in.xml/out.xml: error: Not a directory"));
}

TEST_F(Names, OfPipesAreRead) {
    EXPECT_EQ(runBash("lvdata format --no-declaration <(cat in.xml)"), printed(tidy));
}

}  // namespace
