#pragma once

#include <tests/support/MemberLine.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace lv::test {

/// What a record may look like whose reading was broken off: each value and each flag as it was before or as the
/// document has it. A list may be shorter, and its last row read in part.
class Mixture {
public:
    /// \param before, whole  descriptions of the record untouched and read to the end
    Mixture(const std::string& before, const std::string& whole);

    /// The lines of a description that are from neither.
    [[nodiscard]] std::vector<std::string> strangersIn(const std::string& description) const;

private:
    void add(const std::string& description);

    // By the name of the member. Of a list: what is known of its length.
    std::map<std::string, std::set<std::string>> values_;
    std::map<std::string, std::set<Flag>> flags_;
};

}  // namespace lv::test
