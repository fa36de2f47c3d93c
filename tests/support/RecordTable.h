#pragma once

#include <lvdata/core/Description.h>
#include <tests/support/MarkdownTable.h>

#include <string>

namespace lv::test {

/// The table of a record's page in docs/records, as the description says it: a row for each attribute, text and element
/// below the root element. The column "Member" is empty, since that is written by hand.
[[nodiscard]] MarkdownTable recordTableOf(const Description& record);

}  // namespace lv::test
