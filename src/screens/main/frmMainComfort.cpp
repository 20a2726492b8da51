#include "machine/Paths.h"
#include "machine/Reporting.h"
#include "screens/main/frmMain.h"
#include "screens/main/RecentLeagues.h"
#include "screens/main/SampleOffer.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/ChosenLook.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"
#include "screens/Remembered.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <QActionGroup>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

// What makes the main screen comfortable beside what it must do: a first start that says what to do, files and the team of last
// time at hand, a client file that is dropped, and how the program looks.
namespace dravik {

namespace {

constexpr const char* LookKey = "Look";
constexpr const char* TextSizeKey = "TextSize";
constexpr int UsualSize = 100;

struct LookItem {
    LookChoice Look;
    const char* Name; // as it is remembered
    const char* Caption;
};
constexpr LookItem Looks[] = {{LookChoice::Desktop, "Desktop", "&Desktop"},
                              {LookChoice::Light, "Light", "&Light"},
                              {LookChoice::Dark, "Dark", "D&ark"}};

LookChoice RememberedLook()
{
    const std::string name = Remembered(LookKey);
    const auto* found =
        std::find_if(std::begin(Looks), std::end(Looks), [&](const LookItem& item) { return item.Name == name; });
    return found == std::end(Looks) ? LookChoice::Desktop : found->Look;
}

int RememberedTextSize()
{
    const std::string words = Remembered(TextSizeKey);
    int percent = UsualSize;
    std::from_chars(words.data(), words.data() + words.size(), percent);
    return std::find(std::begin(TextSizes), std::end(TextSizes), percent) == std::end(TextSizes) ? UsualSize : percent;
}

// The client file that a drag brings, or nothing.
std::optional<std::string> ClientFileIn(const QMimeData& brought)
{
    const QList<QUrl> urls = brought.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return std::nullopt;
    const QString path = urls.front().toLocalFile();
    if (!path.endsWith(".dvs", Qt::CaseInsensitive))
        return std::nullopt;
    return PathToProgram(QDir::toNativeSeparators(path));
}

} // namespace

void frmMain::OpenFile(const std::string& path)
{
    hasOpened = false;
    OpenLeagueClient(path, *this);
    if (!hasOpened)
        return;
    openPath = path;
    RememberLeagueFile(path);
    TellSamplePasswords();
    ShowContinue();
}

QWidget* frmMain::MakeFirstStart()
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel);
    auto* words = new MutedLabel(
        "The simulator sends each manager a client file (.dvs). Open it, or drop it on this window.", panel);
    words->setObjectName("lblFirstStart");
    words->setWordWrap(true);
    words->setAlignment(Qt::AlignCenter);
    column->addWidget(words);
    cmdSample = MakeCommand("cmdSample", "Try the Sample League", [this] { cmdSample_Click(); });
    auto* sample = new MutedLabel("An invented league, to look around in. Nothing goes to anybody from it.", panel);
    sample->setObjectName("lblSample");
    sample->setWordWrap(true);
    sample->setAlignment(Qt::AlignCenter);
    column->addSpacing(Gap);
    column->addWidget(cmdSample, 0, Qt::AlignHCenter);
    column->addWidget(sample);
    cmdSample->setVisible(static_cast<bool>(OfferedSample().Make));
    sample->setVisible(static_cast<bool>(OfferedSample().Make));
    return panel;
}

void frmMain::TellSamplePasswords()
{
    const SampleOffer& offer = OfferedSample();
    std::string words;
    for (const auto& [team, password] : offer.Passwords)
        if (openPath == offer.Path)
            words += (words.empty() ? "" : ", ") + Teams[team].Name.Trimmed() + " \"" + password + '"';
    Tell(QuietLine::SamplePasswords,
         words.empty() ? words : "Teams of the sample league with a password: " + words + ".");
}

void frmMain::cmdSample_Click()
{
    Reporting(Machine(), " in cmdSample!", [this] {
        const SampleOffer& offer = OfferedSample();
        if (!FileExist(Machine(), offer.Path)) {
            QDir().mkpath(
                QFileInfo(PathToDesktop(offer.Path)).path()); // a folder that cannot be made is told with the file
            offer.Make(offer.Path);
        }
        OpenFile(offer.Path);
    });
}

void frmMain::ListRecent()
{
    mnuRecent->clear();
    const std::vector<std::string> paths = RecentLeagues();
    mnuRecent->setEnabled(!paths.empty());
    int number = 0;
    for (const std::string& path : paths) {
        const QString shown = PathToDesktop(path);
        const QString name = PathToDesktop(GetFileName(path));
        QAction* item =
            mnuRecent->addAction(QString("&%1  %2").arg(++number % 10).arg(QString(name).replace('&', "&&")));
        item->setToolTip(Qt::convertFromPlainText(shown));
        item->setData(shown);
        connect(item, &QAction::triggered, this,
                [this, path] { RunEvent("mnuRecent", [this, path] { mnuRecent_Click(path); }); });
    }
}

void frmMain::mnuRecent_Click(const std::string& path)
{
    Reporting(Machine(), " in mnuOpen!", [this, &path] { OpenFile(path); });
}

void frmMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (ClientFileIn(*event->mimeData()))
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event)
{
    const auto path = ClientFileIn(*event->mimeData());
    if (!path)
        return;
    event->acceptProposedAction();
    // The desktop waits for the end of the drop, and a box may come up.
    QMetaObject::invokeMethod(
        this, [this, path = *path] { RunEvent("mnuOpen", [this, path] { mnuRecent_Click(path); }); },
        Qt::QueuedConnection);
}

void frmMain::ShowContinue()
{
    const int team = openPath.empty() ? 0 : TeamOfLastTime(openPath);
    const bool isOffered = CurrentTeam == 0 && TeamTable::Has(team) && Teams[team].InUse;
    cmdContinue->setVisible(isOffered);
    if (isOffered)
        cmdContinue->setText("Continue with " + Shown(Teams[team].Name).replace('&', "&&"));
}

void frmMain::cmdContinue_Click()
{
    const int team = TeamOfLastTime(openPath);
    for (EntryList* list : lstDivision)
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->data(entry::NumberRole).toInt() == team) {
                list->setCurrentRow(row);
                mnuViewTeam_Click();
                return;
            }
}

void frmMain::MakeViewMenu()
{
    QMenu* looks = mnuView->addMenu("&Look");
    auto* group = new QActionGroup(this);
    for (const LookItem& item : Looks) {
        QAction* choice = looks->addAction(item.Caption);
        choice->setObjectName(QString("mnuLook") + item.Name);
        choice->setCheckable(true);
        choice->setChecked(item.Look == LookChoice::Desktop);
        group->addAction(choice);
        connect(choice, &QAction::triggered, this, [&item] {
            ChooseLook(item.Look);
            Remember(LookKey, item.Name);
        });
    }
    QMenu* sizes = mnuView->addMenu("&Text Size");
    auto* percents = new QActionGroup(this);
    for (const int percent : TextSizes) {
        QAction* choice = sizes->addAction(QString("%1 %").arg(percent));
        choice->setObjectName(QString("mnuTextSize%1").arg(percent));
        choice->setCheckable(true);
        choice->setChecked(percent == UsualSize);
        percents->addAction(choice);
        connect(choice, &QAction::triggered, this, [percent] {
            ChooseTextSize(percent);
            Remember(TextSizeKey, std::to_string(percent));
        });
    }
}

// A look that is told stays out of the way of one that nobody has chosen.
void frmMain::UseRememberedLook()
{
    const LookChoice look = RememberedLook();
    const auto* item =
        std::find_if(std::begin(Looks), std::end(Looks), [&](const LookItem& one) { return one.Look == look; });
    findChild<QAction*>(QString("mnuLook") + item->Name)->setChecked(true);
    if (look != ChosenLook())
        ChooseLook(look);
    const int percent = RememberedTextSize();
    findChild<QAction*>(QString("mnuTextSize%1").arg(percent))->setChecked(true);
    if (!Remembered(TextSizeKey).empty())
        ChooseTextSize(percent);
}

// Fonts of its own follow the size of all text.
void frmMain::changeEvent(QEvent* event)
{
    Screen::changeEvent(event);
    if (event->type() == QEvent::FontChange && lblTitle != nullptr)
        lblTitle->setFont(TitleFont(font()));
}

} // namespace dravik
