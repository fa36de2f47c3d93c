#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/diff/Tolerances.h>
#include <lvdata/core/DataObject.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lv::analysis {

/// The size of a colour difference, or why it is not known.
struct ColourChange {
    /// How it was computed.
    enum class Formula {
        deltaUV,     ///< Δu'v' of CIE 1931 2° chromaticities in the CIE 1976 UCS diagram.
        deltaE2000,  ///< CIEDE2000 of CIELAB values, each relative to the white of its own side. Observer not recorded.
    };

    Formula formula = Formula::deltaUV;  ///< How it was computed.
    std::optional<double> size{};        ///< The colour difference; no value when there is none.
    std::string reason{};                ///< Why there is no size, in a few words; empty when there is one.
    std::string whiteBefore{};           ///< Which white CIELAB is relative to, in words; empty without one.
    std::string whiteAfter{};            ///< The same of the other side.
};

/// How the entries of an array changed, compared by index.
struct TableChange {
    /// The entry with the largest change.
    struct Entry {
        std::size_t index = 0;  ///< Its index, counted from 0.
        std::string before{};   ///< What it was,
        std::string after{};    ///< what it is,
        std::string change{};   ///< and the exact difference.
        std::string unit{};     ///< Their unit, as that of a value.
    };

    std::size_t entriesBefore = 0;   ///< The number of entries that it had,
    std::size_t entriesAfter = 0;    ///< and has.
    std::size_t differing = 0;       ///< How many differ, of those that both have.
    std::optional<Entry> largest{};  ///< No value when none differs, or the two are not comparable.
};

/// One difference between two records. Numbers are exact decimals of the value, in its unit. Where the factor is not a
/// power of ten they are stored integers, and the unit says so: "1/255".
struct Difference {
    /// What happened to it.
    enum class Kind {
        set,        ///< Only the second record has it.
        cleared,    ///< Only the first record has it.
        changed,    ///< Both have it, with different values.
        reordered,  ///< Both have these rows, in a different order.
    };

    /// What is at the path.
    enum class Content {
        group,   ///< An element that holds others, as a whole. No value is given.
        string,  ///< A text.
        other,   ///< A number, a boolean, or several numbers, joined by ", ".
        table,   ///< An array of many entries; `table` says what differs, and no value is given.
    };

    /// The value of one side.
    struct Value {
        std::string text{};  ///< The value.
        std::string unit{};  ///< Its unit; empty when it has none, or when it is not recorded.
    };

    std::string path{};                    ///< XPath: "MonitorInfo/.../ColorMode[Index=2]/Name".
    Kind kind = Kind::changed;             ///< What happened.
    Content content = Content::group;      ///< What is there.
    std::optional<Value> before{};         ///< The value in the first record.
    std::optional<Value> after{};          ///< The value in the second record.
    std::string change{};                  ///< Of a number the second minus the first, exactly; otherwise empty.
    std::optional<TableChange> table{};    ///< Of an array that both have.
    std::optional<ColourChange> colour{};  ///< Of a chromaticity, or of X, Y and Z, that both have.
};

/// The differences between two records.
struct Diff {
    std::vector<Difference> differences{};  ///< In the order of writing.
    std::size_t withinTolerance = 0;        ///< Differences that are not listed because they are small.
    std::size_t ignored = 0;                ///< Differences that are not listed because of their path.
};

/// Two records cannot be compared.
struct DiffRefusal {
    std::string reason;  ///< Why, in a few words.
};

/// Which differences are listed.
struct DiffOptions {
    /// Differences within these limits are counted but not listed. If several limits apply, such as those of "de00" and
    /// "tristimulus", none of them may be exceeded.
    Tolerances tolerances{};

    /// Paths whose differences are counted but not listed, with everything below: "MonitorInfo/UUID"; "//Name" at any
    /// depth. Without the part in brackets, a path stands for all rows.
    std::vector<std::string> ignoredPaths{};
};

/// Compares two records of one class by the documents that they print. Values that are not printed are not compared:
/// those whose flag is clear, and those that do not belong to the "Type" of their element.
///
/// Rows are compared with those of the same "Index" (of equal ones in their order), measurements with those of the same
/// RGB or CMYK if no RGB or CMYK occurs twice, other rows by position.
[[nodiscard]] std::variant<Diff, DiffRefusal> diff(const DataObject& before, const DataObject& after,
                                                   const Catalogue& catalogue, const DiffOptions& options = {});

/// The same for two documents that records of the class of `entry` printed.
[[nodiscard]] Diff diffPrinted(const Tree& before, const Tree& after, const Catalogue::Entry& entry,
                               const DiffOptions& options = {});

}  // namespace lv::analysis
