#pragma once

#include "desk/TakenIn.h"
#include "files/FileAccess.h"
#include "league/FreeAgentOffer.h"
#include "league/PersonId.h"
#include "machine/Work.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// Begins the offers of `team` (1..100) without any. In the season a limit that the league does not name becomes 100, and what
// is left of it is reckoned; a rest beyond 16 bits fails with 6. In the off-season the rest stays as it came with the league.
void OpenOffers(const Work& work, int team, OfferTable& offers);
// How many offers the league lets a team make, in its words.
std::string OfferLimitWords(const League& rules);

// The offer to a person, which is his from now on (`Id`), so that it may be saved. None for one whom `team` may not sign.
const FreeAgentOffer* TakeOffer(const Tables& league, int team, OfferTable& offers, PersonId who);

// What became of a text that was given for a part of an offer.
enum class Entered {
    Refused,  // it is to be mended, and nothing was stored; told already
    NoChange, // nothing was stored
    Stored
};
// Told of the number that is taken in the place of the one that was given.
using TakesInstead = std::function<void(int)>;

// Offers a person the salary that `text` begins with. 0 is no change. More than the league's most, and less than its least, is
// told in a warning box and becomes that limit, in this order. A text that is no number is refused, which is told. A person
// without a place in the table fails with 9.
Entered OfferSalary(const Work& work, OfferTable& offers, PersonId who, std::string_view text,
                    const TakesInstead& instead);
// The same for the years of his contract. More than 9 are told in a warning box and become 9; less than 0 become 0.
Entered OfferDuration(const Work& work, OfferTable& offers, PersonId who, std::string_view text,
                      const TakesInstead& instead);
// The same for his bonus, which has no limit; what does not fit its field fails with 6.
Entered OfferBonus(const Work& work, OfferTable& offers, PersonId who, std::string_view text);
// The same for the comment: letters, numbers and blanks, cut to 1000.
Entered OfferComment(const Work& work, OfferTable& offers, PersonId who, std::string_view text);

// What an offer comes to in a few words, "$750,000 x 2"; nothing where there is none that could be saved.
std::string OfferInShort(const Tables& league, const Formats& shown, const OfferTable& offers, PersonId who);

// Saves the offers of `team` (1..100) to its offer file, whose older one is gone in any case. That there is none, or that there
// are more to others than are left, is told in a warning box. The report of what was saved, empty when nothing was; none when
// the file could not be compressed, which is told. Fails as the disk does.
std::optional<std::string> SaveOffers(const Work& work, const FileAccess& files, int team, OfferTable& offers);

// The same, to `target` in the place of that path.
std::optional<std::string> SaveOffersAs(const Work& work, const FileAccess& files, int team, const std::string& target,
                                        OfferTable& offers);

// Every offer that says something, complete or not, in order of the ids.
std::vector<FreeAgentOffer> WrittenOffers(const OfferTable& offers);

// Puts `written`, offers of different people, in the place of all that are there. Whoever can no longer be made an offer by
// `team` is left out; a salary beyond the league's limits, and years beyond 9, become the limit. `watch` is told of each common
// number before its offer changes.
TakenIn TakeInOffers(const Work& work, int team, OfferTable& offers, const std::vector<FreeAgentOffer>& written,
                     const std::function<void(int)>& watch);

// Takes in the offer file `path` of `team`. A file that is none of this league and this team changes nothing. Fails as the disk
// does.
LoadedFile LoadOffers(const Work& work, const FileAccess& files, int team, const std::string& path, OfferTable& offers,
                      const std::function<void(int)>& watch);

} // namespace dravik
