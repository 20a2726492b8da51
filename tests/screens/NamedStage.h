#pragma once

#include "league/Failure.h"
#include "screens/Stage.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace dravik {

// The window of that name. A name of no window fails with 5.
inline Window WindowNamed(std::string_view name)
{
    constexpr std::pair<std::string_view, Window> names[] = {
        {"Main", Window::Main},   {"Team", Window::Team},         {"Roster", Window::Roster},
        {"Line", Window::Line},   {"FarmLine", Window::FarmLine}, {"FreeAgent", Window::FreeAgent},
        {"Draft", Window::Draft}, {"Ticket", Window::Ticket},     {"EditPlayer", Window::EditPlayer},
        {"About", Window::About}, {"Coach", Window::Coach},       {"Prospect", Window::Prospect},
    };
    const auto* found =
        std::find_if(std::begin(names), std::end(names), [name](const auto& each) { return each.first == name; });
    if (found == std::end(names))
        Fail(failure::InvalidCall);
    return found->second;
}

// The stage of a test, to which windows have names, so that a test can say in its message which one it was about.
class NamedStage : public Stage {
public:
    using Stage::Find;
    using Stage::Open;
    using Stage::Provide;

    [[nodiscard]] Screen* Find(std::string_view name) const { return Find(WindowNamed(name)); }
    void Open(std::string_view name, Screen& opener) { Open(WindowNamed(name), opener); }
    void Provide(std::string_view name, Factory factory) { Provide(WindowNamed(name), std::move(factory)); }
};

} // namespace dravik
