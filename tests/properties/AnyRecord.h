#pragma once

#include <tests/support/Member.h>
#include <tests/support/model/traits.h>
#include <tests/support/round_trip.h>

#include <memory>
#include <string>
#include <vector>

namespace lv::test {

/// A record of any class, with what the properties do to it: so that each of them is written, and compiled, once.
class AnyRecord {
public:
    AnyRecord() = default;
    AnyRecord(const AnyRecord&) = delete;
    AnyRecord& operator=(const AnyRecord&) = delete;
    virtual ~AnyRecord() = default;

    [[nodiscard]] virtual std::string rootName() const = 0;

    /// All members, a line each.
    [[nodiscard]] virtual std::string description() const = 0;

    [[nodiscard]] virtual Members members() = 0;
    [[nodiscard]] virtual const TraitsByPath& traits() const = 0;

    [[nodiscard]] virtual std::string text(const PrintForm& form) const = 0;
    [[nodiscard]] virtual bool parse(const std::string& text) = 0;

    /// What printing and parsing are to do.
    [[nodiscard]] virtual std::string textByTheRules(const PrintForm& form) const = 0;
    [[nodiscard]] virtual bool parseByTheRules(const std::string& text) = 0;

    [[nodiscard]] virtual std::unique_ptr<AnyRecord> fresh() const = 0;

    /// The record's own copy construction, assignment and comparison; the other one is of the same class.
    [[nodiscard]] virtual std::unique_ptr<AnyRecord> copy() const = 0;
    virtual void assign(const AnyRecord& other) = 0;
    [[nodiscard]] virtual bool isEqualTo(const AnyRecord& other) const = 0;
};

/// A record that several may look at.
using SharedRecord = std::shared_ptr<const AnyRecord>;

/// A fresh record of every class.
[[nodiscard]] std::vector<SharedRecord> everyRecord();

}  // namespace lv::test
