#include "screens/Remembered.h"

#include "session/Session.h"

namespace dravik {

namespace {

constexpr const char* Section = "Screens";

} // namespace

std::string Remembered(const std::string& key) noexcept
{
    try {
        return Machine().GetSetting(Section, key, {});
    } catch (const std::exception&) {
        return {}; // the main screen has read the settings before, and told
    }
}

void Remember(const std::string& key, const std::string& value) noexcept
{
    try {
        Machine().SaveSetting(Section, key, value);
    } catch (const std::exception&) {
        return;
    }
}

} // namespace dravik
