#pragma once

#include "ToolTest.h"

#include <tools/lvdata/Failure.h>
#include <tools/lvdata/InputOptions.h>
#include <tools/lvdata/InputWalk.h>

/// A folder with some documents, seen from inside.
class InputWalkTest : public ToolTest {
protected:
    using Names = std::vector<std::string>;

    InputWalkTest() : before_(std::filesystem::current_path()) { std::filesystem::current_path(path(".")); }
    ~InputWalkTest() override { std::filesystem::current_path(before_); }
    InputWalkTest(const InputWalkTest&) = delete;
    InputWalkTest& operator=(const InputWalkTest&) = delete;
    InputWalkTest(InputWalkTest&&) = delete;
    InputWalkTest& operator=(InputWalkTest&&) = delete;

    /// The inputs in their order; failures stand among them.
    static Names walk(const tool::InputOptions& options) {
        Names found;
        tool::InputWalk inputs(options);
        while (takeNext(inputs, found)) {
        }
        return found;
    }

    static Names walk(const Names& paths) { return walk(tool::InputOptions{paths, {}, false}); }
    static Names walkList(const std::string& list, bool nulSeparated = false) {
        return walk(tool::InputOptions{{}, {list}, nulSeparated});
    }

    /// Empty files; folders are made where needed.
    void make(const Names& names) const {
        for (const std::string& name : names) {
            std::filesystem::create_directories(path(name).parent_path());
            write(name, "");
        }
    }

private:
    static bool takeNext(tool::InputWalk& inputs, Names& found) {
        try {
            const auto input = inputs.next();
            if (input) {
                found.push_back(input->file);
            }
            return input.has_value();
        } catch (const tool::Failure& failure) {
            found.emplace_back(failure.what());
            return true;
        }
    }

    std::filesystem::path before_;
};
