#pragma once

// Where a process can be asked for the peak of its memory, and the peak be set back.
#ifdef __linux__

#include <fstream>
#include <functional>
#include <string>

namespace dravik {

// The most memory that `work` takes beyond what is taken already, in KiB.
inline long PeakKiBOf(const std::function<void()>& work)
{
    const auto peak = [] {
        std::ifstream status("/proc/self/status");
        for (std::string word; status >> word;)
            if (word == "VmHWM:") {
                long value = 0;
                status >> value;
                return value;
            }
        return -1L;
    };
    // Sets the peak back to what is taken now; where that is forbidden, the peak can only seem too low.
    std::ofstream("/proc/self/clear_refs") << "5";
    const long before = peak();
    work();
    return peak() - before;
}

} // namespace dravik

#endif
