#include <tests/bounds/documents.h>
#include <tests/support/refusal.h>
#include <tests/support/samples.h>

#include <lvdata/records/ParameterSetting.h>

// Bytes that are not text: NUL, broken UTF-8, UTF-16.

namespace lv::test {
namespace {

const std::string nul(1, '\0');

TEST(Nul, InsideTheMarkupEndsTheDocumentThereWhichIsRefused) {
    for (const std::string& text :
         {documentWithAsset1("a" + nul + "b"), "<AssetInfo><Asset1>a</Asset1>" + nul + "</AssetInfo>",
          "<AssetInfo a='" + nul + "'/>", "<Asset" + nul + "Info/>", "<!-- " + nul + " --><AssetInfo/>", nul,
          nul + "<AssetInfo/>"}) {
        expectRefusedUnchanged(filled<AssetInfo>(), text);
    }
}

TEST(Nul, BehindTheDocumentHidesWhatFollows) {
    const std::string document = documentWithAsset1("one");
    AssetInfo expected;
    expected.asset1.set("one");
    for (const std::string& further : {nul, nul + nul, nul + "<", nul + "text", nul + documentWithAsset1("two")}) {
        EXPECT_EQ(describe(parsed<AssetInfo>(document + further)), describe(expected));
    }
}

TEST(Nul, AsAReferenceEndsTheText) {
    EXPECT_EQ(parsed<AssetInfo>(documentWithAsset1("a&#0;b")).asset1, (property<std::string>{"a", true}));
}

TEST(Nul, InAMemberEndsWhatIsWrittenOfIt) {
    AssetInfo record;
    record.asset1.set("a" + nul + "b");
    record.asset2.set("two");
    const auto copy = parsed<AssetInfo>(compact(record));
    EXPECT_EQ(copy.asset1, (property<std::string>{"a", true}));
    EXPECT_EQ(copy.asset2, (property<std::string>{"two", true}));
}

const std::vector<std::string> brokenUtf8 = {
    "\x80",          // continuation without a start
    "\xC3",          // start without a continuation
    "\xE2\x82",      // cut off
    "\xC0\xBC",      // '<' in two bytes
    "\xED\xA0\x80",  // half of a surrogate pair
    "\xF4\x90\x80\x80",
    "\xFE\xFF",
    "\xFF",
};

TEST(BrokenUtf8, IsKeptInTexts) {
    for (const std::string& bytes : brokenUtf8) {
        for (const std::string& text : {bytes, "a" + bytes, bytes + "b", "a" + bytes + "b"}) {
            const auto record = parsed<AssetInfo>(documentWithAsset1(text));
            EXPECT_EQ(record.asset1, (property<std::string>{text, true}));
            EXPECT_EQ(parsed<AssetInfo>(compact(record)).asset1, (property<std::string>{text, true}));
        }
    }
}

TEST(BrokenUtf8, IsKeptInAttributes) {
    for (const std::string& bytes : brokenUtf8) {
        const auto record =
            parsed<ParameterSetting>(documentOf<ParameterSetting>("<Gamut Type=\"" + bytes + "\"></Gamut>"));
        EXPECT_EQ(record.gamut.value.type, bytes);
        EXPECT_EQ(parsed<ParameterSetting>(compact(record)).gamut.value.type, bytes);
    }
}

TEST(BrokenUtf8, MakesAnotherName) {
    for (const std::string& bytes : brokenUtf8) {
        expectRefusedUnchanged(filled<AssetInfo>(), "<AssetInfo" + bytes + "/>");
        const std::string name = "Asset1" + bytes;
        const auto record = parsed<AssetInfo>(
            documentOf<AssetInfo>("<" + name + ">one</" + name + "><" + bytes + " " + bytes + "='1'/>"));
        EXPECT_EQ(describe(record), describe(AssetInfo()));
    }
}

TEST(ByteOrderMark, IsPassedOverAlsoWhenItIsCutOff) {
    AssetInfo expected;
    expected.asset1.set("one");
    for (const std::string mark : {"\xEF\xBB\xBF", "\xEF\xBB", "\xEF"}) {
        EXPECT_EQ(describe(parsed<AssetInfo>(mark + documentWithAsset1("one"))), describe(expected));
    }
}

/// ASCII in two bytes a character.
std::string utf16(const std::string& text, bool littleEndian) {
    std::string result;
    for (const char character : text) {
        result += littleEndian ? character + nul : nul + character;
    }
    return result;
}

TEST(Utf16, IsRefused) {
    const std::string declared = R"(<?xml version="1.0" encoding="UTF-16"?>)";
    for (const std::string& text : {documentWithAsset1("one"), declared + documentWithAsset1("one")}) {
        expectRefusedUnchanged(filled<AssetInfo>(), "\xFF\xFE" + utf16(text, true));
        expectRefusedUnchanged(filled<AssetInfo>(), "\xFE\xFF" + utf16(text, false));
        expectRefusedUnchanged(filled<AssetInfo>(), utf16(text, true));
        expectRefusedUnchanged(filled<AssetInfo>(), utf16(text, false));
    }
}

}  // namespace
}  // namespace lv::test
