#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/Output.h>
#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/handle.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

/// Everything that can be written, with several children open at a time and values of every type.
void writeAll(const Output& root) {
    root.setAttribute("Version", 2U);
    root.setAttribute("Name", std::string("\"<&>'"));
    root.appendLeaf("Text", std::string("1 < 2 & 3"));
    root.appendLeaf("Empty", std::string());
    root.appendLeaf("Long", std::string(100, 'x'));
    root.appendLeaf("LongEscaped", std::string(100, 'x') + '>');
    root.appendLeaf("LongEscaped", std::string(100, 'x') + "<&>");
    const Output inner = root.append("Inner");
    inner.setAttribute("Type", std::string("T"));
    const Output innermost = inner.append("Innermost");
    innermost.addText(-5);
    innermost.addText(std::vector<int>{-1, 2, -2147483647 - 1});
    inner.appendLeaf("Yes", true);
    inner.appendLeaf("No", false);
    root.append("Nothing");
    root.appendLeaf("Number", -17);
    root.appendLeaf("Unsigned", 4294967295U);
    root.appendLeaf("Numbers", std::vector<unsigned int>{1, 22, 333, 4294967295U});
    root.appendLeaf("NoNumbers", std::vector<unsigned int>());
    root.addText(std::vector<unsigned int>(3000, 1234567));
    root.append("Last").append("Inner");
    root.addText(std::string("end"));
}

std::string asNodes(bool pretty) {
    const XMLDocument document;
    writeAll(Output(toElement(document.appendChild("Root"))));
    return document.toXMLString(false, pretty);
}

std::string atOnce(bool pretty) {
    Printer printer(!pretty);
    const Output output(printer);
    writeAll(output.append("Root"));
    output.finish();
    return printer.text();
}

TEST(Output, TheTextIsTheSameThroughNodesAndDirectly) {
    for (const bool pretty : {false, true}) {
        EXPECT_EQ(atOnce(pretty), asNodes(pretty));
    }
    EXPECT_NE(asNodes(false).find("<Numbers>1|22|333|4294967295</Numbers><NoNumbers></NoNumbers>"), std::string::npos);
    EXPECT_NE(asNodes(false).find("<Nothing/><Number>-17</Number>"), std::string::npos);
}

TEST(Output, AnInvalidElementIgnoresWhatIsWritten) {
    const Output nothing;
    EXPECT_FALSE(nothing.exists());
    EXPECT_FALSE(nothing.append("Child").exists());
    writeAll(nothing);
    nothing.finish();
    EXPECT_EQ(nothing.node(), nullptr);
    EXPECT_FALSE(Output(nullptr).exists());
}

TEST(Output, OnlyAnElementMadeOfNodesIsANode) {
    const XMLDocument document;
    const XMLElement root = document.appendChild("Root");
    const Output child = Output(toElement(root)).append("Child");
    EXPECT_EQ(toHandle(child.node()), root.getElement("Child").get());
    Printer printer(true);
    EXPECT_TRUE(Output(printer).exists());
    EXPECT_EQ(Output(printer).append("Root").node(), nullptr);
}

TEST(Output, CopiesGoOnWhereTheOriginalIs) {
    Printer printer(true);
    const Output root = Output(printer).append("r");
    const Output copy = root;
    copy.appendLeaf("a", 1);
    root.appendLeaf("b", 2);
    copy.appendLeaf("c", 3);
    Output(printer).finish();
    EXPECT_EQ(printer.text(), "<r><a>1</a><b>2</b><c>3</c></r>");
}

#ifndef NDEBUG
TEST(OutputDeathTest, AttributesComeFirst) {
    Printer printer(true);
    const Output root = Output(printer).append("r");
    root.appendLeaf("a", 1);
    EXPECT_DEATH(root.setAttribute("Version", 2U), "attributes come first");
}

TEST(OutputDeathTest, AnElementThatWasClosedGetsNothingMore) {
    Printer printer(true);
    const Output root = Output(printer).append("r");
    const Output first = root.append("a");
    const Output second = root.append("a");
    EXPECT_DEATH(first.addText(1), "gets nothing more");
    second.addText(2);
    EXPECT_DEATH(first.append("b"), "gets nothing more");
    EXPECT_DEATH(first.setAttribute("Version", 2U), "attributes come first");
}

TEST(OutputDeathTest, AnElementInsideOneThatWasClosedGetsNothingMore) {
    Printer printer(true);
    const Output root = Output(printer).append("r");
    const Output inner = root.append("a").append("b");
    root.finish();
    EXPECT_DEATH(inner.addText(1), "gets nothing more");
    Output(printer).finish();
    EXPECT_DEATH(root.append("a"), "gets nothing more");
}

TEST(OutputDeathTest, ANameOutlivesItsElement) {
    Printer printer(true);
    std::string name = "r";
    Output(printer).append(name.c_str());
    name[0] = 's';
    EXPECT_DEATH(Output(printer).finish(), "a name outlives its element");
}
#endif

}  // namespace
}  // namespace lv::detail
