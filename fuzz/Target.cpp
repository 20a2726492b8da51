#include "fuzz/Target.h"

#include <cstdlib>
#ifdef DRAVIK_FUZZ
#include <sanitizer/allocator_interface.h>
#endif

namespace dravik::fuzz {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

namespace {

#ifdef DRAVIK_FUZZ
constexpr std::int64_t MostGrowth = 64LL << 20; // bytes that one input may take at once

std::int64_t Live = 0;
std::int64_t LiveBefore = 0;

void Allocated(const volatile void* /*block*/, std::size_t size)
{
    Live += static_cast<std::int64_t>(size);
    Require(Live - LiveBefore <= MostGrowth);
}

void Freed(const volatile void* block)
{
    if (block != nullptr)
        Live -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(block));
}

void WatchMemory()
{
    static const int installed = __sanitizer_install_malloc_and_free_hooks(Allocated, Freed);
    Require(installed != 0);
    LiveBefore = Live;
}
#else
void WatchMemory() {}
#endif

} // namespace
} // namespace dravik::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    dravik::fuzz::WatchMemory();
    dravik::fuzz::RunTarget({data, size});
    return 0;
}
