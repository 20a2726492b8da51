#pragma once

#include "desk/Paper.h"

#include <QByteArray>
#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QPageSize>
#include <QString>
#include <QTextDocument>

namespace dravik {

// A paper on sheets: one document, made of its page of HTML, which is printed, previewed and saved as PDF.
class PaperSheet {
public:
    explicit PaperSheet(const Paper& shared);

    // Prints on the pages of `device`, in its size, between its margins and in its range of pages: each part of the paper on a
    // page of its own, all in the largest letters of 5 to 10 points with which that comes true. A paper that is too long even
    // so runs on over further pages, in letters that are easy to read. Where there are several pages, each says at its foot
    // what it belongs to. Black on white, whatever the colours of the desktop. Returns the number of all pages; fails with 75
    // when nothing can be painted there.
    int PrintOn(QPagedPaintDevice& device);

    // The sheets as a PDF of that page size, whose text can be searched.
    QByteArray Pdf(QPageSize::PageSizeId size);

    // What the document is made of, in the code page: the text of an HTML file.
    [[nodiscard]] const std::string& Html() const { return html; }
    [[nodiscard]] const Paper& Shown() const { return paper; }

private:
    // Lays the document out for `page` in letters of so many points. Whether every part has its own page then.
    bool Fits(QPagedPaintDevice& device, const QSizeF& page, double points);
    // The same in the letters that PrintOn tells of.
    void Arrange(QPagedPaintDevice& device, const QSizeF& page);
    // A page, numbered from 1, and what stands at its foot.
    void PaintPage(QPainter& painter, const QSizeF& page, int number);
    void PaintFoot(QPainter& painter, const QRectF& foot, int number);

    Paper paper;
    std::string html;
    QTextDocument document;
};

// The margins of a sheet, in millimetres.
inline constexpr QMarginsF SheetMargins{13, 13, 13, 13};

} // namespace dravik
