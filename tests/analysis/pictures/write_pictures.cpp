// Writes pictures into a folder: write_pictures FOLDER DOCUMENT. Those of a monitor's document, and of made-up figures.

#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace lv::analysis;  // NOLINT(*-using-namespace): a short program

namespace {

std::filesystem::path folder;

void write(const std::string& name, const std::string& picture) {
    std::ofstream(folder / (name + ".svg"), std::ios::binary) << picture;
}

void writeMode(const std::string& name, const ModeFigures& mode) {
    const LimitSet limits = lv::test::sampleLimits();
    write(name + "-gamut-xy", gamutPicture(mode, colour::Plane::xy));
    write(name + "-gamut-uv", gamutPicture(mode, colour::Plane::uv));
    write(name + "-tone", tonePicture(mode));
    write(name + "-balance", balancePicture(mode));
    write(name + "-tables", tablesPicture(mode));
    write(name + "-patches", patchesPicture(mode, &limits));
    write(name + "-six-colours", sixColoursPicture(mode));
}

bool writeMonitor(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    lv::MonitorInfo monitor;
    if (!monitor.parseXML(text.str())) {
        return false;
    }
    KnownUnits known;
    known.gridWidth = 5;
    const MonitorFigures figures = monitorFigures(monitor, known);
    for (const ModeFigures& mode : figures.modes) {
        writeMode("studio-" + mode.index, mode);
    }
    write("studio-uniformity", mapPicture(figures.uniformity));
    write("studio-brightness", mapPicture(figures.brightness));
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        return 2;
    }
    folder = arguments[1];
    if (!writeMonitor(arguments[2])) {
        return 1;
    }
    writeMode("sample", lv::test::sampleMode());
    writeMode("noisy", lv::test::noisyMode(1024));
    writeMode("empty", ModeFigures());
    const FigureLimit limit{"", {}, 1.5, ""};
    write("sample-history", historyPicture(lv::test::sampleSeries(), &limit));
    write("sample-map", mapPicture(lv::test::sampleMap()));
    write("sample-map-unknown", mapPicture(lv::test::noisyMap(25, 0)));
    write("noisy-map", mapPicture(lv::test::noisyMap(10000, 100)));
    return 0;
}
