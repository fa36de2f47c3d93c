#pragma once

#include <lvdata/core/DataObject.h>

#include <memory>
#include <string>
#include <string_view>

namespace tool {

/// A fresh record of the class with that root element; null when no class has it.
[[nodiscard]] std::unique_ptr<lv::DataObject> makeRecord(std::string_view rootElementName);

/// The root elements that `makeRecord` knows, as a list for the user: "AssetInfo, CorrelationInfo".
[[nodiscard]] std::string knownRootElements();

}  // namespace tool
