#pragma once

#include <lvdata/core/Description.h>
#include <lvdata/core/Quantity.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace lv::detail {

class Draft;

/// What a condition of a visit says. Its subjects are members, named by their addresses; `Draft` knows which elements
/// those are.
struct DraftCondition {
    /// All but the subjects and the alternatives.
    Condition words;
    std::vector<const void*> subjects{};
    std::vector<const DraftCondition*> alternatives{};
};

/// A quantity, and what chooses it.
struct DraftQuantityWhen {
    const DraftCondition* when;
    const Quantity* quantity;
};

// These make a condition that lives as long as the draft. They are plain calls, so that the sources of the records,
// each of which says its conditions, stay small.

/// That a member is, or is not, one of some texts or numbers.
const DraftCondition* draftComparison(Draft& draft, Condition::Kind kind, const void* subject,
                                      const std::string_view* texts, std::size_t count);
const DraftCondition* draftComparison(Draft& draft, Condition::Kind kind, const void* subject,
                                      const unsigned int* numbers, std::size_t count);

/// Something of one member.
const DraftCondition* draftOfOne(Draft& draft, Condition::Kind kind, const void* subject);

/// That members have so many entries.
const DraftCondition* draftEntries(Draft& draft, std::size_t entries, const void* const* subjects, std::size_t count);

const DraftCondition* draftAnyOf(Draft& draft, const DraftCondition* const* alternatives, std::size_t count);
const DraftCondition* draftHLGSwitch(Draft& draft);
const DraftCondition* draftRule(Draft& draft, const char* words, const void* const* subjects, std::size_t count);

}  // namespace lv::detail
