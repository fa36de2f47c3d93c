#include <tests/support/every_record.h>
#include <tests/support/lines.h>

#include <gtest/gtest.h>

#include <lvdata/xml/XMLDocument.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

// What holds for every record, whatever it holds: its fresh state, its copies, its text and the way back.

namespace lv::test {
namespace {

template <class Record>
class EveryRecordRoundTrip : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(EveryRecordRoundTrip, EveryRecord, RecordName);

TYPED_TEST(EveryRecordRoundTrip, FilledSampleDiffersFromAFreshRecordInEveryMember) {
    const std::vector<std::string> fresh = linesOf(describe(TypeParam()));
    for (const std::string& line : linesOf(describe(filled<TypeParam>()))) {
        EXPECT_EQ(std::count(fresh.begin(), fresh.end(), line), 0) << line;
    }
}

TYPED_TEST(EveryRecordRoundTrip, OtherDocumentDiffersFromTheFilledSampleInEveryMember) {
    const std::vector<std::string> sample = linesOf(describe(filledAndParsedBack<TypeParam>()));
    const std::vector<std::string> other = linesOf(describe(parsed<TypeParam>(this->otherDocument())));
    ASSERT_EQ(sample.size(), other.size());
    EXPECT_NE(sample, other);
}

TYPED_TEST(EveryRecordRoundTrip, FreshRecordHasEveryFlagClear) {
    const TypeParam fresh;
    EXPECT_EQ(describe(fresh), describe(withClearFlags(fresh)));
    EXPECT_FALSE(fresh.writeHLGSystemGamma);
}

TYPED_TEST(EveryRecordRoundTrip, RootElementHasTheNameOfTheClass) {
    EXPECT_EQ(compact(TypeParam()).rfind('<' + this->rootName() + R"( Version=")", 0), 0U);
}

TYPED_TEST(EveryRecordRoundTrip, PrintingChangesNoMember) {
    const auto record = filled<TypeParam>();
    for (const auto& [declaration, pretty] : everyPrintForm) {
        const std::string text = record.toXMLString(declaration, pretty);
        EXPECT_EQ(describe(record), describe(filled<TypeParam>()));
        EXPECT_EQ(record.toXMLString(declaration, pretty), text);
    }
}

TYPED_TEST(EveryRecordRoundTrip, DeclarationAndIndentationAreTheOnlyDifferencesOfTheFourForms) {
    const auto record = filled<TypeParam>();
    const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)";
    EXPECT_EQ(compact(record).find('\n'), std::string::npos);
    EXPECT_EQ(record.toXMLString(true, false), declaration + compact(record));
    EXPECT_EQ(record.toXMLString(true, true), declaration + '\n' + record.toXMLString(false, true));
    EXPECT_EQ(record.toXMLString(false, true).rfind('<' + this->rootName() + ' ', 0), 0U);
}

TYPED_TEST(EveryRecordRoundTrip, FilledRecordComesBackMemberByMemberFromEveryForm) {
    const auto record = filled<TypeParam>();
    for (const auto& [declaration, pretty] : everyPrintForm) {
        const auto back = parsed<TypeParam>(record.toXMLString(declaration, pretty));
        EXPECT_EQ(describe(back), describe(filledAndParsedBack<TypeParam>()));
    }
}

TYPED_TEST(EveryRecordRoundTrip, ParsedRecordPrintsTheSameTextAgain) {
    const std::string text = compact(filledAndParsedBack<TypeParam>());
    EXPECT_EQ(compact(parsed<TypeParam>(text)), text);
}

TYPED_TEST(EveryRecordRoundTrip, CopyIsEqualAndSharesNothing) {
    const auto original = filled<TypeParam>();
    TypeParam copy = original;
    EXPECT_EQ(describe(copy), describe(original));
    EXPECT_EQ(compact(copy), compact(original));
    ASSERT_TRUE(copy.parseXMLString(this->otherDocument()));
    EXPECT_NE(describe(copy), describe(original));
    EXPECT_EQ(describe(original), describe(filled<TypeParam>()));
}

TYPED_TEST(EveryRecordRoundTrip, AssignmentReplacesEveryMemberAndSharesNothing) {
    const auto original = filled<TypeParam>();
    auto target = parsed<TypeParam>(this->otherDocument());
    target = original;
    EXPECT_EQ(describe(target), describe(original));
    target = TypeParam();
    EXPECT_EQ(describe(target), describe(TypeParam()));
    EXPECT_EQ(describe(original), describe(filled<TypeParam>()));
}

TYPED_TEST(EveryRecordRoundTrip, MovedRecordHoldsEveryMember) {
    TypeParam source = filled<TypeParam>();
    const TypeParam target = std::move(source);
    EXPECT_EQ(describe(target), describe(filled<TypeParam>()));
}

TYPED_TEST(EveryRecordRoundTrip, AppendedToADocumentItIsThatDocument) {
    const auto record = filled<TypeParam>();
    XMLDocument document;
    const XMLElement root = record.appendXMLElement(document);
    EXPECT_EQ(root.elementName(), this->rootName());
    EXPECT_EQ(root.get(), document.rootElement().get());
    EXPECT_EQ(document.toXMLString(false, false), compact(record));
}

TYPED_TEST(EveryRecordRoundTrip, AppendedToAnElementItIsTheLastChildWithTheSameText) {
    const auto record = filled<TypeParam>();
    XMLDocument document;
    XMLElement outer = document.appendChild("Outer");
    outer.appendChildString("First", "1");
    const XMLElement root = record.appendXMLElement(outer);
    EXPECT_EQ(root.elementName(), this->rootName());
    EXPECT_EQ(document.toXMLString(false, false), "<Outer><First>1</First>" + compact(record) + "</Outer>");
}

TYPED_TEST(EveryRecordRoundTrip, EmbeddedElementIsParsedBackMemberByMember) {
    XMLDocument document;
    XMLElement outer = document.appendChild("Outer");
    filled<TypeParam>().appendXMLElement(outer);
    TypeParam record;
    ASSERT_TRUE(record.parseXMLElement(outer.getElement(this->rootName())));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<TypeParam>()));
}

TYPED_TEST(EveryRecordRoundTrip, NothingIsAppendedToAnInvalidParent) {
    XMLNode nothing;
    XMLElement noElement;
    EXPECT_FALSE(filled<TypeParam>().appendXMLElement(nothing).isValid());
    EXPECT_FALSE(filled<TypeParam>().appendXMLElement(noElement).isValid());
}

TYPED_TEST(EveryRecordRoundTrip, PrintsAndParsesThroughItsBaseClass) {
    TypeParam record;
    DataObject& base = record;
    EXPECT_TRUE(base.parseXMLString(compact(filled<TypeParam>())));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<TypeParam>()));
    EXPECT_EQ(base.toXMLString(false, false), compact(filledAndParsedBack<TypeParam>()));
}

}  // namespace
}  // namespace lv::test
