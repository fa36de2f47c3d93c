#include "Converter.h"

#include "Failure.h"
#include "documents.h"
#include "files.h"
#include "limit_options.h"

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/tables/CSVWriter.h>

namespace tool {
namespace {

using lv::DataObject;
using lv::analysis::FromJSON;
using lv::analysis::JSONForm;
using lv::analysis::JSONResult;

constexpr JSONForm lineForm = {true, true};

/// XML documents begin with a different character.
bool isJSON(const std::string& text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const bool hasMark = std::string_view(text).substr(0, byteOrderMark.size()) == byteOrderMark;
    const std::size_t begin = hasMark ? byteOrderMark.size() : 0;
    const std::size_t first = text.find_first_not_of(" \t\r\n", begin);
    return first != std::string::npos && text[first] == '{';
}

Failure failureOf(const std::string& name, const lv::analysis::JSONError& error) {
    const std::string note = error.exceeded ? limitNote(*error.exceeded) : "";
    return {name, (error.path.empty() ? "" : error.path + ": ") + error.reason + note, error.line};
}

}  // namespace

Converted Converter::convert(const std::string& file) const {
    const std::string name = inputName(file);
    const std::string text = readInput(file, limits_.bytes);
    if (!isJSON(text)) {
        const lv::analysis::Document document = documentOf(text, name, limits_, catalogue_);
        return {convert(document.record(), name), name, checkDocument(document, lv::analysis::pureLossOptions())};
    }
    FromJSON read = lv::analysis::fromJSON(text, catalogue_, limits_);
    if (!read) {
        throw failureOf(name, *read.error);
    }
    return {convert(*read.record, name), name, std::move(read.losses)};
}

std::string Converter::convert(const DataObject& record, const std::string& name) const {
    if (conversion_.table) {
        return rowsOf(record, name);
    }
    switch (conversion_.target) {
    case Target::json:
        return jsonOf(record, name);
    case Target::xml:
        return xmlOf(record);
    case Target::jsonl:
    case Target::csv:
        break;
    }
    return lineOf(record, name);
}

std::string Converter::rowsOf(const DataObject& record, const std::string& name) const {
    std::string rows;
    if (conversion_.target == Target::csv) {
        lv::analysis::CSVWriter writer(rows);
        addRows(*conversion_.table, record, name, writer);
        return rows;
    }
    lv::analysis::JSONWriter writer(rows, lineForm);
    addRows(*conversion_.table, record, name, writer);
    if (!writer.isUTF8()) {
        throw Failure(name, "JSON cannot carry bytes that are not UTF-8");
    }
    return rows;
}

/// The JSON object of the document, with the name of the file added before its only key.
std::string Converter::lineOf(const DataObject& record, const std::string& name) const {
    std::string line;
    lv::analysis::JSONWriter writer(line, {true});
    writer.string(name);
    if (!writer.isUTF8()) {
        throw Failure(name, "JSON cannot carry a file name that is not UTF-8");
    }
    return "{\"file\":" + line + ',' + jsonOf(record, name).substr(1) + '\n';
}

std::string Converter::jsonOf(const DataObject& record, const std::string& name) const {
    const bool isCompact = conversion_.isCompact || conversion_.target == Target::jsonl;
    JSONResult json = lv::analysis::toJSON(record, catalogue_, {isCompact});
    if (!json) {
        throw failureOf(name, *json.error);
    }
    return std::move(json.text);
}

std::string Converter::xmlOf(const DataObject& record) const {
    std::string text = record.toXMLString(true, !conversion_.isCompact);
    if (text.empty() || text.back() != '\n') {
        text += '\n';
    }
    return text;
}

}  // namespace tool
