#pragma once

#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

namespace dravik {

// A PDF as programs of others read it. tools/prepare installs them.
class ReadPdf {
public:
    explicit ReadPdf(const QByteArray& bytes)
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    // Whether its structure is sound.
    [[nodiscard]] bool IsSound() const
    {
        return Run("qpdf", {"--check", Path()}).contains("No syntax or stream encoding errors found");
    }
    [[nodiscard]] int Pages() const { return Run("qpdf", {"--show-npages", Path()}).toInt(); }
    // The text of each page, in the order in which it was painted.
    [[nodiscard]] QStringList Texts() const
    {
        QStringList pages = QString::fromUtf8(Run("pdftotext", {"-raw", "-enc", "UTF-8", Path(), "-"})).split('\f');
        pages.removeLast(); // every page ends with the sign
        return pages;
    }
    // The words of a page, each with its left and right end in points.
    struct Word {
        QString Text;
        double Left;
        double Right;
    };
    [[nodiscard]] std::vector<Word> WordsOn(int page) const
    {
        static const QRegularExpression each(R"re(<word xMin="([^"]*)"[^>]* xMax="([^"]*)"[^>]*>([^<]*)</word>)re");
        const QString number = QString::number(page);
        std::vector<Word> words;
        auto found = each.globalMatch(
            QString::fromUtf8(Run("pdftotext", {"-bbox", "-enc", "UTF-8", "-f", number, "-l", number, Path(), "-"})));
        while (found.hasNext()) {
            const QRegularExpressionMatch word = found.next();
            words.push_back({word.captured(3), word.captured(1).toDouble(), word.captured(2).toDouble()});
        }
        return words;
    }
    // Width and height of the pages in points.
    [[nodiscard]] QString PageSize() const
    {
        for (const QString& line : QString::fromUtf8(Run("pdfinfo", {Path()})).split('\n'))
            if (line.startsWith("Page size:"))
                return line.section(':', 1).simplified();
        return {};
    }
    // The grey values of a small picture of its first page.
    [[nodiscard]] QByteArray Greys() const
    {
        const QByteArray picture = Run("pdftoppm", {"-gray", "-r", "40", "-f", "1", "-l", "1", Path()});
        EXPECT_TRUE(picture.startsWith("P5"));
        qsizetype from = 0;
        for (int line = 0; line < 3; ++line) // of the picture's head
            from = picture.indexOf('\n', from) + 1;
        return picture.mid(from);
    }

private:
    [[nodiscard]] QString Path() const { return folder.filePath("read.pdf"); }

    static QByteArray Run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForStarted()) << program.toStdString() << " is not there: tools/prepare build";
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }

    QTemporaryDir folder;
};

} // namespace dravik
