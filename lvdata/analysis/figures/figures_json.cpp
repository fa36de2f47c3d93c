#include <lvdata/analysis/figures/lines.h>

#include <lvdata/analysis/figures/digits.h>
#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/snake_case.h>
#include <lvdata/analysis/utf8.h>

#include <string_view>

namespace lv::analysis {
namespace {

/// Writes keys with their values. Texts are made UTF-8, so the result always is.
class Writer {
public:
    explicit Writer(std::string& out) : json_(out, {true, false}) {}

    void text(std::string_view key, std::string_view value) {
        json_.key(key);
        json_.string(inUTF8(value));
    }

    /// Null if the user gave none.
    void textOrNull(std::string_view key, std::string_view value) {
        if (value.empty()) {
            nothing(key);
        } else {
            text(key, value);
        }
    }

    void count(std::string_view key, std::size_t value) {
        json_.key(key);
        json_.number(std::to_string(value), Sink::NumberKind::integer);
    }

    void number(double value, int decimals) { json_.number(fixedText(value, decimals), Sink::NumberKind::fraction); }

    /// A figure that is n/a is null, with its reason under a separate key.
    void figure(const std::string& key, const Figure& figure, int decimals) {
        if (figure.value) {
            json_.key(key);
            number(*figure.value, decimals);
            return;
        }
        nothing(key);
        if (!figure.reason.empty()) {
            text(key + "_reason", figure.reason);
        }
    }

    template <class Numbers>
    void numbers(std::string_view key, const Numbers& values, int decimals) {
        json_.key(key);
        json_.beginArray(Sink::Entries::numbers);
        for (const auto value : values) {
            number(static_cast<double>(value), decimals);
        }
        json_.endArray();
    }

    template <class Numbers>
    void numbersOrNull(std::string_view key, const std::optional<Numbers>& values, int decimals) {
        if (values) {
            numbers(key, *values, decimals);
        } else {
            nothing(key);
        }
    }

    void nothing(std::string_view key) {
        json_.key(key);
        json_.null();
    }

    template <class Write>
    void object(std::string_view key, Write write) {
        json_.key(key);
        object(write);
    }

    template <class Write>
    void object(Write write) {
        json_.beginObject();
        write();
        json_.endObject();
    }

    /// An object for each entry.
    template <class Entries, class Write>
    void objects(std::string_view key, const Entries& entries, Write write) {
        json_.key(key);
        json_.beginArray(Sink::Entries::objects);
        for (const auto& entry : entries) {
            object([&] { write(entry); });
        }
        json_.endArray();
    }

    void texts(std::string_view key, const std::vector<std::string>& entries) {
        json_.key(key);
        json_.beginArray(Sink::Entries::objects);
        for (const std::string& entry : entries) {
            json_.string(inUTF8(entry));
        }
        json_.endArray();
    }

private:
    JSONWriter json_;
};

void writeLines(Writer& json, const std::vector<FigureLine>& lines) {
    json.object("figures", [&] {
        for (const FigureLine& line : lines) {
            json.object(line.key, [&] {
                json.textOrNull("unit", line.unit);
                json.figure("target", line.target, line.decimals);
                if (!line.targetText.empty()) {
                    json.text("target_text", line.targetText);
                }
                json.figure("measured", line.measured, line.decimals);
                json.figure("difference", line.difference, line.decimals);
            });
        }
    });
}

void writeTarget(Writer& json, const ModeFigures& mode) {
    json.object("target", [&] {
        json.text("brightness", mode.targetBrightness);
        json.text("black", mode.targetBlack);
        json.text("white", mode.targetWhite);
        json.text("white_standard", mode.targetWhiteStandard);
        json.text("gamma", mode.targetGamma);
        json.text("gamut", mode.targetGamut);
    });
}

void writeMeasuredBy(Writer& json, const MeasuredBy& by) {
    json.object("measured_by", [&] {
        json.text("sensor_name", by.sensorName);
        json.text("sensor_serial", by.sensorSerial);
        json.text("reference_name", by.referenceName);
        json.text("reference_serial", by.referenceSerial);
        json.text("correlation_date", by.correlationDate);
        json.text("software", by.software);
        json.text("executor", by.executor);
        json.text("executed_date", by.executedDate);
        json.text("usage_hours", by.usageHours);
    });
}

void writeTone(Writer& json, const ToneFigures& tone) {
    json.text("tone_curve", tone.targetCurve);
    json.objects("tone_steps", tone.steps, [&](const ToneStep& step) {
        json.figure("signal", {step.signal, ""}, digits::signal);
        json.figure("light", {step.light, ""}, digits::light);
        json.figure("target", step.target, digits::light);
        json.figure("gamma", step.gamma, digits::gamma);
        json.numbersOrNull("balance", step.balance, digits::balance);
    });
}

void writePatches(Writer& json, const SeriesFigures& series) {
    json.textOrNull("patches_reference", series.reference);
    std::vector<std::size_t> worst;
    for (const std::size_t index : series.worst) {
        worst.push_back(series.patches.at(index).number);
    }
    json.numbers("patches_worst", worst, 0);
    json.objects("patches", series.patches, [&](const PatchFigures& patch) {
        json.count("number", patch.number);
        json.numbersOrNull("rgb", patch.RGB, 0);
        json.numbersOrNull("cmyk", patch.CMYK, 0);
        json.numbersOrNull("xyz", patch.XYZ, digits::tristimulus);
        json.numbersOrNull("expected_xyz", patch.expected, digits::tristimulus);
        json.figure("delta_e2000", patch.deltaE2000, digits::deltaE);
    });
}

void writeMode(Writer& json, const ModeFigures& mode, const KnownUnits& known) {
    json.text("index", mode.index);
    json.text("name", mode.name);
    json.text("type", mode.type);
    json.text("calibrated_time", mode.calibratedTime);
    writeTarget(json, mode);
    writeMeasuredBy(json, mode.measuredBy);
    writeLines(json, figureLines(mode, known));
    writeTone(json, mode.tone);
    writePatches(json, mode.series);
    json.objects("six_colours", mode.sixColours, [&](const SixColours& colours) {
        json.text("place", colours.place);
        json.text("name", colours.name);
        json.numbers("values", colours.values, 0);
    });
}

void writeMap(Writer& json, const MapFigures& map) {
    json.object(snakeCase(map.name), [&] {
        json.text("updated_at", map.updatedAt);
        json.count("grid_width", map.gridWidth);
        json.numbers("values", map.values, digits::mapEntry);
        json.numbers("against_centre", map.againstCentre, digits::againstCentre);
        writeLines(json, figureLines(map));
    });
}

void writeIdentity(Writer& json, const MonitorFigures& monitor) {
    json.text("uuid", monitor.uuid);
    json.text("name", monitor.name);
    json.text("model", monitor.model);
    json.text("serial", monitor.serial);
    json.texts("assets", monitor.assets);
}

}  // namespace

std::string figuresJSON(const MonitorFigures& monitor) {
    std::string text;
    Writer json(text);
    json.object([&] {
        json.object("monitor", [&] { writeIdentity(json, monitor); });
        json.textOrNull("y_unit", monitor.known.yUnit);
        json.textOrNull("map_unit", monitor.known.mapUnit);
        json.objects("modes", monitor.modes, [&](const ModeFigures& mode) { writeMode(json, mode, monitor.known); });
        json.object("maps", [&] {
            writeMap(json, monitor.uniformity);
            writeMap(json, monitor.brightness);
        });
    });
    return text;
}

}  // namespace lv::analysis
