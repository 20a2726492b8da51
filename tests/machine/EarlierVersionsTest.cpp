#include "machine/EarlierVersions.h"

#include "machine/Clock.h"
#include "support/ScriptedPlatform.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace fs = std::filesystem;

class EarlierVersionsTest : public ::testing::Test {
protected:
    static void Write(const fs::path& path, const std::string& text)
    {
        std::ofstream file(path, std::ios::binary);
        file << text;
    }
    static std::string Content(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] std::vector<std::string> Kept() const
    {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(Folder, error))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static std::string Day(int day) { return "2026-01-" + std::to_string(day) + " 21.03.15"; }

    ScriptedPlatform Machine;
    fs::path Root = Machine.Folder();
    fs::path File = Root / "Gulls.dvl";
    fs::path Folder = Root / "Earlier";
};

TEST_F(EarlierVersionsTest, ACopyIsKeptUnderTheTimeAndTheFileStays)
{
    Write(File, "one");
    EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(12)));
    EXPECT_THAT(Kept(), ElementsAre("Gulls 2026-01-12 21.03.15.dvl"));
    EXPECT_EQ(Content(Folder / Kept()[0]), "one");
    EXPECT_EQ(Content(File), "one");
}

TEST_F(EarlierVersionsTest, WithoutAFileNothingIsKeptAndNoFolderMade)
{
    EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(12)));
    EXPECT_FALSE(fs::exists(Folder));
}

TEST_F(EarlierVersionsTest, TwoOfOneSecondAreBothKept)
{
    for (const char* text : {"one", "two", "three"}) {
        Write(File, text);
        EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(12)));
    }
    EXPECT_THAT(Kept(), ElementsAre("Gulls 2026-01-12 21.03.15 (2).dvl", "Gulls 2026-01-12 21.03.15 (3).dvl",
                                    "Gulls 2026-01-12 21.03.15.dvl"));
    EXPECT_EQ(Content(Folder / "Gulls 2026-01-12 21.03.15 (3).dvl"), "three");
}

TEST_F(EarlierVersionsTest, TheLastTenOfEachFileStay)
{
    const fs::path offers = Root / "Gulls.dvf";
    const fs::path others = Root / "Gulls 2.dvl";
    for (const fs::path& file : {File, offers, others})
        Write(file, "one");
    EXPECT_TRUE(KeepEarlierVersion(offers, Folder, Day(10)));
    EXPECT_TRUE(KeepEarlierVersion(others, Folder, Day(10)));
    Write(Folder / "Gulls notes.dvl", "mine");
    for (int day = 11; day <= 23; ++day)
        EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(day)));
    std::vector<std::string> expected{"Gulls 2 2026-01-10 21.03.15.dvl", "Gulls 2026-01-10 21.03.15.dvf",
                                      "Gulls notes.dvl"};
    for (int day = 14; day <= 23; ++day)
        expected.push_back("Gulls " + Day(day) + ".dvl");
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(Kept(), expected);
}

TEST_F(EarlierVersionsTest, AFileIsNoCopyWhereAnythingButADigitStandsInItsTime)
{
    Write(File, "one");
    fs::create_directories(Folder);
    const std::vector<std::string> own{"Gulls 2026-01-!1 21.03.15.dvl", "Gulls 2026-01-x1 21.03.15.dvl",
                                       "Gulls 2026-01_11 21.03.15.dvl"};
    for (const std::string& name : own)
        Write(Folder / name, "mine");
    for (int day = 11; day <= 23; ++day)
        EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(day)));
    for (const std::string& name : own)
        EXPECT_EQ(Content(Folder / name), "mine") << name;
    EXPECT_EQ(Kept().size(), own.size() + 10);
}

TEST_F(EarlierVersionsTest, WhatADeadProgramLeftUnfinishedGoes)
{
    Write(File, "one");
    fs::create_directories(Folder);
    Write(Folder / "Gulls 2026-01-11 21.03.15.dvl.part", "o");
    EXPECT_TRUE(KeepEarlierVersion(File, Folder, Day(12)));
    EXPECT_THAT(Kept(), ElementsAre("Gulls 2026-01-12 21.03.15.dvl"));
}

TEST_F(EarlierVersionsTest, WhatCannotBeKeptIsSaidAndNothingElse)
{
    Write(File, "one");
    Write(Folder, "a file is no folder");
    EXPECT_FALSE(KeepEarlierVersion(File, Folder, Day(12)));
    EXPECT_EQ(Content(File), "one");
}

TEST_F(EarlierVersionsTest, TheMachineKeepsThemInItsFolder)
{
    Write(File, "one");
    EXPECT_TRUE(Machine.KeepEarlier(File.string(), SortableTime(46034.877)));
    EXPECT_THAT(Kept(), ElementsAre("Gulls 2026-01-12 21.02.53.dvl"));
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
}

} // namespace
} // namespace dravik
