#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/records/RecordClass.h>

#include <memory>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The possible content of the documents of each record class, prepared once for all functions of this library. It
/// never changes, so any number of threads may use it. Making it takes some milliseconds.
class Catalogue {
public:
    /// The entry of one record class.
    struct Entry {
        const RecordClass* recordClass;            ///< The class.
        std::unique_ptr<const Description> facts;  ///< Its description,
        std::unique_ptr<const Shape> shape;        ///< prepared.
    };

    /// All record classes of the library.
    Catalogue();

    /// The entry of the class whose root element has that name; null when there is none.
    [[nodiscard]] const Entry* find(std::string_view rootElementName) const;

    /// One for each record class, in the order of their names.
    [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }

private:
    std::vector<Entry> entries_{};
};

}  // namespace lv::analysis
