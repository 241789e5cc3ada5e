// Checks the skin images in the application directory against what the
// program does with them: which names it loads, which sizes its controls
// stretch them to, and which rectangles its frames and combo boxes cut out.
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QImageReader>
#include <QString>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string kSkinDir = std::string(TALLIX_APP_DIR) + "/Bin/Skin/";

QImage Load(const std::string& name)
{
    return QImage(QString::fromStdString(kSkinDir + name));
}

// Buttons, picture controls and views stretch their image over themselves,
// so each of these images is drawn at the size of its control.
struct SizeCase {
    std::string name;
    int width;
    int height;
};

void PrintTo(const SizeCase& c, std::ostream* os)
{
    *os << c.name;
}

class StretchedToItsControl : public testing::TestWithParam<SizeCase> {};

TEST_P(StretchedToItsControl, HasTheControlsSize)
{
    const SizeCase& c = GetParam();
    const QImage image = Load(c.name);
    ASSERT_FALSE(image.isNull()) << c.name;
    EXPECT_EQ(image.width(), c.width) << c.name;
    EXPECT_EQ(image.height(), c.height) << c.name;
}

INSTANTIATE_TEST_SUITE_P(All, StretchedToItsControl, testing::Values(
    SizeCase{"about-normal.png", 24, 24},        // toolbar 1012, 8, 1036, 32
    SizeCase{"min-normal.png", 27, 24},          // toolbar 1039, 8, 1066, 32
    SizeCase{"close-normal.png", 27, 24},        // toolbar 1069, 8, 1096, 32
    SizeCase{"add_nor.png", 131, 36},            // page 24, 10, 155, 46
    SizeCase{"delect_nor.png", 100, 36},         // page 170, 10, 270, 46
    SizeCase{"list_clear_nor.png", 22, 27},      // row delete button
    SizeCase{"btn_normal.png", 72, 25},          // message dialog buttons
    SizeCase{"btn_diabled.png", 72, 25},         // stream editor buttons
    SizeCase{"calculator_nor.png", 56, 48},      // panel 540, 110, 596, 158
    SizeCase{"Tallix_LOGO.png", 300, 59},        // toolbar 20, 0, 320, 59
    SizeCase{"AboutPic.png", 359, 59},           // About 1, 0, 360, 59
    SizeCase{"bg_toolbar.png", 1100, 60},        // toolbar view
    SizeCase{"BottomBg(2).png", 1050, 287},      // calculator view 25, 393, 1075, 680
    SizeCase{"radioBox_checked.png", 150, 29},   // natural size; text offset -150 centres over it
    SizeCase{"btn_videoclose.png", 20, 20}),     // video window button size "20,20"
    [](const testing::TestParamInfo<SizeCase>& info) {
        std::string n;
        for (char ch : info.param.name)
            n += std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
        return n;
    });

// The state pictures of one control are swapped in place and must match.
class StateVariants : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(StateVariants, ShareOneSize)
{
    const std::vector<std::string>& group = GetParam();
    const QImage first = Load(group.front());
    ASSERT_FALSE(first.isNull()) << group.front();
    for (const std::string& name : group) {
        const QImage other = Load(name);
        ASSERT_FALSE(other.isNull()) << name;
        EXPECT_EQ(other.size(), first.size()) << name << " differs from " << group.front();
    }
}

INSTANTIATE_TEST_SUITE_P(All, StateVariants, testing::Values(
    std::vector<std::string>{"about-normal.png", "about-hover.png", "about-pressed.png", "about-disabled.png"},
    std::vector<std::string>{"min-normal.png", "min-hover.png", "min-pressed.png", "min-disabled.png"},
    std::vector<std::string>{"close-normal.png", "close-hover.png", "close-pressed.png", "close-disabled.png"},
    std::vector<std::string>{"add_nor.png", "add_hove.png", "add_press.png", "add_dis.png"},
    std::vector<std::string>{"delect_nor.png", "delect_press.png", "delect_dis.png"},
    std::vector<std::string>{"list_clear_nor.png", "list_clear_hover.png", "list_clear_dis.png"},
    std::vector<std::string>{"btn_normal.png", "btn_hover.png", "btn_press.png", "btn_disabled.png",
                             "btn_diabled.png"},
    std::vector<std::string>{"calculator_nor.png", "calculator_hover.png", "calculator_push.png",
                             "calculator_dis.png"},
    std::vector<std::string>{"radioBox_checked.png", "radioBox_normal.png"},
    std::vector<std::string>{"list_open_nor.png", "list_close_nor.png"},
    std::vector<std::string>{"comobobox_nor.png", "comobobox_hover.png"},
    std::vector<std::string>{"Frame.png", "background.png"},
    std::vector<std::string>{"btn_videoclose.png", "btn_videoclosedown.png", "btn_videosnap.png",
                             "btn_videosnapdown.png", "btn_propertynor.png", "btn_propertydown.png",
                             "btn_dragcheck.png", "btn_draguncheck.png"}));

// Rectangles that frames and combo boxes cut out of an image, as x, y, width,
// height. Frames read them inclusively (the cut is width by height); combo
// boxes without the minus one (the cut is one pixel wider and higher).
struct CutCase {
    std::string name;
    std::vector<std::vector<int>> cuts;
    int extra;
};

void PrintTo(const CutCase& c, std::ostream* os)
{
    *os << c.name;
}

class CutOut : public testing::TestWithParam<CutCase> {};

TEST_P(CutOut, ImageHoldsEveryCut)
{
    const CutCase& c = GetParam();
    const QImage image = Load(c.name);
    ASSERT_FALSE(image.isNull()) << c.name;
    for (const std::vector<int>& r : c.cuts) {
        EXPECT_GE(image.width(), r[0] + r[2] + c.extra) << c.name << " cut " << r[0] << "," << r[1];
        EXPECT_GE(image.height(), r[1] + r[3] + c.extra) << c.name << " cut " << r[0] << "," << r[1];
    }
}

const std::vector<std::vector<int>> kDialogPieces = {
    {0, 0, 10, 27}, {30, 0, 1, 27}, {138, 0, 10, 27}, {0, 27, 1, 80}, {0, 110, 1, 20}, {0, 130, 10, 10},
    {10, 130, 1, 10}, {138, 130, 10, 10}, {147, 110, 1, 20}, {147, 27, 1, 80},
    // message dialog
    {0, 37, 1, 30}, {147, 37, 1, 30}, {10, 130, 30, 10}};

INSTANTIATE_TEST_SUITE_P(All, CutOut, testing::Values(
    CutCase{"Frame.png", kDialogPieces, 0},
    CutCase{"background.png", kDialogPieces, 0},   // frame of the scene preview
    CutCase{"FrameMain.png", {{0, 0, 10, 1}, {30, 0, 1, 1}, {138, 0, 10, 1}, {0, 65, 1, 1}, {0, 139, 10, 1},
                              {10, 139, 30, 1}, {138, 139, 10, 1}, {147, 65, 1, 1}, {0, 0, 1100, 750}}, 0},
    CutCase{"comobobox_nor.png", {{0, 0, 130, 25}, {0, 78, 130, 26}, {0, 26, 130, 26}, {0, 26, 130, 25}}, 1},
    CutCase{"comobobox_hover.png", {{0, 0, 130, 25}, {0, 78, 130, 26}, {0, 26, 130, 26}}, 1},
    CutCase{"ComboBox.png", {{0, 0, 150, 40}, {0, 48, 150, 40}, {0, 142, 150, 40}}, 1},
    CutCase{"ComboBox_GBTB.png", {{0, 0, 83, 35}, {0, 40, 83, 35}, {0, 124, 83, 35}}, 1},
    CutCase{"ComboBox _150.png", {{0, 0, 225, 40}, {0, 28, 225, 40}, {0, 48, 225, 40}, {0, 142, 225, 40}}, 1},
    CutCase{"ComboBox_150.png", {{0, 0, 150, 27}, {0, 84, 150, 28}, {0, 28, 150, 28}, {0, 28, 150, 27}}, 1}),
    [](const testing::TestParamInfo<CutCase>& info) {
        std::string n;
        for (char ch : info.param.name)
            n += std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
        return n;
    });

bool FullyOpaque(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y)
        for (int x = 0; x < argb.width(); ++x)
            if (qAlpha(argb.pixel(x, y)) != 255)
                return false;
    return true;
}

// The main window is one copy of its frame image under a transparent page
// view, and dialogs stretch their background under everything: a hole in
// either would show whatever lies behind the window.
TEST(SkinOpacity, WindowAndDialogGroundsHaveNoHoles)
{
    for (const char* name : {"FrameMain.png", "bg_toolbar.png", "background.png", "bgColorMain.png"}) {
        const QImage image = Load(name);
        ASSERT_FALSE(image.isNull()) << name;
        EXPECT_TRUE(FullyOpaque(image)) << name;
    }
}

// The record plan combo's three cuts overlap (rows 0, 28 and 48, each 41 rows
// high): the field of each open cut must be one even surface, without the
// normal face's edges running through it.
TEST(RecordPlanCombo, OpenCutsShowAnEvenField)
{
    const QImage image = Load("ComboBox _150.png").convertToFormat(QImage::Format_ARGB32);
    ASSERT_FALSE(image.isNull());
    for (int top : {28, 48}) {
        const QRgb ground = image.pixel(100, top + 20);
        int uneven = 0;
        // Columns left of the arrow zone, clear of the rounded corners.
        for (int y = top; y <= top + 40; ++y)
            for (int x = 6; x < 180; ++x)
                uneven += image.pixel(x, y) != ground;
        EXPECT_EQ(uneven, 0) << "cut at row " << top;
    }
}

// Every image name written in the program's sources is a PNG under that
// exact name: a page that asks for a picture that is not there shows an empty
// control.
TEST(SkinNames, EveryNameInTheSourcesIsAValidPng)
{
    const std::regex literal(R"re("([^"\n%*]*\.png)")re");
    std::set<std::string> named;
    for (const char* dir : {"shell", "streams", "calculator", "preview", "sf", "Config", "language"}) {
        const fs::path root = fs::path(TALLIX_SOURCE_DIR) / dir;
        if (!fs::exists(root))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(root)) {
            const std::string ext = entry.path().extension().string();
            if (!entry.is_regular_file() || (ext != ".cpp" && ext != ".h"))
                continue;
            std::ifstream in(entry.path());
            std::stringstream text;
            text << in.rdbuf();
            const std::string content = text.str();
            for (std::sregex_iterator it(content.begin(), content.end(), literal), end; it != end; ++it) {
                std::string name = (*it)[1].str();
                const std::size_t slash = name.find_last_of('/');
                if (slash != std::string::npos)
                    name = name.substr(slash + 1);
                if (!name.empty())
                    named.insert(name);
            }
        }
    }
    EXPECT_GT(named.size(), 40u);
    for (const std::string& name : named) {
        QImageReader reader(QString::fromStdString(kSkinDir + name));
        EXPECT_EQ(reader.format(), QByteArray("png")) << name << " is named in the sources but not drawn";
        EXPECT_FALSE(reader.read().isNull()) << name;
    }
}

} // namespace
