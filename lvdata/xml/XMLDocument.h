#pragma once

#include <lvdata/export.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/XMLNode.h>

#include <string>

namespace lv {

/// An XML document: parses text, prints itself, and returns wrappers of its elements.
///
/// A default-constructed wrapper owns its document: both are deleted together, and every wrapper into the document then
/// dangles. It cannot be copied or moved. A document wrapped from a handle is borrowed and never deleted. Only one
/// thread at a time may use the document and the wrappers into it.
class LVDATA_EXPORT XMLDocument : public XMLNode {
public:
    /// A new, empty document, owned by the wrapper: entities are processed, white space is preserved.
    XMLDocument();

    /// Borrows a document of the XML library, passed as an untyped handle. If the handle is null or points to another
    /// kind of node, there is no document: nothing can be parsed into it, printed from it or appended to it.
    XMLDocument(void* document);  // NOLINT(google-explicit-constructor)

    /// Deletes the document if the wrapper owns it; a borrowed one stays.
    ~XMLDocument() override;

    /// Not copied: the document would be deleted twice.
    XMLDocument(const XMLDocument&) = delete;

    /// Not copied.
    XMLDocument& operator=(const XMLDocument&) = delete;

    /// Not moved: wrappers into the document would dangle.
    XMLDocument(XMLDocument&&) = delete;

    /// Not moved.
    XMLDocument& operator=(XMLDocument&&) = delete;

    /// Replaces the content with `text`, a whole XML document in UTF-8. Wrappers into the earlier content dangle. True
    /// when the XML library accepts the text; it accepts a little more than well-formed documents (several elements at
    /// document level, unknown entities). Otherwise, or when there is no document, false, and the document is empty.
    /// The text ends at its first NUL. A byte order mark is dropped: `toXMLString` does not write one.
    bool parseXMLString(const std::string& text);

    /// Why the last `parseXMLString` failed, in a few words: "mismatched element". Empty after a success.
    [[nodiscard]] std::string parseErrorText() const;

    /// The line where the XML library found the error, counted from 1. 0 for an empty text and after a success.
    [[nodiscard]] int parseErrorLine() const;

    /// The document's text in UTF-8: indented by four spaces a level when `pretty` is true, otherwise without added
    /// line breaks. When `declaration` is true it begins with `<?xml version="1.0" encoding="UTF-8" standalone="no"?>`.
    /// A parsed declaration is part of the document and always printed, so request one only if the document has none.
    /// Empty when there is no document.
    [[nodiscard]] std::string toXMLString(bool declaration, bool pretty) const;

    /// The first element at document level, whatever its name; invalid when there is none.
    [[nodiscard]] XMLElement rootElement() const;

    /// Appends a new element at document level and returns it; invalid when there is no document.
    XMLElement appendChild(const std::string& name) const;

private:
    void* owned_ = nullptr;  // What the destructor deletes. The handle may be assigned through the base class.
};

}  // namespace lv
