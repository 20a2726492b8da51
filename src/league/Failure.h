#pragma once

#include <stdexcept>

namespace dravik {

// An unexpected failure with the number under which the general manager knows it. The text is the description.
struct Failure : std::runtime_error {
    explicit Failure(int number);

    int Number;
};

namespace failure {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int OutOfRange = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int DiskFull = 61;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int Cancelled = 32755;
} // namespace failure

// Throws a Failure with `number`, one of the numbers above.
[[noreturn]] void Fail(int number);

} // namespace dravik
