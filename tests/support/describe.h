#pragma once

#include <tests/support/colours.h>
#include <tests/support/member_lists.h>

#include <string>

namespace lv::test {

/// The members of a value, a line each, or a plain value as text. Two values are equal in every member exactly when
/// these texts are; their difference tells which member it is.
template <class T>
[[nodiscard]] std::string describe(T value) {
    if constexpr (isPlain<T>) {
        return textOf(Place(&value));
    } else {
        return textOf(MemberList::listOf(value));
    }
}

}  // namespace lv::test
