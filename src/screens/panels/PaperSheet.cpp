#include "screens/panels/PaperSheet.h"

#include "league/Failure.h"
#include "machine/Message.h"
#include "screens/platform/CodePage.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <map>
#include <numeric>
#include <vector>

namespace dravik {

namespace {

constexpr double MostPoints = 10;
constexpr double LeastPoints = 5;
constexpr double PointsOfLongPapers = 8; // of a paper whose parts do not fit on a page each
constexpr double PointsOfFoot = 7;
constexpr double HeightOfFoot = 2.2; // in lines of it
constexpr const char* Muted = "#555555";
constexpr const char* Rule = "#c0c0c0";
constexpr double MostOfLabels = 0.13; // of the width of a page, for a first column that only names the rows

// The room around the text of a cell, in heights of a line.
constexpr double OverCells = 0.08;
constexpr double RightOfCells = 0.6;
constexpr double Slack = 0.4; // what a text takes beyond its measure where widths are rounded

// How a heading stands out: how many times the size of the letters, and the room over and below it in lines.
struct HeadingLook {
    double Size;
    double Over;
    double Below;
};

// Of the levels from 1 on: the paper, its parts, their tables.
constexpr HeadingLook Headings[] = {{1.9, 0, 0.2}, {1.35, 0.5, 0.15}, {1, 0.45, 0.1}};

// The font of the desktop, of which each letter is drawn by itself: where a reader looks for "Griffith", there is none in a
// text that has one sign for three letters. Letters that are spaced have no such signs, however little it is.
QFont SheetFont(double points)
{
    constexpr double leastSpace = 1.0 / 64;
    QFont font(QApplication::font().family());
    font.setPointSizeF(points);
    font.setLetterSpacing(QFont::AbsoluteSpacing, leastSpace);
    return font;
}

// How the page of HTML looks on a sheet in letters of `points`. Lengths are those of the screen, as in every document.
QString StyleOf(double points)
{
    const QFontMetricsF letters(SheetFont(points));
    const double line = letters.height();
    const auto px = [](double length) { return QString::number(length, 'f', 2) + "px"; };
    QString style = "p { margin: 0 }\nh1, h2, h3, p, th, td { white-space: pre-wrap }\n"; // a name keeps its blanks
    style +=
        QString("th, td { text-align: left; vertical-align: top; padding: %1 %2 %1 0; border-bottom: %3 solid %4 }\n")
            .arg(px(OverCells * line), px(RightOfCells * line), px(1), Rule);
    style += QString("th { color: %1; border-bottom-color: %1 }\n").arg(Muted);
    for (std::size_t at = 0; at < std::size(Headings); ++at)
        style += QString("h%1 { font-size: %2pt; margin-top: %3; margin-bottom: %4 }\n")
                     .arg(at + 1)
                     .arg(Headings[at].Size * points, 0, 'f', 2)
                     .arg(px(Headings[at].Over * line), px(Headings[at].Below * line));
    return style;
}

// Has each part but the first begin a page.
void PartPages(const QTextDocument& document)
{
    constexpr int levelOfParts = 2;
    bool isFirst = true;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != levelOfParts)
            continue;
        QTextBlockFormat format;
        format.setPageBreakPolicy(isFirst ? QTextFormat::PageBreak_Auto : QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).mergeBlockFormat(format);
        isFirst = false;
    }
}

QString TextOf(const QTextTable& table, int row, int column)
{
    return table.cellAt(row, column).firstCursorPosition().block().text();
}

// Whether a column holds figures, which are compared when they stand at its right.
bool IsOfFigures(const QTextTable& table, int column)
{
    bool hasDigit = false;
    for (int row = 1; row < table.rows(); ++row) {
        const QString text = TextOf(table, row, column);
        if (std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); }))
            return false;
        hasDigit |= std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isDigit(); });
    }
    return hasDigit;
}

QStringList CaptionsOf(const QTextTable& table)
{
    QStringList captions;
    for (int column = 0; column < table.columns(); ++column)
        captions << TextOf(table, 0, column);
    return captions;
}

// The widths on `device` that the columns of a table want: those of their longest text, and of the room in a cell.
std::vector<double> WantedWidths(const QTextTable& table, const QPagedPaintDevice& device, double points)
{
    QFont bold = SheetFont(points);
    bold.setBold(true);
    const QFontMetricsF headings(bold, &device);
    const QFontMetricsF texts(SheetFont(points), &device);
    const double padding = (RightOfCells + Slack) * texts.height();
    std::vector<double> widths;
    for (int column = 0; column < table.columns(); ++column) {
        double width = headings.horizontalAdvance(TextOf(table, 0, column));
        for (int row = 1; row < table.rows(); ++row)
            width = std::max(width, texts.horizontalAdvance(TextOf(table, row, column)));
        widths.push_back(width + padding);
    }
    return widths;
}

// Whether the first of columns that want `widths` only names the rows.
bool NamesRows(const std::vector<double>& widths, double room) { return widths.front() <= MostOfLabels * room; }

// Shares `room` among columns that want `widths`. Behind a first column that only names the rows all are as wide where each
// has room for what it holds. Otherwise each is as wide as it wants and the last one takes what is left; and where that is
// too much, the widest ones give way until all find room.
std::vector<double> Share(std::vector<double> widths, double room)
{
    const auto others = static_cast<double>(widths.size() - 1);
    const double equal = others == 0 ? 0 : (room - widths.front()) / others;
    if (NamesRows(widths, room) &&
        std::all_of(widths.begin() + 1, widths.end(), [&](double width) { return width <= equal; })) {
        std::fill(widths.begin() + 1, widths.end(), equal);
        return widths;
    }
    const double wanted = std::accumulate(widths.begin(), widths.end(), 0.0);
    if (wanted <= room) {
        widths.back() += room - wanted;
        return widths;
    }
    std::vector<double> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    double left = room;
    double most = room;
    for (std::size_t at = 0; at < sorted.size(); ++at) {
        most = left / static_cast<double>(sorted.size() - at);
        if (sorted[at] > most)
            break;
        left -= sorted[at];
    }
    for (double& width : widths)
        width = std::min(width, most);
    return widths;
}

void FormatTable(QTextTable& table, const std::vector<double>& shares, double room)
{
    QTextTableFormat format = table.format();
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setMargin(0);
    format.setHeaderRowCount(1);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    QList<QTextLength> columns;
    for (const double share : shares)
        columns << QTextLength(QTextLength::PercentageLength, 100 * share / room);
    format.setColumnWidthConstraints(columns);
    table.setFormat(format);
}

std::vector<QTextTable*> TablesOf(const QTextDocument& document)
{
    std::vector<QTextTable*> tables;
    for (QTextFrame* frame : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            tables.push_back(table);
    return tables;
}

// Has the figures of all tables stand at the right of their columns. No line gets longer or shorter by that.
void AlignFigures(QTextDocument& document)
{
    QTextBlockFormat format;
    format.setAlignment(Qt::AlignRight);
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (const QTextTable* table : TablesOf(document))
        for (int column = 1; column < table->columns(); ++column)
            if (IsOfFigures(*table, column))
                for (int row = 0; row < table->rows(); ++row)
                    table->cellAt(row, column).firstCursorPosition().mergeBlockFormat(format);
    edit.endEditBlock();
}

// Gives all tables their columns: those with the same captions have the same ones, and so have all whose first column only names
// the rows for that column.
void ShapeTables(const QTextDocument& document, const QPagedPaintDevice& device, double room, double points)
{
    std::map<QStringList, std::vector<double>> wanted; // by the captions
    const std::vector<QTextTable*> tables = TablesOf(document);
    for (const QTextTable* table : tables) {
        const std::vector<double> widths = WantedWidths(*table, device, points);
        std::vector<double>& most = wanted[CaptionsOf(*table)];
        most.resize(widths.size());
        std::transform(widths.begin(), widths.end(), most.begin(), most.begin(),
                       [](double one, double other) { return std::max(one, other); });
    }
    double labels = 0;
    for (const auto& [captions, widths] : wanted)
        if (NamesRows(widths, room))
            labels = std::max(labels, widths.front());
    for (auto& [captions, widths] : wanted)
        if (NamesRows(widths, room))
            widths.front() = labels;
    for (QTextTable* table : tables)
        FormatTable(*table, Share(wanted[CaptionsOf(*table)], room), room);
}

} // namespace

PaperSheet::PaperSheet(const Paper& shared) : paper(shared), html(HtmlOf(shared))
{
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
}

bool PaperSheet::Fits(QPagedPaintDevice& device, const QSizeF& page, double points)
{
    document.setPageSize({});
    document.setDefaultFont(SheetFont(points));
    document.setHtml(ToQString(html).replace("</head>", "<style>" + StyleOf(points) + "</style></head>"));
    document.documentLayout()->setPaintDevice(&device);

    QTextCursor edit(&document);
    edit.beginEditBlock();
    PartPages(document);
    ShapeTables(document, device, page.width(), points);
    edit.endEditBlock();
    document.setPageSize(page);
    return document.pageCount() <= std::max<int>(1, static_cast<int>(paper.Parts.size())) &&
           document.size().width() <= page.width();
}

void PaperSheet::Arrange(QPagedPaintDevice& device, const QSizeF& page)
{
    constexpr double step = 0.25;
    double points = PointsOfLongPapers;
    if (Fits(device, page, LeastPoints)) {
        int most = static_cast<int>((MostPoints - LeastPoints) / step); // steps above the least size
        int fits = 0;
        while (fits < most) {
            const int tried = (fits + most + 1) / 2;
            if (Fits(device, page, LeastPoints + tried * step))
                fits = tried;
            else
                most = tried - 1;
        }
        points = LeastPoints + fits * step;
    }
    Fits(device, page, points);
    AlignFigures(document);
}

void PaperSheet::PaintPage(QPainter& painter, const QSizeF& page, int number)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF({0, (number - 1) * page.height()}, page);
    painter.save();
    painter.translate(0, -context.clip.top());
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void PaperSheet::PaintFoot(QPainter& painter, const QRectF& foot, int number)
{
    const QString pages = QString("Page %1 of %2").arg(number).arg(document.pageCount());
    QStringList words{ToQString(paper.Title)};
    for (const std::string& fact : paper.Facts)
        words << ToQString(fact);
    painter.setFont(SheetFont(PointsOfFoot));
    painter.setPen(QColor(Muted));
    const QFontMetricsF letters(painter.font(), painter.device());
    const double room = foot.width() - letters.horizontalAdvance(pages + "   ");
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                     letters.elidedText(words.join(", "), Qt::ElideRight, room));
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, pages);
}

int PaperSheet::PrintOn(QPagedPaintDevice& device)
{
    const QSizeF whole(device.width(), device.height());
    const double foot = HeightOfFoot * QFontMetricsF(SheetFont(PointsOfFoot), &device).lineSpacing();
    const QSizeF page(whole.width(), whole.height() - foot);
    Arrange(device, page);

    QPainter painter;
    if (!painter.begin(&device))
        Fail(failure::PathAccess);
    const int pages = document.pageCount();
    const QPageRanges wanted = device.pageRanges();
    bool isFirst = true;
    for (int number = 1; number <= pages; ++number) {
        if (!wanted.isEmpty() && !wanted.contains(number))
            continue;
        if (!isFirst && !device.newPage())
            Fail(failure::PathAccess);
        isFirst = false;
        PaintPage(painter, page, number);
        if (pages > 1)
            PaintFoot(painter, {{0, page.height()}, QSizeF(whole.width(), foot)}, number);
    }
    if (!painter.end())
        Fail(failure::PathAccess);
    return pages;
}

QByteArray PaperSheet::Pdf(QPageSize::PageSizeId size)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageLayout(QPageLayout(QPageSize(size), QPageLayout::Portrait, SheetMargins, QPageLayout::Millimeter));
    writer.setTitle(ToQString(paper.Title));
    writer.setCreator(ToQString(ProgramTitle));
    PrintOn(writer);
    return bytes.data();
}

} // namespace dravik
