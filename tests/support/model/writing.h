#pragma once

#include <tests/support/model/Node.h>

#include <tinyxml2.h>

namespace lv::test {

/// Appends the root element with all that the description says is written.
///
/// \param hlgSwitch  that of the record that is printed
void write(const Node& root, tinyxml2::XMLDocument& document, bool hlgSwitch);

}  // namespace lv::test
