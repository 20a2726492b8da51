#pragma once

#include <string>

namespace dravik {

// Where the sample league lies: beside the journals, in the user's own data. The folder may not be there yet; empty where the
// desktop knows of no such place.
std::string SamplePlace();

} // namespace dravik
