#pragma once

#include "machine/Voice.h"

#include <string>

namespace dravik {

// Writes down whatever it is told, in one text, and answers every question with no.
class NotingVoice final : public Voice {
public:
    NotingVoice() { MessagesAllowed = true; }

    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        Note(title + ' ' + std::to_string(kind), text);
        return kind == box::YesNo || kind == box::YesNoCancel ? button::No : button::Ok;
    }
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override
    {
        Note(title + ' ' + prompt, text);
        return {};
    }
    void LeagueNews(std::string_view text) override { Note("league", text); }
    void TeamNews(int team, std::string_view text) override { Note("team " + std::to_string(team), text); }
    void WriteLog(std::string_view text) override { Note("log", text); }
    void PlayerErased(int id, int team) override { Note("erased " + std::to_string(id), std::to_string(team)); }

    std::string Heard;

private:
    void Note(const std::string& what, std::string_view text)
    {
        Heard += what;
        Heard += ": ";
        Heard += text;
        Heard += '\n';
    }
};

} // namespace dravik
