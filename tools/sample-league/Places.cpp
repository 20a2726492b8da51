#include "Places.h"

namespace dravik::sample {

constexpr std::array<Place, 32> Places{{
    {"Port Alderney Sound", "Tugboats", "PAS", "The Boathouse", "Upper Locks Bargemen", "ULB"},
    {"Kestrel Bay", "Lanterns", "KES", "Lighthouse Hall", "Sparrow Point Wicks", "SPW"},
    {"Saint-Ambrelin", "Éclaireurs", "SAM", "Palais du Vieux-Quai", "Rivière-Brume Sentinelles", "RBS"},
    {"Marrow Creek", "Millers", "MAR", "Millrace Arena", "Grist Corners Sifters", "GRI"},
    {"Fenwater", "Breakers", "FEN", "Seawall Gardens", "Pebble Cove Ripples", "PEB"},
    {"Halvorsund", "Ice Pilots", "HAL", "Pilothouse", "Brisling Harbor Deckhands", "BRI"},
    {"O'Harrow Falls", "Cataracts", "OHF", "Tailwater Forum", "Mistview Rapids", "MIS"},
    {"Tarnhelm", "Smiths", "TAR", "The Forge", "Bellows End Tongs", "BEL"},
    {"Graymere", "Herons", "GRY", "Reedbank Rink", "Sedgeway Waders", "SED"},
    {"Brindle Harbour", "Cormorants", "BRH", "Dockside Dome", "Oakum Terns", "OAK"},
    {"Côte-Vermeil", "Bûcherons", "COV", "Colisée des Pins", "Val-Cendré Hachettes", "VCH"},
    {"Loon Narrows", "Paddlers", "LOO", "Portage Place Rink", "Birchbark Canoes", "BIR"},
    {"Old Quarry", "Stonecutters", "OLD", "The Pit", "Gravel Switch Chisels", "GRA", true},
    {"Wexcombe Junction", "Switchmen", "WEX", "Roundhouse", "Sidetrack Flags", "SID"},
    {"Dunmarrow", "Foxes", "DUN", "Vixen Hill Arena", "Bracken Kits", "BRA"},
    {"Cinder Plains", "Stokers", "CIN", "Boiler Works Center", "Ember Flats Sparks", "EMB"},
    {"Veldstrand", "Skippers", "VEL", "Strandhallen", "Duinkant Sloops", "DUI"},
    {"Ashgrove Landing", "Ferrymen", "ASH", "Slipway Stadium", "Rope Crossing Oars", "ROP"},
    {"Pinnacle Forks", "Ibex", "PIN", "Summit House", "Scree Hollow Goats", "SCR"},
    {"Lac-Perdrelle", "Trappeurs", "LAC", "Aréna du Rivage", "Anse-aux-Loutres Pagaies", "ANS"},
    {"Sable Ridge", "Martens", "SAB", "Ridgeline Arena", "Furrow Hill Stoats", "FUR"},
    {"Thornwick", "Thistles", "THO", "Bramble Court", "Nettle Green Burrs", "NET"},
    {"Gilden Valley", "Ploughmen", "GIL", "Harvest Hall", "Haymow Reapers", "HAY"},
    {"Rustwater", "Windmills", "RUS", "Well Number Nine", "Dry Fork Derricks", "DRY"},
    {"Mirrormere", "Pikes", "MIR", "Stillwater Palace", "Shallow End Minnows", "SHA", true},
    {"Two Bears", "Wardens", "TWO", "Timberline Lodge Rink", "One Cub Trackers", "ONE"},
    {"Ombrecliff", "Beacons", "OMB", "Cliffside Pavilion", "Dusk Point Flares", "DUS"},
    {"Quillon", "Fencers", "QUI", "Salle d'Armes", "Pommel Heath Foils", "POM"},
    {"Saltmarsh City", "Plovers", "SAL", "Tidal Flats Arena", "Brine Creek Snipes", "BRC"},
    {"Hollinbrook", "Weavers", "HOL", "The Loom", "Spindle Wharf Shuttles", "SPI"},
    {"Ironbend", "Hammermen", "IRO", "Foundry Field House", "Anvil Gap Rivets", "ANV"},
    {"Skarnholm", "Walkers", "SKA", "Norrskenshallen", "Isflaksby Skidders", "ISF"},
}};

} // namespace dravik::sample
