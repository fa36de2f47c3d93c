#include <tests/support/Changed.h>
#include <tests/support/every_record.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

// The members of a record as they are listed by hand, as the library describes them, and as it compares them.

namespace lv::test {
namespace {

template <class Record>
class EveryRecordMembers : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(EveryRecordMembers, EveryRecord, RecordName);

TYPED_TEST(EveryRecordMembers, AreThoseOfTheDescription) {
    TypeParam record = filled<TypeParam>();
    EXPECT_NO_THROW(static_cast<void>(boundTo(record)));
}

TYPED_TEST(EveryRecordMembers, DifferFromADescriptionWithoutOneOfThem) {
    TypeParam record;
    const Members all = MemberList::listOf(record);
    for (std::size_t index = 0; index < all.size(); ++index) {
        if (all[index].role == Member::Role::inDocuments) {
            Members others = all;
            others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
            EXPECT_THROW(static_cast<void>(boundRoot(TypeParam::describe(), others)), std::logic_error)
                << all[index].name;
        }
    }
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// Whether it is one of the members that are in no document.
bool isLeftOut(const std::string& path) {
    return endsWith(path, "writeHLGSystemGamma") || endsWith(path, "parsed") ||
           endsWith(path, "measuredXYZLimited109.black");
}

/// Changes that place of the value alone and answers what it changed; empty when there is no such place.
template <class T>
std::string changeOne(T& value, std::size_t place) {
    Changed changed(place);
    changed.visitAll(MemberList::listOf(value));
    return changed.path();
}

TYPED_TEST(EveryRecordMembers, AreAllComparedExceptThoseThatAreNeverWritten) {
    const auto record = filled<TypeParam>();
    TypeParam other = record;
    EXPECT_TRUE(record == other);
    std::size_t place = 0;
    for (std::string path = changeOne(other, place); !path.empty(); path = changeOne(other, ++place)) {
        EXPECT_EQ(record == other, isLeftOut(path)) << path;
        EXPECT_EQ(record != other, !isLeftOut(path)) << path;
        other = record;
    }
    EXPECT_GT(place, 5U);
}

}  // namespace
}  // namespace lv::test
