#include "Names.h"

#include "CodePage.h"

#include <span>
#include <string_view>

namespace dravik::sample {

namespace {

using Words = std::span<const std::string_view>;

// Where people come from and how their names are made: a given name, and a family name of a head and a tail. Some
// peoples have whole family names besides.
struct Nation {
    std::string_view Country;
    int Share; // of all people, in percent
    Words Given;
    Words Heads;
    Words Tails;
    Words Whole;
};

constexpr std::string_view EnglishGiven[] = {
    "Alden",  "Brock", "Colby",  "Curtis", "Dale", "Darcy", "Desmond", "Dwight", "Emmett", "Garnet", "Grady", "Hollis",
    "Kelvin", "Lyle",  "Murray", "Perry",  "Reid", "Rowan", "Spencer", "Tanner", "Trent",  "Vernon", "Wade",  "Wyatt"};
constexpr std::string_view EnglishHeads[] = {"Ains", "Bram", "Crum", "Dun",  "Ebb",  "Fenn", "Gresh", "Hask", "Lorn",
                                             "Marl", "Pell", "Pem",  "Quar", "Stav", "Tarn", "Thack", "Wex",  "Wither"};
constexpr std::string_view EnglishTails[] = {"burn",  "by",   "combe", "field", "low",
                                             "ridge", "shaw", "ton",   "wick",  "worth"};
constexpr std::string_view EnglishWhole[] = {"O'Meara",    "O'Dalloway", "O'Fennick", "O'Quarrie",  "D'Arvelle",
                                             "McAskerill", "McTarvish",  "MacDunnow", "St. Orland", "Vance-O'Rell"};

constexpr std::string_view FrenchGiven[] = {
    "Anthime", "Aurèle",  "Clément", "Côme", "Émile",    "Étienne", "Fabrice",  "Gaétan", "Hervé",  "Honoré",  "Jérôme",
    "Léandre", "Ludovic", "Maxence", "Noël", "René-Luc", "Rémi",    "Thibault", "Ulysse", "Valère", "Zéphirin"};
constexpr std::string_view FrenchHeads[] = {"Beaus", "Belm",  "Brôm",  "Charv",  "Clairv", "Duv",
                                            "Fontr", "Fréch", "Gâtin", "Lachan", "Lév",    "Montv",
                                            "Orm",   "Ranc",  "Sauv",  "Thér",   "Trém",   "Valc"};
constexpr std::string_view FrenchTails[] = {"aque",  "ault", "eau",   "ert", "igny",
                                            "illet", "ière", "oisin", "on",  "ourt"};
constexpr std::string_view FrenchWhole[] = {"D'Aubremont", "L'Érablière", "De L'Ormeraie", "St-Vallois"};

constexpr std::string_view AmericanGiven[] = {"Beau",    "Boone",  "Carver", "Chase",  "Clay", "Dexter", "Easton",
                                              "Griffin", "Harlan", "Hudson", "Jasper", "Knox", "Landon", "Orrin",
                                              "Preston", "Quincy", "Royce",  "Sawyer", "Tate", "Walker", "Zane"};
constexpr std::string_view AmericanHeads[] = {"Brack", "Cutt", "Dray",  "Elms",   "Fall", "Gann",
                                              "Heck",  "Kirb", "Lank",  "Mott",   "Norr", "Pru",
                                              "Rusk",  "Sedg", "Tolli", "Vander", "Whit", "Yarb"};
constexpr std::string_view AmericanTails[] = {"ford", "gate", "ley",   "man",  "more",
                                              "ner",  "son",  "strom", "well", "wood"};

constexpr std::string_view SwedishGiven[] = {"Åke",     "Arvid", "Björn",  "Edvin", "Folke",    "Göran", "Håkan",
                                             "Hjalmar", "Isak",  "Jörgen", "Kjell", "Lennart",  "Loke",  "Måns",
                                             "Örjan",   "Pär",   "Ragnar", "Sören", "Torbjörn", "Viggo", "Yngve"};
constexpr std::string_view SwedishHeads[] = {"Älm", "Ång",  "Brän",  "Ek",  "Fjäll", "Grön", "Hägg", "Hjort",
                                             "Löv", "Mörk", "Öster", "Ryd", "Sjö",   "Skog", "Tall", "Vass"};
constexpr std::string_view SwedishTails[] = {"berg", "dal", "hed", "kvist", "lid", "mark", "stig", "strand", "vik"};

constexpr std::string_view FinnishGiven[] = {"Aarne", "Arto",   "Eero",  "Esko",   "Heikki", "Ilmari", "Jorma",
                                             "Jyrki", "Kalevi", "Lauri", "Martti", "Onni",   "Paavo",  "Risto",
                                             "Seppo", "Tapio",  "Tauno", "Urho",   "Väinö",  "Veikko", "Yrjö"};
constexpr std::string_view FinnishHeads[] = {"Ahven",  "Hallan", "Haukin", "Honkan", "Järven", "Kallion",
                                             "Karhun", "Kuusin", "Lammin", "Lehmus", "Mäntyn", "Pelton",
                                             "Rautan", "Suon",   "Tammin", "Vaaran"};
constexpr std::string_view FinnishTails[] = {"aho", "koski", "lahti", "mäki",  "niemi",
                                             "pää", "ranta", "saari", "salmi", "virta"};

constexpr std::string_view CzechGiven[] = {"Alois", "Blažej",   "Bohumil", "Ctibor", "Dalibor", "Evžen", "František",
                                           "Hynek", "Ivo",      "Jáchym",  "Kamil",  "Kryštof", "Libor", "Matouš",
                                           "Radim", "Slavomír", "Tibor",   "Vít",    "Zdislav"};
constexpr std::string_view CzechHeads[] = {"Brab", "Drob", "Hrad",  "Jedl", "Koz", "Krup", "Lip", "Mraz",
                                           "Pol",  "Sedl", "Sklen", "Tich", "Vod", "Vrb",  "Zem"};
constexpr std::string_view CzechTails[] = {"ák", "ánek", "enský", "ílek", "ina", "ovský", "uška", "yn"};

constexpr std::string_view SlovakGiven[] = {"Andrej", "Boris",  "Cyril",     "Dušan",    "Emil",      "Gejza",
                                            "Igor",   "Juraj",  "Kornel",    "Ladislav", "Rastislav", "Ondrej",
                                            "Šimon",  "Štefan", "Svätopluk", "Vavrinec", "Vendelín"};
constexpr std::string_view SlovakHeads[] = {"Dubn",   "Hor",  "Jabl", "Kriv", "Lesn", "Mlyn", "Oravc",
                                            "Pastor", "Ratk", "Rybn", "Slob", "Trnk", "Vrab", "Žil"};
constexpr std::string_view SlovakTails[] = {"ák", "anský", "ický", "ík", "inec", "ovan", "uš"};

constexpr std::string_view RussianGiven[] = {"Anatoly", "Arkady", "Boris",  "Dmitri", "Fyodor",  "Gennady", "Ignat",
                                             "Kirill",  "Lev",    "Matvei", "Oleg",   "Prokhor", "Rodion",  "Stepan",
                                             "Taras",   "Timur",  "Vadim",  "Yegor",  "Zakhar"};
constexpr std::string_view RussianHeads[] = {"Berez", "Chub", "Drozd", "Dub", "Gor",  "Kal", "Kras",  "Lug",
                                             "Morod", "Ozer", "Pest",  "Rog", "Stol", "Tum", "Voron", "Yastr"};
constexpr std::string_view RussianTails[] = {"ankov", "arov", "enkov", "etsky", "inov", "omin", "ovin", "ushin"};

constexpr std::string_view GermanGiven[] = {"Anselm",  "Bernd",   "Detlef", "Egon", "Falk",   "Gernot", "Götz",
                                            "Günther", "Hartmut", "Ingo",   "Jörg", "Jürgen", "Lothar", "Norbert",
                                            "Rüdiger", "Sönke",   "Thilo",  "Uwe",  "Wolfram"};
constexpr std::string_view GermanHeads[] = {"Brück",  "Dörn",  "Eber",  "Förs",   "Grün",  "Hölz",
                                            "Kessel", "Lind",  "Mühl",  "Nieder", "Oster", "Pflüg",
                                            "Röm",    "Schön", "Stein", "Türk",   "Zimm"};
constexpr std::string_view GermanTails[] = {"bauer", "egger", "hammer", "hofer", "mann", "rieder", "stätter", "thaler"};

constexpr std::string_view LatvianGiven[] = {"Andris", "Edgars",   "Guntis", "Imants", "Juris",  "Kaspars",
                                             "Modris", "Normunds", "Oskars", "Raivis", "Valdis", "Zigurds"};
constexpr std::string_view LatvianHeads[] = {"Berz", "Kalv", "Lapsk", "Ozol", "Priedn",
                                             "Rudz", "Siln", "Vanag", "Zvirg"};
constexpr std::string_view LatvianTails[] = {"alns", "auskis", "enieks", "ens", "itis", "ums"};

constexpr std::string_view NorseGiven[] = {"Bjørn",   "Geir",   "Halvor",   "Håvard",  "Jørn",
                                           "Kåre",    "Leif",   "Odd",      "Øystein", "Søren",
                                           "Steinar", "Sverre", "Torbjørn", "Trygve",  "Vegard"};
constexpr std::string_view NorseHeads[] = {"Ås", "Bjørn", "Fjell", "Gran", "Haug", "Kvam", "Lø",
                                           "Mø", "Nord",  "Øver",  "Røys", "Sol",  "Tang"};
constexpr std::string_view NorseTails[] = {"dal", "heim", "land", "nes", "rud", "set", "stad", "vik"};

constexpr Nation Nations[] = {
    {"CAN", 27, EnglishGiven, EnglishHeads, EnglishTails, EnglishWhole},
    {"CAN", 13, FrenchGiven, FrenchHeads, FrenchTails, FrenchWhole},
    {"USA", 20, AmericanGiven, AmericanHeads, AmericanTails, {}},
    {"SWE", 9, SwedishGiven, SwedishHeads, SwedishTails, {}},
    {"FIN", 8, FinnishGiven, FinnishHeads, FinnishTails, {}},
    {"CZE", 6, CzechGiven, CzechHeads, CzechTails, {}},
    {"SVK", 4, SlovakGiven, SlovakHeads, SlovakTails, {}},
    {"RUS", 5, RussianGiven, RussianHeads, RussianTails, {}},
    {"GER", 2, GermanGiven, GermanHeads, GermanTails, {}},
    {"SUI", 2, GermanGiven, GermanHeads, GermanTails, {}},
    {"LAT", 2, LatvianGiven, LatvianHeads, LatvianTails, {}},
    {"NOR", 2, NorseGiven, NorseHeads, NorseTails, {}},
};

static_assert([] {
    int sum = 0;
    for (const Nation& nation : Nations)
        sum += nation.Share;
    return sum;
}() == 100);

const Nation& Draw(Random& random)
{
    int left = random.Between(1, 100);
    const Nation* nation = Nations;
    while (left > nation->Share)
        left -= (nation++)->Share;
    return *nation;
}

std::string Family(Random& random, const Nation& nation)
{
    if (!nation.Whole.empty() && random.Chance(6))
        return std::string(random.Pick(nation.Whole));
    std::string family(random.Pick(nation.Heads));
    family += random.Pick(nation.Tails);
    return family;
}

} // namespace

PersonName NameMaker::Next()
{
    constexpr std::size_t width = 40;
    for (;;) {
        const Nation& nation = Draw(random);
        std::string name(random.Pick(nation.Given));
        name += " " + Family(random, nation);
        if (random.Chance(2))
            name += "-" + Family(random, nation);
        name = SingleByte(name);
        if (name.size() <= width && taken.insert(name).second)
            return {name, std::string(nation.Country)};
    }
}

} // namespace dravik::sample
