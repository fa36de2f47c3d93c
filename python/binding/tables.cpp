#include "errors.h"
#include "shared.h"

#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/tables/CSVWriter.h>
#include <lvdata/analysis/tables/tables.h>

#include <stdexcept>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::TableDescription;

const TableDescription& tableOf(const std::string& name) {
    for (const TableDescription& each : analysis::tables()) {
        if (each.name == name) {
            return each;
        }
    }
    throw py::value_error("there is no table '" + name + "'");
}

/// The rows of a document: lines of CSV without the header, or of JSON.
py::bytes rowsText(const std::string& text, const std::string& file, const std::string& table, bool asJSON) {
    const TableDescription& description = tableOf(table);
    const std::unique_ptr<DataObject> record = recordOf(text);
    std::string rows;
    bool isUTF8 = true;
    {
        const py::gil_scoped_release others;
        if (asJSON) {
            analysis::JSONWriter writer(rows, {true, true});
            addRows(description.table, *record, file, writer);
            isUTF8 = writer.isUTF8();
        } else {
            analysis::CSVWriter writer(rows);
            addRows(description.table, *record, file, writer);
        }
    }
    if (!isUTF8) {
        raiseParseError("JSON cannot carry bytes that are not UTF-8", 0);
    }
    return rows;
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
    module.def("csv_header", [](const std::string& table) { return analysis::csvHeader(tableOf(table).table); });
    module.def("rows_text", &rowsText, py::arg("text"), py::arg("file"), py::arg("table"), py::arg("as_json"));
}

}  // namespace lv::python
