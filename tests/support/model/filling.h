#pragma once

#include <tests/support/model/traits.h>

namespace lv::test {

/// Gives every member a value of its own, none its default, sets every flag, and gives every list rows. Arrays get the
/// lengths of their traits in turn. A nested record looks like one that stands alone.
void fill(const Members& members, const TraitsByPath& traits = {});

/// Gives the members that conditions compare with texts such texts that as much as possible is written.
void steer(Node& root);

}  // namespace lv::test
