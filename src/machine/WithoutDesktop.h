#pragma once

#include "league/Failure.h"
#include "machine/Md5.h"
#include "machine/Platform.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace dravik {

// A machine of a program that has no desktop, over the files of `Base`, a Platform or what was built on one: nobody is there to
// choose a file (fails with 32755) or to type a line (empty), there is no wait screen, and no location is opened (fails with 5). Of
// the settings there is one, which says whether files are plain; what is saved to them is not kept. It stands in "." and is alone.
template <class Base>
class WithoutDesktop : public Base {
public:
    // What the setting `SkipZIPClient` says.
    void UsePlainFiles(bool yes) { plain = yes; }

    std::string InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                         const std::string& /*text*/) override
    {
        return {};
    }
    std::string OpenFileDialog(const std::string& /*folder*/, const std::string& /*filter*/) override
    {
        Fail(failure::Cancelled);
    }
    std::string GetSetting(const std::string& /*section*/, const std::string& key,
                           const std::string& otherwise) override
    {
        return plain && key == "SkipZIPClient" ? "YES" : otherwise;
    }
    void SaveSetting(const std::string& /*section*/, const std::string& /*key*/, const std::string& /*value*/) override
    {
    }
    std::string ProgramFolder() override { return "."; }
    bool AnotherInstanceRuns() override { return false; }
    void ShowWait() override {}
    void CloseWait() override {}
    std::array<std::uint8_t, 16> Md5(std::string_view bytes) override { return Md5Of(bytes); }
    int OpenLocation(const std::string& /*location*/, int /*showMode*/) override { Fail(failure::InvalidCall); }

private:
    bool plain = false;
};

} // namespace dravik
