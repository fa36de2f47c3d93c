#pragma once

#include <tests/analysis/any_record.h>
#include <tests/analysis/studio_text.h>

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/tables/CSVWriter.h>
#include <lvdata/analysis/tables/tables.h>

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace lv::test {

/// The rows of a document, as an outside parser of JSON has them.
inline std::vector<nlohmann::json> rowsOf(analysis::Table table, const std::string& xml) {
    const analysis::Document document(xml, catalogue());
    EXPECT_EQ(document.refusal(), nullptr);
    std::string lines;
    analysis::JSONWriter writer(lines, {true, true});
    analysis::addRows(table, document.record(), "a.xml", writer);
    std::vector<nlohmann::json> rows;
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        rows.push_back(nlohmann::json::parse(line));
    }
    return rows;
}

inline std::string csvOf(analysis::Table table, const std::string& xml) {
    const analysis::Document document(xml, catalogue());
    std::string text = analysis::csvHeader(table);
    analysis::CSVWriter writer(text);
    analysis::addRows(table, document.record(), "a.xml", writer);
    return text;
}

/// A schedule with all intervals, of which only one belongs to its kind.
inline std::string scheduleOfKind(const std::string& kind) {
    return "<MonitorConfiguration><SelfCalibrationSchedule><Type Type='" + kind +
           "'><IntervalMonth>3</IntervalMonth><IntervalWeek>5</IntervalWeek><IntervalHour>7</IntervalHour></Type>"
           "</SelfCalibrationSchedule></MonitorConfiguration>";
}

}  // namespace lv::test
