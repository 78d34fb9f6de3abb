// The table file: what a save writes, what a load makes of a file, and the default name from
// the drawing.

#include "parcel/TableFile.h"

#include "host/session/Host.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace {

class TableFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::string Read(const std::string& name) {
        std::stringstream text;
        text << std::ifstream(folder / name, std::ios::binary).rdbuf();
        return text.str();
    }
    std::string Path(const std::string& name) { return (folder / name).string(); }

    // Each test runs in a process of its own, maybe beside the others.
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("parcel_tables_" + std::to_string(::getpid()));
    StringStore layers{20};
    IntStore used{20};
    RowStore rows{20};
    std::string types;
    TableFile file{layers, used, rows, types};
};

} // namespace

TEST_F(TableFileTest, SaveWritesRowsThenTheOtherLayersThenTheTypes) {
    std::ofstream(folder / "plan.tab") << "[Old]\nKey=1\n";
    for (const char* layer : {"A", "B", "C", "*"}) layers.Add(layer);
    for (int flag : {1, 0, 0, 1}) used.Add(flag);
    rows.Add(ParcelRow{"A", "3", "T1", "1"});
    rows.Add(ParcelRow{"*", "5", "T2", "4"});
    types = "T1\n\nT2\n";
    ASSERT_EQ(file.Save(Path("plan.tab")), 1);
    EXPECT_EQ(Read("plan.tab"), "[A]\r\nType=T1\r\nSelectedLayer=1\r\n"
                                "[*]\r\nType=T2\r\nSelectedLayer=1\r\n"
                                "[B]\r\nSelectedLayer=0\r\n"
                                "[C]\r\nSelectedLayer=0\r\n"
                                "[Types]\r\nT1=0\r\nT2=1\r\n");
    EXPECT_EQ(file.Save(Path("missing/plan.tab")), 0);
}

TEST_F(TableFileTest, LoadTakesTheFilesLayersRowsAndTypes) {
    std::ofstream(folder / "plan.tab") << "[A]\nType=T1\nSelectedLayer=1\n"
                                          "[  B]\nSelectedLayer=0\n"
                                          "[*]\ntype=\nSelectedLayer=1\n"
                                          "[TYPES]\nT1=0\nT2=7\n";
    layers.Add("old");
    ASSERT_EQ(file.Load(Path("plan.tab")), 1);
    ASSERT_EQ(layers.GetSize(), 3);
    EXPECT_EQ(layers[1], "B");
    EXPECT_EQ(layers[2], "*");
    EXPECT_EQ(used[0], 1);
    EXPECT_EQ(used[1], 0);
    ASSERT_EQ(rows.GetSize(), 2);
    EXPECT_EQ(rows[0], (ParcelRow{"A", "0", "T1", "1"}));
    EXPECT_EQ(rows[1], (ParcelRow{"*", "0", "", "1"}));
    EXPECT_EQ(types, "T1\nT2\n");

    // A file that can't be opened leaves the stores alone.
    EXPECT_EQ(file.Load(Path("none.tab")), 0);
    EXPECT_EQ(layers.GetSize(), 3);
    EXPECT_FALSE(std::filesystem::exists(folder / "none.tab"));
}

TEST_F(TableFileTest, TheDefaultNameIsTheDrawingsWithoutItsExtension) {
    std::ostringstream transcript;
    host::EventLog events{transcript};
    host::Host session{events, *host::Drawing::At("/work/site/plan.dwg")};
    EXPECT_EQ(TableFile::DefaultName(), "/work/site/plan");
}
