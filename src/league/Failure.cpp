#include "league/Failure.h"

#include <algorithm>
#include <array>

namespace dravik {

namespace {

struct Description {
    int Number;
    const char* Text;
};

constexpr std::array<Description, 12> Descriptions{
    Description{failure::InvalidCall, "Invalid procedure call or argument"},
    Description{failure::Overflow, "Overflow"},
    Description{failure::OutOfMemory, "Out of memory"},
    Description{failure::OutOfRange, "Subscript out of range"},
    Description{failure::DivisionByZero, "Division by zero"},
    Description{failure::TypeMismatch, "Type mismatch"},
    Description{failure::FileNotFound, "File not found"},
    Description{failure::DiskFull, "Disk full"},
    Description{failure::PermissionDenied, "Permission denied"},
    Description{failure::PathAccess, "Path/File access error"},
    Description{failure::PathNotFound, "Path not found"},
    Description{failure::Cancelled, "Cancel was selected."},
};

const char* Describe(int number)
{
    const auto* found = std::find_if(Descriptions.begin(), Descriptions.end(),
                                     [number](const Description& known) { return known.Number == number; });
    return found == Descriptions.end() ? "Invalid procedure call or argument" : found->Text;
}

} // namespace

Failure::Failure(int number) : std::runtime_error(Describe(number)), Number(number) {}

void Fail(int number) { throw Failure(number); }

} // namespace dravik
