#include "support/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t AllocationsLeft = 0;
thread_local bool HasFailed = false;

} // namespace

void* operator new(std::size_t size)
{
    if (AllocationsLeft > 0 && --AllocationsLeft == 0) {
        HasFailed = true;
        throw std::bad_alloc();
    }
    if (void* block = std::malloc(size == 0 ? 1 : size))
        return block;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }
void operator delete(void* block, const std::nothrow_t& /*nothrow*/) noexcept { std::free(block); }

namespace dravik {

FailingAllocation::FailingAllocation(std::size_t n)
{
    AllocationsLeft = n;
    HasFailed = false;
}

FailingAllocation::~FailingAllocation() { AllocationsLeft = 0; }

bool FailingAllocation::Failed() { return HasFailed; }

} // namespace dravik
