#pragma once

#include "ToolTest.h"

#include <sstream>

inline const std::string noFindings = "Findings      none\n";

inline std::vector<std::string> linesIn(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// A mode that follows the signal, so that a document with it has no findings.
inline std::string mode(const std::string& index, const std::string& name) {
    return "<ColorMode Type='SyncSignal'><Index>" + index + "</Index><Name>" + name +
           "</Name><Availability>1</Availability><ParameterSetting Version='2' MinorVersion='0'>"
           "<Brightness Type='SyncSignal'/><WhitePoint Type='Fixed'><Fixed>D65</Fixed></WhitePoint>"
           "<Gamma Type='SyncSignal'/><Gamut Type='SyncSignal'><Clipping>0</Clipping></Gamut></ParameterSetting>"
           "<ProfilePolicy Version='2' MinorVersion='0'/></ColorMode>";
}

inline std::string modes(const std::string& rows) {
    return "<ColorModeSettings Version='2' MinorVersion='0'>" + rows + "</ColorModeSettings>";
}

inline std::string configuration(const std::string& content) {
    return "<MonitorConfiguration Version='2' MinorVersion='0'>" + content + "</MonitorConfiguration>";
}

class ShowTest : public ToolTest {
protected:
    /// What is shown of a document without failure.
    [[nodiscard]] std::string shown(const std::string& document, std::vector<std::string> options = {}) const {
        options.insert(options.begin(), {"show", "-"});
        const Outcome outcome = run(options, {document});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.error, "");
        return outcome.output;
    }
};
