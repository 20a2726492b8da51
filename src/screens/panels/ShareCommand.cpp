#include "screens/panels/ShareCommand.h"

#include "screens/platform/CodePage.h"
#include "screens/Screen.h"

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

constexpr CopyForm Forms[] = {{"Text", "Copy as Text", PlainTextOf},
                              {"Forum", "Copy for Forum", ForumTextOf},
                              {"Markdown", "Copy as Markdown", MarkdownOf}};

} // namespace

ShareCommand::ShareCommand(QWidget* parent) : QPushButton("Share ...", parent)
{
    setObjectName("cmdShare");
    setAutoDefault(true); // Enter opens the menu of the command that has the focus
    setMenu(new QMenu(this));
}

void ShareCommand::Offer(const QString& name, const QString& heading, std::function<Paper()> make)
{
    QMenu* part = menu()->addMenu(heading);
    for (const CopyForm& form : Forms) {
        QAction* item = part->addAction(form.Caption);
        item->setObjectName("mnuShare" + name + form.Name);
        connect(item, &QAction::triggered, this, [form, make] {
            RunEvent("cmdShare_Click", [&] { QGuiApplication::clipboard()->setText(ToQString(form.TextOf(make()))); });
        });
    }
}

} // namespace dravik
