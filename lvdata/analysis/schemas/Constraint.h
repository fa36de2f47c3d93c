#pragma once

#include <lvdata/core/Description.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lv::analysis {

/// What documents that records print have in a described place, as far as it does not depend on other places.
struct Constraint {
    /// Whether it is there whenever its parent is. For a text: whether the element is never empty for lack of it.
    bool isRequired = false;

    /// The texts that it can have; empty: any of its content.
    std::vector<std::string> texts{};

    /// Whether its text is never empty. Only said of strings.
    bool isNotEmpty = false;

    /// The numbers of entries that an array can have; empty: any.
    std::vector<std::size_t> lengths{};
};

/// The constraint of what is described.
[[nodiscard]] Constraint constraintOf(const Description& facts);

/// Whether numbers are told in their unit, or as documents store them.
enum class Scale { stored, natural };

/// What it means, in which unit, and when it is written: some sentences; empty when there is nothing to say.
[[nodiscard]] std::string explanationOf(const Description& facts, Scale scale);

}  // namespace lv::analysis
