#include "league/Failure.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

std::string DescriptionOf(int number) { return Failure(number).what(); }

TEST(FailureTest, EveryNumberHasItsDescription)
{
    EXPECT_EQ(DescriptionOf(5), "Invalid procedure call or argument");
    EXPECT_EQ(DescriptionOf(6), "Overflow");
    EXPECT_EQ(DescriptionOf(7), "Out of memory");
    EXPECT_EQ(DescriptionOf(9), "Subscript out of range");
    EXPECT_EQ(DescriptionOf(11), "Division by zero");
    EXPECT_EQ(DescriptionOf(13), "Type mismatch");
    EXPECT_EQ(DescriptionOf(53), "File not found");
    EXPECT_EQ(DescriptionOf(61), "Disk full");
    EXPECT_EQ(DescriptionOf(70), "Permission denied");
    EXPECT_EQ(DescriptionOf(75), "Path/File access error");
    EXPECT_EQ(DescriptionOf(76), "Path not found");
    EXPECT_EQ(DescriptionOf(32755), "Cancel was selected.");
}

TEST(FailureTest, ANumberThatNobodyKnowsReadsAsAnInvalidCallAndIsKept)
{
    EXPECT_EQ(DescriptionOf(8), "Invalid procedure call or argument");
    EXPECT_EQ(Failure(8).Number, 8);
}

TEST(FailureTest, TheNamesStandForTheirNumbers)
{
    EXPECT_EQ(failure::InvalidCall, 5);
    EXPECT_EQ(failure::Overflow, 6);
    EXPECT_EQ(failure::OutOfMemory, 7);
    EXPECT_EQ(failure::OutOfRange, 9);
    EXPECT_EQ(failure::DivisionByZero, 11);
    EXPECT_EQ(failure::TypeMismatch, 13);
    EXPECT_EQ(failure::FileNotFound, 53);
    EXPECT_EQ(failure::DiskFull, 61);
    EXPECT_EQ(failure::PermissionDenied, 70);
    EXPECT_EQ(failure::PathAccess, 75);
    EXPECT_EQ(failure::PathNotFound, 76);
    EXPECT_EQ(failure::Cancelled, 32755);
}

TEST(FailureTest, FailThrowsTheFailureOfItsNumber)
{
    EXPECT_THROW(
        try { Fail(61); } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, 61);
            EXPECT_STREQ(failed.what(), "Disk full");
            throw;
        },
        Failure);
}

} // namespace
} // namespace dravik
