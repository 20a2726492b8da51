#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

// The three dialogs that the program asks of the desktop. All of them are modal and return when the user has answered.
namespace dravik {

// The window that a dialog belongs to: the modal one if there is one, else the active one, else any that is seen. The
// wait screen is passed over, since it may go while the dialog is up. Null without a window.
QWidget* DialogParent();

// Shows `text`, which is plain text with line breaks, with the icon and the buttons of `kind` (namespace box). Returns the
// number of the button pressed (namespace button). Escape and closing the box mean No or Cancel where the box asks. A
// text of many lines stands in an area that scrolls. A kind that is none fails with number 5.
int ShowMessageBox(const QString& text, int kind, const QString& title);

// Asks for a line of text, beginning with `text`. A prompt that speaks of a password hides what is typed. Nothing on
// cancel.
std::optional<QString> AskForText(const QString& prompt, const QString& title, const QString& text);

// Asks for a file to open, beginning in `folder`, with the desktop's downloads one press away. `filter` alternates captions and patterns, parted by "|". Nothing on
// cancel.
std::optional<QString> AskForFile(const QString& folder, const QString& filter);

// Asks where to save, beginning with `name` in `folder`; an ending that was not typed is `ending` ("csv"). A file that is there
// is asked about. Nothing on cancel; else the path in the desktop's own way.
std::optional<QString> AskForFileToSave(const QString& folder, const QString& name, const QString& filter,
                                        const QString& ending);

// `filter` as the toolkit wants it: one entry a caption. Patterns match whatever the case of a name, and "*.*" matches
// every name.
QStringList NameFilters(const QString& filter);

} // namespace dravik
