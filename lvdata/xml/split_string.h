#pragma once

#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// The pieces of `text` between the separators, in order.
///
/// Empty pieces are kept: a trailing separator gives a last empty piece, and an empty text gives one empty piece. So
/// "1||3" at "|" gives "1", "" and "3".
///
/// After a separator, the search continues one character after its start, not after its end. For a separator of one
/// character this makes no difference; with a longer one, every piece after the first begins with the separator's
/// remaining characters. With an empty separator, the whole text is the only piece.
///
/// Never fails; may be called from any thread.
[[nodiscard]] LVDATA_EXPORT std::vector<std::string> split_string(const std::string& text,
                                                                  const std::string& separator);

}  // namespace lv
