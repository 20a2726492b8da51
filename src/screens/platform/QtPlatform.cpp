#include "screens/platform/QtPlatform.h"

#include "league/Failure.h"
#include "machine/SettingsFailure.h"
#include "screens/main/frmWait.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Dialogs.h"
#include "screens/platform/Formats.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace dravik {

namespace {

QString Title() { return ToQString(ProgramTitle); }

QString SettingKey(const std::string& section, const std::string& key)
{
    return ToQString(section) + '/' + ToQString(key);
}

// Asking for permissions is not enough: network folders, images and access lists have a mind of their own.
bool CanWriteInto(const QString& folder)
{
    QTemporaryFile probe(folder + "/dravik-XXXXXX.tmp");
    return !folder.isEmpty() && probe.open();
}

// Each user has a lock of his own.
QString UsualLockFile()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = qEnvironmentVariable("USERNAME");
    const bool isName =
        std::none_of(user.begin(), user.end(), [](QChar c) { return c == '/' || c == '\\' || c == ':'; });
    return folder + "/dravik-client" + (user.isEmpty() || !isName ? QString() : '-' + user) + ".lock";
}

void CentreOver(QWidget& window, const QWidget* owner)
{
    window.adjustSize();
    const QRect around = owner != nullptr ? owner->frameGeometry() : window.screen()->availableGeometry();
    window.move(around.center() - window.rect().center());
}

// Holds back what would close a window. Whoever waits may be a routine of that window, which has to outlive it.
class NoClosing : public QObject {
public:
    NoClosing() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Close)
            return false;
        event->ignore();
        return true;
    }
};

// What is done while the wait screen has its time. Until then and behind it no window closes; a box that the work itself
// shows can be closed.
class WaitingWork : public QObject {
public:
    explicit WaitingWork(const std::function<void()>& newWork) : work(newWork), held(std::in_place) {}

    // Does the work, the first time. A failure is kept: it must not run through the toolkit.
    void Do()
    {
        if (std::exchange(isDone, true) || !work)
            return;
        held.reset();
        try {
            work();
        } catch (...) {
            failed = std::current_exception();
        }
        held.emplace();
    }

    // Does the work if its turn has not come, and hands on its failure.
    void Finish()
    {
        Do();
        if (failed)
            std::rethrow_exception(failed);
    }

private:
    const std::function<void()>& work;
    std::optional<NoClosing> held;
    bool isDone = false;
    std::exception_ptr failed;
};

} // namespace

QtPlatform::QtPlatform(QtPlatformPlaces newPlaces) : places(std::move(newPlaces)) {}

QtPlatform::~QtPlatform() { delete wait; }

int QtPlatform::MessageBox(const std::string& text, int kind, const std::string& title)
{
    return ShowMessageBox(ToQString(text), kind, ToQString(title));
}

std::string QtPlatform::InputBox(const std::string& prompt, const std::string& title, const std::string& text)
{
    return FromQString(AskForText(ToQString(prompt), ToQString(title), ToQString(text)).value_or(QString()));
}

std::string QtPlatform::OpenFileDialog(const std::string& folder, const std::string& filter)
{
    const auto file = AskForFile(PathToDesktop(folder), ToQString(filter));
    if (!file)
        Fail(failure::Cancelled);
    return PathToProgram(QDir::toNativeSeparators(*file));
}

std::unique_ptr<QSettings> QtPlatform::Settings() const
{
    auto settings = places.SettingsFile.isEmpty()
                        ? std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, Title(), Title())
                        : std::make_unique<QSettings>(places.SettingsFile, QSettings::IniFormat);
    settings->setFallbacksEnabled(false);
    return settings;
}

// What a crash or a disk made of the settings must not stand in their way for ever, nor be lost.
void QtPlatform::SetBrokenSettingsAside()
{
    settingsAreProved = true;
    std::string file;
    {
        const auto settings = Settings();
        (void)settings->allKeys(); // which has all of it read
        if (settings->status() != QSettings::FormatError)
            return;
        file = PathToProgram(QDir::toNativeSeparators(settings->fileName()));
    }
    const std::string aside = file + ".broken";
    try {
        RenameFile(file, aside);
    } catch (const Failure&) {
        throw SettingsFailure(failure::PathAccess, file);
    }
    throw SettingsFailure(failure::PathAccess, file, aside);
}

std::string QtPlatform::GetSetting(const std::string& section, const std::string& key, const std::string& otherwise)
{
    if (!settingsAreProved)
        SetBrokenSettingsAside();
    const QString name = SettingKey(section, key);
    if (const auto kept = unwritten.find(name); kept != unwritten.end())
        return FromQStringLossless(kept->second);
    const QVariant value = Settings()->value(name);
    return value.isValid() ? FromQStringLossless(value.toString()) : otherwise;
}

void QtPlatform::SaveSetting(const std::string& section, const std::string& key, const std::string& value)
{
    const QString name = SettingKey(section, key);
    const auto settings = Settings();
    // What is stored already is not written once more: a start waits for no disk.
    const QVariant stored = settings->value(name);
    if (stored.isValid() && stored.toString() == ToQString(value) && settings->status() == QSettings::NoError) {
        unwritten.erase(name);
        return;
    }
    settings->setValue(name, ToQString(value));
    settings->sync();
    if (settings->status() != QSettings::NoError) {
        unwritten[name] = ToQString(value);
        throw SettingsFailure(failure::PathAccess, PathToProgram(QDir::toNativeSeparators(settings->fileName())));
    }
    unwritten.erase(name);
}

QString ChooseProgramFolder(const QString& executableFolder, const QString& documents)
{
    if (CanWriteInto(executableFolder))
        return executableFolder;
    QString folder = documents + '/' + Title();
    if (!QDir().mkpath(folder))
        Fail(failure::PathAccess);
    return folder;
}

std::string QtPlatform::ProgramFolder()
{
    if (places.ProgramFolder.isEmpty()) {
#ifdef Q_OS_MACOS
        const QString executableFolder; // programs keep nothing beside themselves there
#else
        const QString executableFolder = QCoreApplication::applicationDirPath();
#endif
        places.ProgramFolder =
            ChooseProgramFolder(executableFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
    return PathToProgram(QDir::toNativeSeparators(QDir::cleanPath(places.ProgramFolder)));
}

std::string QtPlatform::Version() { return DRAVIK_VERSION; }

bool QtPlatform::AnotherInstanceRuns()
{
    if (lock == nullptr) {
        lock = std::make_unique<QLockFile>(places.LockFile.isEmpty() ? UsualLockFile() : places.LockFile);
        // A lock is as good as the process that holds it, however long that runs.
        lock->setStaleLockTime(0);
    }
    if (lock->isLocked() || lock->tryLock(0))
        return false;
    // A lock that names no owner was left by a crash while it was made. One that a process still holds stays.
    if (lock->error() == QLockFile::LockFailedError && !lock->getLockInfo(nullptr, nullptr, nullptr) &&
        lock->removeStaleLockFile() && lock->tryLock(0))
        return false;
    // Where no lock can be made, nothing speaks for another instance.
    return lock->error() == QLockFile::LockFailedError;
}

void QtPlatform::ShowWaitOver(const std::function<void()>& work)
{
    if (wait == nullptr)
        wait = new frmWait(DialogParent());
    if (!wait->isVisible()) {
        CentreOver(*wait, wait->parentWidget());
        wait->show();
    }
    WaitingWork waiting(work);
    if (waitMilliseconds == 0) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } else {
        QEventLoop painting;
        QTimer::singleShot(waitMilliseconds, Qt::PreciseTimer, &painting, &QEventLoop::quit);
        // What is painted is on its way to the display before what is queued runs.
        QObject::connect(wait, &frmWait::Painted, &waiting, &WaitingWork::Do, Qt::QueuedConnection);
        wait->update();
        painting.exec(QEventLoop::ExcludeUserInputEvents);
    }
    waiting.Finish();
}

void QtPlatform::CloseWait() { delete wait; }

int QtPlatform::OpenLocation(const std::string& location, int /*showMode*/)
{
    constexpr int taken = 42;
    constexpr int refused = 0;
    const QUrl url = QUrl::fromUserInput(ToQString(location), QString(), QUrl::AssumeLocalFile);
    return url.isValid() && QDesktopServices::openUrl(url) ? taken : refused;
}

std::string QtPlatform::Currency(double amount) const { return CurrencyText(QLocale(), amount); }

std::string QtPlatform::CurrencyNoDecimals(double amount) const { return CurrencyTextNoDecimals(QLocale(), amount); }

std::string QtPlatform::Fixed(double value, int decimals) const { return FixedText(QLocale(), value, decimals); }

std::string QtPlatform::LongDate(double days) const { return LongDateText(QLocale(), days); }

std::string QtPlatform::ShortTime(double days) const { return ShortTimeText(QLocale(), days); }

std::array<std::uint8_t, 16> QtPlatform::Md5(std::string_view bytes)
{
    const QByteArray hash = QCryptographicHash::hash(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())),
                                                     QCryptographicHash::Md5);
    std::array<std::uint8_t, 16> digest{};
    std::copy(hash.begin(), hash.end(), digest.begin());
    return digest;
}

std::filesystem::path QtPlatform::NativePath(const std::string& path) const
{
#ifdef _WIN32
    return PathToDesktop(path).toStdWString();
#else
    return QFile::encodeName(PathToDesktop(path)).toStdString();
#endif
}

std::string QtPlatform::ProgramPath(const std::filesystem::path& path) const
{
#ifdef _WIN32
    return PathToProgram(QString::fromStdWString(path.native()));
#else
    return PathToProgram(QFile::decodeName(path.c_str()));
#endif
}

} // namespace dravik
