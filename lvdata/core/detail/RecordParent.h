#pragma once

#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/WrapperMark.h>

namespace lv {
class DataObject;
}

namespace lv::detail {

class Writer;

/// The parent that the library passes to a record's `appendXMLElement`. It brings along the writer that the record
/// writes with, and is for that record alone. For all other code, such as a class of an application that prints its own
/// records, it is the document that it wraps. A nested one wraps the element of the outer record, or nothing when the
/// text is printed directly.
class RecordParent final : public XMLDocument {
public:
    /// For a record whose text is wanted.
    RecordParent(const XMLNode& document, const DataObject& outermost, const Writer& writer)
        : RecordParent(document, outermost, writer, false) {}

    /// For a record that another one holds by value, so that it is of the library's own class.
    [[nodiscard]] static RecordParent nestedIn(const XMLNode& element, const DataObject& nested, const Writer& writer) {
        return {element, nested, writer, true};
    }

    RecordParent(const RecordParent&) = delete;
    RecordParent& operator=(const RecordParent&) = delete;
    RecordParent(RecordParent&&) = delete;
    RecordParent& operator=(RecordParent&&) = delete;
    ~RecordParent() override = default;

    /// The parent as it was given to that record; null when it was given to other code.
    [[nodiscard]] static const RecordParent* ownOf(const DataObject& record, const XMLNode& parent) {
        if (!WrapperMark::isMarkedParent(parent)) {
            return nullptr;
        }
        // No other node is marked, and no copy; a cast that asks would need RTTI.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast)
        const auto* const marked = static_cast<const RecordParent*>(&parent);
        return &marked->record_ == &record ? marked : nullptr;
    }

    [[nodiscard]] bool isNested() const { return isNested_; }
    [[nodiscard]] const Writer& writer() const { return writer_; }

private:
    RecordParent(const XMLNode& node, const DataObject& record, const Writer& writer, bool isNested)
        : XMLDocument(node.get()),
          record_(record),
          writer_(writer),
          isNested_(isNested) {
        WrapperMark::markParent(*this);
    }

    const DataObject& record_;
    const Writer& writer_;
    bool isNested_;
};

}  // namespace lv::detail
