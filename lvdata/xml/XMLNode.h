#pragma once

#include <lvdata/export.h>

namespace lv {

/// A node of an XML document, or nothing.
///
/// The wrapper is a handle: it owns no node, copying it copies the handle, and it is good for as long as the document
/// lives that holds the node. A wrapper without a node is invalid, which is a normal value that stands for absence:
/// every operation on it is safe and does nothing.
///
/// `const` speaks of the wrapper, not of the node: what changes the node leaves the handle as it is. A document and all
/// wrappers into it belong to one thread at a time.
class LVDATA_EXPORT XMLNode {
public:
    /// An invalid wrapper.
    XMLNode() = default;

    /// Wraps a node of the XML library, handed over as an untyped `tinyxml2::XMLNode*`; null makes an invalid wrapper.
    explicit XMLNode(void* node) : node_(node) {}

    virtual ~XMLNode();
    XMLNode(const XMLNode&) = default;
    XMLNode& operator=(const XMLNode&) = default;
    XMLNode(XMLNode&&) = default;
    XMLNode& operator=(XMLNode&&) = default;

    /// Whether there is a node.
    [[nodiscard]] bool isValid() const { return node_ != nullptr; }

    /// What `type` answers for a document, for an element, and for anything else.
    static constexpr int documentType = 1;
    static constexpr int elementType = 2;
    static constexpr int otherType = 0;

    /// The kind of node: 1 for a document, 2 for an element, 0 for anything else and for an invalid wrapper.
    [[nodiscard]] int type() const;

    /// The untyped handle, null when invalid; from a const wrapper as well.
    [[nodiscard]] void* get() const { return node_; }

private:
    void* node_ = nullptr;
};

}  // namespace lv
