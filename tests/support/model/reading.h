#pragma once

#include <tests/support/model/Found.h>
#include <tests/support/model/Node.h>

namespace lv::test {

/// Fills the members from the root element, in whatever state they are, as the format and the description demand.
/// False, with nothing changed, when the element has a different name.
bool read(Node& root, const Found& element);

/// Gives the value what the text of an element says.
void assign(const Place& place, const std::string& text);

}  // namespace lv::test
