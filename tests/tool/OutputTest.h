#pragma once

#include "ToolTest.h"

#include <string>
#include <vector>

/// A document in a layout of its own, and as the tool prints it without declaration.
inline const std::string untidy = "<AssetInfo>\n<Asset1>one</Asset1></AssetInfo>";
inline const std::string tidy =
    "<AssetInfo Version=\"1\" MinorVersion=\"0\">\n    <Asset1>one</Asset1>\n</AssetInfo>\n";

/// A record that makes some megabytes of output.
inline std::string large() {
    return "<AssetInfo><Asset1>" + std::string(3'000'000, 'x') + "</Asset1></AssetInfo>";
}

/// Runs the tool in a folder with "in.xml", which is untidy, "broken.xml", which is not XML, and "large.xml".
class OutputTest : public ToolTest {
protected:
    OutputTest();

    /// Formats "in.xml" into the named file.
    Outcome formatTo(const std::string& output, const Surroundings& around = {}) const;

    /// Whether the folder holds the inputs and these, and nothing else.
    [[nodiscard]] bool holdsBesides(std::vector<std::string> others) const;
};
