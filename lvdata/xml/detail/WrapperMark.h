#pragma once

#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/detail/handle.h>

#include <cstdint>

namespace lv::detail {

/// What the library tells one of its own functions with a wrapper that it passes to it directly.
///
/// A copy of a marked wrapper is not marked. So a function that receives a marked one by value was called by the
/// library: an application can pass the mark on by reference only, and no function that takes a reference looks at it.
class WrapperMark {
public:
    /// An element whose document is as it was parsed. To be passed as it is returned, since a named one would be
    /// copied.
    [[nodiscard]] static XMLElement asParsed(tinyxml2::XMLElement* element) {
        return withMark(toHandle(element), parsedMark);
    }

    [[nodiscard]] static bool isAsParsed(const XMLElement& element) { return hasMark(element, parsedMark); }

    /// Marks the parent that a `RecordParent` is.
    static void markParent(XMLNode& parent) { parent.node_ = withMark(parent.get(), parentMark); }

    [[nodiscard]] static bool isMarkedParent(const XMLNode& parent) { return hasMark(parent, parentMark); }

private:
    static constexpr std::uintptr_t parsedMark = 1;
    static constexpr std::uintptr_t parentMark = 2;
    static_assert((parsedMark | parentMark) == XMLNode::marks);

    // NOLINTBEGIN(*-reinterpret-cast, performance-no-int-to-ptr)
    [[nodiscard]] static void* withMark(void* handle, std::uintptr_t mark) {
        return reinterpret_cast<void*>(reinterpret_cast<std::uintptr_t>(handle) | mark);
    }

    [[nodiscard]] static bool hasMark(const XMLNode& wrapper, std::uintptr_t mark) {
        return (reinterpret_cast<std::uintptr_t>(wrapper.node_) & mark) != 0;
    }
    // NOLINTEND(*-reinterpret-cast, performance-no-int-to-ptr)
};

}  // namespace lv::detail
