#include "screens/main/ThirdPartyPage.h"

#include "screens/panels/Layouts.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

// A library's resource is linked when it is asked for, which cannot be done in a namespace.
static void InitPages() { Q_INIT_RESOURCE(pages); }

namespace dravik {

namespace {

QString TextOfThePage()
{
    InitPages();
    QFile page(":/pages/third-party.txt");
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

} // namespace

ThirdPartyPage::ThirdPartyPage(QWidget* parent) : QDialog(parent)
{
    setObjectName("ThirdPartyPage");
    setWindowTitle("What Others Wrote");
    txtPage = new QPlainTextEdit(TextOfThePage(), this);
    txtPage->setObjectName("txtPage");
    txtPage->setAccessibleName("What others wrote, and its licences");
    txtPage->setReadOnly(true);
    // By the keyboard too it is read and chosen from, and Tab leads out of it.
    txtPage->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtPage->setTabChangesFocus(true);
    auto* commands = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(commands, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Gap);
    column->addWidget(txtPage);
    column->addWidget(commands);

    constexpr int lines = 30;
    const QFontMetrics metrics = txtPage->fontMetrics();
    int widest = 0;
    for (const QString& line : txtPage->toPlainText().split('\n'))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize usual(widest + bar + 4 * Margin, lines * metrics.lineSpacing() + 4 * Margin);
    resize(usual.boundedTo(parent->screen()->availableGeometry().size() - QSize(4 * Margin, 4 * Margin)));
}

void ThirdPartyPage::Open()
{
    txtPage->setFocus();
    show();
    raise();
    activateWindow();
}

} // namespace dravik
