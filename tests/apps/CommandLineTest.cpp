#include "apps/cadhost/CommandLine.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

TEST(CommandLine, TakesEveryOptionInBothSpellings) {
    const std::string script = testing::TempDir() + "commandline-script.txt";
    const std::string forms = testing::TempDir() + "commandline-forms.lsp";
    std::ofstream(script) << "key Enter\n";
    std::ofstream(forms) << "(ECHO 2)";
    CommandLine line;
    std::string error;
    ASSERT_TRUE(line.Parse({"--module=/m.so", "--drawing", "d.dwg", "--headless", "--screen",
                            "800x600", "--script=" + script, "-e", "(ECHO 1)", forms, "-e", "3"},
                           &error))
        << error;
    EXPECT_EQ(line.modulePath, "/m.so");
    EXPECT_EQ(line.drawingPath, "d.dwg");
    EXPECT_TRUE(line.headless);
    EXPECT_EQ(line.screenWidth, 800);
    EXPECT_EQ(line.screenHeight, 600);
    EXPECT_EQ(line.scriptPath, script);
    EXPECT_EQ(line.scriptText, "key Enter\n");
    ASSERT_EQ(line.sources.size(), 3u);
    EXPECT_EQ(line.sources[0].name, "-e form 1");
    EXPECT_EQ(line.sources[0].text, "(ECHO 1)");
    EXPECT_EQ(line.sources[1].name, forms);
    EXPECT_EQ(line.sources[1].text, "(ECHO 2)");
    EXPECT_EQ(line.sources[2].name, "-e form 2");
    EXPECT_FALSE(line.help);
    std::filesystem::remove(script);
    std::filesystem::remove(forms);
}

TEST(CommandLine, DefaultsWhenNothingIsGiven) {
    CommandLine line;
    std::string error;
    ASSERT_TRUE(line.Parse({}, &error));
    EXPECT_EQ(line.modulePath, "");
    EXPECT_FALSE(line.headless);
    EXPECT_EQ(line.screenWidth, 0);
    EXPECT_TRUE(line.sources.empty());
}

TEST(CommandLine, RefusesWithAReason) {
    const struct {
        std::vector<std::string> arguments;
        const char* error;
    } cases[] = {
        {{"--module"}, "--module needs a value"},
        {{"--headless=1"}, "--headless takes no value"},
        {{"-x"}, "unknown option -x"},
        {{"--screen", "800x"}, "--screen wants WIDTHxHEIGHT in pixels, 1 to 16384 each, not 800x"},
        {{"--screen", "16385x10"},
         "--screen wants WIDTHxHEIGHT in pixels, 1 to 16384 each, not 16385x10"},
        {{"--screen=-5x5"}, "--screen wants WIDTHxHEIGHT in pixels, 1 to 16384 each, not -5x5"},
        {{"/no/file.lsp"}, "cannot read /no/file.lsp"},
        {{"/"}, "cannot read /"},
        {{"--script", "/no/script"}, "cannot read script /no/script"},
    };
    for (const auto& c : cases) {
        CommandLine line;
        std::string error;
        EXPECT_FALSE(line.Parse(c.arguments, &error)) << c.error;
        EXPECT_EQ(error, c.error);
    }
}

TEST(CommandLine, DefaultModuleIsBesideTheProgram) {
    const std::string module = CommandLine::DefaultModule();
    EXPECT_TRUE(std::filesystem::path(module).is_absolute()) << module;
    EXPECT_EQ(std::filesystem::path(module).filename(), "libkervgrid.so");
}

} // namespace
