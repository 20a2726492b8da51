#include "AnswerDialog.h"
#include "league/Failure.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Dialogs.h"
#include "screens/platform/QtPlatform.h"

#include <gmock/gmock.h>
#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace dravik {
namespace {

constexpr const char* ClientFilter = "DRVK Client File (*.dvs) |*.dvs|All Files (*.*) | *.*";

TEST(OpenDialogFilters, KeepTheirCaptionAndMatchAnyCase)
{
    EXPECT_EQ(NameFilters(ClientFilter),
              QStringList({"DRVK Client File (*.dvs) (*.[dD][vV][sS])", "All Files (*.*) (*)"}));
    EXPECT_EQ(NameFilters(""), QStringList());
}

class OpenDialog : public ::testing::Test {
protected:
    OpenDialog()
    {
        for (const char* name : {"one.dvs", "TWO.DVS", "other.txt"}) {
            QFile file(Folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    std::string Open(std::function<void(QFileDialog&)> act)
    {
        OnDialog<QFileDialog>(std::move(act));
        return Desktop.OpenFileDialog(PathToProgram(Folder.path()), ClientFilter);
    }
    static void Type(QFileDialog& dialog, const QString& name)
    {
        auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(edit, nullptr);
        edit->setText(name);
        QPushButton* open = dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Open);
        ASSERT_NE(open, nullptr);
        EXPECT_TRUE(open->isEnabled());
        open->click();
    }

    QtPlatform Desktop;
    QTemporaryDir Folder{QDir::tempPath() + QString::fromUtf8("/dravik-Лёд-Équipe-XXXXXX")};
};

TEST_F(OpenDialog, TheChosenFileComesBackAsAPathOfTheProgram)
{
    const std::string chosen = Open([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgCommon");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.directory().path(), Folder.path());
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "");
        Type(dialog, "TWO.DVS");
    });
    EXPECT_EQ(PathToDesktop(chosen), QDir::toNativeSeparators(Folder.filePath("TWO.DVS")));
    EXPECT_THAT(chosen, ::testing::HasSubstr("dravik-\x1A{41B}\x1A{451}\x1A{434}-\xC9quipe-"));
    EXPECT_EQ(Desktop.FileLength(chosen), 0);
}

TEST_F(OpenDialog, TheDownloadsStandInItsSideBarWhereThereAreSome)
{
#ifdef _WIN32
    GTEST_SKIP() << "The system alone says where the downloads are there.";
#endif
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(Folder.path()));
    QFile places(Folder.filePath("user-dirs.dirs"));
    ASSERT_TRUE(places.open(QIODevice::WriteOnly));
    places.write("XDG_DOWNLOAD_DIR=\"" + Folder.filePath("Incoming").toUtf8() + "\"\n");
    places.close();
    const QUrl downloads = QUrl::fromLocalFile(Folder.filePath("Incoming"));
    const auto cancelled = [this](const std::function<void(QFileDialog&)>& look) {
        EXPECT_THROW(Open([&look](QFileDialog& dialog) {
                         look(dialog);
                         dialog.reject();
                     }),
                     Failure);
    };
    cancelled([&](const QFileDialog& dialog) { EXPECT_FALSE(dialog.sidebarUrls().contains(downloads)); });
    ASSERT_TRUE(QDir(Folder.path()).mkdir("Incoming"));
    for (int time = 1; time <= 2; ++time)
        cancelled([&](const QFileDialog& dialog) {
            EXPECT_EQ(dialog.sidebarUrls().count(downloads), 1) << time;
            auto* bar = dialog.findChild<QAbstractItemView*>("sidebar");
            ASSERT_NE(bar, nullptr);
            const QModelIndex last = bar->model()->index(bar->model()->rowCount() - 1, 0);
            QTest::mouseClick(bar->viewport(), Qt::LeftButton, {}, bar->visualRect(last).center());
            EXPECT_EQ(dialog.directory().path(), Folder.filePath("Incoming"));
        });
    if (before.isNull())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", before);
}

TEST_F(OpenDialog, AFileThatIsNotThereIsNotTaken)
{
    EXPECT_THROW(Open([](QFileDialog& dialog) {
                     const auto* open =
                         dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Open);
                     auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
                     name->setText("none.dvs");
                     EXPECT_FALSE(open->isEnabled());
                     dialog.reject();
                 }),
                 Failure);
}

TEST_F(OpenDialog, CancelFailsWithItsNumber)
{
    for (const bool byKey : {false, true}) {
        try {
            Open([byKey](QFileDialog& dialog) {
                if (byKey)
                    Press(dialog, Qt::Key_Escape);
                else
                    dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
            });
            FAIL() << "A file was chosen.";
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, 32755);
            EXPECT_STREQ(failed.what(), "Cancel was selected.");
        }
    }
}

TEST_F(OpenDialog, CancelFailsEvenWithAFileChosen)
{
    EXPECT_THROW(Open([this](QFileDialog& dialog) {
                     dialog.selectFile(Folder.filePath("one.dvs"));
                     EXPECT_EQ(dialog.selectedFiles(), QStringList{Folder.filePath("one.dvs")});
                     dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
                 }),
                 Failure);
}

TEST_F(OpenDialog, TheFilterShowsFilesOfAnyCase)
{
    EXPECT_THROW(Open([](QFileDialog& dialog) {
                     EXPECT_EQ(dialog.nameFilters().size(), 2);
                     auto* list = dialog.findChild<QAbstractItemView*>("treeView");
                     ASSERT_NE(list, nullptr);
                     const auto names = [list] {
                         QStringList shown;
                         for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                             shown += list->model()->index(row, 0, list->rootIndex()).data().toString();
                         shown.sort();
                         return shown;
                     };
                     EXPECT_TRUE(QTest::qWaitFor([&] { return names() == QStringList({"TWO.DVS", "one.dvs"}); }));
                     dialog.selectNameFilter(dialog.nameFilters().at(1));
                     EXPECT_TRUE(QTest::qWaitFor([&] { return names().size() == 3; }));
                     dialog.reject();
                 }),
                 Failure);
}

} // namespace
} // namespace dravik
