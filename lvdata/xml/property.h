#pragma once

#include <utility>

namespace lv {

/// A value that may be absent: the value itself and a flag that says whether it is set.
///
/// Every optional field of a record is a property. Reading an element sets the flag to "the element was found" and
/// replaces the value only if it was; writing emits the element only if the flag is set. So `value` is always there and
/// may be copied, but it means something only while `hasValue` is true; after a miss it still holds the earlier value.
///
/// A plain value: copying copies both members, nothing is shared. Distinct objects may be used from distinct threads.
template <class T>
struct property {
    /// The value. Writing to it directly does not touch the flag; `set` does both.
    T value{};

    /// Whether the value is set: by the caller, or by a document that was read.
    bool hasValue = false;

    /// Replaces the value and sets the flag.
    void set(T newValue) {
        value = std::move(newValue);
        hasValue = true;
    }

    /// Two properties are equal when both members are, including the value of a cleared flag.
    friend bool operator==(const property& left, const property& right) {
        return left.hasValue == right.hasValue && left.value == right.value;
    }

    /// The opposite of `==`.
    friend bool operator!=(const property& left, const property& right) { return !(left == right); }
};

}  // namespace lv
