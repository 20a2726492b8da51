#include "screens/platform/QtPlatform.h"

#include "AnswerDialog.h"
#include "league/Failure.h"
#include "machine/Md5.h"
#include "machine/SettingsFailure.h"
#include "screens/main/frmWait.h"
#include "screens/platform/CodePage.h"

#include <gmock/gmock.h>
#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <memory>
#ifdef _WIN32
#include <windows.h>
#undef CreateFile // names of the machine's too
#undef DeleteFile
#undef MessageBox
#else
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace dravik {
namespace {

// Has a file, which a program may hold, be written last at `when`. False where the system does not let it.
bool MakeOld(const QString& path, const QDateTime& when)
{
#ifdef _WIN32
    // A file that is held takes another time from whoever asks for nothing else of it.
    constexpr long long ticksAMillisecond = 10000;
    constexpr long long epoch = 11644473600000; // in milliseconds since 1601, from where the system counts
    const long long ticks = (when.toMSecsSinceEpoch() + epoch) * ticksAMillisecond;
    const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    const HANDLE file = CreateFileW(path.toStdWString().c_str(), FILE_WRITE_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    const bool isOld = file != INVALID_HANDLE_VALUE && SetFileTime(file, nullptr, nullptr, &time);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return isOld;
#else
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(when, QFileDevice::FileModificationTime);
#endif
}

int NumberOfFailure(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

void Write(const QString& name, const QByteArray& content)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

// A desktop that keeps everything in a folder of the test's own, named with letters that few code pages have.
class QtPlatformTest : public ::testing::Test {
protected:
    [[nodiscard]] QtPlatformPlaces Places() const
    {
        return {.SettingsFile = Path("settings.ini"), .ProgramFolder = Folder.path(), .LockFile = Path("lock")};
    }
    [[nodiscard]] QString Path(const QString& name) const { return Folder.filePath(name); }
    [[nodiscard]] std::string InFolder(const QString& name) const { return PathToProgram(Path(name)); }
    // The same as the general manager is told of it.
    [[nodiscard]] std::string Told(const QString& name) const
    {
        return PathToProgram(QDir::toNativeSeparators(Path(name)));
    }

    QTemporaryDir Folder{QDir::tempPath() + QString::fromUtf8("/dravik-Équipe-Лёд-冰-🏒-XXXXXX")};
    QtPlatform Desktop{Places()};
};

TEST_F(QtPlatformTest, ASettingThatIsNotThereIsTheDefault)
{
    EXPECT_EQ(Desktop.GetSetting("Settings", "SkipZIPClient", "No"), "No");
    EXPECT_EQ(Desktop.GetSetting("Settings", "LastLoadLeague", ""), "");
}

TEST_F(QtPlatformTest, ASettingIsThereForTheNextRun)
{
    for (const std::string& value : {std::string("/home/gm/League.dvs"), std::string("C:\\a, b; \"c\" %20.dvs"),
                                     InFolder("x.dvs"), std::string(), std::string(" YES "), std::string("\x8D")}) {
        Desktop.SaveSetting("Settings", "LastLoadLeague", value);
        EXPECT_EQ(QtPlatform(Places()).GetSetting("Settings", "LastLoadLeague", "none"), value);
    }
}

TEST_F(QtPlatformTest, ASettingStandsInItsSectionUnderItsKey)
{
    Write(Path("settings.ini"), "[Settings]\nSkipZIPClient=yes\n[Other]\nSkipZIPClient=no\n");
    EXPECT_EQ(Desktop.GetSetting("Settings", "SkipZIPClient", "No"), "yes");
    EXPECT_EQ(Desktop.GetSetting("Other", "SkipZIPClient", "No"), "no");
    EXPECT_EQ(Desktop.GetSetting("Settings", "LastLoadLeague", "none"), "none");
}

TEST_F(QtPlatformTest, ASettingThatCannotBeKeptFails)
{
    Write(Path("file"), "");
    auto places = Places();
    places.SettingsFile = Path("file/settings.ini");
    QtPlatform desktop(places);
    EXPECT_EQ(NumberOfFailure([&] { desktop.SaveSetting("Settings", "LastLoadLeague", "x"); }), 75);
}

// What `act` says of the settings file; two empty texts when it does not fail so.
std::pair<std::string, std::string> SettingsFailureOf(const std::function<void()>& act)
{
    try {
        act();
    } catch (const SettingsFailure& failed) {
        return {failed.File, failed.SetAside};
    }
    return {};
}

TEST_F(QtPlatformTest, ASettingThatCannotBeKeptNamesTheFileAndHoldsForThisRun)
{
    Write(Path("file"), "");
    auto places = Places();
    places.SettingsFile = Path("file/settings.ini");
    QtPlatform desktop(places);
    EXPECT_EQ(SettingsFailureOf([&] { desktop.SaveSetting("Settings", "LastLoadLeague", "x"); }),
              std::pair(Told("file/settings.ini"), std::string()));
    EXPECT_EQ(desktop.GetSetting("Settings", "LastLoadLeague", "none"), "x");
    EXPECT_EQ(desktop.GetSetting("Settings", "SkipZIPClient", "No"), "No");
    EXPECT_EQ(NumberOfFailure([&] { desktop.SaveSetting("Settings", "LastLoadLeague", "y"); }), 75);
    EXPECT_EQ(desktop.GetSetting("Settings", "LastLoadLeague", "none"), "y");
    EXPECT_EQ(QtPlatform(places).GetSetting("Settings", "LastLoadLeague", "none"), "none");
}

TEST_F(QtPlatformTest, ASettingThatIsStoredAlreadyIsNotWrittenOnceMore)
{
    const QByteArray byHand = "; by hand\n[Settings]\nLastLoadLeague=x\n";
    const auto content = [this] {
        QFile file(Path("settings.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    Write(Path("settings.ini"), byHand);
    Desktop.SaveSetting("Settings", "LastLoadLeague", "x");
    EXPECT_EQ(content(), byHand);
    Desktop.SaveSetting("Settings", "LastLoadLeague", "y");
    EXPECT_NE(content(), byHand);
    EXPECT_EQ(QtPlatform(Places()).GetSetting("Settings", "LastLoadLeague", "none"), "y");
}

TEST_F(QtPlatformTest, ASettingThatIsStoredAlreadyHoldsInsteadOfOneThatCouldNotBeKept)
{
    Write(Path("folder"), "");
    auto places = Places();
    places.SettingsFile = Path("folder/settings.ini");
    QtPlatform desktop(places);
    EXPECT_EQ(NumberOfFailure([&] { desktop.SaveSetting("Settings", "LastLoadLeague", "y"); }), 75);
    ASSERT_TRUE(QFile::remove(Path("folder")));
    ASSERT_TRUE(QDir().mkpath(Path("folder")));
    Write(places.SettingsFile, "[Settings]\nLastLoadLeague=x\n");
    EXPECT_EQ(desktop.GetSetting("Settings", "LastLoadLeague", "none"), "y");
    desktop.SaveSetting("Settings", "LastLoadLeague", "x");
    EXPECT_EQ(desktop.GetSetting("Settings", "LastLoadLeague", "none"), "x");
}

TEST_F(QtPlatformTest, ABrokenSettingsFileIsSetAsideOnceAndAFreshOneBegun)
{
    for (const QByteArray& broken :
         {QByteArray("[Settings]\nLastLoadLeague=x\nno pair\n"), QByteArray("[Settings\na=b\n"),
          QByteArray("no settings at all"), QByteArray(300, '\0')}) {
        Write(Path("settings.ini"), broken);
        QtPlatform desktop(Places());
        const auto read = [&] { return desktop.GetSetting("Settings", "LastLoadLeague", "none"); };
        EXPECT_EQ(SettingsFailureOf([&] { (void)read(); }),
                  std::pair(Told("settings.ini"), Told("settings.ini.broken")));
        EXPECT_FALSE(QFile::exists(Path("settings.ini")));
        QFile aside(Path("settings.ini.broken"));
        ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
        EXPECT_EQ(aside.readAll(), broken);
        EXPECT_EQ(read(), "none");
        desktop.SaveSetting("Settings", "LastLoadLeague", "y");
        EXPECT_EQ(read(), "y");
        EXPECT_EQ(QtPlatform(Places()).GetSetting("Settings", "LastLoadLeague", "none"), "y");
    }
}

TEST_F(QtPlatformTest, ABrokenSettingsFileThatCannotBeSetAsideStaysAndIsNamed)
{
    Write(Path("settings.ini"), "no settings at all");
    ASSERT_TRUE(QDir().mkpath(Path("settings.ini.broken/folder")));
    EXPECT_EQ(SettingsFailureOf([&] { (void)Desktop.GetSetting("Settings", "LastLoadLeague", "none"); }),
              std::pair(Told("settings.ini"), std::string()));
    EXPECT_EQ(Desktop.GetSetting("Settings", "LastLoadLeague", "none"), "none");
    EXPECT_TRUE(QFile::exists(Path("settings.ini")));
}

TEST_F(QtPlatformTest, TheProgramFolderHasNoSeparatorAtItsEnd)
{
    EXPECT_EQ(PathToDesktop(Desktop.ProgramFolder()), QDir::toNativeSeparators(Folder.path()));
    auto places = Places();
    places.ProgramFolder += "/";
    EXPECT_EQ(QtPlatform(places).ProgramFolder(), Desktop.ProgramFolder());
}

TEST_F(QtPlatformTest, AWritableFolderOfTheExecutableIsTheProgramFolder)
{
    EXPECT_EQ(ChooseProgramFolder(Folder.path(), Path("documents")), Folder.path());
    // The probe leaves nothing behind.
    EXPECT_EQ(QDir(Folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
}

TEST_F(QtPlatformTest, WithoutOneTheProgramFolderIsMadeUnderTheDocuments)
{
    const QString expected = Path("documents/Dravik Hockey Simulator Client");
    EXPECT_EQ(ChooseProgramFolder(Path("not there"), Path("documents")), expected);
    EXPECT_TRUE(QDir(expected).exists());
    EXPECT_EQ(ChooseProgramFolder("", Path("documents")), expected);
}

TEST_F(QtPlatformTest, AProgramFolderThatCannotBeMadeFails)
{
    Write(Path("documents"), "");
    EXPECT_EQ(NumberOfFailure([&] { ChooseProgramFolder("", Path("documents")); }), 75);
}

TEST_F(QtPlatformTest, TheVersionIsThatOfTheBuild) { EXPECT_EQ(Desktop.Version(), DRAVIK_VERSION); }

TEST_F(QtPlatformTest, TheSecondOfTwoInstancesKnowsOfTheFirst)
{
    auto first = std::make_unique<QtPlatform>(Places());
    EXPECT_FALSE(first->AnotherInstanceRuns());
    EXPECT_FALSE(first->AnotherInstanceRuns());
    EXPECT_TRUE(Desktop.AnotherInstanceRuns());
    EXPECT_TRUE(Desktop.AnotherInstanceRuns());
    first.reset();
    EXPECT_FALSE(Desktop.AnotherInstanceRuns());
}

TEST_F(QtPlatformTest, AnInstanceThatRunsForDaysIsStillThere)
{
    QtPlatform first(Places());
    EXPECT_FALSE(first.AnotherInstanceRuns());
    ASSERT_TRUE(MakeOld(Path("lock"), QDateTime::currentDateTime().addDays(-7)));
    EXPECT_TRUE(Desktop.AnotherInstanceRuns());
}

#ifndef _WIN32
TEST_F(QtPlatformTest, TheLockOfAnInstanceThatCrashedDoesNotBlock)
{
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        QtPlatform crashing(Places());
        _exit(crashing.AnotherInstanceRuns() ? 1 : 0); // without giving the lock back
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(Path("lock")));
    EXPECT_FALSE(Desktop.AnotherInstanceRuns());
    EXPECT_TRUE(QtPlatform(Places()).AnotherInstanceRuns());
}
#endif

TEST_F(QtPlatformTest, ALockWithoutAnOwnerDoesNotBlock)
{
    Write(Path("lock"), "");
    EXPECT_FALSE(Desktop.AnotherInstanceRuns());
    EXPECT_TRUE(QtPlatform(Places()).AnotherInstanceRuns());
}

TEST_F(QtPlatformTest, WhereNoLockCanBeMadeTheProgramStarts)
{
    auto places = Places();
    places.LockFile = Path("not there/lock");
    EXPECT_FALSE(QtPlatform(places).AnotherInstanceRuns());
}

frmWait* ShownWait()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* wait = qobject_cast<frmWait*>(window);
        if (wait != nullptr && wait->isVisible())
            return wait;
    }
    return nullptr;
}

TEST_F(QtPlatformTest, TheWaitScreenStaysUntilItIsClosed)
{
    Desktop.SetWaitMilliseconds(0);
    Desktop.CloseWait();
    EXPECT_EQ(ShownWait(), nullptr);
    Desktop.ShowWait();
    frmWait* shown = ShownWait();
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->objectName(), "frmWait");
    EXPECT_EQ(shown->windowTitle(), "Dravik Hockey Simulator");
    ASSERT_EQ(shown->findChildren<QLabel*>().size(), 1);
    EXPECT_EQ(shown->findChild<QLabel*>("lblWait")->text(), "Please Wait .....");
    Desktop.ShowWait();
    EXPECT_EQ(ShownWait(), shown);
    Desktop.CloseWait();
    EXPECT_EQ(ShownWait(), nullptr);
    Desktop.CloseWait();
}

// Closes itself while the wait screen paints, and notes whether it was closed.
class Impatient : public QWidget {
public:
    bool Asked = false;
    bool Closed = false;

    Impatient() { show(); }
    void CloseSoon()
    {
        QTimer::singleShot(0, this, [this] { Asked = !close(); });
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        Closed = true;
        QWidget::closeEvent(event);
    }
};

TEST_F(QtPlatformTest, NoWindowClosesWhileAWaitScreenPaints)
{
    for (const int milliseconds : {0, 20}) {
        Desktop.SetWaitMilliseconds(milliseconds);
        Impatient window;
        window.CloseSoon();
        Desktop.ShowWait();
        EXPECT_TRUE(window.Asked);
        EXPECT_FALSE(window.Closed);
        EXPECT_TRUE(window.isVisible());
        Desktop.CloseWait();
        EXPECT_TRUE(window.close()) << "afterwards it closes as ever";
        EXPECT_TRUE(window.Closed);
    }
}

TEST_F(QtPlatformTest, TheWaitScreenHasNoButtonToCloseIt)
{
    Desktop.SetWaitMilliseconds(0);
    Desktop.ShowWait();
    ASSERT_NE(ShownWait(), nullptr);
    EXPECT_FALSE(ShownWait()->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(ShownWait()->windowFlags().testFlag(Qt::WindowSystemMenuHint));
    EXPECT_FALSE(ShownWait()->isModal());
    Desktop.CloseWait();
}

TEST_F(QtPlatformTest, EscapeTakesAWaitScreenThatStaysOutOfTheWayUntilItIsShownAgain)
{
    Desktop.SetWaitMilliseconds(0);
    Desktop.ShowWait();
    ASSERT_NE(ShownWait(), nullptr);
    QTest::keyClick(ShownWait(), Qt::Key_Escape);
    EXPECT_EQ(ShownWait(), nullptr);
    Desktop.ShowWait();
    EXPECT_NE(ShownWait(), nullptr);
    Desktop.CloseWait();
    EXPECT_EQ(ShownWait(), nullptr);
}

TEST_F(QtPlatformTest, TheWaitScreenStandsInTheMiddleOfTheActiveWindowAndGoesWithIt)
{
    Desktop.SetWaitMilliseconds(0);
    auto window = std::make_unique<QWidget>();
    window->setGeometry(100, 80, 500, 400);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Desktop.ShowWait();
    ASSERT_NE(ShownWait(), nullptr);
    const QPoint apart = ShownWait()->frameGeometry().center() - window->frameGeometry().center();
    EXPECT_LE(apart.manhattanLength(), 4);
    window.reset();
    EXPECT_EQ(ShownWait(), nullptr);
    Desktop.ShowWait();
    EXPECT_NE(ShownWait(), nullptr);
    Desktop.CloseWait();
}

// A widget that notes when it is painted.
class Painted : public QWidget {
public:
    int Count = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++Count; }
};

TEST_F(QtPlatformTest, TheWaitScreenGetsAHundredMillisecondsToPaint)
{
    EXPECT_EQ(QtPlatform().WaitMilliseconds(), 100);
}

TEST_F(QtPlatformTest, WhileWaitingTheScreenPaints)
{
    Painted window;
    window.show();
    Desktop.SetWaitMilliseconds(20);
    QElapsedTimer clock;
    clock.start();
    Desktop.ShowWait();
    EXPECT_GE(clock.elapsed(), 19);
    EXPECT_GT(window.Count, 0);
    Desktop.CloseWait();
}

TEST_F(QtPlatformTest, WhileWaitingWhatIsPendingRuns)
{
    for (const int milliseconds : {0, 20}) {
        bool ran = false;
        QTimer::singleShot(0, [&ran] { ran = true; });
        Desktop.SetWaitMilliseconds(milliseconds);
        Desktop.ShowWait();
        EXPECT_TRUE(ran) << milliseconds;
        Desktop.CloseWait();
    }
}

// Notes whether a wait screen has been painted.
class WaitPainted : public QObject {
public:
    bool Seen = false;

    WaitPainted() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        Seen = Seen || (event->type() == QEvent::Paint && qobject_cast<frmWait*>(watched) != nullptr);
        return false;
    }
};

TEST_F(QtPlatformTest, WorkIsDoneOnceBehindAPaintedWaitScreenAndWithinItsTime)
{
    constexpr int time = 150;
    Desktop.SetWaitMilliseconds(time);
    for (const bool shownBefore : {false, true}) {
        const WaitPainted painted;
        QElapsedTimer clock;
        std::vector<qint64> done;
        clock.start();
        Desktop.ShowWaitOver([&] {
            EXPECT_TRUE(painted.Seen) << shownBefore;
            EXPECT_NE(ShownWait(), nullptr);
            done.push_back(clock.elapsed());
        });
        const qint64 took = clock.elapsed();
        ASSERT_EQ(done.size(), 1U) << shownBefore;
        EXPECT_LT(done.front(), time) << "the work does not wait for the end";
        EXPECT_GE(took, time - 1) << "the screen has its time";
        EXPECT_NE(ShownWait(), nullptr);
    }
    Desktop.CloseWait();
}

TEST_F(QtPlatformTest, WithoutAMomentForTheWaitScreenItsWorkIsDoneBehindIt)
{
    Desktop.SetWaitMilliseconds(0);
    int done = 0;
    Desktop.ShowWaitOver([&done] { ++done; });
    EXPECT_EQ(done, 1);
    Desktop.CloseWait();
}

TEST_F(QtPlatformTest, AFailureOfTheWorkGoesOnWhenTheWaitScreenHasHadItsTime)
{
    for (const int milliseconds : {0, 20}) {
        Desktop.SetWaitMilliseconds(milliseconds);
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(NumberOfFailure([this] { Desktop.ShowWaitOver([] { Fail(failure::Overflow); }); }),
                  failure::Overflow);
        EXPECT_GE(clock.elapsed(), milliseconds - 1);
        EXPECT_NE(ShownWait(), nullptr) << "it stays until it is closed";
        Impatient window;
        EXPECT_TRUE(window.close()) << "nothing is held back any more";
        Desktop.CloseWait();
    }
}

TEST_F(QtPlatformTest, ABoxOfTheWorkCanBeClosedWhileTheWaitScreenHasItsTime)
{
    for (const int milliseconds : {0, 20}) {
        Desktop.SetWaitMilliseconds(milliseconds);
        int answer = 0;
        Desktop.ShowWaitOver([&] {
            OnDialog<QMessageBox>([](QMessageBox& shown) { shown.close(); });
            answer = Desktop.MessageBox("Text", box::YesNoCancel, "Title");
        });
        EXPECT_EQ(answer, button::Cancel);
        Desktop.CloseWait();
    }
}

// Stands in for the desktop's browser.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("dravik-test", this, "Open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("dravik-test"); }

    QList<QUrl> Opened;

public slots:
    void Open(const QUrl& location) { Opened += location; }
};

TEST_F(QtPlatformTest, ALocationThatTheDesktopTakesAnswersAboveThirtyTwo)
{
    Browser browser;
    EXPECT_GT(Desktop.OpenLocation("dravik-test:arena", 1), 32);
    EXPECT_EQ(browser.Opened, QList<QUrl>{QUrl("dravik-test:arena")});
}

TEST_F(QtPlatformTest, ALocationThatIsNoneAnswersZero)
{
    EXPECT_EQ(Desktop.OpenLocation("", 1), 0);
    EXPECT_EQ(Desktop.OpenLocation("http://a b:c", 1), 0);
}

TEST_F(QtPlatformTest, TheDigestIsThatOfTheReference)
{
    const std::string longText(1000, '\xE9');
    for (const std::string& text : {std::string(), std::string("a"), std::string("a\0b", 3), longText})
        EXPECT_EQ(Desktop.Md5(text), Md5Of(text));
}

class QtFiles : public QtPlatformTest {
protected:
    void Make(const QString& name, std::string_view content)
    {
        const auto file = Desktop.CreateFile(InFolder(name));
        file->Write(content.data(), content.size());
        file->Flush();
        file->Close();
    }
    std::string Content(const QString& name)
    {
        const auto file = Desktop.OpenFile(InFolder(name));
        std::string content(1000, '\0');
        content.resize(file->Read(content.data(), content.size()));
        return content;
    }
    QStringList Entries() { return QDir(Folder.path()).entryList(QDir::Files, QDir::Name); }
};

TEST_F(QtFiles, NamesOfAnyLettersAreWrittenReadRenamedAndDeleted)
{
    for (const QString& name :
         {QString("plain.dvl"), QString::fromUtf8("Équipe œ € ™.dvl"), QString::fromUtf8("Лёд.dvl"),
          QString::fromUtf8("冰球.dvl"), QString::fromUtf8("🏒.dvl"), QString(QChar(0x8D)) + ".dvl"}) {
        Make(name, "puck");
        EXPECT_EQ(Entries(), QStringList{name});
        EXPECT_EQ(Content(name), "puck");
        EXPECT_EQ(Desktop.FileLength(InFolder(name)), 4);
        EXPECT_EQ(Desktop.FindEntry(InFolder(name)), PathToProgram(name));
        Desktop.RenameFile(InFolder(name), InFolder("2" + name));
        EXPECT_EQ(Desktop.FindEntry(InFolder(name)), std::nullopt);
        EXPECT_EQ(Content("2" + name), "puck");
        Desktop.DeleteFile(InFolder("2" + name));
        EXPECT_EQ(Entries(), QStringList());
    }
}

TEST_F(QtFiles, TheDiskKnowsTheNameAsTheDesktopEncodesIt)
{
    const QString name = QString::fromUtf8("Évé-Ж.dvl");
    Make(name, "x");
    EXPECT_TRUE(QFile::exists(Path(name)));
#ifndef _WIN32
    EXPECT_EQ(access((Folder.path().toUtf8() + "/\xC3\x89v\xC3\xA9-\xD0\x96.dvl").constData(), F_OK), 0);
#endif
}

TEST_F(QtFiles, AnEntryIsFoundWhateverItsCase)
{
    Make(QString::fromUtf8("Évreux.DVS"), "x");
    EXPECT_EQ(Desktop.FindEntry(InFolder(QString::fromUtf8("évreux.dvs"))), "\xC9vreux.DVS");
    EXPECT_EQ(Desktop.FindEntry(InFolder("evreux.dvs")), std::nullopt);
}

TEST_F(QtFiles, AnEntryOfExactlyTheNameComesFirst)
{
    Make("LEAGUE.dvs", "a");
    Make("league.dvs", "b");
    // On a disk that does not tell cases apart there is the first one only.
    const bool tellsCasesApart = Entries().size() == 2;
    EXPECT_EQ(Desktop.FindEntry(InFolder("league.dvs")), tellsCasesApart ? "league.dvs" : "LEAGUE.dvs");
    EXPECT_EQ(Desktop.FindEntry(InFolder("LEAGUE.dvs")), "LEAGUE.dvs");
}

TEST_F(QtFiles, AFileThatIsNotThereFails)
{
    EXPECT_EQ(NumberOfFailure([&] { Desktop.OpenFile(InFolder("not there")); }), 53);
    EXPECT_EQ(NumberOfFailure([&] { Desktop.DeleteFile(InFolder("not there")); }), 53);
    EXPECT_EQ(NumberOfFailure([&] { (void)Desktop.FileLength(InFolder("not there")); }), 53);
}

} // namespace
} // namespace dravik

#include "QtPlatformTest.moc"
