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

[[nodiscard]] bool isArray(const Member& member);

/// Whether the member is part of a row of a list.
[[nodiscard]] bool isInRow(const Member& member);

/// Whether the member is the number of rows.
[[nodiscard]] bool isRowCount(const Member& member);

/// The member's name within its row, the innermost one.
[[nodiscard]] std::string nameInRow(const Member& member);

/// Whether the member tells that something was read that may be printed always: it is then read back from a document
/// that had none.
[[nodiscard]] bool tellsOfReading(const Member& member);

/// Whether the member is a plain one that tells whether a record, or anything of a list, was found.
[[nodiscard]] bool tellsOfRecord(const Member& member);

/// Whether reading computes the member, or its flag, from the values that the record then holds, earlier ones included.
[[nodiscard]] bool followsFromValues(const Member& member);

/// The members of a record by name, taken from the text of `describe`.
class Members {
public:
    explicit Members(const std::string& description);

    [[nodiscard]] const std::vector<Member>& all() const& { return members_; }
    void all() const&& = delete;  // they would be gone before one can look at them

    [[nodiscard]] bool has(const std::string& name) const;

    /// The member of that name; a `Find` when there is none.
    [[nodiscard]] const Member& named(const std::string& name) const;

    /// How many rows the list of that name has.
    [[nodiscard]] int rowsIn(const std::string& list) const;

    /// Whether the lists that the member is in, if any, are as long as those of `others`.
    [[nodiscard]] bool hasRowsOf(const Members& others, const Member& member) const;

    /// Whether the member is part of a nested record that was not found; those in rows come and go with their row.
    [[nodiscard]] bool isInMissingRecord(const Member& member) const;

private:
    void noteMissing(const Member& member);
    [[nodiscard]] bool isMissingRecord(const std::string& name) const;

    std::vector<Member> members_;
    std::map<std::string, std::size_t> indices_;
    std::set<std::string> missing_;  // whatever has a clear flag
};

/// Whether how a member was read followed from a `type` that is left over from an earlier document: of a target curve,
/// which reads its text as its type says, or of what reads nothing for the type "SyncSignal".
/// \param record  what has read the earlier document and the later one
/// \param later   a fresh one that has read the later document alone
[[nodiscard]] bool isReadByLeftType(const Members& record, const Members& later, const Member& member);

}  // namespace lv::fuzz
