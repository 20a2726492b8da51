#include "screens/panels/ShareCommand.h"

#include "files/ByteStream.h"
#include "machine/Reporting.h"
#include "screens/panels/PaperSheet.h"
#include "screens/panels/PassingTag.h"
#include "screens/panels/SheetSize.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Dialogs.h"
#include "screens/platform/PrintDialogs.h"
#include "screens/Screen.h"
#include "session/Session.h"

#include <algorithm>
#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <utility>

namespace dravik {

namespace {

struct CopyForm {
    const char* Name;
    const char* Caption;
    std::string (*TextOf)(const Paper&);
};

constexpr CopyForm Copies[] = {{"Text", "Copy as Text", PlainTextOf},
                               {"Forum", "Copy for Forum", ForumTextOf},
                               {"Markdown", "Copy as Markdown", MarkdownOf}};

struct PrintForm {
    const char* Name;
    const char* Caption;
    void (*Run)(const PrintJob& job);
};

constexpr PrintForm Prints[] = {{"Print", "Print ...", Print}, {"Preview", "Print Preview ...", PreviewPrint}};

// Prints a paper from within a dialog: what fails is told, and goes no further.
void PrintPaper(const Paper& paper, const PrintForm& form)
{
    PaperSheet sheet(paper);
    const QPageLayout layout(QPageSize(ChosenSheetSize()), QPageLayout::Portrait, SheetMargins,
                             QPageLayout::Millimeter);
    form.Run({.Name = ToQString(paper.Title), .Layout = layout, .Paint = [&sheet](QPagedPaintDevice& device) {
                  RunEvent("cmdShare_Click", [&] { sheet.PrintOn(device); });
              }});
}

std::string PdfOf(const Paper& paper)
{
    const QByteArray pdf = PaperSheet(paper).Pdf(ChosenSheetSize());
    return {pdf.data(), static_cast<std::size_t>(pdf.size())};
}

std::string PageOf(const Paper& paper) { return HtmlOf(paper); }

struct FileForm {
    const char* Name;
    const char* Caption;
    const char* Kind; // in the dialog that asks where to
    const char* Ending;
    std::string (*BytesOf)(const Paper&);
};

constexpr FileForm Files[] = {{"Pdf", "Save as PDF ...", "PDF document", "pdf", PdfOf},
                              {"Html", "Save as HTML ...", "Web page", "html", PageOf}};

// A name of a file that every system takes: the paper's title, with that of its part where it has a single one.
QString FileNameOf(const Paper& paper, const QString& ending)
{
    QString name = ToQString(paper.Title);
    if (paper.Parts.size() == 1) {
        const QString part = ToQString(paper.Parts.front().Heading).section(',', 0, 0);
        if (!name.endsWith(part, Qt::CaseInsensitive))
            name += ", " + part;
    }
    for (QChar& letter : name)
        if (letter < ' ' || QString(R"(\/:*?"<>|)").contains(letter))
            letter = ' ';
    return name.simplified() + '.' + ending;
}

} // namespace

ShareCommand::ShareCommand(QWidget* parent) : QPushButton("Share ...", parent)
{
    setObjectName("cmdShare");
    setAutoDefault(true); // Enter opens the menu of the command that has the focus
    setMenu(new QMenu(this));
    OfferSizes();
}

void ShareCommand::OfferSizes()
{
    sizes = menu()->addSeparator();
    auto* group = new QActionGroup(this);
    for (const SheetSize& size : SheetSizes()) {
        QAction* item = menu()->addAction(QString("Paper: ") + size.Name);
        item->setObjectName(QString("mnuShareSize") + size.Name);
        item->setCheckable(true);
        group->addAction(item);
        connect(item, &QAction::triggered, this, [id = size.Size] { ChooseSheetSize(id); });
        connect(menu(), &QMenu::aboutToShow, item,
                [item, id = size.Size] { item->setChecked(ChosenSheetSize() == id); });
    }
}

void ShareCommand::Offer(const QString& name, const QString& heading, std::function<Paper()> make)
{
    QMenu* part = menu();
    QAction* before = sizes;
    if (!heading.isEmpty()) {
        part = new QMenu(heading, menu());
        menu()->insertMenu(sizes, part);
        before = nullptr;
    }
    const auto add = [&](const char* form, const char* caption, std::function<void(const Paper&)> share) {
        auto* item = new QAction(caption, part);
        item->setObjectName("mnuShare" + name + form);
        part->insertAction(before, item);
        connect(item, &QAction::triggered, this,
                [make, share = std::move(share)] { RunEvent("cmdShare_Click", [&] { share(make()); }); });
    };
    for (const CopyForm& form : Copies)
        add(form.Name, form.Caption,
            [form](const Paper& paper) { QGuiApplication::clipboard()->setText(ToQString(form.TextOf(paper))); });
    part->insertSeparator(before);
    for (const PrintForm& form : Prints)
        add(form.Name, form.Caption, [form](const Paper& paper) { PrintPaper(paper, form); });
    for (const FileForm& form : Files)
        add(form.Name, form.Caption,
            [this, form](const Paper& paper) { Save(paper, form.Kind, form.Ending, form.BytesOf); });
}

void ShareCommand::Save(const Paper& paper, const QString& kind, const QString& ending,
                        const std::function<std::string(const Paper&)>& bytesOf)
{
    const QString filter = QString("%1 (*.%2)|*.%2|All Files (*.*)|*.*").arg(kind, ending);
    const auto chosen =
        AskForFileToSave(PathToDesktop(Machine().ProgramFolder()), FileNameOf(paper, ending), filter, ending);
    if (!chosen)
        return;
    const std::string path = PathToProgram(*chosen);
    const bool isSaved = Reporting(Machine(), " in cmdShare_Click! Nothing was saved to " + path + ".", [&] {
        const std::string bytes = bytesOf(paper);
        WholeFile file(Machine(), path);
        file.Write({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()});
        file.Commit();
    });
    if (isSaved)
        PassingTag::Say(*this, "Saved to " + *chosen);
}

std::string DateOfFile() { return Machine().LongDate(LeagueData.FileDate); }

} // namespace dravik
