#pragma once

#include "session/JournalFolder.h"
#include "session/OpenHistory.h"
#include "session/OpenJournal.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace dravik {

// Keeps a journal of the open league, from the tables as they stand on, as long as it is there.
class JournalKept {
public:
    explicit JournalKept(const std::string& in) : folder(std::filesystem::path(in) / "journal")
    {
        KeepJournals(folder, [] { return 46000.0; });
        BeginHistory();
        BeginJournal();
    }
    JournalKept(const JournalKept&) = delete;
    JournalKept& operator=(const JournalKept&) = delete;
    ~JournalKept() { KeepJournals({}, {}); }

    // Whether it holds work that no saved file holds.
    [[nodiscard]] bool HasUnsaved() const
    {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
            const auto journal = JournalFolder::Read(entry.path());
            EXPECT_TRUE(journal);
            return journal && journal->Read.Unsaved;
        }
        return false;
    }

private:
    std::filesystem::path folder;
};

} // namespace dravik
