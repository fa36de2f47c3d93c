#include <lvdata/analysis/pictures/drawing.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <tests/analysis/figures/studio.h>

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::complaintAbout;
using lv::analysis::LimitSet;
using lv::analysis::PictureKind;
using lv::analysis::pictureNames;
using lv::analysis::PictureRefusal;
using lv::analysis::PictureRequest;
using lv::analysis::Snapshot;
using lv::analysis::colour::Plane;
using testing::StartsWith;

std::vector<Snapshot> studio() {
    return {{"studio.xml", "2024-05-02", lv::test::studioFigures()}};
}

std::string drawn(const PictureRequest& request, const LimitSet* limits = nullptr) {
    const auto result = drawPicture(studio(), request, limits);
    return std::get<std::string>(result);
}

PictureRefusal refusal(const std::vector<Snapshot>& snapshots, const PictureRequest& request) {
    const auto result = drawPicture(snapshots, request, nullptr);
    return std::get<PictureRefusal>(result);
}

PictureRequest requestOf(PictureKind kind, const std::string& mode = "", const std::string& figure = "") {
    return {kind, mode, {}, false, figure};
}

}  // namespace

TEST(Drawing, HasAPictureForEachName) {
    std::vector<std::string> pictures;
    for (const auto& each : pictureNames()) {
        pictures.push_back(drawn(requestOf(each.kind)));
        EXPECT_THAT(pictures.back(), StartsWith("<svg"));
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), pictures.back()), 1) << each.name;
    }
    EXPECT_EQ(pictures.size(), 9U);
}

TEST(Drawing, TakesTheFirstModeWithAResultOrTheOneOfTheIndex) {
    const auto figures = lv::test::studioFigures();
    EXPECT_EQ(drawn({}), gamutPicture(figures.modes[2], Plane::uv));
    EXPECT_EQ(drawn({PictureKind::gamut, "3", Plane::xy, false, ""}), gamutPicture(figures.modes[3], Plane::xy));
    EXPECT_EQ(drawn(requestOf(PictureKind::brightness)), mapPicture(figures.brightness));
}

TEST(Drawing, DrawsLimits) {
    const LimitSet& limits = lv::analysis::knownLimitSets().front();
    const auto figures = lv::test::studioFigures();
    EXPECT_EQ(drawn(requestOf(PictureKind::patches), &limits), patchesPicture(figures.modes[2], &limits));
    EXPECT_NE(drawn(requestOf(PictureKind::history), &limits), drawn(requestOf(PictureKind::history)));
}

TEST(Drawing, SaysWhatThereIsNot) {
    const PictureRefusal mode = refusal(studio(), requestOf(PictureKind::tone, "9"));
    EXPECT_EQ(mode.document, "studio.xml");
    EXPECT_EQ(mode.reason, "no colour mode has the index 9; known indices: 0, 1, 2, 3, 4");
    EXPECT_EQ(refusal({{"a.xml", "", {}}}, {}).reason, "there are no colour modes");
    const PictureRefusal figure = refusal(studio(), requestOf(PictureKind::history, "", "taste"));
    EXPECT_EQ(figure.document, "");
    EXPECT_THAT(figure.reason, StartsWith("unknown figure 'taste'; known figures: white_x, "));
}

TEST(Drawing, RefusesOptionsThatDoNotBelongToThePicture) {
    EXPECT_EQ(complaintAbout({}), "");
    EXPECT_EQ(complaintAbout({PictureKind::tone, "", Plane::xy, false, ""}), "plane is for gamut only");
    EXPECT_EQ(complaintAbout(requestOf(PictureKind::tone, "", "contrast")), "figure is for history only");
    EXPECT_EQ(complaintAbout({PictureKind::lut, "", {}, true, ""}), "limits is for patches and history only");
    EXPECT_EQ(complaintAbout(requestOf(PictureKind::uniformity, "1")),
              "mode is not for maps: a map does not belong to a colour mode");
    EXPECT_EQ(complaintAbout({PictureKind::history, "1", {}, true, "contrast"}), "");
}
