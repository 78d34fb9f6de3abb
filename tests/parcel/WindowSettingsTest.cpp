// Where the settings file lies, and what reading and writing it keep.

#include "parcel/WindowSettings.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

TEST(WindowSettings, TheFileTakesTheModulesNameInLowerCase) {
    EXPECT_EQ(WindowSettings("/opt/CAD/KervGrid.so").Path(), "/opt/cad/kervgrid.set");
    EXPECT_EQ(WindowSettings("C:\\Kerv\\KERVGRID.ARX").Path(), "c:\\kerv\\kervgrid.set");
    EXPECT_EQ(WindowSettings("/kervgrid.so").Path(), "/kervgrid.set");
    EXPECT_EQ(WindowSettings("kervgrid.so").Path(), "kervgrid.set");
    // Every occurrence of the module's name goes, also in a folder's name.
    EXPECT_EQ(WindowSettings("/x/mod.so-cache/mod.so").Path(),
              "/x/kervgrid.set-cache/kervgrid.set");
}

TEST(WindowSettings, WidthsSurviveAndAShortFileSetsOnlyItsOwn) {
    const auto folder = std::filesystem::temp_directory_path() / "parcel_settings";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const WindowSettings settings((folder / "kervgrid.so").string());

    int widths[4] = {-1, -1, -1, -1};
    settings.Read(widths);
    EXPECT_EQ(widths[0], -1);

    const int saved[4] = {120, 40, 135, 47};
    settings.Write(saved);
    std::stringstream content;
    content << std::ifstream(settings.Path()).rdbuf();
    EXPECT_EQ(content.str(), "120 40 135 47 ");
    settings.Read(widths);
    EXPECT_EQ(std::vector<int>(widths, widths + 4), std::vector<int>(saved, saved + 4));

    std::ofstream(settings.Path(), std::ios::trunc) << "80 30 x 5";
    int partial[4] = {-1, -1, -1, -1};
    settings.Read(partial);
    EXPECT_EQ(std::vector<int>(partial, partial + 4), (std::vector<int>{80, 30, -1, -1}));

    // A folder that isn't there can't take the file; nothing is said.
    WindowSettings((folder / "missing" / "kervgrid.so").string()).Write(saved);
    EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
    std::filesystem::remove_all(folder);
}
