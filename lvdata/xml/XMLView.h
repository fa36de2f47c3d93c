#pragma once

#include <lvdata/export.h>
#include <lvdata/xml/XMLNode.h>

#include <string_view>

namespace lv {

/// A read-only view of an attribute, or nothing. See `XMLView`.
class LVDATA_EXPORT XMLAttributeView {
public:
    /// An invalid view, which has no attribute.
    XMLAttributeView() = default;

    /// Whether there is an attribute.
    [[nodiscard]] bool isValid() const { return attribute_ != nullptr; }

    /// Its name; empty when invalid.
    [[nodiscard]] std::string_view name() const;

    /// Its value with entities resolved, up to the first NUL; empty when invalid.
    [[nodiscard]] std::string_view value() const;

    /// The line of the parsed text where it begins, counted from 1; 0 when invalid or not parsed.
    [[nodiscard]] int line() const;

    /// The next attribute of the same element; invalid after the last.
    [[nodiscard]] XMLAttributeView next() const;

private:
    friend class XMLView;
    explicit XMLAttributeView(const void* attribute) : attribute_(attribute) {}

    const void* attribute_ = nullptr;
};

/// A read-only view of a node of an XML document. Everything in the document can be visited, including what the getters
/// of `XMLElement` ignore, such as comments and unknown elements. For programs that check or convert documents.
///
/// A handle like `XMLNode`, but it changes nothing and copies no text: the views of names and texts, like the handle,
/// are valid until the node or its document is changed or deleted. Operations on an invalid view are safe and return
/// invalid views, empty texts and 0. Only one thread at a time may use a document and the views of it.
class LVDATA_EXPORT XMLView {
public:
    /// What kind of node it is.
    enum class Kind {
        none,      ///< An invalid view.
        document,  ///< The document itself.
        element,   ///< An element.
        text,      ///< Text, or a CDATA section.
        comment,   ///< A comment.
        other,     ///< A declaration, a processing instruction or a document type.
    };

    /// An invalid view, which has no node.
    XMLView() = default;

    /// The node of the wrapper.
    explicit XMLView(const XMLNode& node) : node_(node.get()) {}

    /// Whether there is a node.
    [[nodiscard]] bool isValid() const { return node_ != nullptr; }

    /// What kind of node it is; `none` when invalid.
    [[nodiscard]] Kind kind() const;

    /// The name of an element; the text of anything else, with entities resolved, up to its first NUL. Empty for a
    /// document.
    [[nodiscard]] std::string_view value() const;

    /// The line of the parsed text where it begins, counted from 1; 0 when not parsed.
    [[nodiscard]] int line() const;

    /// The first node inside it; invalid when it is empty.
    [[nodiscard]] XMLView firstChild() const;

    /// The next node inside the same parent; invalid after the last.
    [[nodiscard]] XMLView next() const;

    /// The first attribute of an element; invalid when there is none.
    [[nodiscard]] XMLAttributeView firstAttribute() const;

private:
    explicit XMLView(const void* node) : node_(node) {}

    const void* node_ = nullptr;
};

}  // namespace lv
