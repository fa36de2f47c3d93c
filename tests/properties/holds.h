#pragma once

#include <functional>
#include <string>

namespace lv::test {

/// Fails the test when the property does not hold for the cases that RapidCheck makes for it. From which seed, and
/// whether failing ones are shrunk, is told by the environment variable RC_PARAMS; so is how many there are, unless it
/// says nothing of that.
void expectHolds(const std::function<void()>& property, int cases);

/// Fails the case with the lines in which the texts differ.
void requireEqual(const std::string& actual, const std::string& expected);

/// Fails the case when the texts have a line in common.
void requireAllLinesDiffer(const std::string& actual, const std::string& other);

}  // namespace lv::test
