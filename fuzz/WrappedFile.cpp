#include "fuzz/MemoryPlatform.h"
#include "fuzz/ReadFileTarget.h"

#include <algorithm>
#include <cstring>
#include <vector>
#include <zlib.h>

namespace dravik::fuzz {

bool FilesArePlain() { return false; }

std::shared_ptr<const Content> FileOf(Input input)
{
    return std::make_shared<PlainContent>(std::vector<std::uint8_t>(input.begin(), input.end()));
}

} // namespace dravik::fuzz

#ifdef DRAVIK_FUZZ
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed);

// Noise in a compressed stream hardly ever gets past the decompressor. Half of the time what is inside it is changed and
// compressed again.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    constexpr std::size_t lengthField = 4;
    constexpr std::size_t mostInside = 1 << 18;
    static std::vector<std::uint8_t> inside(mostInside);
    static std::vector<std::uint8_t> wrapped(mostInside * 2);
    if (seed % 2 == 0 || size <= lengthField || maxSize <= lengthField)
        return LLVMFuzzerMutate(data, size, maxSize);
    auto count = static_cast<uLongf>(inside.size() / 2);
    (void)uncompress(inside.data(), &count, data + lengthField, static_cast<uLong>(size - lengthField));
    count = std::min<uLongf>(count, inside.size() / 2);
    count = LLVMFuzzerMutate(inside.data(), count, inside.size());
    auto length = static_cast<uLongf>(wrapped.size());
    const int level = 1 + static_cast<int>(seed / 2 % 9);
    if (compress2(wrapped.data(), &length, inside.data(), count, level) != Z_OK || length > maxSize - lengthField)
        return LLVMFuzzerMutate(data, size, maxSize);
    for (std::size_t i = 0; i < lengthField; ++i)
        data[i] = static_cast<std::uint8_t>(count >> (8 * i));
    std::memcpy(data + lengthField, wrapped.data(), length);
    return lengthField + length;
}
#endif
