#include <tests/support/every_record.h>
#include <tests/support/refusal.h>

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

// What parsing does in every record: what is refused, what is ignored, what is kept.

namespace lv::test {
namespace {

template <class Record>
class EveryRecordParsing : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(EveryRecordParsing, EveryRecord, RecordName);

std::string withCaseChanged(std::string text) {
    for (char& character : text) {
        const auto byte = static_cast<unsigned char>(character);
        character = static_cast<char>(std::isupper(byte) != 0 ? std::tolower(byte) : std::toupper(byte));
    }
    return text;
}

TYPED_TEST(EveryRecordParsing, ElementOfAnotherNameIsRefusedWithEveryMemberUnchanged) {
    const std::string name = this->rootName();
    const std::vector<std::string> others = {"Other",    withCaseChanged(name),           name + "X",
                                             "X" + name, name.substr(0, name.size() - 1), "p:" + name};
    for (const std::string& other : others) {
        const std::string document = withRootNamed(this->otherDocument(), other);
        expectRefusedUnchanged(TypeParam(), document);
        expectRefusedUnchanged(filled<TypeParam>(), document);
        expectRefusedUnchanged(filled<TypeParam>(), '<' + other + "/>");
    }
}

TYPED_TEST(EveryRecordParsing, ElementOfItsNameInsideAnotherIsRefused) {
    expectRefusedUnchanged(filled<TypeParam>(), "<Other>" + this->otherDocument() + "</Other>");
}

TYPED_TEST(EveryRecordParsing, InvalidElementIsRefusedWithEveryMemberUnchanged) {
    TypeParam record = filled<TypeParam>();
    EXPECT_FALSE(record.parseXMLElement(XMLElement()));
    EXPECT_EQ(describe(record), describe(filled<TypeParam>()));
}

TYPED_TEST(EveryRecordParsing, MalformedTextIsRefusedWithEveryMemberUnchanged) {
    const std::string name = this->rootName();
    const std::string document = this->otherDocument();
    const std::vector<std::string> malformed = {"",
                                                " \n",
                                                "words",
                                                "<",
                                                "<" + name,
                                                "<" + name + ">",
                                                "<" + name + "></Other>",
                                                "<!-- " + name + " -->",
                                                R"(<?xml version="1.0"?>)",
                                                "<" + name + " Version=2/>",
                                                document + "<",
                                                document + "<Second>"};
    for (const std::string& text : malformed) {
        expectRefusedUnchanged(TypeParam(), text);
        expectRefusedUnchanged(filled<TypeParam>(), text);
    }
}

TYPED_TEST(EveryRecordParsing, TextCutOffAnywhereIsRefusedWithEveryMemberUnchanged) {
    const std::string document = this->otherDocument();
    const std::size_t step = document.size() / 100 + 1;
    for (std::size_t length = document.size() - 1; length >= step; length -= step) {
        expectRefusedUnchanged(filled<TypeParam>(), document.substr(0, length));
    }
}

TYPED_TEST(EveryRecordParsing, RootWithoutChildrenClearsTheFlagsAndKeepsTheValues) {
    TypeParam record = filled<TypeParam>();
    ASSERT_TRUE(record.parseXMLString('<' + this->rootName() + "/>"));
    EXPECT_EQ(describe(record), filledAfterEmptyRoot<TypeParam>());
}

TYPED_TEST(EveryRecordParsing, MissingVersionAttributesKeepTheNumbersAndClearTheFlags) {
    for (TypeParam record : {TypeParam(), filled<TypeParam>()}) {
        const unsigned int major = record.version.value;
        const unsigned int minor = record.minorVersion.value;
        ASSERT_TRUE(record.parseXMLString('<' + this->rootName() + "/>"));
        EXPECT_EQ(record.version, (property<unsigned int>{major, false}));
        EXPECT_EQ(record.minorVersion, (property<unsigned int>{minor, false}));
    }
}

TYPED_TEST(EveryRecordParsing, MissingVersionAttributesAreWrittenBackAsTheNumbersOfTheClass) {
    EXPECT_EQ(compact(parsed<TypeParam>('<' + this->rootName() + "/>")), compact(TypeParam()));
}

TYPED_TEST(EveryRecordParsing, EmptyVersionAttributesCountAsMissing) {
    for (TypeParam record : {TypeParam(), filled<TypeParam>()}) {
        const unsigned int major = record.version.value;
        const unsigned int minor = record.minorVersion.value;
        ASSERT_TRUE(record.parseXMLString('<' + this->rootName() + R"( Version="" MinorVersion=""/>)"));
        EXPECT_EQ(record.version, (property<unsigned int>{major, false}));
        EXPECT_EQ(record.minorVersion, (property<unsigned int>{minor, false}));
    }
}

TYPED_TEST(EveryRecordParsing, ForeignVersionIsAcceptedAndWrittenBack) {
    const auto record = parsed<TypeParam>('<' + this->rootName() + R"( Version="7"/>)");
    EXPECT_EQ(record.version, (property<unsigned int>{7, true}));
    EXPECT_EQ(record.minorVersion, (property<unsigned int>{TypeParam().minorVersion.value, false}));
    EXPECT_EQ(compact(record), withRootAttribute(compact(TypeParam()), "Version", "7"));
}

TYPED_TEST(EveryRecordParsing, ForeignMinorVersionIsAcceptedAndWrittenBack) {
    const auto record = parsed<TypeParam>('<' + this->rootName() + R"( MinorVersion="7"/>)");
    EXPECT_EQ(record.version, (property<unsigned int>{TypeParam().version.value, false}));
    EXPECT_EQ(record.minorVersion, (property<unsigned int>{7, true}));
    EXPECT_EQ(compact(record), withRootAttribute(compact(TypeParam()), "MinorVersion", "7"));
}

TYPED_TEST(EveryRecordParsing, SecondDocumentReplacesEveryMember) {
    TypeParam record = filledAndParsedBack<TypeParam>();
    ASSERT_TRUE(record.parseXMLString(this->otherDocument()));
    EXPECT_EQ(describe(record), describe(parsed<TypeParam>(this->otherDocument())));
}

TYPED_TEST(EveryRecordParsing, ParsingLeavesTheSwitchAlone) {
    for (const bool value : {false, true}) {
        TypeParam record;
        record.writeHLGSystemGamma = value;
        ASSERT_TRUE(record.parseXMLString(this->otherDocument()));
        EXPECT_EQ(record.writeHLGSystemGamma, value);
    }
}

TYPED_TEST(EveryRecordParsing, UnknownElementsAttributesAndCommentsAreIgnored) {
    const auto record = parsed<TypeParam>(withUnknownContent(compact(filled<TypeParam>())));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<TypeParam>()));
}

TYPED_TEST(EveryRecordParsing, FirstOfRepeatedChildrenWins) {
    const auto record = parsed<TypeParam>(withRepeatedLeaves(compact(filled<TypeParam>())));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<TypeParam>()));
}

TYPED_TEST(EveryRecordParsing, OrderOfTheChildrenIsFree) {
    const auto record = parsed<TypeParam>(withChildrenReversed(compact(filled<TypeParam>())));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<TypeParam>()));
}

TYPED_TEST(EveryRecordParsing, ChildrenOneLevelDeeperAreNotRead) {
    const std::string misplaced = withChildrenOneLevelDeeper(compact(filled<TypeParam>()));
    TypeParam expected;
    ASSERT_TRUE(expected.parseXMLString('<' + this->rootName() + R"( Version="11" MinorVersion="12"/>)"));
    EXPECT_EQ(describe(parsed<TypeParam>(misplaced)), describe(expected));
}

}  // namespace
}  // namespace lv::test
