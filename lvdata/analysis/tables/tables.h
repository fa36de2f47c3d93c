#pragma once

#include <lvdata/analysis/Sink.h>
#include <lvdata/core/DataObject.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The tables that documents of many monitors can be converted to. A document gives the rows that it has data for.
enum class Table {
    monitors,  ///< A row for each document with a monitor.
    modes,     ///< A row for each colour mode.
    patches,   ///< A row for each measured patch.
    curves,    ///< A row for each entry of a curve.
    maps,      ///< A row for each entry of a map.
};

/// The type of the values of a column, for programs with typed columns. Any value may be missing.
enum class Values {
    text,      ///< Texts.
    integer,   ///< Numbers without a decimal point, in 64 bits.
    fraction,  ///< Numbers with or without one.
};

/// "text", "integer" or "fraction".
[[nodiscard]] std::string_view nameOf(Values values);

/// A column of a table.
struct Column {
    std::string_view name;         ///< The header in CSV, the key in JSON.
    std::string_view unit;         ///< Empty for texts and ratios; "not recorded" if the records do not state it.
    std::string_view meaning;      ///< In a few words.
    Values values = Values::text;  ///< The type of its values.
};

/// The description of a table.
struct TableDescription {
    Table table;                  ///< Which one it is.
    std::string_view name;        ///< "monitors".
    std::string_view rows;        ///< What each row stands for.
    std::vector<Column> columns;  ///< In the order of the values in a row.
};

/// All tables.
[[nodiscard]] const std::vector<TableDescription>& tables();

/// The description of a table.
[[nodiscard]] const TableDescription& tableDescription(Table table);

/// Gives the rows of the record in a table: each is an object with all columns as keys, null if there is no value.
///
/// \param file  the value of the column "file"
void addRows(Table table, const DataObject& record, std::string_view file, Sink& sink);

/// The header of a table in CSV, with its line break.
[[nodiscard]] std::string csvHeader(Table table);

}  // namespace lv::analysis
