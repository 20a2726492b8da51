#include "screens/platform/QtPlatform.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <optional>
#include <vector>

namespace dravik {
namespace {

// Where the lock of the one instance lies when nobody names a place, by who the user is.
struct UserRow {
    const char* User;
    const char* UserName;
    const char* File;
};

constexpr UserRow Users[] = {
    {"kim", "", "dravik-client-kim.lock"}, {"kim", "lee", "dravik-client-kim.lock"},
    {"", "lee", "dravik-client-lee.lock"}, {"", "", "dravik-client.lock"},
    {"a/b", "", "dravik-client.lock"},     {"a\\b", "", "dravik-client.lock"},
    {"a:b", "", "dravik-client.lock"},     {"a b.c", "", "dravik-client-a b.c.lock"},
};

class LockFile : public ::testing::TestWithParam<UserRow> {};

TEST_P(LockFile, LiesInTheFolderOfWhatRunsAndIsNamedAfterItsUser)
{
    const char* names[] = {"XDG_RUNTIME_DIR", "USER", "USERNAME"};
    std::vector<std::pair<const char*, std::optional<QByteArray>>> before;
    for (const char* name : names)
        before.emplace_back(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt);
    const QScopeGuard restore([&before] {
        for (const auto& [name, value] : before)
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
    });
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("USER", GetParam().User);
    qputenv("USERNAME", GetParam().UserName);

    QtPlatform platform({folder.filePath("settings.ini"), folder.path(), {}});
    EXPECT_FALSE(platform.AnotherInstanceRuns());
#ifdef _WIN32 // what runs has no folder of its own there; the user's stands for it, and no variable leads elsewhere
    const QDir ofWhatRuns(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
#else
    const QDir ofWhatRuns(folder.path());
#endif
    EXPECT_EQ(ofWhatRuns.entryList({"dravik-client*.lock"}, QDir::Files), QStringList{GetParam().File});
}

INSTANTIATE_TEST_SUITE_P(OfEveryUser, LockFile, ::testing::ValuesIn(Users));

} // namespace
} // namespace dravik
