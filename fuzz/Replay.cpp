// Runs a fuzz target over files, for compilers without a fuzzer.
//
//     fuzz_NAME PATH...     every file, and every file of every folder named, in the order of their names
//
// A crash names the file that it came from. Ends with 1 when there was not a single file.

#include "fuzz/Target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& path)
{
    if (!fs::is_directory(path))
        return {path};
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(path))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool Replay(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::cerr << "cannot read " << path.string() << '\n';
        return false;
    }
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), {});
    std::cout << path.string() << '\n' << std::flush;
    // A copy of just this size, so that reading behind its end is seen by whoever watches memory.
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    dravik::fuzz::RunTarget(input);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i)
        for (const fs::path& path : FilesOf(argv[i])) {
            if (!Replay(path))
                return 1;
            ++count;
        }
    std::cout << count << " inputs\n";
    return count == 0 ? 1 : 0;
}
