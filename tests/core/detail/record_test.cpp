#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/xml/XMLDocument.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

struct Book {
    std::string title;
    int pages = 0;
};

constexpr auto visitBook = [](auto& io, auto& book) {
    const bool hasTitle = io.value("Title", book.title);
    io.value("Pages", book.pages);
    return hasTitle;
};

constexpr auto visitShelf = [](auto& io, auto& shelf) {
    io.rows("Book", shelf, visitBook);
};

/// A list of rows, kept when they have a title.
class Shelf : public DataArrayObject<Book> {
public:
    Shelf() : DataArrayObject(2, 0) {}

    [[nodiscard]] bool parseXMLElement(XMLElement element) override {
        return parseRecord(*this, "Shelf", element, visitShelf);
    }
    XMLElement appendXMLElement(XMLNode& parent) const override {
        return appendRecord(*this, "Shelf", parent, visitShelf);
    }
};

std::vector<std::string> titles(const Shelf& shelf) {
    std::vector<std::string> result;
    for (const Book& book : shelf.objects) {
        result.push_back(book.title);
    }
    return result;
}

Shelf filledShelf() {
    Shelf shelf;
    shelf.objects = {{"old", 1}, {"older", 2}};
    return shelf;
}

TEST(RecordOfRows, RootWithoutRowsParsesToAnEmptyListAndParsedIsTrue) {
    Shelf shelf = filledShelf();
    EXPECT_TRUE(shelf.parseXMLString("<Shelf><book><Title>x</Title></book></Shelf>"));
    EXPECT_TRUE(shelf.objects.empty());
    EXPECT_TRUE(shelf.parsed);
}

TEST(RecordOfRows, RootWithADifferentNameIsRefusedAndThePreviousRowsStay) {
    for (const char* const text :
         {"<shelf Version='9'><Book><Title>x</Title></Book></shelf>", "<Shelves/>", "<Shelf>", "<!-- Shelf -->"}) {
        Shelf shelf = filledShelf();
        EXPECT_FALSE(shelf.parseXMLString(text)) << text;
        EXPECT_EQ(titles(shelf), (std::vector<std::string>{"old", "older"})) << text;
        EXPECT_FALSE(shelf.parsed) << text;
        EXPECT_EQ(shelf.version, (property<unsigned int>{2, false})) << text;
    }
}

TEST(RecordOfRows, KeepsTheAcceptedRowsInDocumentOrderAndSkipsOtherElements) {
    Shelf shelf;
    EXPECT_TRUE(shelf.parseXMLString("<Shelf><Book><Title>b</Title><Pages>7</Pages></Book><Lamp/><Book/>text"
                                     "<Book><Pages>8</Pages></Book><Book><Title>a</Title></Book></Shelf>"));
    ASSERT_EQ(titles(shelf), (std::vector<std::string>{"b", "a"}));
    EXPECT_EQ(shelf.objects[0].pages, 7);
    EXPECT_EQ(shelf.objects[1].pages, 0);
}

TEST(RecordOfRows, ParsingTwiceLeavesOnlyTheSecondDocumentsRows) {
    Shelf shelf;
    EXPECT_TRUE(shelf.parseXMLString("<Shelf><Book><Title>a</Title></Book><Book><Title>b</Title></Book></Shelf>"));
    EXPECT_TRUE(shelf.parseXMLString("<Shelf><Book><Title>c</Title></Book></Shelf>"));
    EXPECT_EQ(titles(shelf), std::vector<std::string>{"c"});
}

TEST(RecordOfRows, AnotherVersionDoesNotStopTheParse) {
    Shelf shelf;
    EXPECT_TRUE(shelf.parseXMLString("<Shelf Version='9'><Book><Title>a</Title></Book></Shelf>"));
    EXPECT_EQ(titles(shelf), std::vector<std::string>{"a"});
    EXPECT_EQ(shelf.version, (property<unsigned int>{9, true}));
}

TEST(RecordOfRows, AnEmptyListWritesTheRootElementAlone) {
    EXPECT_EQ(Shelf().toXMLString(false, false), R"(<Shelf Version="2" MinorVersion="0"/>)");
}

TEST(RecordOfRows, WritesTheRowsInTheOrderOfTheList) {
    EXPECT_EQ(filledShelf().toXMLString(false, false),
              R"(<Shelf Version="2" MinorVersion="0"><Book><Title>old</Title><Pages>1</Pages></Book>)"
              "<Book><Title>older</Title><Pages>2</Pages></Book></Shelf>");
}

TEST(RecordOfRows, UnderNothingAppendsNothing) {
    XMLNode nothing;
    EXPECT_FALSE(filledShelf().appendXMLElement(nothing).isValid());
}

/// Writes into an element in every way that a gate can close.
void writeInEveryWay(Writer io, const property<int>& member) {
    io.field("Field", member);
    io.value("Value", member.value);
    io.array("Array", std::vector<int>{1, 2}, 2, quantities::number);
    io.array("Array", property<std::vector<int>>{{1, 2}, true}, {2}, quantities::number);
    io.structure("Structure", member, [](Writer& inner, int value) { inner.value("Inside", value); });
    io.group(member, [](Writer& group, int value) { group.value("InGroup", value); });
    io.record(Shelf(), true);
    io.keyed("Keyed", "Key", "text", [](Writer& child) { child.text(5U); });
    io.rows("Book", filledShelf(), visitBook);
    io.element("Element").value("Inside", 1);
}

TEST(Writer, ClosedGatesWriteNothing) {
    const XMLDocument document;
    const XMLElement root = document.appendChild("Root");
    const Writer open(root);
    const property<int> member{7, true};
    const bool isFlag = false;
    writeInEveryWay(open.writeWhen(isSet(isFlag)), member);
    writeInEveryWay(open.always().when(isSet(isFlag)), member);
    EXPECT_EQ(document.toXMLString(false, false), "<Root/>");
    writeInEveryWay(open.readWhen(isSet(isFlag)), member);
    EXPECT_EQ(root.getElements("Book").size(), 2U);
    EXPECT_TRUE(root.getElement("Structure").getElement("Inside").isValid());
    EXPECT_TRUE(root.getElement("InGroup").isValid());
}

/// Holds a record with the HLG switch of its own, which must not matter.
class Room : public DataObject {
public:
    Room() : DataObject(1, 0) {}

    bool parseXMLElement(XMLElement element) override {
        return parseRecord(*this, "Room", element, [](auto& io, auto& self) { io.record(self.shelf, self.hasShelf); });
    }
    XMLElement appendXMLElement(XMLNode& parent) const override {
        return appendRecord(*this, "Room", parent, [](auto& io, auto& self) {
            io.writeWhen(HLGSwitch()).value("Switch", true);
            io.record(self.shelf, self.hasShelf);
        });
    }

    struct HeldShelf : Shelf {
        static constexpr const char* rootElementName = "Shelf";
    };
    HeldShelf shelf;
    bool hasShelf = true;
};

TEST(Writer, IsMadeOnceForTheOutermostRecord) {
    Room room;
    room.writeHLGSystemGamma = true;
    room.shelf.objects = {{"a", 1}};
    const std::string text = R"(<Room Version="1" MinorVersion="0"><Switch>true</Switch>)"
                             R"(<Shelf Version="2" MinorVersion="0"><Book><Title>a</Title><Pages>1</Pages></Book>)"
                             "</Shelf></Room>";
    EXPECT_EQ(room.toXMLString(false, false), text);
    XMLDocument document;
    const XMLElement root = room.appendXMLElement(document);
    EXPECT_EQ(root.elementName(), "Room");
    EXPECT_EQ(document.toXMLString(false, false), text);
    Room copy;
    ASSERT_TRUE(copy.parseXMLString(text));
    EXPECT_EQ(titles(copy.shelf), std::vector<std::string>{"a"});
}

}  // namespace
}  // namespace lv::detail
