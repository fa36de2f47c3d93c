#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/Description.h>
#include <lvdata/export.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace lv {

/// A record class as a value, for programs that learn only at run time which record they have.
///
///     lv::ParsedDocument document(text);
///     if (const lv::RecordClass* found = lv::recordClass(document.rootElementName())) {
///         const std::unique_ptr<lv::DataObject> record = found->make();
///         const lv::ParseResult result = document.read(*record);
struct RecordClass {
    /// The name of the class, which is that of its root element.
    const char* name;

    /// A fresh record.
    std::unique_ptr<DataObject> (*make)();

    /// What a document of the record consists of.
    Description (*describe)();
};

/// All record classes, in the order of their names.
class LVDATA_EXPORT RecordClasses {
public:
    [[nodiscard]] const RecordClass* begin() const;
    [[nodiscard]] const RecordClass* end() const;
    [[nodiscard]] std::size_t size() const;
};

/// The class whose root element has that name, compared exactly; null when there is none.
[[nodiscard]] LVDATA_EXPORT const RecordClass* recordClass(std::string_view name);

}  // namespace lv
