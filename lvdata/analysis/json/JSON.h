#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/check/Finding.h>
#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/core/DataObject.h>
#include <lvdata/xml/Limits.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lv::analysis {

/// Why there is no JSON text of a record, or no record of a JSON text.
struct JSONError {
    int line = 0;          ///< The line of the error in the JSON text, counted from 1; 0 when no line applies.
    std::string path{};    ///< "monitor_info.asset_info.asset1"; empty when no place applies.
    std::string reason{};  ///< In a few words.
    std::optional<Excess::What> exceeded{};  ///< The limit that is exceeded, if that is the reason.

    /// "line 3: monitor_info.uuid: text expected, not a number".
    [[nodiscard]] std::string toString() const;
};

/// The JSON text of a record, or why there is none.
struct JSONResult {
    std::string text{};                ///< Without a line break at the end; empty when there is none.
    std::optional<JSONError> error{};  ///< Why there is none.

    /// Whether there is a text.
    [[nodiscard]] explicit operator bool() const { return !error; }
};

/// The record of a JSON text, or why there is none.
struct FromJSON {
    std::unique_ptr<DataObject> record{};     ///< Null when there is none.
    const Catalogue::Entry* entry = nullptr;  ///< Its class; null when there is none.
    std::optional<JSONError> error{};         ///< Why there is none.

    /// Content of the text that the record does not print, such as values that do not belong to the "type" next to
    /// them: warnings and errors, with paths of the XML document and lines of 0.
    Findings losses{};

    /// Whether there is a record.
    [[nodiscard]] explicit operator bool() const { return record != nullptr; }
};

/// The record as JSON text: what `DataObject::toXMLString` prints, with natural values. docs/json.md describes the
/// conversion. Fails when the record holds bytes that are not UTF-8, and when its root element is not in the catalogue.
[[nodiscard]] JSONResult toJSON(const DataObject& record, const Catalogue& catalogue, JSONForm form = {});

/// A fresh record with the content of the JSON text. `writeHLGSystemGamma` is set when the text has a key that the
/// switch controls. Fails at the first error. Nothing is silently ignored or changed: content that the record ignores
/// because of other values, as it does in XML, is among the losses. The catalogue must outlive the result.
///
/// Also fails when a limit of bytes, elements or nodes is exceeded; the other limits do not apply. Elements and nodes
/// are those of the equivalent XML document: all numbers of an array are one text.
[[nodiscard]] FromJSON fromJSON(std::string_view text, const Catalogue& catalogue, const Limits& limits = {});

}  // namespace lv::analysis
