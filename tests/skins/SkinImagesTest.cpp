// Checks the skin images in the application directory against what the
// program does with them: which names it loads and which surfaces must be
// whole.
#include <QColor>
#include <QImage>
#include <QImageReader>
#include <QString>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

const std::string kSkinDir = std::string(TALLIX_APP_DIR) + "/Bin/Skin/";

QImage Load(const std::string& name)
{
    return QImage(QString::fromStdString(kSkinDir + name));
}

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
    for (const char* name :
         { "FrameMain.png", "bg_toolbar.png", "background.png", "bgColorMain.png" }) {
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
    for (int top : { 28, 48 }) {
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
    for (const char* dir :
         { "shell", "streams", "calculator", "preview", "sf", "Config", "language" }) {
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
            for (std::sregex_iterator it(content.begin(), content.end(), literal), end; it != end;
                 ++it) {
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
        EXPECT_EQ(reader.format(), QByteArray("png"))
            << name << " is named in the sources but not drawn";
        EXPECT_FALSE(reader.read().isNull()) << name;
    }
}

} // namespace
