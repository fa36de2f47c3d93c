#pragma once

#include <lvdata/core/Description.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lv::analysis {

/// The possible content of a described place in printed documents, as far as it does not depend on other places.
struct Constraint {
    /// Whether it exists whenever its parent does. For a text: whether the element always has one.
    bool isRequired = false;

    /// The texts that it can have; empty: any of its content.
    std::vector<std::string> texts{};

    /// Whether its text is never empty. Used only for strings.
    bool isNotEmpty = false;

    /// The numbers of entries that an array can have; empty: any.
    std::vector<std::size_t> lengths{};
};

/// The constraint of what is described.
[[nodiscard]] Constraint constraintOf(const Description& facts);

/// Whether numbers are described in their unit, or as documents store them.
enum class Scale { stored, natural };

/// Its meaning, its unit, and when it is written, in sentences; empty when there is nothing to say.
[[nodiscard]] std::string explanationOf(const Description& facts, Scale scale);

}  // namespace lv::analysis
