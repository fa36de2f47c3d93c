#pragma once

#include <lvdata/analysis/report/View.h>

#include <string>
#include <string_view>

namespace lv::analysis {

/// The embedded template of that name, such as "report", filled. Texts are escaped for HTML, except where the template
/// has three braces. Characters that no page can hold become U+FFFD.
[[nodiscard]] std::string filled(std::string_view name, const View& view);

/// The text with the special characters of HTML as references: valid as content of an element and as an attribute in
/// quotation marks.
[[nodiscard]] std::string escapedForHTML(std::string_view text);

/// JSON text for an element "script": without the spaces between values, and without "<", so that nothing in it ends
/// the element. The value is the same. "null" for an empty text.
[[nodiscard]] std::string escapedForScript(std::string_view json);

}  // namespace lv::analysis
