#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/Description.h>
#include <lvdata/export.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace lv {

/// A record class as a value, for programs that know only at run time which record they have. It lives as long as the
/// program.
///
///     lv::ParsedDocument document(text);
///     if (const lv::RecordClass* found = lv::recordClass(document.rootElementName())) {
///         const std::unique_ptr<lv::DataObject> record = found->make();
///         const lv::ParseResult result = document.read(*record);
struct RecordClass {
    /// The name of the class, which is also the name of its root element.
    const char* name;

    /// Makes a fresh record of the class; never null.
    std::unique_ptr<DataObject> (*make)();

    /// Returns the description of the record's documents: calls the static function `describe` of the class.
    Description (*describe)();
};

/// All record classes, in the order of their names: `for (const lv::RecordClass& each : lv::RecordClasses())`.
class LVDATA_EXPORT RecordClasses {
public:
    /// The first record class.
    [[nodiscard]] const RecordClass* begin() const;

    /// One after the last record class.
    [[nodiscard]] const RecordClass* end() const;

    /// The number of record classes.
    [[nodiscard]] std::size_t size() const;
};

/// The class whose root element has that name, compared exactly; null when there is none.
[[nodiscard]] LVDATA_EXPORT const RecordClass* recordClass(std::string_view name);

}  // namespace lv
