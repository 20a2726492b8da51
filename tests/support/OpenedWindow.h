#pragma once

#include "session/OpenLeagueClient.h"

#include <map>
#include <string>
#include <vector>

namespace dravik {

// A main window that notes what opening a client file does to it, in order, one line a call.
class OpenedWindow final : public MainWindow {
public:
    std::vector<std::string> Calls;
    std::map<QuietLine, std::string> Quiet; // what stands in the quiet lines, those that say something

    void SetWindowCaption(const std::string& caption) override { Calls.push_back("caption " + caption); }
    void PlaceTeam() override { Calls.emplace_back("place teams"); }
    void CentreOnScreen() override { Calls.emplace_back("centre"); }
    void ShowLeagueMenus() override { Calls.emplace_back("show menus"); }
    void SetDraftMenu(bool enabled, std::string_view caption) override
    {
        Calls.push_back("draft " + std::string(enabled ? "on " : "off ") + std::string(caption));
    }
    void SetFreeAgentsMenu(bool enabled) override
    {
        Calls.emplace_back(enabled ? "free agents on" : "free agents off");
    }
    void SetDateLabel(const std::string& text) override { Calls.push_back("date " + text); }
    void Tell(QuietLine line, const std::string& text) override
    {
        if (text.empty())
            Quiet.erase(line);
        else
            Quiet[line] = text;
    }
};

} // namespace dravik
