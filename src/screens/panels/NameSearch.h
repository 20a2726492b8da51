#pragma once

#include "screens/panels/EntryList.h"

#include <QPushButton>
#include <string>

namespace dravik {

// A search in a list that can be gone on with.
class PlayerSearch {
public:
    // Asks with `prompt` under the title "Player Search" for a name or a part of one, and returns the row of the first entry
    // of `list` whose text contains the answer, whatever its case. An empty answer, a cancelled one among them, is contained
    // in the first entry, and is not kept. When no entry fits, an information box says so and the row is -1.
    int Ask(const EntryList& list, const std::string& prompt = "Complete or Part of the Player Name?");
    // Whether there is an answer to go on with.
    [[nodiscard]] bool HasAnswer() const { return !part.isEmpty(); }
    // The row of the first entry behind the current one whose text contains the last answer, round to the current one, which
    // comes last. When no entry fits, the same box says so and the row is -1.
    [[nodiscard]] int Next(const EntryList& list) const;

private:
    QString part;
};

// Gives the command that goes on with a search its key in the whole window, and says both in its tooltip.
void SetUpFindNext(QPushButton& command);

// Asks in the same way, for once.
int SearchPlayer(const EntryList& list, const std::string& prompt = "Complete or Part of the Player Name?");

} // namespace dravik
