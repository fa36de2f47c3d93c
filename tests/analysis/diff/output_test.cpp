#include <lvdata/analysis/diff/output.h>
#include <lvdata/analysis/json/JSONWriter.h>

#include <gtest/gtest.h>

using lv::analysis::ColourChange;
using lv::analysis::Diff;
using lv::analysis::Difference;
using lv::analysis::TableChange;

namespace {

using Value = Difference::Value;

Difference changed(Difference::Content content, const Value& before, const Value& after) {
    Difference difference;
    difference.path = "A/B";
    difference.content = content;
    difference.before = before;
    difference.after = after;
    return difference;
}

Difference number(const Value& before, const Value& after) {
    return changed(Difference::Content::other, before, after);
}

Difference oneSided(Difference::Kind kind, const std::optional<Value>& value) {
    Difference difference;
    difference.kind = kind;
    difference.content = value ? Difference::Content::other : Difference::Content::group;
    (kind == Difference::Kind::set ? difference.after : difference.before) = value;
    return difference;
}

TableChange someTable() {
    TableChange table;
    table.entriesBefore = 256;
    table.entriesAfter = 256;
    table.differing = 2;
    table.largest = TableChange::Entry{7, "0.5", "0.25", "-0.25", ""};
    return table;
}

ColourChange colourOf(ColourChange::Formula formula, double size) {
    ColourChange colour;
    colour.formula = formula;
    colour.size = size;
    return colour;
}

std::string json(const Diff& diff) {
    std::string text;
    lv::analysis::JSONWriter writer(text, {true});
    putDiff(diff, writer);
    return text;
}

}  // namespace

TEST(DiffInWords, HasBothValuesAndTheUnitOnce) {
    EXPECT_EQ(inWords(number({"120", ""}, {"140", ""})), "120 -> 140");
    EXPECT_EQ(inWords(number({"120", "candela"}, {"140", "candela"})), "120 -> 140 candela");
    EXPECT_EQ(inWords(number({"50", "candela"}, {"50", "%"})), "50 candela -> 50 %");
    EXPECT_EQ(inWords(number({"1, 2, 3", "1/255"}, {"1, 2, 4", "1/255"})), "1, 2, 3 -> 1, 2, 4 of 255");
}

TEST(DiffInWords, PutsTextsIntoQuotationMarks) {
    EXPECT_EQ(inWords(changed(Difference::Content::string, {"", ""}, {"a b", ""})), "\"\" -> \"a b\"");
}

TEST(DiffInWords, SaysWhatOnlyOneSideHas) {
    EXPECT_EQ(inWords(oneSided(Difference::Kind::set, Value{"120", "%"})), "set to 120 %");
    EXPECT_EQ(inWords(oneSided(Difference::Kind::cleared, Value{"120", "%"})), "cleared, was 120 %");
    EXPECT_EQ(inWords(oneSided(Difference::Kind::set, {})), "set");
    EXPECT_EQ(inWords(oneSided(Difference::Kind::cleared, {})), "cleared");
    EXPECT_EQ(inWords(oneSided(Difference::Kind::reordered, {})), "rows are in a different order");
}

TEST(DiffInWords, SummarisesATable) {
    Difference difference;
    difference.content = Difference::Content::table;
    difference.table = someTable();
    EXPECT_EQ(inWords(difference), "256 entries, 2 differ, most at index 7: 0.5 -> 0.25");
    difference.table->largest->unit = "1/65535";
    EXPECT_EQ(inWords(difference), "256 entries, 2 differ, most at index 7: 0.5 -> 0.25 of 65535");
    difference.table->entriesAfter = 1024;
    difference.table->largest.reset();
    EXPECT_EQ(inWords(difference), "256 -> 1024 entries, 2 differ");
}

TEST(DiffInWords, NamesFormulaObserverAndWhite) {
    Difference difference = number({"0.3, 0.3", ""}, {"0.3, 0.4", ""});
    difference.colour = colourOf(ColourChange::Formula::deltaUV, 0.0227461);
    EXPECT_EQ(inWords(difference), "0.3, 0.3 -> 0.3, 0.4 (Δu'v' 0.02275, CIE 1976 UCS, observer CIE 1931 2°)");
    difference.colour = colourOf(ColourChange::Formula::deltaE2000, 1);
    difference.colour->whiteBefore = "this";
    difference.colour->whiteAfter = "this";
    EXPECT_EQ(inWords(difference), "0.3, 0.3 -> 0.3, 0.4 (ΔE00 1.0000, CIEDE2000, relative to this)");
    difference.colour->whiteAfter = "that";
    EXPECT_EQ(inWords(difference),
              "0.3, 0.3 -> 0.3, 0.4 (ΔE00 1.0000, CIEDE2000, relative to this before, to that after)");
}

TEST(DiffInWords, SaysWhyAColourDifferenceIsNotKnown) {
    Difference difference = number({"1", ""}, {"2", ""});
    difference.colour = colourOf(ColourChange::Formula::deltaE2000, 0);
    difference.colour->size.reset();
    difference.colour->reason = "no reference white";
    EXPECT_EQ(inWords(difference), "1 -> 2 (ΔE00 n/a (no reference white))");
}

TEST(DiffAsJSON, HasCountsWithoutDifferences) {
    Diff diff;
    diff.withinTolerance = 3;
    diff.ignored = 4;
    EXPECT_EQ(json(diff), R"({"differences":[],"within_tolerance":3,"ignored":4})");
}

TEST(DiffAsJSON, HasAllOfADifference) {
    Difference difference = number({"1", "candela"}, {"2", ""});
    difference.change = "1";
    difference.table = someTable();
    difference.table->largest->unit = "1/255";
    difference.colour = colourOf(ColourChange::Formula::deltaUV, 0.00125);
    EXPECT_EQ(json({{difference}, 0, 0}),
              R"({"differences":[{"path":"A/B","kind":"changed","before":"1","before_unit":"candela","after":"2",)"
              R"("change":"1","table":{"entries_before":256,"entries_after":256,"differing":2,)"
              R"("largest":{"index":7,"before":"0.5","after":"0.25","change":"-0.25","unit":"1/255"}},)"
              R"("duv":{"size":0.00125,"formula":"CIE 1976 UCS","observer":"CIE 1931 2°"}}],)"
              R"("within_tolerance":0,"ignored":0})");
}

TEST(DiffAsJSON, HasNullAndAReasonForAnUnknownColourDifference) {
    Difference difference = oneSided(Difference::Kind::set, {});
    difference.colour = colourOf(ColourChange::Formula::deltaE2000, 0);
    difference.colour->size.reset();
    difference.colour->reason = "no reference white";
    EXPECT_EQ(json({{difference}, 0, 0}),
              R"({"differences":[{"path":"","kind":"set","de00":{"size":null,"reason":"no reference white",)"
              R"("formula":"CIEDE2000"}}],"within_tolerance":0,"ignored":0})");
}

TEST(DiffAsJSON, HasTheKindInAWord) {
    const auto kindOf = [](Difference::Kind kind) {
        return json({{oneSided(kind, {})}, 0, 0});
    };
    EXPECT_NE(kindOf(Difference::Kind::cleared).find(R"("kind":"cleared")"), std::string::npos);
    EXPECT_NE(kindOf(Difference::Kind::reordered).find(R"("kind":"reordered")"), std::string::npos);
}
