#pragma once

#include "machine/DiskFiles.h"

#include <QLockFile>
#include <QPointer>
#include <QSettings>
#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace dravik {

class frmWait;

// Where the program keeps what it keeps, for tests and tools that must not touch the user's own. An empty text stands for
// the usual place.
struct QtPlatformPlaces {
    QString SettingsFile;
    QString ProgramFolder;
    QString LockFile;
};

// The desktop that the program runs on.
class QtPlatform : public DiskFiles {
public:
    explicit QtPlatform(QtPlatformPlaces places = {});
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;
    ~QtPlatform() override;

    // How long ShowWait lets the screen paint; 100 at first. With 0 it handles what is waiting and returns.
    void SetWaitMilliseconds(int milliseconds) { waitMilliseconds = milliseconds; }
    [[nodiscard]] int WaitMilliseconds() const { return waitMilliseconds; }

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override;
    std::string OpenFileDialog(const std::string& folder, const std::string& filter) override;
    // The first reading of a file that cannot be understood sets it aside under its name and ".broken", and fails with a
    // SettingsFailure that says so; from then on a fresh one is read.
    std::string GetSetting(const std::string& section, const std::string& key, const std::string& otherwise) override;
    // Fails with a SettingsFailure when nothing can be stored; the value holds then for as long as this object does.
    void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
    std::string ProgramFolder() override;
    std::string Version() override;
    bool AnotherInstanceRuns() override;
    void ShowWait() override { ShowWaitOver({}); }
    void ShowWaitOver(const std::function<void()>& work) override;
    void CloseWait() override;
    // 42 when the desktop took the location and 0 when it did not. The desktop decides how its window shows, so `showMode`
    // goes unused. A location without a scheme is taken for a file if it is there, else for a web address.
    int OpenLocation(const std::string& location, int showMode) override;
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;
    std::array<std::uint8_t, 16> Md5(std::string_view bytes) override;

protected:
    std::filesystem::path NativePath(const std::string& path) const override;
    std::string ProgramPath(const std::filesystem::path& path) const override;

private:
    [[nodiscard]] std::unique_ptr<QSettings> Settings() const;
    void SetBrokenSettingsAside();

    QtPlatformPlaces places;
    std::map<QString, QString> unwritten; // settings that could not be stored, by their keys
    bool settingsAreProved = false;
    int waitMilliseconds = 100;
    QPointer<frmWait> wait;
    std::unique_ptr<QLockFile> lock;
};

// The folder of the executable when it can be written to, so that an installation on a stick keeps together; otherwise
// "Dravik Hockey Simulator Client" under `documents`, which is made. Fails with 75 when that cannot be made either.
QString ChooseProgramFolder(const QString& executableFolder, const QString& documents);

} // namespace dravik
