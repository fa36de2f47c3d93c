#pragma once

#include <tests/properties/Members.h>
#include <tests/support/every_record.h>

#include <string>
#include <vector>

namespace lv::test {

// What a round trip loses in every record.

/// Ends at the first NUL; each CR LF, CR and LF CR is one LF.
[[nodiscard]] std::string keptInAttribute(const std::string& text);

/// The same; and nothing but white space is no text at all.
[[nodiscard]] std::string keptInElement(const std::string& text);

/// A base after a round trip: both versions are written whatever their flags, and the HLG switch never is.
void loseInBase(DataObject& record);

/// To every member but those of nested records: values that are not set are lost, texts come back as above, and an
/// array without entries is not found again.
class GeneralLosses : public Members {
private:
    void visit(bool& /*member*/) override {}
    void visit(int& /*member*/) override {}
    void visit(unsigned int& /*member*/, const MemberTraits& /*traits*/) override {}
    void visit(std::string& member, const MemberTraits& traits) override;
    void visit(std::vector<int>& /*member*/, const MemberTraits& /*traits*/) override {}
    void visit(std::vector<unsigned int>& /*member*/, const MemberTraits& /*traits*/) override {}

    [[nodiscard]] bool entersRecords() const override { return false; }
    [[nodiscard]] bool resetsProperty(bool hasValue, bool /*isDefault*/) override { return !hasValue; }
    void endOfArray(bool& hasValue, bool isEmpty) override { hasValue = hasValue && !isEmpty; }
};

template <class Record>
void loseInGeneral(Record& record) {
    loseInBase(record);
    GeneralLosses losses;
    members(losses, record);
}

/// Makes the record what is left of it when it was printed and parsed into a fresh one.
///
/// \param hlgSwitch  the switch that is in force: that of the record that was printed
void lose(AssetInfo& record, bool hlgSwitch);
void lose(BasicData& record, bool hlgSwitch);
void lose(CalibrationModeResult& record, bool hlgSwitch);
void lose(CandelaMap& record, bool hlgSwitch);
void lose(ColorModeSettings& record, bool hlgSwitch);
void lose(CorrelationInfo& record, bool hlgSwitch);
void lose(MeasurementData& record, bool hlgSwitch);
void lose(MonitorConfiguration& record, bool hlgSwitch);
void lose(MonitorInfo& record, bool hlgSwitch);
void lose(MonitorParameter& record, bool hlgSwitch);
void lose(ParameterSetting& record, bool hlgSwitch);
void lose(ProfileData& record, bool hlgSwitch);
void lose(ProfilePolicy& record, bool hlgSwitch);
void lose(SelfCalibrationSchedule& record, bool hlgSwitch);
void lose(StandardModeResult& record, bool hlgSwitch);
void lose(TargetSetting& record, bool hlgSwitch);

/// A nested record that is written when `isWritten` says so.
template <class Record>
void loseNested(Record& nested, bool isWritten, bool hlgSwitch) {
    if (isWritten) {
        lose(nested, hlgSwitch);
    } else {
        nested = Record();
    }
}

template <class Record>
void loseNested(property<Record>& nested, bool hlgSwitch) {
    loseNested(nested.value, nested.hasValue, hlgSwitch);
}

/// A nested record that is written whatever its flag says.
template <class Record>
void loseWrittenAlways(property<Record>& nested, bool hlgSwitch) {
    nested.hasValue = true;
    loseNested(nested, hlgSwitch);
}

/// Keeps a value only where its element is written.
template <class T>
void keepWhen(bool isWritten, T& member) {
    if (!isWritten) {
        member = T();
    }
}

}  // namespace lv::test
