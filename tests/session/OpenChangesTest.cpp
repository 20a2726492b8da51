#include "session/OpenChanges.h"

#include "OnClientFile.h"
#include "support/RealFaults.h"

#include <fstream>

namespace dravik {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A league of two teams, whose files are opened one after the other with their digests kept.
class OpenChangesTest : public OnClientFile {
protected:
    OpenChangesTest()
    {
        TempFile = Machine.InFolder("ClientTemp.dvt");
        LeagueData.LeagueCode = "A/B 1";
        LeagueData.FileDate = 45000;
        TeamMaker(5).Dresses(3, position::Center);
        TeamMaker(6).Dresses(2, position::Center);
        Teams[5].Cash = 100;
        KeepDigests(Folder);
    }
    OpenChangesTest(const OpenChangesTest&) = delete;
    OpenChangesTest& operator=(const OpenChangesTest&) = delete;
    ~OpenChangesTest() override { KeepDigests({}); }

    // Opens the tables as they stand as a file of that date.
    void OpenAsOf(double date)
    {
        LeagueData.FileDate = date;
        Open(SavePlain());
    }
    static std::vector<DifferenceKind> Kinds(int team = 0, bool isProved = false)
    {
        std::vector<DifferenceKind> kinds;
        for (const Difference& difference : ChangesToldTo(team, isProved))
            kinds.push_back(difference.Kind);
        return kinds;
    }
    [[nodiscard]] std::vector<std::string> Kept() const
    {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(Folder, error))
            names.push_back(entry.path().filename().string());
        return names;
    }
    void Damage(std::string_view bytes) const
    {
        std::ofstream(Folder / "412f422031.digest", std::ios::binary) << bytes;
    }

    const fs::path Folder = fs::path(Machine.Folder()) / "leagues" / "kept";
};

TEST_F(OpenChangesTest, TheFirstFileOfALeagueIsKeptAndTellsNothing)
{
    OpenAsOf(45000);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    EXPECT_FALSE(OpenChanges().FileDate);
    EXPECT_THAT(Kept(), ElementsAre("412f422031.digest"));
    EXPECT_LE(fs::file_size(Folder / Kept()[0]), MostDigestBytes);
#ifndef _WIN32
    EXPECT_EQ(fs::status(Folder / Kept()[0]).permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
}

TEST_F(OpenChangesTest, ANewerFileTellsWhatChangedAndOpenedAgainNothing)
{
    OpenAsOf(45000);
    Players[1].Condition = 50;
    Teams[5].Cash = 150;
    OpenAsOf(45001);
    EXPECT_EQ(OpenChanges().FileDate, 45000);
    EXPECT_THAT(Kinds(5), ElementsAre(DifferenceKind::Hurt));
    EXPECT_THAT(Kinds(5, true), ElementsAre(DifferenceKind::Hurt, DifferenceKind::Cash));
    EXPECT_THAT(Kinds(6, true), ElementsAre(DifferenceKind::Hurt));
    Open(SavePlain());
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    EXPECT_THAT(Kept(), ElementsAre("412f422031.digest"));
}

TEST_F(OpenChangesTest, WhatIsDoneInTheProgramIsNoChangeOfTheFile)
{
    OpenAsOf(45000);
    const std::string file = SavePlain();
    Players[1].Condition = 50;
    Open(file);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
}

TEST_F(OpenChangesTest, AnOlderFileIsNeitherComparedNorKept)
{
    OpenAsOf(45001);
    Players[1].Condition = 50;
    OpenAsOf(45000);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    OpenAsOf(45002);
    EXPECT_EQ(OpenChanges().FileDate, 45001);
    EXPECT_THAT(Kinds(), ElementsAre(DifferenceKind::Hurt));
}

TEST_F(OpenChangesTest, AnotherLeagueHasADigestOfItsOwn)
{
    OpenAsOf(45000);
    LeagueData.LeagueCode = "OTHER";
    Players[1].Condition = 50;
    OpenAsOf(45001);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    EXPECT_EQ(Kept().size(), 2U);
}

TEST_F(OpenChangesTest, ADamagedDigestCountsAsNoneAndIsReplaced)
{
    OpenAsOf(45000);
    for (const std::string_view bytes : {std::string_view(), std::string_view("something else")}) {
        Damage(bytes);
        Players[1].Condition = Players[1].Condition == 50 ? 100 : 50;
        OpenAsOf(45001);
        EXPECT_THAT(OpenChanges().All, IsEmpty());
        Players[2].Condition = Players[2].Condition == 50 ? 100 : 50;
        OpenAsOf(45002);
        EXPECT_EQ(Kinds().size(), 1U);
    }
    Damage(std::string(MostDigestBytes * 3, 'x'));
    OpenAsOf(45003);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
}

TEST_F(OpenChangesTest, ADigestUnderAnotherLeaguesNameIsNone)
{
    OpenAsOf(45000);
    LeagueData.LeagueCode = "OTHER";
    fs::rename(Folder / "412f422031.digest", Folder / "4f54484552.digest");
    Players[1].Condition = 50;
    OpenAsOf(45001);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
}

TEST_F(OpenChangesTest, AFileThatWasDamagedOnItsWayIsNeitherComparedNorKept)
{
    OpenAsOf(45000);
    Players[1].Condition = 50;
    LookForChanges(true);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    LookForChanges(false);
    EXPECT_THAT(Kinds(), ElementsAre(DifferenceKind::Hurt)) << "the digest is that of the first file";
}

TEST_F(OpenChangesTest, AFileThatCannotBeOpenedTakesTheChangesAway)
{
    OpenAsOf(45000);
    Players[1].Condition = 50;
    OpenAsOf(45001);
    ASSERT_EQ(OpenChanges().All.size(), 1U);
    Open(Machine.InFolder("missing.dvs"));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Cannot find last client league file!"}));
    EXPECT_THAT(OpenChanges().All, IsEmpty());
}

TEST_F(OpenChangesTest, AFolderThatCannotBeMadeChangesNothing)
{
    fs::create_directories(Folder.parent_path());
    std::ofstream(Folder) << "a file in the folder's place";
    OpenAsOf(45000);
    Players[1].Condition = 50;
    OpenAsOf(45001);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    EXPECT_EQ(Players[1].Condition, 50) << "the league is open";
    EXPECT_TRUE(fs::is_regular_file(Folder));
}

TEST_F(OpenChangesTest, WithoutAPlaceForANewOneTheOldDigestStaysAndTellsOn)
{
    OpenAsOf(45000);
    fs::create_directories(Folder / "412f422031.digest.new" / "in the way");
    Players[1].Condition = 50;
    OpenAsOf(45001);
    EXPECT_THAT(Kinds(), ElementsAre(DifferenceKind::Hurt));
    Players[2].Condition = 50;
    OpenAsOf(45002);
    EXPECT_EQ(OpenChanges().FileDate, 45000);
    EXPECT_THAT(Kinds(), ElementsAre(DifferenceKind::Hurt, DifferenceKind::Hurt));
}

#ifndef _WIN32 // where the system can be asked for a full disk

TEST_F(OpenChangesTest, AFullDiskLeavesTheOldDigestAndNoHalfOfANewOne)
{
    OpenAsOf(45000);
    Players[1].Condition = 50;
    LeagueData.FileDate = 45001;
    const std::string file = SavePlain();
    {
        const SmallDisk full(100);
        Open(file);
    }
    EXPECT_THAT(Kept(), ElementsAre("412f422031.digest"));
    OpenAsOf(45002);
    EXPECT_EQ(OpenChanges().FileDate, 45000);
    EXPECT_THAT(Kinds(), ElementsAre(DifferenceKind::Hurt));
}

#endif

TEST_F(OpenChangesTest, WithoutAFolderNothingIsKept)
{
    KeepDigests({});
    OpenAsOf(45000);
    Players[1].Condition = 50;
    OpenAsOf(45001);
    EXPECT_THAT(OpenChanges().All, IsEmpty());
    EXPECT_FALSE(fs::exists(Folder));
}

} // namespace
} // namespace dravik
