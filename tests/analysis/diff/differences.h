#pragma once

#include <tests/analysis/catalogue.h>

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/diff/diff.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace lv::test {

/// How many differences are listed, and how many are not.
using Counts = std::pair<std::size_t, std::size_t>;

/// What the records of two documents differ in.
inline analysis::Diff diffOf(const std::string& before, const std::string& after,
                             const analysis::DiffOptions& options = {}) {
    const analysis::Document first(before, catalogue());
    const analysis::Document second(after, catalogue());
    return std::get<analysis::Diff>(diff(first.record(), second.record(), catalogue(), options));
}

inline std::string shown(const std::optional<analysis::Difference::Value>& value) {
    return !value ? "" : value->text + (value->unit.empty() ? "" : ' ' + value->unit);
}

inline std::string shown(const analysis::TableChange& table) {
    std::string text = "entries " + std::to_string(table.entriesBefore) + " -> " + std::to_string(table.entriesAfter) +
                       ", " + std::to_string(table.differing) + " differ";
    if (table.largest) {
        text += ", most at " + std::to_string(table.largest->index) + ": " + table.largest->before + " -> " +
                table.largest->after + " by " + table.largest->change +
                (table.largest->unit.empty() ? "" : ' ' + table.largest->unit);
    }
    return text;
}

/// All of a difference but its colour.
inline std::string shown(const analysis::Difference& difference) {
    const std::vector<std::string> kinds = {"set ", "cleared ", "changed ", "reordered "};
    std::string text = kinds[static_cast<std::size_t>(difference.kind)] + difference.path;
    text += difference.before || difference.after || difference.table ? ": " : "";
    text += shown(difference.before) + (difference.before && difference.after ? " -> " : "") + shown(difference.after);
    text += difference.change.empty() ? "" : " by " + difference.change;
    if (difference.table) {
        text += (difference.before ? ", " : "") + shown(*difference.table);
    }
    return text;
}

inline std::vector<std::string> differencesOf(const std::string& before, const std::string& after) {
    std::vector<std::string> lines;
    for (const analysis::Difference& difference : diffOf(before, after).differences) {
        lines.push_back(shown(difference));
    }
    return lines;
}

}  // namespace lv::test
