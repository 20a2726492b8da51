#pragma once

#include "league/Failure.h"

#include <string>
#include <utility>

namespace dravik {

// The settings store fails: it could not be written, and what was to be stored holds until the program ends; or it was found
// to be broken when it was first read.
struct SettingsFailure : Failure {
    SettingsFailure(int number, std::string file, std::string setAside = {}) :
        Failure(number), File(std::move(file)), SetAside(std::move(setAside))
    {
    }

    std::string File;     // where the settings are kept
    std::string SetAside; // the path that a broken store has now; empty as long as it stands where it stood
};

} // namespace dravik
