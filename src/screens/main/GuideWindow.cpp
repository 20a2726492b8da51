#include "screens/main/GuideWindow.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"

#include <algorithm>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextTable>
#include <utility>
#include <vector>

// What lies in a library is brought by name, which the toolkit wants outside of any namespace.
static void BringGuide() { Q_INIT_RESOURCE(guide); }

namespace dravik {

namespace {

constexpr QSize UsualSize(1040, 760);
constexpr int PictureWidth = 700;
constexpr int ChapterLevel = 3; // headings down to this level are chapters of the list
constexpr int AnchorRole = Qt::UserRole;
constexpr int BlockRole = Qt::UserRole + 1;

// A heading as a link to it reads: small letters, a hyphen for each blank, and nothing else but digits.
QString AnchorOf(const QString& heading)
{
    static const QRegularExpression others("[^a-z0-9 -]");
    return heading.toLower().remove(others).replace(' ', '-');
}

// The text with pictures as wide as a column of it, at the sharpness of the display.
class GuideText : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        const QVariant loaded = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return loaded;
        QImage picture = QImage::fromData(loaded.toByteArray());
        if (picture.isNull())
            return loaded;
        const double ratio = devicePixelRatioF();
        picture = picture.scaledToWidth(static_cast<int>(PictureWidth * ratio), Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        return picture;
    }

    // No picture is wider than the page, so that nobody has to scroll sideways.
    void FitPictures()
    {
        const int page = viewport()->width() - static_cast<int>(2 * document()->documentMargin());
        if (page <= 0)
            return;
        const double width = std::min(PictureWidth, page);
        std::vector<QTextCursor> pictures;
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (const QTextCharFormat look = part.fragment().charFormat(); look.isImageFormat()) {
                    const QTextImageFormat picture = look.toImageFormat();
                    if (picture.width() == width)
                        continue;
                    QTextCursor at(document());
                    at.setPosition(part.fragment().position());
                    at.setPosition(part.fragment().position() + part.fragment().length(), QTextCursor::KeepAnchor);
                    pictures.push_back(at);
                }
        for (QTextCursor& at : pictures) {
            QTextImageFormat picture = at.charFormat().toImageFormat();
            const QSizeF whole = document()
                                     ->resource(QTextDocument::ImageResource, picture.name())
                                     .value<QImage>()
                                     .deviceIndependentSize();
            if (whole.isEmpty())
                continue;
            picture.setWidth(width);
            picture.setHeight(whole.height() * width / whole.width());
            at.setCharFormat(picture);
        }
        document()->setModified(false);
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QTextBrowser::resizeEvent(event);
        FitPictures();
    }
};

} // namespace

GuideWindow::GuideWindow() : QWidget(nullptr, Qt::Window)
{
    BringGuide();
    setObjectName("GuideWindow");
    new KeptPlace(*this);
    setWindowTitle("Guide");
    setAttribute(Qt::WA_QuitOnClose, false);

    lstChapters = new QListWidget(this);
    lstChapters->setObjectName("lstChapters");
    lstChapters->setAccessibleName("Chapters");
    lstChapters->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(lstChapters, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* chapter) {
        if (chapter != nullptr)
            GoTo(chapter->data(AnchorRole).toString());
    });

    txtGuide = new GuideText(this);
    txtGuide->setObjectName("txtGuide");
    txtGuide->setAccessibleName("Guide");
    txtGuide->setOpenLinks(false);
    txtGuide->document()->setDocumentMargin(Margin);
    txtGuide->setTextInteractionFlags(txtGuide->textInteractionFlags() | Qt::TextSelectableByKeyboard);
    connect(txtGuide, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { GoTo(link.fragment()); });

    txtFind = new QLineEdit(this);
    txtFind->setObjectName("txtFind");
    txtFind->setAccessibleName("Find in the guide");
    txtFind->setPlaceholderText("Find");
    txtFind->setClearButtonEnabled(true);
    KeepPlaceholderMuted(*txtFind);
    connect(txtFind, &QLineEdit::textEdited, this, [this] {
        // What is being typed may go on at the place that was found.
        const QTextCursor before = txtGuide->textCursor();
        QTextCursor place = before;
        place.setPosition(place.selectionStart());
        txtGuide->setTextCursor(place);
        if (!FindNext(false))
            txtGuide->setTextCursor(before);
    });
    const auto makeCommand = [this](const char* name, const QString& caption, bool backwards) {
        auto* command = new QPushButton(caption, this);
        command->setObjectName(name);
        command->setAutoDefault(false);
        command->setFocusPolicy(Qt::TabFocus); // a press leaves the focus in the box
        connect(command, &QPushButton::clicked, this, [this, backwards] { FindNext(backwards); });
        return command;
    };
    cmdNext = makeCommand("cmdNext", "&Next", false);
    cmdBefore = makeCommand("cmdBefore", "&Before", true);
    lblFound = new MutedLabel(this);
    lblFound->setObjectName("lblFound");
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        txtFind->setFocus(Qt::ShortcutFocusReason);
        txtFind->selectAll();
    });
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, [this] { FindNext(false); });
    connect(new QShortcut(QKeySequence("Shift+F3"), this), &QShortcut::activated, this, [this] { FindNext(true); });

    auto* parts = new QSplitter(this);
    parts->addWidget(lstChapters);
    parts->addWidget(txtGuide);
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    QHBoxLayout* search = MakeRow({txtFind, cmdNext, cmdBefore, lblFound});
    search->setStretchFactor(lblFound, 1);
    auto* page = MakePage(this);
    page->addLayout(search);
    page->addWidget(parts, 1);
    ChainTabs({txtFind, cmdNext, cmdBefore, lstChapters, txtGuide});

    Fill();
    ListChapters();
    lstChapters->setMinimumWidth(lstChapters->sizeHintForColumn(0) + Gap + 2 * lstChapters->frameWidth() +
                                 lstChapters->verticalScrollBar()->sizeHint().width());
    parts->setSizes({lstChapters->minimumWidth(), UsualSize.width() - lstChapters->minimumWidth()});
    txtFind->setMinimumWidth(lstChapters->minimumWidth());
}

void GuideWindow::Fill()
{
    QPalette colours = palette();
    colours.setColor(QPalette::Link, LinkText(colours));
    txtGuide->setPalette(colours);
    txtGuide->setSource(QUrl("qrc:/guide/guide.md"), QTextDocument::MarkdownResource);

    // The toolkit leaves a table of this kind without lines.
    QTextCursor all(txtGuide->document());
    all.beginEditBlock();
    const QColor line = Muted(colours.color(QPalette::Text), colours.color(QPalette::Base));
    for (QTextFrame* frame : txtGuide->document()->rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat look = table->format();
            constexpr int cellMargin = 4;
            look.setCellPadding(cellMargin);
            look.setCellSpacing(0);
            look.setBorder(1);
            look.setBorderCollapse(true);
            look.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            look.setBorderBrush(line);
            table->setFormat(look);
        }
    all.endEditBlock();
    static_cast<GuideText*>(txtGuide)->FitPictures();
    txtGuide->document()->setModified(false);
}

void GuideWindow::ListChapters()
{
    for (QTextBlock block = txtGuide->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0 || level > ChapterLevel)
            continue;
        auto* chapter = new QListWidgetItem(QString(level == ChapterLevel ? "    " : "") + block.text(), lstChapters);
        chapter->setData(AnchorRole, AnchorOf(block.text()));
        chapter->setData(BlockRole, block.blockNumber());
        chapter->setData(Qt::AccessibleTextRole, block.text());
    }
}

void GuideWindow::Open(const QWidget& beside)
{
    if (!std::exchange(hasStood, true) && !PutKept(*this))
        PlaceByProgram(*this, [this, &beside] {
            const QRect area = beside.screen()->availableGeometry();
            const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
            resize(UsualSize.expandedTo(minimumSizeHint()).boundedTo(area.size() - QSize(0, title)));
            move(area.left() + (area.width() - width()) / 2, area.top() + (area.height() - title - height()) / 2);
        });
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
    txtFind->setFocus();
}

bool GuideWindow::GoTo(const QString& anchor)
{
    for (int row = 0; row < lstChapters->count(); ++row) {
        const QListWidgetItem* chapter = lstChapters->item(row);
        if (chapter->data(AnchorRole).toString() != anchor)
            continue;
        const QTextBlock block = txtGuide->document()->findBlockByNumber(chapter->data(BlockRole).toInt());
        txtGuide->setTextCursor(QTextCursor(block));
        // A heading is gone to so that it stands at the top.
        QScrollBar* bar = txtGuide->verticalScrollBar();
        bar->setValue(bar->value() + txtGuide->cursorRect().top() - Gap);
        ShowChapterAtHand();
        return true;
    }
    return false;
}

void GuideWindow::ShowChapterAtHand()
{
    const int at = txtGuide->textCursor().blockNumber();
    int row = lstChapters->count() - 1;
    while (row > 0 && lstChapters->item(row)->data(BlockRole).toInt() > at)
        --row;
    const QSignalBlocker still(lstChapters);
    lstChapters->setCurrentRow(row);
}

bool GuideWindow::FindNext(bool backwards)
{
    lblFound->clear();
    const QString part = txtFind->text();
    if (part.isEmpty())
        return false;
    const QTextDocument::FindFlags way = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (!txtGuide->find(part, way)) {
        const QTextCursor before = txtGuide->textCursor();
        txtGuide->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
        if (!txtGuide->find(part, way)) {
            txtGuide->setTextCursor(before);
            TellFound("Not found");
            return false;
        }
        TellFound(backwards ? "Found from the end on" : "Found from the beginning on");
    }
    ShowChapterAtHand();
    return true;
}

void GuideWindow::TellFound(const QString& words)
{
    lblFound->setText(words);
    Announce(*lblFound, words);
}

void GuideWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else if (txtFind->hasFocus() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        FindNext(event->modifiers().testFlag(Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

void GuideWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    const int anchor = txtGuide->textCursor().anchor();
    const int position = txtGuide->textCursor().position();
    const int scrolled = txtGuide->verticalScrollBar()->value();
    Fill();
    QTextCursor again(txtGuide->document());
    again.setPosition(anchor);
    again.setPosition(position, QTextCursor::KeepAnchor);
    txtGuide->setTextCursor(again);
    txtGuide->verticalScrollBar()->setValue(scrolled);
}

} // namespace dravik
