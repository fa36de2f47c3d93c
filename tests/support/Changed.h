#pragma once

#include <tests/support/Member.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lv::test {

/// Gives every member another value, and every list a row more; or changes one place of them alone.
class Changed : public MemberVisitor {
public:
    Changed() = default;

    /// \param place  counted from 0
    explicit Changed(std::size_t place) : only_(place) {}

    /// The path of the last place that was changed; empty when there was no such place.
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    void visit(const std::string& path, const Place& place) override {
        if (isMeant(path)) {
            std::visit([](auto* value) { change(*value); }, place);
        }
    }

    void visitRows(const std::string& path, Rows& rows) override {
        if (isMeant(path)) {
            rows.resize(rows.size() + 1);
        }
    }

    [[nodiscard]] bool isMeant(const std::string& path) {
        const bool isMeant = !only_ || *only_ == seen_;
        path_ = isMeant ? path : path_;
        ++seen_;
        return isMeant;
    }

    static void change(bool& value) { value = !value; }
    static void change(int& value) { value ^= 1; }
    static void change(unsigned int& value) { value ^= 1U; }
    static void change(double& value) { value = 1.0 - value; }
    static void change(std::string& value) { value += 'x'; }

    template <class Number>
    static void change(std::vector<Number>& values) {
        values.push_back(1);
    }

    std::optional<std::size_t> only_{};
    std::size_t seen_ = 0;
    std::string path_{};
};

}  // namespace lv::test
