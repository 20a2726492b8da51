#pragma once

#include <functional>
#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QString>

// The desktop's dialogs for what is printed. Both are modal and return when the user has answered. Their source is the only one
// that knows the toolkit's printing.
namespace dravik {

// What is printed: its name, as queues and windows show it, the page that the dialogs begin with, and what paints it.
struct PrintJob {
    QString Name;
    QPageLayout Layout;
    std::function<void(QPagedPaintDevice&)> Paint; // lets nothing out that fails
};

// Has the user choose a printer and what of the job goes there, then paints it; nothing on cancel.
void Print(const PrintJob& job);

// Shows what would be printed, painted anew whenever the user chooses another page, and has him print it from there.
void PreviewPrint(const PrintJob& job);

} // namespace dravik
