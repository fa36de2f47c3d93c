#pragma once

#include <tests/support/MemberLine.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace lv::fuzz {

using test::Flag;

using Member = test::MemberLine;

/// The value of an empty string.
inline constexpr const char* emptyString = "\"\"";

[[nodiscard]] bool isString(const Member& member);

/// Whether the member is a row of a list, part of one, or the number of rows.
[[nodiscard]] bool isInRow(const Member& member);

/// Whether the member tells that a list was read. A list that is printed always is read back from a document that had
/// none.
[[nodiscard]] bool tellsOfReading(const Member& member);

/// Whether reading computes the flag from the values that the record then holds, earlier ones included.
[[nodiscard]] bool followsFromValues(const Member& member);

/// The members of a record by name, taken from the text of `describe`.
class Members {
public:
    explicit Members(const std::string& description);

    [[nodiscard]] const std::vector<Member>& all() const& { return members_; }
    void all() const&& = delete;  // they would be gone before one can look at them

    /// The member of that name; a `Find` when there is none.
    [[nodiscard]] const Member& named(const std::string& name) const;

    /// Whether the member is part of a value whose own flag is clear.
    [[nodiscard]] bool isInMissingRecord(const Member& member) const;

private:
    void noteMissing(const Member& member);

    std::vector<Member> members_;
    std::map<std::string, std::size_t> indices_;
    std::set<std::string> missing_;
};

}  // namespace lv::fuzz
