#pragma once

#include <lvdata/core/DataObject.h>

#include <string>

namespace lv::test {

/// Code of an application that is compiled without RTTI: lends a document of a class of its own, and wraps it with a
/// wrapper of a class of its own. The text of the record in it.
[[nodiscard]] std::string printedWithoutRtti(const DataObject& record);

/// The same for reading; whether the record was read.
[[nodiscard]] bool parsedWithoutRtti(DataObject& record, const std::string& text);

/// The text of a record of its own, which derives from none of the library's.
[[nodiscard]] std::string ownListPrintedWithoutRtti();

}  // namespace lv::test
