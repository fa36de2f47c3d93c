#pragma once

#include "ToolTest.h"

#include <tests/support/lines.h>

#include <algorithm>
#include <string>

#include <gmock/gmock.h>

using lv::test::contains;

inline const std::string studio = exampleData("studio.xml");

/// What tells monitors and their documents apart.
struct MonitorText {
    std::string name = "Wall";
    std::string serial = "1";
    std::string uuid = "u-1";
    std::string time = "2024-05-02T09:31:00";  // of the calibration of mode 2, the only mode
};

/// The document of a monitor that was calibrated.
inline std::string monitor(const MonitorText& text = {}) {
    return "<MonitorInfo Version='2' MinorVersion='2'><UUID>" + text.uuid +
           "</UUID><MonitorConfiguration Version='2' MinorVersion='0'><Name>" + text.name +
           "</Name><Model>M</Model><Serial>" + text.serial +
           "</Serial></MonitorConfiguration><CalibrationModeResult Version='2' MinorVersion='0'>"
           "<ColorMode Type='Calibration'><Index>2</Index><Name>Photo</Name><CalibratedTime>" +
           text.time +
           "</CalibratedTime><BasicData Version='3' MinorVersion='0'><JustCalibratedWhite>114132400|120027400|130626000"
           "</JustCalibratedWhite></BasicData></ColorMode></CalibrationModeResult></MonitorInfo>";
}

/// A test of a subcommand that tells of monitors.
class MonitorTest : public ToolTest {
protected:
    using Arguments = std::vector<std::string>;

    /// What is written on standard output without failure.
    [[nodiscard]] std::string made(const Arguments& arguments, const Surroundings& around = {}) const {
        const Outcome outcome = run(arguments, around);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
        EXPECT_EQ(outcome.error, "");
        return outcome.output;
    }
};
