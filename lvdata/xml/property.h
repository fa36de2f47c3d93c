#pragma once

#include <utility>

namespace lv {

/// A value that may be absent: the value itself and a flag that says whether it is set.
///
/// Every optional field of a record is a property. Reading sets the flag to whether the element was found, and replaces
/// the value only if it was; writing emits the element only if the flag is set. So `value` always exists and may be
/// copied, but it is meaningful only while `hasValue` is true; if the element was not found, `value` keeps the earlier
/// value.
///
/// A plain value: copying copies both members, nothing is shared. Different threads may use different objects.
template <class T>
struct property {
    /// The value. Assigning to it directly does not change the flag; `set` does both.
    T value{};

    /// Whether the value is set: by the caller, or by a document that was read.
    bool hasValue = false;

    /// Replaces the value and sets the flag.
    void set(T newValue) {
        value = std::move(newValue);
        hasValue = true;
    }

    /// Two properties are equal when both members are equal. The value is compared even if the flag is clear.
    friend bool operator==(const property& left, const property& right) {
        return left.hasValue == right.hasValue && left.value == right.value;
    }

    /// The opposite of `==`.
    friend bool operator!=(const property& left, const property& right) { return !(left == right); }
};

}  // namespace lv
