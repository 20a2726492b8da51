// The crests beside the names of teams: the manager's own pictures, and monograms.

#include "screens/panels/Crest.h"

#include "OnEveryScreen.h"
#include "screens/panels/ChangeList.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/platform/Palettes.h"
#include "screens/squad/CompareTable.h"
#include "screens/squad/frmSquad.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"

#include <QDir>
#include <QImageWriter>
#include <QLayout>
#include <QScrollBar>
#include <QTabWidget>
#include <random>
#include <set>

namespace dravik {
namespace {

constexpr int Side = 64;
const QColor OwnRed(0xE0, 0x10, 0x20);

QImage Painted(const Crest& crest, int side = Side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintCrest(painter, image.rect(), crest);
    return image;
}
// How many pixels of a picture have that colour.
int CountOf(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}
int Seen(QWidget* widget, const QColor& colour) { return CountOf(widget->grab().toImage(), colour); }

TEST(CrestFileName, IsThePlainNameOfAPicture)
{
    EXPECT_EQ(CrestFileName("HCG"), "HCG.png");
    EXPECT_EQ(CrestFileName("N-1"), "N-1.png");
    EXPECT_EQ(CrestFileName(QString::fromUtf8("ÉCL")), QString::fromUtf8("ÉCL.png"));
    for (const char* abbreviation : {"",    " ",   "..", "../HCG", "/HC",  "a/b", "a\\b", "C:",  "*",   "?",  "<>",
                                     "a|b", "A.B", ".",  "H G",    "HC\n", "CON", "con",  "Nul", "AUX", "PRN"})
        EXPECT_EQ(CrestFileName(abbreviation), "") << abbreviation;
    EXPECT_EQ(CrestFileName(QString("A") + QChar(0) + "B"), "");
}

TEST(Monogram, HasTheFirstLettersOfTheAbbreviationElseOfTheName)
{
    EXPECT_EQ(MonogramLetters({"HCG", "Harbour City Gulls"}), "HC");
    EXPECT_EQ(MonogramLetters({"7x", "Sevens"}), "7X");
    EXPECT_EQ(MonogramLetters({"", "Harbour City Gulls"}), "HC");
    EXPECT_EQ(MonogramLetters({"../", "the Éclaireurs"}), QString::fromUtf8("TÉ"));
    EXPECT_EQ(MonogramLetters({"", ""}), "");
}

TEST(Monogram, IsReadOnAGroundThatGoesWithTheName)
{
    std::mt19937 random(7);
    std::set<QRgb> grounds;
    for (int count = 0; count < 3000; ++count) {
        QString name;
        for (int length = static_cast<int>(random() % 30) + 1; length > 0; --length)
            name += QChar(static_cast<char16_t>(0x20 + random() % 0xE0));
        const QColor ground = MonogramGround({"ABC", name});
        EXPECT_GE(Contrast(ground, Qt::white), 4.5) << name.toStdString();
        EXPECT_EQ(ground, MonogramGround({"XYZ", name})) << "whatever the abbreviation";
        grounds.insert(ground.rgb());
    }
    EXPECT_GT(grounds.size(), 300u);
}

class CrestTest : public OnEveryScreen {
protected:
    CrestTest()
    {
        Teams[OwnTeam].Abbre = "HCG";
        ForgetCrests();
        EXPECT_TRUE(QDir(FolderName()).mkpath("Crests"));
    }
    ~CrestTest() override
    {
        Machine.ForgetBoxes("what the screens tell is not asked here");
        ForgetCrests();
    }

    [[nodiscard]] QString FolderName() const { return QString::fromStdString(Machine.Folder()); }
    [[nodiscard]] QString Picture(const QString& abbreviation) const
    {
        return FolderName() + "/Crests/" + abbreviation + ".png";
    }
    static void Save(const QString& path, const QColor& colour, QSize size = {300, 200})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(path, "png"));
    }
    static Crest Own() { return CrestOf(Teams[OwnTeam]); }
    static QColor Ground() { return MonogramGround(Own()); }

    Screen& Opened(const char* name)
    {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        SelectedPlayer = 0;
        TheStage.Open(name, Main());
        Settle();
        return *TheStage.Find(name);
    }
};

TEST_F(CrestTest, IsTheManagersOwnPictureInItsShape)
{
    Save(Picture("HCG"), OwnRed);
    const QImage image = Painted(Own());
    EXPECT_EQ(image.pixelColor(Side / 2, Side / 2), OwnRed);
    EXPECT_EQ(image.pixelColor(Side / 2, 2), QColor(Qt::white)) << "it is wider than high";
    EXPECT_EQ(image.pixelColor(1, Side / 2), OwnRed);
}

TEST_F(CrestTest, WithoutAPictureItIsAMonogram)
{
    const QImage image = Painted(Own());
    EXPECT_GT(CountOf(image, Ground()), Side * Side / 2);
    EXPECT_GT(CountOf(image, Qt::white), 40) << "the letters";
    EXPECT_EQ(Painted({}), Painted({})) << "of nobody";
    EXPECT_EQ(CountOf(Painted({}), Qt::white), Side * Side);
}

TEST_F(CrestTest, APictureThatIsNoneIsAMonogram)
{
    const QImage monogram = Painted(Own());
    const auto expectMonogram = [&](const char* what) {
        ForgetCrests();
        EXPECT_EQ(Painted(Own()), monogram) << what;
    };
    QFile broken(Picture("HCG"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("this is no picture");
    broken.close();
    expectMonogram("broken");
    Save(Picture("HCG"), OwnRed);
    ASSERT_TRUE(broken.resize(broken.size() / 2));
    QImage half;
    half.load(Picture("HCG"), "png");
    if (half.isNull())
        expectMonogram("cut");
    ASSERT_TRUE(QImage(32, 32, QImage::Format_RGB32).save(Picture("HCG"), "bmp"));
    expectMonogram("of another kind");
    QImage huge(10000, 10000, QImage::Format_Mono);
    huge.fill(1);
    ASSERT_TRUE(huge.save(Picture("HCG"), "png"));
    expectMonogram("10000 x 10000");
    Save(Picture("HCG"), OwnRed);
    ASSERT_TRUE(broken.resize(5 * 1024 * 1024));
    expectMonogram("above 4 MiB");
    ASSERT_TRUE(broken.remove());
    ASSERT_TRUE(QDir(FolderName()).mkpath("Crests/HCG.png"));
    expectMonogram("a folder");
}

TEST_F(CrestTest, NothingOutsideOfTheFolderIsRead)
{
    Save(FolderName() + "/out.png", OwnRed);
    Save(FolderName() + "/Crests/.png", OwnRed);
    for (const char* abbreviation : {"../out", "..\\out", "", "/out"})
        EXPECT_EQ(CountOf(Painted({abbreviation, "Gulls"}), OwnRed), 0) << abbreviation;
    EXPECT_EQ(CountOf(Painted({(FolderName() + "/out").toUtf8().constData(), "Gulls"}), OwnRed), 0);
}

TEST_F(CrestTest, StandsBesideTheNameOnEveryScreenOfTheTeam)
{
    for (const char* name : {"Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "Ticket"}) {
        Screen& screen = Opened(name);
        auto* crest = screen.findChild<CrestLabel*>();
        ASSERT_NE(crest, nullptr) << name;
        EXPECT_TRUE(crest->isVisible()) << name;
        EXPECT_GT(Seen(crest, Ground()), 100) << name;
        screen.close();
        Settle();
    }
}

TEST_F(CrestTest, TheTeamScreenFollowsANewAbbreviation)
{
    Save(Picture("NEW"), OwnRed);
    auto& screen = static_cast<frmTeam&>(Opened("Team"));
    TypeInto(screen.txtAbbre, "NEW");
    Press(screen.txtAbbre, Qt::Key_Tab);
    EXPECT_GT(Seen(screen.findChild<CrestLabel*>(), OwnRed), 100);
}

TEST_F(CrestTest, TheViewerHasThatOfTheShownPersonsTeam)
{
    auto& screen = static_cast<Screen&>(Opened("EditPlayer"));
    auto* list = screen.findChild<EntryList*>("lstPlayer");
    ASSERT_NE(list, nullptr);
    auto* crest = screen.findChild<CrestLabel*>();
    ASSERT_NE(crest, nullptr);
    int withTeam = 0;
    int without = 0;
    for (int row = 0; row < list->count() && (withTeam == 0 || without == 0); ++row) {
        list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        Settle();
        const auto* team = screen.findChild<QLineEdit*>("txtTeam");
        if (team->text().isEmpty()) {
            EXPECT_FALSE(crest->isVisible()) << row;
            ++without;
            continue;
        }
        EXPECT_GT(Seen(crest, MonogramGround({"", team->text()})), 50) << row;
        ++withTeam;
    }
    EXPECT_GT(withTeam, 0);
}

TEST_F(CrestTest, TheListsOfTheMainScreenHaveThemWhereNoNameLosesAnything)
{
    frmMain& main = MainWithLeague();
    EntryList* list = main.lstDivision[Teams[OwnTeam].Division];
    const QString words = list->item(0)->data(Qt::AccessibleTextRole).toString();
    main.resize(1900, 700);
    Settle();
    EXPECT_GT(Seen(list->viewport(), Ground()), 80);
    EXPECT_FALSE(list->LeavesAsidesOut());
    EXPECT_EQ(list->item(0)->data(Qt::AccessibleTextRole).toString(), words);
}

TEST_F(CrestTest, TheMainScreenHasThatOfTheChosenTeam)
{
    frmMain& main = MainWithLeague();
    auto* crest = main.findChild<CrestLabel*>();
    ASSERT_NE(crest, nullptr);
    EXPECT_FALSE(crest->isVisible());
    EntryList* list = main.lstDivision[Teams[OwnTeam].Division];
    for (int row = 0; row < list->count(); ++row)
        if (NumberOf(list->item(row)) == OwnTeam)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    Settle();
    ASSERT_EQ(static_cast<int>(CurrentTeam), OwnTeam);
    EXPECT_TRUE(crest->isVisible());
    EXPECT_GT(Seen(crest, Ground()), 80);
}

TEST_F(CrestTest, ANarrowListHasNone)
{
    EntryList list;
    list.Add("Harbour City Gulls", OwnTeam, {"HCG"});
    new EntryCrests(&list, [](int team) { return CrestOf(Teams[team]); });
    const int whole = list.WidthOfWidestEntry();
    list.resize(whole + 60, 100);
    list.grab();
    EXPECT_GT(Seen(list.viewport(), Ground()), 80);
    list.resize(whole - 4, 100);
    list.grab();
    EXPECT_EQ(Seen(list.viewport(), Ground()), 0);
}

TEST_F(CrestTest, NoSecondaryWordsGoForIt)
{
    EntryList list;
    list.KeepAsidesTogether();
    list.Add("Harbour City Gulls", OwnTeam, {"HCG"});
    new EntryCrests(&list, [](int team) { return CrestOf(Teams[team]); });
    int withWords = 0;
    int withCrest = 0;
    for (int width = list.WidthOfWidestEntry() + 60; width > 100; --width) {
        list.resize(width, 100);
        list.grab();
        const bool hasCrest = Seen(list.viewport(), Ground()) > 0;
        const bool hasWords = !list.LeavesAsidesOut();
        withWords += hasWords ? 1 : 0;
        withCrest += hasCrest ? 1 : 0;
        delete EntryCrests::On(&list);
        list.grab();
        EXPECT_EQ(hasWords, !list.LeavesAsidesOut()) << width << ": the words stay as without crests";
        new EntryCrests(&list, [](int team) { return CrestOf(Teams[team]); });
    }
    EXPECT_GT(withWords, 20);
    EXPECT_GT(withCrest, 20);
}

TEST_F(CrestTest, TheCalendarHasThoseOfTheOpponents)
{
    Screen& screen = Opened("Team");
    QTest::keyClick(&screen, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    auto* calendar = screen.findChild<CalendarWindow*>(CalendarWindow::Name);
    ASSERT_NE(calendar, nullptr);
    Settle();
    ASSERT_GT(calendar->tblSeason->rowCount(), 0);
    const QString opponent = calendar->tblSeason->TextAt(0, 3);
    EXPECT_GT(Seen(calendar->tblSeason->viewport(), MonogramGround({"", opponent})), 80) << opponent.toStdString();
}

TEST_F(CrestTest, TheGraphOfTenDaysHasThoseOfTheOpponentsBesideWholeNames)
{
    Screen& screen = Opened("Team");
    QTest::keyClick(&screen, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    auto* graphs = screen.findChild<GraphsWindow*>();
    ASSERT_NE(graphs, nullptr);
    FigureTable* table = graphs->Days.tblFigures;
    graphs->findChild<QTabWidget*>()->setCurrentIndex(2);
    Settle();
    ASSERT_GT(table->rowCount(), 0);
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString opponent = table->TextAt(row, 1);
        EXPECT_GT(Seen(table->viewport(), MonogramGround({"", opponent})), 80) << opponent.toStdString();
        const int words = table->fontMetrics().horizontalAdvance(opponent) + CrestRoom(table->fontMetrics());
        EXPECT_LE(words, table->columnWidth(1)) << opponent.toStdString();
    }
}

TEST_F(CrestTest, TheSquadTableHasThemInTheColumnOfTeams)
{
    MainWithLeague();
    QTest::keyClick(&Main(), Qt::Key_T, Qt::ControlModifier);
    frmSquad* squad = TheStage.Squad();
    ASSERT_NE(squad, nullptr);
    Settle();
    SquadTable& table = squad->Table();
    const int column = table.People().ColumnOf(TeamKey);
    ASSERT_GE(column, 0);
    const auto crest = table.People().index(0, column).data(entry::CrestRole).value<Crest>();
    ASSERT_FALSE(crest.IsNone());
    EXPECT_FALSE(table.People().index(0, column + 1).data(entry::CrestRole).isValid());
    EXPECT_GT(Seen(table.viewport(), MonogramGround(crest)), 80);
    table.setColumnWidth(column, 34);
    EXPECT_EQ(Seen(table.viewport(), MonogramGround(crest)), 0) << "the words come first";
}

TEST_F(CrestTest, TheSheetOfTicketsHasItWhereTheNameLosesNothing)
{
    Screen& tickets = Opened("Ticket");
    auto* crest = tickets.findChild<CrestLabel*>();
    auto* title = tickets.findChild<ElidedLabel*>("lblTitle");
    int with = 0;
    int without = 0;
    for (int length = 1; length <= 40; ++length) {
        title->setText(QString(length, 'W'));
        Settle();
        const bool hasCrest = crest->isVisible();
        (hasCrest ? with : without) += 1;
        const bool isCut = title->IsCut();
        EXPECT_FALSE(hasCrest && isCut) << length;
        crest->hide();
        tickets.findChild<QWidget*>("lblTitle")->parentWidget()->layout()->activate();
        EXPECT_EQ(title->IsCut(), isCut) << length << ": as without a crest";
    }
    EXPECT_GT(with, 5);
    EXPECT_GT(without, 5);
}

TEST_F(CrestTest, TheComparisonHasThemWhereNoFigureLosesItsRoom)
{
    MainWithLeague();
    std::vector<SquadPerson> people;
    for (int slot = 1; people.size() < 3; ++slot)
        if (Players[slot].Team == OwnTeam)
            people.push_back({SquadKind::Skaters, slot});
    CompareTable table(nullptr);
    table.Compare({.League = &OpenLeague, .Shown = &Machine}, people);
    table.resize(1250, 120);
    table.show();
    Settle();
    const QModelIndex name = table.Figures->index(0, 0);
    EXPECT_EQ(name.data(entry::CrestRole).value<Crest>(), Own());
    EXPECT_FALSE(table.Figures->index(0, 1).data(entry::CrestRole).isValid());
    EXPECT_GT(Seen(table.viewport(), Ground()), 3 * 50);
    EXPECT_TRUE(name.data(Qt::AccessibleTextRole).toString().endsWith(", Harbour City Gulls"));
    const int withCrests = table.columnWidth(0);
    int narrowest = 1250;
    while (narrowest > 300 && name.data(entry::CrestRole).isValid()) {
        EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << narrowest << ": all figures are in sight";
        table.resize(--narrowest, 120);
    }
    EXPECT_GT(narrowest, 300);
    EXPECT_EQ(Seen(table.viewport(), Ground()), 0);
    EXPECT_EQ(table.columnWidth(0), withCrests - CrestRoom(table.fontMetrics())) << "the names keep their room";
    EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << "they went before a figure did";
}

TEST_F(CrestTest, WhatChangedHasThemBesideItsTeams)
{
    QWidget ground;
    ChangeList list("News", 5, &ground);
    ChangeEntry hurt;
    hurt.Subject = "Ward Tilton";
    hurt.Words = "is hurt";
    hurt.Team = "HCG";
    hurt.Crested = Own();
    ChangeEntry gone;
    gone.Subject = "Sandor Moe";
    gone.Words = "is no longer in the league";
    list.Tell("What changed", {hurt, gone});
    list.resize(600, 200);
    list.grab();
    const QImage seen = list.List()->viewport()->grab().toImage();
    EXPECT_GT(CountOf(seen, Ground()), 80);
}

} // namespace
} // namespace dravik
