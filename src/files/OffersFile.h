#pragma once

#include "files/TeamFileRead.h"
#include "league/FreeAgentOffer.h"
#include "league/Tables.h"
#include "machine/Formats.h"

#include <functional>
#include <string>
#include <vector>

namespace dravik {

// Where the offer file of `team` (1..100) is saved: the program's folder, the team's name without spaces, ".dvf". Fails
// with 75 when the name holds a character that no file name may hold.
std::string OffersFilePath(const Tables& league, Disk& disk, int team);

// Whether an offer says enough to be one: at least a year, and at least the league's least salary.
bool IsOffer(const League& rules, const FreeAgentOffer& offer);

// What of a team's offers a file takes. It has room for 996; who comes behind them in order of the ids is left out.
struct OffersTally {
    int Count = 0;
    int ToOthers = 0; // to people whom the team does not own
    long long Salaries = 0;
    long long Bonuses = 0;

    bool operator==(const OffersTally&) const = default;
};
OffersTally TallyOffers(const Tables& league, int team, const OfferTable& offers);
// Tells each of them, in order of the ids.
void EachOfferToSave(const League& rules, const OfferTable& offers,
                     const std::function<void(const FreeAgentOffer&)>& tell);

enum class OffersFileWrite {
    Saved,
    NoOffer,      // there is none to save
    TooMany,      // more offers to others than `OffersLeft`
    NotCompressed // told already
};

struct SavedOffers {
    OffersFileWrite Outcome = OffersFileWrite::NoOffer;
    std::string Report; // a line on each offer, with its line break
};

// Saves the offers of `team` (1..100) to `target`, plain or compressed as the settings say. A work file left behind is
// deleted first; the new file is the work file until it is whole, so both have to be on one disk, and then takes the place of
// what stands at `target` in one step. Where no new one comes, for whatever reason, the old one is deleted. `Team` of each
// offer that the file takes becomes `team`. A failure that is not one of the compression is thrown.
SavedOffers WriteOffersFile(const Tables& league, const FileAccess& access, const Formats& shown, int team,
                            const std::string& target, OfferTable& offers);

// Reads the offer file `path` of `team` (1..100), plain or compressed as the settings say, into `offers`, in order of the ids. It
// has to be as WriteOffersFile writes one: of this league and this team, with 1 to 996 whole offers of different people. One
// that is not is refused whole. Failures are thrown; `offers` is empty unless it was loaded.
TeamFileRead ReadOffersFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                            std::vector<FreeAgentOffer>& offers);

} // namespace dravik
