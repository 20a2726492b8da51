#include "fuzz/Target.h"

#include <cstdlib>
#include <ctime>
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
constexpr std::int64_t MostGrowth = 64LL << 20;      // bytes that one input may take at once
constexpr std::clock_t LongestWork = CLOCKS_PER_SEC; // of the processor, whatever else keeps the machine busy

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

// What one input takes has an end. Only where libFuzzer drives: a debugger or a checker of memory may take its time.
void RunWatched(Input input)
{
    WatchMemory();
    const std::clock_t begin = std::clock();
    RunTarget(input);
    Require(std::clock() - begin <= LongestWork);
}
#else
void RunWatched(Input input) { RunTarget(input); }
#endif

} // namespace
} // namespace dravik::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    dravik::fuzz::RunWatched({data, size});
    return 0;
}
