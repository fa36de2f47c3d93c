#include "failures.h"
#include "shared.h"
#include "sources.h"

#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/tables/CSVWriter.h>
#include <lvdata/analysis/tables/tables.h>

#include <memory>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::Table;
using analysis::TableDescription;

const TableDescription& tableOf(const std::string& name) {
    std::string known;
    for (const TableDescription& each : analysis::tables()) {
        if (each.name == name) {
            return each;
        }
        known += (known.empty() ? "" : ", ") + std::string(each.name);
    }
    throw py::value_error("unknown table '" + name + "'; known tables: " + known);
}

void refuseUnlessUTF8(const analysis::JSONWriter& writer, const std::string& file) {
    if (!writer.isUTF8()) {
        throw ParseFailure{"JSON cannot carry bytes that are not UTF-8", 0, file};
    }
}

/// A line of JSON for each row.
std::string linesOf(Table table, const DataObject& record, const std::string& file) {
    std::string rows;
    analysis::JSONWriter writer(rows, {true, true});
    addRows(table, record, file, writer);
    refuseUnlessUTF8(writer, file);
    return rows;
}

/// All rows as one array of JSON.
std::string arrayOf(Table table, const DataObject& record, const std::string& file) {
    std::string rows;
    analysis::JSONWriter writer(rows, {true});
    writer.beginArray(analysis::Sink::Entries::objects);
    addRows(table, record, file, writer);
    writer.endArray();
    refuseUnlessUTF8(writer, file);
    return rows;
}

/// Lines of CSV without the header.
std::string csvOf(Table table, const DataObject& record, const std::string& file) {
    std::string rows;
    analysis::CSVWriter writer(rows);
    addRows(table, record, file, writer);
    return rows;
}

/// The rows of a document: lines of CSV without the header, or of JSON.
py::bytes rowsText(const std::string& text, const std::string& file, const std::string& name, bool asJSON) {
    const Table table = tableOf(name).table;
    std::string rows;
    {
        const py::gil_scoped_release others;
        const std::unique_ptr<DataObject> record = recordIn(text, file);
        rows = asJSON ? linesOf(table, *record, file) : csvOf(table, *record, file);
    }
    return rows;
}

/// The rows of a document as one array of JSON.
std::string rowsArray(const std::string& text, const std::string& file, Table table) {
    return arrayOf(table, *recordIn(text, file), file);
}

std::string rowsOfText(const std::string& text, const std::string& file, const std::string& name) {
    const Table table = tableOf(name).table;
    const py::gil_scoped_release others;
    return rowsArray(text, file, table);
}

std::string rowsOfFile(const std::string& file, const std::string& name) {
    const Table table = tableOf(name).table;
    const py::gil_scoped_release others;
    return rowsArray(readDocument(file), file, table);
}

/// The columns of a table: name, unit, meaning and values of each.
py::list columnsOf(const std::string& table) {
    py::list columns;
    for (const analysis::Column& each : tableOf(table).columns) {
        columns.append(py::make_tuple(each.name, each.unit, each.meaning, nameOf(each.values)));
    }
    return columns;
}

py::list tableNames() {
    py::list names;
    for (const TableDescription& each : analysis::tables()) {
        names.append(each.name);
    }
    return names;
}

}  // namespace

void addTables(py::module_& module) {
    module.def("table_names", &tableNames);
    module.def("table_columns", &columnsOf, py::arg("table"));
    module.def("table_rows", [](const std::string& table) { return tableOf(table).rows; });
    module.def("csv_header", [](const std::string& table) { return analysis::csvHeader(tableOf(table).table); });
    module.def("rows_text", &rowsText, py::arg("text"), py::arg("file"), py::arg("table"), py::arg("as_json"));
    module.def("rows_of_text", &rowsOfText, py::arg("text"), py::arg("file"), py::arg("table"));
    module.def("rows_of_file", &rowsOfFile, py::arg("file"), py::arg("table"));
}

}  // namespace lv::python
