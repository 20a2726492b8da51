#include "screens/platform/PrintDialogs.h"

#include "screens/platform/Dialogs.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QScreen>

namespace dravik {

namespace {

// A printer as the dialogs begin with it.
class JobPrinter : public QPrinter {
public:
    explicit JobPrinter(const PrintJob& job) : QPrinter(HighResolution)
    {
        setPageLayout(job.Layout);
        setDocName(job.Name);
    }
};

} // namespace

void Print(const PrintJob& job)
{
    JobPrinter printer(job);
    QPrintDialog dialog(&printer, DialogParent());
    dialog.setObjectName("dlgPrint");
    dialog.setAttribute(Qt::WA_QuitOnClose, false); // it is no window of the program's own
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() == QDialog::Accepted)
        job.Paint(printer);
}

void PreviewPrint(const PrintJob& job)
{
    constexpr QSize roomy(1000, 900);
    JobPrinter printer(job);
    QPrintPreviewDialog dialog(&printer, DialogParent());
    dialog.setObjectName("dlgPrintPreview");
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.resize(roomy.boundedTo(dialog.screen()->availableGeometry().size()));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&job](QPrinter* shown) { job.Paint(*shown); });
    dialog.exec();
}

} // namespace dravik
