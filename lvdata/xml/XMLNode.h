#pragma once

#include <lvdata/export.h>

#include <cstdint>

namespace lv {

namespace detail {
class WrapperMark;
}

/// A node of an XML document, or nothing.
///
/// The wrapper is a handle: it does not own the node, copying it copies the handle, and it is valid for as long as the
/// document that holds the node. A wrapper without a node is invalid, which is a normal value that stands for absence:
/// every operation on it is safe and does nothing.
///
/// `const` refers to the wrapper, not to the node: changing the node leaves the handle as it is. A document and all
/// wrappers into it belong to one thread at a time.
class LVDATA_EXPORT XMLNode {
public:
    /// An invalid wrapper.
    XMLNode() = default;

    /// Wraps a node of the XML library, passed as an untyped `tinyxml2::XMLNode*`; null makes an invalid wrapper.
    /// Handles convert to wrappers: `XMLElement element = handle;` and `return nullptr;` are what they look like.
    XMLNode(void* node) : node_(node) {}  // NOLINT(google-explicit-constructor)

    virtual ~XMLNode();
    XMLNode(const XMLNode& other) : node_(other.get()) {}
    XMLNode& operator=(const XMLNode& other) {  // NOLINT(cert-oop54-cpp): to itself the handle is the same
        node_ = other.get();
        return *this;
    }

    /// Whether there is a node.
    [[nodiscard]] bool isValid() const { return get() != nullptr; }

    /// What `type` answers for a document, for an element, and for anything else.
    static constexpr int documentType = 1;
    static constexpr int elementType = 2;
    static constexpr int otherType = 0;

    /// The kind of node: 1 for a document, 2 for an element, 0 for anything else and for an invalid wrapper.
    [[nodiscard]] int type() const;

    /// The untyped handle, null when invalid; from a const wrapper as well.
    [[nodiscard]] void* get() const {
        // NOLINTNEXTLINE(*-reinterpret-cast, performance-no-int-to-ptr)
        return reinterpret_cast<void*>(reinterpret_cast<std::uintptr_t>(node_) & ~std::uintptr_t{marks});
    }

private:
    friend class detail::WrapperMark;

    // The handle. The lowest bits of an address, which are 0, mark a wrapper that the library passes to one of its own
    // functions directly. No copy has a mark; detail/WrapperMark.h says what follows from that.
    static constexpr unsigned int marks = 3;
    void* node_ = nullptr;
};

}  // namespace lv
