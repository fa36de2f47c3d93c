#include <lvdata/core/DataArrayObject.h>

#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

/// A row needs no more than a default state and copying.
struct Book {
    std::string title;
};

class Shelf : public DataArrayObject<Book> {
public:
    Shelf() : DataArrayObject(2, 5) {}

    [[nodiscard]] bool parseXMLElement(XMLElement /*element*/) override { return false; }
    XMLElement appendXMLElement(XMLNode& parent) const override {
        XMLElement root = appendVersionAttribute(appendRootXMLElement("Shelf", parent));
        for (const Book& book : objects) {
            root.appendChildString("Book", book.title);
        }
        return root;
    }
};

static_assert(std::is_base_of_v<DataObject, DataArrayObject<Book>>);
static_assert(std::is_abstract_v<DataArrayObject<Book>>);
static_assert(std::is_same_v<decltype(Shelf::objects), std::vector<Book>>);
static_assert(std::is_same_v<decltype(Shelf::parsed), bool>);

TEST(DataArrayObject, NewListHasNoRowsAndIsNotParsed) {
    const Shelf shelf;
    EXPECT_TRUE(shelf.objects.empty());
    EXPECT_FALSE(shelf.parsed);
}

TEST(DataArrayObject, PassesTheVersionToTheBaseClass) {
    const Shelf shelf;
    EXPECT_EQ(shelf.version, (property<unsigned int>{2, false}));
    EXPECT_EQ(shelf.minorVersion, (property<unsigned int>{5, false}));
}

TEST(DataArrayObject, CopiesItsRowsAndFlagAndSharesNothing) {
    Shelf source;
    source.objects = {{"one"}, {"two"}};
    source.parsed = true;
    source.version.set(7);
    const Shelf copy = source;
    source.objects.front().title = "changed";
    source.objects.pop_back();
    ASSERT_EQ(copy.objects.size(), 2U);
    EXPECT_EQ(copy.objects.front().title, "one");
    EXPECT_TRUE(copy.parsed);
    EXPECT_EQ(copy.version.value, 7U);
}

TEST(DataArrayObject, PrintsThroughItsBaseClass) {
    Shelf shelf;
    shelf.objects = {{"two"}, {"one"}};
    const DataObject& base = shelf;
    EXPECT_EQ(base.toXMLString(false, false),
              R"(<Shelf Version="2" MinorVersion="5"><Book>two</Book><Book>one</Book></Shelf>)");
}

}  // namespace
}  // namespace lv
