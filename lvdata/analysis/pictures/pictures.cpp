#include <lvdata/analysis/pictures/pictures.h>

namespace lv::analysis {

std::string pictureStyle() {
    return "";
}

std::string gamutPicture(const ModeFigures&, colour::Plane, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string tonePicture(const ModeFigures&, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string balancePicture(const ModeFigures&, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string tablesPicture(const ModeFigures&, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string patchesPicture(const ModeFigures&, const LimitSet*, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string mapPicture(const MapFigures&, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string sixColoursPicture(const ModeFigures&, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

std::string historyPicture(const HistorySeries&, const FigureLimit*, const PictureForm&) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>\n";
}

}  // namespace lv::analysis
