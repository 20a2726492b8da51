#pragma once

#include "support/LeagueImage.h"
#include "support/SmallLeague.h"

#include <functional>
#include <iosfwd>
#include <map>
#include <span>

namespace dravik {

// What can befall one file operation.
struct FileFault {
    const char* Name;
    int Number;
    const char* Description;
    bool Tears = false; // half of a write is on the disk by then
    bool Kills = false; // the process ends there: nothing is closed, nothing cleaned up

    // The box that tells it.
    [[nodiscard]] Box ToldWith(const std::string& ending) const
    {
        return {box::Critical, std::to_string(Number) + " - " + Description + ending};
    }
};

void PrintTo(const FileFault& fault, std::ostream* out);

// All of them. A process is killed only where it can be copied before; elsewhere a disk that goes away for good stands for it.
std::span<const FileFault> FileFaults();

// The place of `fault` among all of them.
std::size_t PlaceOf(const FileFault& fault);

// Whether `fault` is to befall operation `n` of `operations`. The first eight and the last four meet every fault; of the
// hundreds of reads or writes between them, each of which is like the others, every one meets one fault.
bool Befalls(const FileFault& fault, std::size_t n, std::size_t operations);
bool IsAtTheEdge(std::size_t n, std::size_t operations);

// A league with a team, and runs of file work over it that meet a fault.
class FaultyFiles : public SmallLeague {
protected:
    using Work = std::function<bool()>; // says whether it came to its end
    using Snapshot = std::map<std::string, ByteVector>;
    using Operations = std::vector<std::string>;

    // How a run ended: told in boxes, thrown as a failure, killed, or well.
    struct Outcome {
        bool Done = false;
        bool Killed = false;
        int Thrown = 0;
        std::vector<Box> Boxes;
    };

    FaultyFiles();

    Outcome Run(const Work& work);
    // Runs `work` so that `fault` befalls its operation `n`, counted from 1.
    Outcome RunWith(const FileFault& fault, std::size_t n, const Work& work);
    // The file operations of a run without a fault.
    Operations OperationsOf(const Work& work);

    [[nodiscard]] Snapshot Disk() const;
    // Brings the folder into the state `files`.
    void SetDisk(const Snapshot& files) const;
    [[nodiscard]] std::vector<std::string> FileNames() const;

    // What a run showed: nothing, or a critical box.
    using Shown = std::vector<Box>;
    static Shown Nothing() { return {}; }
    static Shown Critical(const std::string& text) { return {{box::Critical, text}}; }

    // Every table of the program.
    static ByteVector Tables();

private:
    Outcome RunInProcess(const FileFault& fault, std::size_t n, const Work& work);
    Outcome RunAndKill(const FileFault& fault, std::size_t n, const Work& work);
};

} // namespace dravik
