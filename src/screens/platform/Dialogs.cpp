#include "screens/platform/Dialogs.h"

#include "league/Failure.h"
#include "machine/Platform.h"
#include "screens/main/frmWait.h"
#include "screens/platform/BoxIcon.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>
#include <QStyle>
#include <QTextLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace dravik {

namespace {

struct BoxKind {
    int Kind = 0;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons Buttons;
    QMessageBox::StandardButton Escape = QMessageBox::NoButton;
};

const std::array BoxKinds{
    BoxKind{box::Critical, QMessageBox::Critical, QMessageBox::Ok, QMessageBox::Ok},
    BoxKind{box::YesNoCancel, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            QMessageBox::Cancel},
    BoxKind{box::YesNo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
    BoxKind{box::Warning, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok},
    BoxKind{box::Information, QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok},
};

struct BoxButton {
    QMessageBox::StandardButton Button;
    int Number;
    const char* Name;
};

// In the order in which one of them is the default.
constexpr std::array BoxButtons{
    BoxButton{QMessageBox::Ok, button::Ok, "cmdOk"},
    BoxButton{QMessageBox::Yes, button::Yes, "cmdYes"},
    BoxButton{QMessageBox::No, button::No, "cmdNo"},
    BoxButton{QMessageBox::Cancel, button::Cancel, "cmdCancel"},
};

QString WithPlainBreaks(QString text) { return text.replace("\r\n", "\n").replace('\r', '\n'); }

QSize ScreenSize(const QWidget& widget) { return widget.screen()->availableGeometry().size(); }

// More lines than this, or a word wider than a box may be, and the text scrolls.
constexpr int MostLines = 18;
constexpr int WidestText = 620;

// How `text` comes out when its lines are broken at `width`.
struct BrokenText {
    int Lines = 0;
    double Width = 0;
};

BrokenText Break(const QString& text, const QFont& font, int width, QTextOption::WrapMode mode)
{
    QTextOption option;
    option.setWrapMode(mode);
    BrokenText broken;
    for (const QString& paragraph : text.split('\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            broken.Width = std::max(broken.Width, line.naturalTextWidth());
            ++broken.Lines;
        }
        layout.endLayout();
    }
    return broken;
}

bool MustScroll(const QWidget& widget, const QString& text)
{
    const BrokenText broken = Break(text, widget.font(), WidestText, QTextOption::WordWrap);
    return broken.Lines > MostLines || broken.Width > WidestText;
}

// Puts a text area that scrolls in the place of the box's label. The box still knows its whole text.
void ScrollText(QMessageBox& messageBox, const QString& text)
{
    auto* label = messageBox.findChild<QLabel*>("qt_msgbox_label");
    auto* layout = qobject_cast<QGridLayout*>(messageBox.layout());
    if (label == nullptr || layout == nullptr)
        return;
    const int place = layout->indexOf(label);
    if (place < 0)
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    layout->getItemPosition(place, &row, &column, &rows, &columns);
    layout->removeWidget(label);
    label->hide();

    auto* area = new QPlainTextEdit(text, &messageBox);
    area->setObjectName("txtMessage");
    area->setAccessibleName(messageBox.windowTitle());
    area->setReadOnly(true);
    area->setTabChangesFocus(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QSize screen = ScreenSize(messageBox);
    const int frame = 2 * area->frameWidth() + 2 * static_cast<int>(std::ceil(area->document()->documentMargin()));
    const int scrollBar = area->verticalScrollBar()->sizeHint().width();
    const int widest = std::min(WidestText, screen.width() - 160 - frame - scrollBar);
    const BrokenText broken = Break(text, area->font(), widest, area->wordWrapMode());
    // Where there are more lines the area ends within one, so that more is seen to follow.
    const double lines = std::min<double>(broken.Lines + 0.5, MostLines + 6.5);
    const int height = static_cast<int>(lines * area->fontMetrics().lineSpacing()) + frame;
    area->setFixedSize(std::clamp(static_cast<int>(std::ceil(broken.Width)), widest / 2, widest) + frame + scrollBar,
                       std::min(height, screen.height() * 6 / 10));
    layout->addWidget(area, row, column, rows, columns);
    // The arrows and pages move the text at once; Enter and Escape still answer.
    area->setFocus();
}

void DrawIcon(QMessageBox& messageBox)
{
    auto* label = messageBox.findChild<QLabel*>("qt_msgboxex_icon_label");
    if (label == nullptr || !NeedsOwnBoxIcons())
        return;
    const int size = messageBox.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &messageBox);
    label->setPixmap(BoxIcon(messageBox.icon(), messageBox.palette(), size, messageBox.devicePixelRatioF()));
}

// A dialog without a window behind it, such as one at the start, must not end the program when it closes.
void KeepProgramRunning(QWidget& dialog) { dialog.setAttribute(Qt::WA_QuitOnClose, false); }

} // namespace

QWidget* DialogParent()
{
    const auto fits = [](const QWidget* window) {
        return window != nullptr && window->isVisible() && qobject_cast<const frmWait*>(window) == nullptr;
    };
    if (fits(QApplication::activeModalWidget()))
        return QApplication::activeModalWidget();
    if (fits(QApplication::activeWindow()))
        return QApplication::activeWindow();
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [&fits](const QWidget* window) {
        return fits(window) && window->windowType() == Qt::Window;
    });
    return found == windows.end() ? nullptr : *found;
}

int ShowMessageBox(const QString& text, int kind, const QString& title)
{
    const auto* known =
        std::find_if(BoxKinds.begin(), BoxKinds.end(), [kind](const BoxKind& row) { return row.Kind == kind; });
    if (known == BoxKinds.end())
        Fail(failure::InvalidCall);

    QMessageBox messageBox(DialogParent());
    messageBox.setObjectName("msgBox");
    KeepProgramRunning(messageBox);
    messageBox.setWindowTitle(title);
    messageBox.setIcon(known->Icon);
    messageBox.setTextFormat(Qt::PlainText);
    const QString shown = WithPlainBreaks(text);
    messageBox.setText(shown);
    messageBox.setStandardButtons(known->Buttons);
    messageBox.setEscapeButton(known->Escape);
    for (const BoxButton& row : BoxButtons) {
        auto* pushButton = messageBox.button(row.Button);
        if (pushButton == nullptr)
            continue;
        pushButton->setObjectName(row.Name);
        if (messageBox.defaultButton() == nullptr)
            messageBox.setDefaultButton(row.Button);
    }
    DrawIcon(messageBox);
    if (MustScroll(messageBox, shown))
        ScrollText(messageBox, shown);
    messageBox.exec();

    const auto pressed = messageBox.standardButton(messageBox.clickedButton());
    const auto* answer = std::find_if(BoxButtons.begin(), BoxButtons.end(),
                                      [pressed](const BoxButton& row) { return row.Button == pressed; });
    return answer == BoxButtons.end() ? button::Cancel : answer->Number;
}

std::optional<QString> AskForText(const QString& prompt, const QString& title, const QString& text)
{
    QDialog dialog(DialogParent());
    dialog.setObjectName("inputBox");
    KeepProgramRunning(dialog);
    dialog.setWindowTitle(title);

    auto* label = new QLabel(WithPlainBreaks(prompt), &dialog);
    label->setObjectName("lblPrompt");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* edit = new QLineEdit(text, &dialog);
    edit->setObjectName("txtAnswer");
    edit->setAccessibleName(prompt);
    edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * 60);
    edit->selectAll();
    if (prompt.contains("Password"))
        edit->setEchoMode(QLineEdit::Password);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOk");
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(14, 14, 14, 14);
    layout->setSpacing(8);
    layout->addWidget(label);
    layout->addWidget(edit);
    layout->addSpacing(6);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    edit->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    // What was pasted may hold several lines; the answer is the first.
    static const QRegularExpression lineBreak("[\r\n]");
    return edit->text().section(lineBreak, 0, 0);
}

QStringList NameFilters(const QString& filter)
{
    const QStringList parts = filter.split('|');
    QStringList filters;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QString pattern;
        const QString given = parts[at + 1].trimmed().replace("*.*", "*").replace(';', ' ');
        for (const QChar character : given) {
            const QChar upper = character.toUpper();
            const QChar lower = character.toLower();
            // Desktops whose own dialog tells cases apart get both.
            pattern += upper == lower ? QString(character) : '[' + QString(lower) + upper + ']';
        }
        filters += parts[at].trimmed() + " (" + pattern + ')';
    }
    return filters;
}

namespace {

// A dialog for files, which begins in `folder`. `filter` is that of AskForFile.
class FileQuestion : public QFileDialog {
public:
    FileQuestion(const QString& title, const QString& folder, const QString& filter) :
        QFileDialog(DialogParent(), title, folder)
    {
        setObjectName("dlgCommon");
        KeepProgramRunning(*this);
        // The captions carry their pattern in words.
        setOption(QFileDialog::HideNameFilterDetails);
        // Without a window system there is no dialog but the toolkit's own.
        setOption(QFileDialog::DontUseNativeDialog, QGuiApplication::platformName() == "offscreen");
        setNameFilters(NameFilters(filter));
        OfferDownloads();
    }

    std::optional<QString> Ask()
    {
        resize(sizeHint().expandedTo(QSize(760, 480)));
        if (exec() != QDialog::Accepted || selectedFiles().isEmpty())
            return std::nullopt;
        return selectedFiles().constFirst();
    }

private:
    // Leagues come as downloads: the desktop's folder of these stands in the side bar. A dialog of the desktop's has its own.
    void OfferDownloads()
    {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
        const QUrl place = QUrl::fromLocalFile(folder);
        QList<QUrl> offered = sidebarUrls();
        if (!QFileInfo(folder).isDir() || offered.contains(place))
            return;
        setSidebarUrls(offered << place);
    }
};

} // namespace

std::optional<QString> AskForFile(const QString& folder, const QString& filter)
{
    FileQuestion dialog("Open", folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ReadOnly);
    return dialog.Ask();
}

std::optional<QString> AskForFileToSave(const QString& folder, const QString& name, const QString& filter,
                                        const QString& ending)
{
    FileQuestion dialog("Save", folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(name);
    const std::optional<QString> file = dialog.Ask();
    return file ? std::optional(QDir::toNativeSeparators(*file)) : std::nullopt;
}

} // namespace dravik
