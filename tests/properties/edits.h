#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <rapidcheck.h>

namespace lv::test {

/// One thing that another program, or a person, may have done to a document.
struct Edit {
    std::uint32_t what = 0;       ///< which of the things that `edited` knows
    std::uint32_t where = 0;      ///< at which element, counted in document order
    std::uint32_t attribute = 0;  ///< in which attribute, where one is set
    std::uint32_t text = 0;       ///< with which text, where one is put
};

std::ostream& operator<<(std::ostream& out, const Edit& edit);

/// The document with elements removed, left without their neighbours, emptied, repeated, renamed, moved, with other
/// texts and attributes, comments and CDATA sections. It stays well-formed, and its root keeps its name.
[[nodiscard]] std::string edited(const std::string& document, const std::vector<Edit>& all);

}  // namespace lv::test

template <>
struct rc::Arbitrary<lv::test::Edit> {
    static Gen<lv::test::Edit> arbitrary();
};
