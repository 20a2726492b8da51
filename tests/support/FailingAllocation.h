#pragma once

#include <cstddef>

namespace dravik {

// As long as it lives, the n-th allocation from its making on (counted from 1) fails with std::bad_alloc, once. Linking
// it replaces the allocation functions of the test program.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t n);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    // Whether its allocation has come and failed.
    [[nodiscard]] static bool Failed();
};

} // namespace dravik
