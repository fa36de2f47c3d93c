#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/check/Finding.h>
#include <lvdata/analysis/tables/tables.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/xml/Limits.h>

#include <optional>
#include <string>

namespace tool {

/// What documents can be converted to.
enum class Target { json, jsonl, csv, xml };

/// How each document is converted.
struct Conversion {
    Target target = Target::json;
    std::optional<lv::analysis::Table> table;
    bool isCompact = false;
};

/// The result for one document.
struct Converted {
    std::string text;
    std::string name;               // of the document, for messages
    lv::analysis::Findings losses;  // content of a JSON document that the text lacks
};

/// Reads documents in XML or JSON and converts them. Any number of threads may use one.
class Converter {
public:
    /// The limits must outlive the converter.
    Converter(const Conversion& conversion, const lv::Limits& limits) : conversion_(conversion), limits_(limits) {}

    /// Converts the document in that file. Throws `Failure` when it cannot be read or converted.
    [[nodiscard]] Converted convert(const std::string& file) const;

private:
    [[nodiscard]] std::string convert(const lv::DataObject& record, const std::string& name) const;
    [[nodiscard]] std::string rowsOf(const lv::DataObject& record, const std::string& name) const;
    [[nodiscard]] std::string lineOf(const lv::DataObject& record, const std::string& name) const;
    [[nodiscard]] std::string jsonOf(const lv::DataObject& record, const std::string& name) const;
    [[nodiscard]] std::string xmlOf(const lv::DataObject& record) const;

    lv::analysis::Catalogue catalogue_{};
    Conversion conversion_;
    const lv::Limits& limits_;
};

}  // namespace tool
