#include "session/JournalFolder.h"

#include "desk/JournalWriter.h"
#include "support/SmallLeague.h"

#include <filesystem>
#include <fstream>

namespace dravik {
namespace {

namespace fs = std::filesystem;

class JournalFolderTest : public SmallLeague {
protected:
    static JournalHead HeadOf(const char* league, unsigned char beginning, double fileDate = 45000)
    {
        JournalHead head{.LeagueCode = league, .Beginning = {}, .FileDate = fileDate, .Begun = 45000};
        head.Beginning.fill(beginning);
        return head;
    }
    // Writes a journal with one step, done at `time`; one that was saved behind it holds nothing unsaved.
    fs::path Write(const JournalHead& head, double time, bool isSaved = false)
    {
        std::string bytes;
        const auto keep = [&](std::string_view more) {
            bytes += more;
            return true;
        };
        JournalWriter writer(head, {}, keep, [time] { return time; });
        DifferenceWriter change;
        const unsigned char values[] = {1, 2};
        change.Add(DeskTable::League, 3, {values, 1}, {values + 1, 1});
        writer.Closed(
            {.Label = {.Words = "Some step", .Where = "Desk", .Team = 5, .Drag = 0}, .Change = change.Finish()});
        if (isSaved)
            writer.Saved(SavedFile::Lines, 5);
        const fs::path path = Folder.NewPath(head);
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static fs::file_time_type Now() { return fs::file_time_type::clock::now(); }

    JournalFolder Folder{fs::path(Machine.Folder()) / "journal"};
};

TEST_F(JournalFolderTest, ANameSaysTheLeagueTheBeginningAndANumber)
{
    const JournalHead head = HeadOf("AB\xE9 9", 0x2F);
    EXPECT_EQ(Folder.NewPath(head).filename().string(), "4142e92039-2f2f2f2f2f2f2f2f2f2f2f2f2f2f2f2f-1.journal");
    for (int number = 1; number <= 11; ++number)
        EXPECT_TRUE(Write(head, 45001).filename().string().ends_with("-" + std::to_string(number) + ".journal"));
    EXPECT_TRUE(Folder.NewPath(HeadOf("AB\xE9 9", 1)).filename().string().ends_with("-1.journal"));
}

TEST_F(JournalFolderTest, ANameWithoutANumberCountsForNone)
{
    const JournalHead head = HeadOf("ABC", 1);
    const fs::path first = Write(head, 45001);
    std::string name = first.filename().string();
    fs::rename(first, first.parent_path() / name.replace(name.find("1.journal"), 1, "x"));
    EXPECT_TRUE(Folder.NewPath(head).filename().string().ends_with("-1.journal"));
}

TEST_F(JournalFolderTest, AFileThatNoEveningFillsIsNotRead)
{
    const fs::path journal = Write(HeadOf("ABC", 1), 45001);
    constexpr std::uintmax_t most = std::uintmax_t{256} << 20U;
    ASSERT_TRUE(JournalFolder::Read(journal));
    fs::resize_file(journal, most + 1);
    EXPECT_FALSE(JournalFolder::Read(journal));
    EXPECT_FALSE(JournalFolder::Read(journal.parent_path() / "missing.journal"));
}

TEST_F(JournalFolderTest, TheLatestUnsavedWorkOfTheBeginningIsFound)
{
    const JournalHead head = HeadOf("ABC", 1);
    EXPECT_FALSE(Folder.LatestUnsaved(head)) << "the folder is not there";
    Write(head, 45003, true);
    EXPECT_FALSE(Folder.LatestUnsaved(head));
    Write(head, 45001);
    const fs::path latest = Write(head, 45002);
    Write(head, 45001.5);
    Write(HeadOf("ABC", 2), 45009);
    Write(HeadOf("ABD", 1), 45009);
    const auto found = Folder.LatestUnsaved(head);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Path, latest);
    EXPECT_EQ(found->Read.Unsaved->Time, 45002);
}

TEST_F(JournalFolderTest, AJournalUnderAnothersNameIsNotFound)
{
    const JournalHead head = HeadOf("ABC", 1);
    const fs::path other = Write(HeadOf("ABC", 2), 45009);
    fs::rename(other, Folder.NewPath(head));
    EXPECT_FALSE(Folder.LatestUnsaved(head));
}

TEST_F(JournalFolderTest, WithNothingUnsavedAJournalGoesOnceANewerFileOfItsLeagueIsOpened)
{
    const fs::path saved = Write(HeadOf("ABC", 1), 45001, true);
    const fs::path unsaved = Write(HeadOf("ABC", 1), 45001);
    const fs::path other = Write(HeadOf("ABD", 1), 45001, true);
    Folder.Tidy(HeadOf("ABC", 1), Now());
    EXPECT_TRUE(fs::exists(saved)) << "the file is the same";
    Folder.Tidy(HeadOf("ABC", 2, 44999), Now());
    EXPECT_TRUE(fs::exists(saved)) << "the file is an older one";
    Folder.Tidy(HeadOf("ABC", 2, 45001), Now());
    EXPECT_FALSE(fs::exists(saved));
    EXPECT_TRUE(fs::exists(unsaved));
    EXPECT_TRUE(fs::exists(other));
}

TEST_F(JournalFolderTest, WhatNobodyHasWrittenToFor30DaysGoes)
{
    const fs::path unsaved = Write(HeadOf("ABC", 1), 45001);
    const fs::path other = Write(HeadOf("ABD", 1), 45001);
    const fs::path broken = Machine.InFolder("journal") + PathSeparator + "broken.journal";
    const fs::path foreign = Machine.InFolder("journal") + PathSeparator + "letter.txt";
    for (const fs::path& file : {broken, foreign})
        std::ofstream(file) << "something";
    const auto now = Now();
    constexpr auto hour = std::chrono::hours(1);
    for (const fs::path& file : {unsaved, broken, foreign})
        fs::last_write_time(file, now - 30 * 24 * hour - hour);
    fs::last_write_time(other, now - 30 * 24 * hour + hour);
    Folder.Tidy(HeadOf("ABC", 1), now);
    EXPECT_FALSE(fs::exists(unsaved));
    EXPECT_FALSE(fs::exists(broken));
    EXPECT_TRUE(fs::exists(other));
    EXPECT_TRUE(fs::exists(foreign)) << "what is no journal stays";
}

TEST_F(JournalFolderTest, WhatCannotBeReadIsNoJournal)
{
    EXPECT_FALSE(JournalFolder::Read(Machine.InFolder("missing")));
    EXPECT_FALSE(JournalFolder::Read(Machine.Folder()));
    std::ofstream(Machine.InFolder("empty"));
    EXPECT_FALSE(JournalFolder::Read(Machine.InFolder("empty")));
}

} // namespace
} // namespace dravik
