#pragma once

#include "machine/Disk.h"
#include "machine/Formats.h"
#include "machine/Settings.h"
#include "machine/Voice.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace dravik {

// Everything that the program needs from the machine it runs on, and nothing else: its four parts, each of which is handed
// to who needs it, and what belongs to none of them. Texts are in the single-byte code page. Every operation reports what
// goes wrong as a Failure with the number that fits.
class Platform : public Voice, public Formats, public Disk, public Settings {
public:
    // Asks for a file to open, beginning in `folder`. `filter` alternates captions and patterns, parted by "|". Cancel
    // fails with number 32755.
    virtual std::string OpenFileDialog(const std::string& folder, const std::string& filter) = 0;

    virtual std::string Version() = 0;
    virtual bool AnotherInstanceRuns() = 0;

    // Shows the wait screen if it is not shown, then lets the screen paint for about 100 milliseconds, holding back
    // what the user types and clicks.
    virtual void ShowWait() = 0;
    // The same, and `work` done: a desktop does it as soon as the screen is painted and so within its time. What fails in
    // it goes on from here when that time has passed.
    virtual void ShowWaitOver(const std::function<void()>& work)
    {
        ShowWait();
        work();
    }
    virtual void CloseWait() = 0;

    // Hands `location` to the desktop with the verb "open"; returns the desktop's answer.
    virtual int OpenLocation(const std::string& location, int showMode) = 0;

    virtual std::array<std::uint8_t, 16> Md5(std::string_view bytes) = 0;
};

} // namespace dravik
