#pragma once

#include <string>

namespace dravik {

// The per-user settings store. Texts are in the single-byte code page.
class Settings {
public:
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    virtual ~Settings() = default;

    virtual std::string GetSetting(const std::string& section, const std::string& key,
                                   const std::string& otherwise) = 0;
    // Fails with a SettingsFailure when it could not be written.
    virtual void SaveSetting(const std::string& section, const std::string& key, const std::string& value) = 0;
};

} // namespace dravik
