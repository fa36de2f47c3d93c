#pragma once

#include <lvdata/analysis/TreeBuilder.h>

#include <deque>
#include <string>
#include <string_view>

namespace lv::analysis {

/// Adds the nodes of a text that a record printed compactly and without a declaration: elements, attributes in double
/// quotation marks, texts, and the five entities of XML. Views are into `text`, or into `unescaped` for texts that held
/// entities.
void addPrinted(TreeBuilder& builder, std::string_view text, std::deque<std::string>& unescaped);

}  // namespace lv::analysis
