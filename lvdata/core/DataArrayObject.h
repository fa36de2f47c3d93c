#pragma once

#include <lvdata/core/DataObject.h>

#include <vector>

namespace lv {

// What an application makes of the template is not in the library: a DLL cannot offer it. Elsewhere it must be visible,
// so that all parts of a program agree on the type.
#if !defined(_WIN32)
#pragma GCC visibility push(default)
#endif

/// The base of the records that hold a list of rows of one type instead of a fixed set of values.
///
/// `Row` is a plain value type without a base class: it must be default-constructible and copyable. Rows are never
/// printed by themselves; the record that owns them reads and writes their elements. Parsing replaces the rows and
/// never merges them: a root element with the right name empties the list first; one with a different name leaves the
/// rows unchanged.
///
/// \tparam Row  the type of one row, such as `MeasurementDataObject`
template <class Row>
class DataArrayObject : public DataObject {
public:
    /// The rows in document order. Access them directly: fill them before printing, read them after parsing. The
    /// documentation of the record says which rows are written, and which are kept when read.
    std::vector<Row> objects;

    /// Whether this record was ever read from a root element with its own name, even one without rows. It is not part
    /// of documents, not compared, and not used by the library.
    bool parsed = false;

protected:
    /// Takes the version numbers of the record's class; the list is empty.
    using DataObject::DataObject;
};

#if !defined(_WIN32)
#pragma GCC visibility pop
#endif

}  // namespace lv
