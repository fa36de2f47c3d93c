#include <tests/support/every_record.h>
#include <tests/support/golden.h>
#include <tests/support/lines.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

// A record that reads a second document: whatever stands there replaces what stood in the first, with a flag or
// without. Of each golden document another one is made with the same elements, so that those of every "Type" have their
// turn.

namespace lv::test {
namespace {

struct Pair {
    std::string first;
    std::string second;
};

/// Reading may depend on an attribute, so the pairs differ either in texts or in attributes, which then stand alone.
std::vector<Pair> pairsOf(const std::string& record) {
    std::vector<Pair> pairs;
    for (const fs::path& file : goldenFilesOf(record)) {
        const std::string document = contentOf(file);
        const std::string attributes = withoutTexts(document);
        pairs.push_back({document, withOtherTexts(document)});
        pairs.push_back({attributes, withOtherAttributes(attributes)});
    }
    return pairs;
}

const std::string separator = " = ";

std::string nameIn(const std::string& line) {
    return line.substr(0, line.find(separator));
}

/// The members that have another value in the second description.
std::set<std::string> changedMembers(const std::string& first, const std::string& second) {
    const std::vector<std::string> before = linesOf(first);
    std::set<std::string> names;
    for (const std::string& line : linesOf(second)) {
        if (std::count(before.begin(), before.end(), line) == 0) {
            names.insert(nameIn(line));
        }
    }
    return names;
}

/// Whether it is a member of a record inside, which has documents of its own.
bool isNested(const std::string& name, const std::set<std::string>& all) {
    for (auto dot = name.find('.'); dot != std::string::npos; dot = name.find('.', dot + 1)) {
        if (all.count(name.substr(0, dot) + ".version") != 0) {
            return true;
        }
    }
    return false;
}

/// The members of a record that documents give a value. Switches that are no properties are computed.
std::set<std::string> membersWithValues(const std::string& description) {
    const std::set<std::string> noValues = {"(set)", "(unset)", "0 rows", "true", "false"};
    std::set<std::string> all;
    for (const std::string& line : linesOf(description)) {
        const std::string name = nameIn(line);
        if (noValues.count(line.substr(name.size() + separator.size())) == 0) {
            all.insert(name);
        }
    }
    all.erase("measuredXYZLimited109.black");  // is in no document
    std::set<std::string> own;
    std::copy_if(all.begin(), all.end(), std::inserter(own, own.end()),
                 [&all](const std::string& name) { return !isNested(name, all); });
    return own;
}

template <class Record>
class EveryRecordSecondDocument : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(EveryRecordSecondDocument, EveryRecord, RecordName);

TYPED_TEST(EveryRecordSecondDocument, ReplacesTheValuesOfTheFirst) {
    for (const auto& [first, second] : pairsOf(this->rootName())) {
        auto record = parsed<TypeParam>(first);
        ASSERT_TRUE(record.parseXMLString(second));
        EXPECT_EQ(describe(record), describe(parsed<TypeParam>(second))) << first;
    }
}

TYPED_TEST(EveryRecordSecondDocument, ExistsForEveryMember) {
    std::set<std::string> changed;
    for (const auto& [first, second] : pairsOf(this->rootName())) {
        changed.merge(changedMembers(describe(parsed<TypeParam>(first)), describe(parsed<TypeParam>(second))));
    }
    EXPECT_THAT(changed, testing::IsSupersetOf(membersWithValues(describe(TypeParam()))));
}

}  // namespace
}  // namespace lv::test
