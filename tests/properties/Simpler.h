#pragma once

#include <tests/support/Member.h>

#include <cstddef>
#include <string>

namespace lv::test {

/// Makes a record simpler in one place: of all that can be set back to its default, or erased, one. What a failing case
/// is shrunk by, until nothing is left in it that the failure can do without.
class Simpler : public MemberVisitor {
public:
    explicit Simpler(std::size_t place) : place_(place) {}

    /// Whether there was such a place.
    [[nodiscard]] bool done() const { return seen_ > place_; }

private:
    void visit(const std::string& /*path*/, const Place& place) override {
        std::visit([this](auto* value) { reset(*value); }, place);
    }

    void visitRows(const std::string& /*path*/, Rows& rows) override {
        for (std::size_t index = rows.size(); index > 0; --index) {
            if (isThePlace()) {
                rows.erase(index - 1);
            }
        }
    }

    template <class T>
    void reset(T& value) {
        if (value != T() && isThePlace()) {
            value = T();
        }
    }

    [[nodiscard]] bool isThePlace() { return seen_++ == place_; }

    std::size_t place_;
    std::size_t seen_ = 0;
};

}  // namespace lv::test
