#pragma once

#include <lvdata/analysis/Sink.h>
#include <lvdata/core/DataObject.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The tables that documents of many monitors can be turned into. A document gives the rows that it has something for.
enum class Table {
    monitors,  ///< A row for each document with a monitor.
    modes,     ///< A row for each colour mode.
    patches,   ///< A row for each measured patch.
    curves,    ///< A row for each entry of a curve.
    maps,      ///< A row for each entry of a map.
};

/// What the values of a column are, for programs that give their columns types. Any of them may be missing.
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
    std::string_view unit;         ///< Empty for texts and ratios; "not recorded" where the records do not say.
    std::string_view meaning;      ///< In a few words.
    Values values = Values::text;  ///< What stands in it.
};

/// What there is to know of a table.
struct TableDescription {
    Table table;                  ///< Which one it is.
    std::string_view name;        ///< "monitors".
    std::string_view rows;        ///< What has a row.
    std::vector<Column> columns;  ///< In the order of the values in a row.
};

/// All tables.
[[nodiscard]] const std::vector<TableDescription>& tables();

/// The description of a table.
[[nodiscard]] const TableDescription& tableDescription(Table table);

/// Gives the rows that the record has in a table: each an object with all columns as keys, null where there is nothing.
///
/// \param file  what the column "file" says
void addRows(Table table, const DataObject& record, std::string_view file, Sink& sink);

/// The header of a table in CSV, with its line break.
[[nodiscard]] std::string csvHeader(Table table);

}  // namespace lv::analysis
