#pragma once

#include <lvdata/export.h>

#include <cstdint>

namespace lv {

namespace detail {
class WrapperMark;
}

/// A node of an XML document, or nothing.
///
/// The wrapper is a handle: it does not own the node, copying it copies the handle, and it is valid as long as the
/// document that holds the node. A wrapper without a node is invalid. This is a normal value that means absence: every
/// operation on it is safe and does nothing.
///
/// `const` refers to the wrapper, not to the node: changing the node does not change the handle. Only one thread at a
/// time may use a document and the wrappers into it.
class LVDATA_EXPORT XMLNode {  // NOLINT(*-special-member-functions): moving a handle is copying it
public:
    /// An invalid wrapper, which has no node.
    XMLNode() = default;

    /// Wraps a node of the XML library, passed as an untyped `tinyxml2::XMLNode*`; null makes an invalid wrapper.
    /// Handles convert to wrappers, so `XMLElement element = handle;` and `return nullptr;` compile.
    XMLNode(void* node) : node_(node) {}  // NOLINT(google-explicit-constructor)

    /// Does not delete the node: it belongs to its document.
    virtual ~XMLNode();

    /// Copies the handle: both wrappers then refer to the same node.
    XMLNode(const XMLNode& other) : node_(other.get()) {}

    /// Makes this wrapper refer to the same node as `other`. No node is changed.
    XMLNode& operator=(const XMLNode& other) {  // NOLINT(*-unhandled-self-assignment,cert-oop54-cpp): the same handle
        node_ = other.get();
        return *this;
    }

    /// Whether there is a node.
    [[nodiscard]] bool isValid() const { return get() != nullptr; }

    static constexpr int documentType = 1;  ///< What `type` returns for a document.
    static constexpr int elementType = 2;   ///< What `type` returns for an element.
    static constexpr int otherType = 0;     ///< What `type` returns for anything else and for an invalid wrapper.

    /// The kind of node: `documentType`, `elementType` or `otherType`. Also safe on an invalid wrapper.
    [[nodiscard]] int type() const;

    /// The untyped handle; null when invalid. It is not const, even from a const wrapper.
    [[nodiscard]] void* get() const {
        // NOLINTNEXTLINE(*-reinterpret-cast, performance-no-int-to-ptr)
        return reinterpret_cast<void*>(reinterpret_cast<std::uintptr_t>(node_) & ~std::uintptr_t{marks});
    }

private:
    friend class detail::WrapperMark;

    // The handle. The lowest bits of an address are 0. The library uses them to mark a wrapper that it passes directly
    // to one of its own functions. Copies have no mark. detail/WrapperMark.h explains why.
    static constexpr unsigned int marks = 3;
    void* node_ = nullptr;
};

}  // namespace lv
