#include <lvdata/analysis/diff/output.h>

#include <charconv>
#include <cstddef>
#include <string_view>

namespace lv::analysis {
namespace {

using Content = Difference::Content;
using Kind = Difference::Kind;

/// The texts for each formula.
struct FormulaText {
    std::string_view key;       // in JSON
    std::string_view symbol;    // in words
    std::string_view formula;   // its name
    std::string_view observer;  // empty when it is not recorded
    int digits;                 // after the point, in words
};

const FormulaText& textOf(ColourChange::Formula formula) {
    static constexpr FormulaText deltaUV = {"duv", "Δu'v'", "CIE 1976 UCS", "CIE 1931 2°", 5};
    static constexpr FormulaText deltaE2000 = {"de00", "ΔE00", "CIEDE2000", "", 4};
    return formula == ColourChange::Formula::deltaUV ? deltaUV : deltaE2000;
}

/// In the "C" locale, with so many digits after the point; with -1 the shortest text that reads back as the number.
std::string numberText(double number, int digits) {
    char buffer[64];  // NOLINT(*-avoid-c-arrays)
    char* const end = buffer + sizeof buffer;
    const auto result = digits < 0 ? std::to_chars(buffer, end, number, std::chars_format::fixed)
                                   : std::to_chars(buffer, end, number, std::chars_format::fixed, digits);
    return result.ec == std::errc() ? std::string(buffer, result.ptr) : "";
}

std::string shown(const Difference& difference, const Difference::Value& value) {
    return difference.content == Content::string ? '"' + value.text + '"' : value.text;
}

/// " candela", " of 255" for "1/255"; empty when there is none.
std::string unitInWords(const std::string& unit) {
    constexpr std::string_view fraction = "1/";
    const bool isFraction = std::string_view(unit).substr(0, fraction.size()) == fraction;
    return unit.empty() ? "" : isFraction ? " of " + unit.substr(fraction.size()) : ' ' + unit;
}

std::string withUnit(const Difference& difference, const Difference::Value& value) {
    return shown(difference, value) + unitInWords(value.unit);
}

/// "0.5 -> 0.6", with the unit once when it is the same.
std::string bothValues(const Difference& difference) {
    const Difference::Value& before = *difference.before;
    const Difference::Value& after = *difference.after;
    const std::string first = before.unit == after.unit ? shown(difference, before) : withUnit(difference, before);
    return first + " -> " + withUnit(difference, after);
}

std::string inWords(const TableChange& table) {
    std::string text = std::to_string(table.entriesBefore);
    text += table.entriesBefore == table.entriesAfter ? "" : " -> " + std::to_string(table.entriesAfter);
    text += " entries, " + std::to_string(table.differing) + " differ";
    if (table.largest) {
        const TableChange::Entry& largest = *table.largest;
        text += ", most at index " + std::to_string(largest.index) + ": " + largest.before + " -> " + largest.after +
                unitInWords(largest.unit);
    }
    return text;
}

std::string whitesInWords(const ColourChange& colour) {
    if (colour.whiteBefore.empty()) {
        return "";
    }
    const bool isSame = colour.whiteBefore == colour.whiteAfter;
    return ", relative to " + colour.whiteBefore + (isSame ? "" : " before, to " + colour.whiteAfter + " after");
}

std::string inWords(const ColourChange& colour) {
    const FormulaText& text = textOf(colour.formula);
    if (!colour.size) {
        return std::string(text.symbol) + " n/a (" + colour.reason + ")";
    }
    const std::string observer = text.observer.empty() ? "" : ", observer " + std::string(text.observer);
    return std::string(text.symbol) + ' ' + numberText(*colour.size, text.digits) + ", " + std::string(text.formula) +
           observer + whitesInWords(colour);
}

std::string changedInWords(const Difference& difference) {
    std::string text = difference.content == Content::table ? inWords(*difference.table) : bothValues(difference);
    if (difference.colour) {
        text += " (" + inWords(*difference.colour) + ')';
    }
    return text;
}

void putString(Sink& sink, std::string_view key, std::string_view text) {
    sink.key(key);
    sink.string(text);
}

void putCount(Sink& sink, std::string_view key, std::size_t count) {
    sink.key(key);
    sink.number(std::to_string(count), Sink::NumberKind::integer);
}

void putIfAny(Sink& sink, std::string_view key, const std::string& text) {
    if (!text.empty()) {
        putString(sink, key, text);
    }
}

void putValue(Sink& sink, std::string_view key, const std::optional<Difference::Value>& value) {
    if (value) {
        putString(sink, key, value->text);
        putIfAny(sink, std::string(key) + "_unit", value->unit);
    }
}

void putTable(Sink& sink, const TableChange& table) {
    sink.key("table");
    sink.beginObject();
    putCount(sink, "entries_before", table.entriesBefore);
    putCount(sink, "entries_after", table.entriesAfter);
    putCount(sink, "differing", table.differing);
    if (table.largest) {
        sink.key("largest");
        sink.beginObject();
        putCount(sink, "index", table.largest->index);
        putString(sink, "before", table.largest->before);
        putString(sink, "after", table.largest->after);
        putString(sink, "change", table.largest->change);
        putIfAny(sink, "unit", table.largest->unit);
        sink.endObject();
    }
    sink.endObject();
}

void putColour(Sink& sink, const ColourChange& colour) {
    const FormulaText& text = textOf(colour.formula);
    sink.key(text.key);
    sink.beginObject();
    sink.key("size");
    colour.size ? sink.number(numberText(*colour.size, -1), Sink::NumberKind::fraction) : sink.null();
    putIfAny(sink, "reason", colour.reason);
    putString(sink, "formula", text.formula);
    putIfAny(sink, "observer", std::string(text.observer));
    putIfAny(sink, "white_before", colour.whiteBefore);
    putIfAny(sink, "white_after", colour.whiteAfter);
    sink.endObject();
}

std::string_view nameOf(Kind kind) {
    switch (kind) {
    case Kind::set:
        return "set";
    case Kind::cleared:
        return "cleared";
    case Kind::changed:
        return "changed";
    case Kind::reordered:
        break;
    }
    return "reordered";
}

void putDifference(Sink& sink, const Difference& difference) {
    sink.beginObject();
    putString(sink, "path", difference.path);
    putString(sink, "kind", nameOf(difference.kind));
    putValue(sink, "before", difference.before);
    putValue(sink, "after", difference.after);
    putIfAny(sink, "change", difference.change);
    if (difference.table) {
        putTable(sink, *difference.table);
    }
    if (difference.colour) {
        putColour(sink, *difference.colour);
    }
    sink.endObject();
}

}  // namespace

std::string inWords(const Difference& difference) {
    switch (difference.kind) {
    case Kind::set:
        return difference.after ? "set to " + withUnit(difference, *difference.after) : "set";
    case Kind::cleared:
        return difference.before ? "cleared, was " + withUnit(difference, *difference.before) : "cleared";
    case Kind::reordered:
        return "rows are in a different order";
    case Kind::changed:
        break;
    }
    return changedInWords(difference);
}

void putDiff(const Diff& diff, Sink& sink) {
    sink.beginObject();
    sink.key("differences");
    sink.beginArray(Sink::Entries::objects);
    for (const Difference& difference : diff.differences) {
        putDifference(sink, difference);
    }
    sink.endArray();
    putCount(sink, "within_tolerance", diff.withinTolerance);
    putCount(sink, "ignored", diff.ignored);
    sink.endObject();
}

}  // namespace lv::analysis
