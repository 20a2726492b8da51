#pragma once

#include <QFontMetrics>
#include <QHash>
#include <QString>

namespace dravik {

// How wide texts are by the widths of their letters alone, in pixels: near enough to find the widest of thousands, none of
// which is laid out for it.
class LetterWidths {
public:
    // What a text laid out may take beyond that.
    static constexpr int Kerning = 2;

    explicit LetterWidths(const QFontMetrics& font) : metrics(font) {}

    int Of(const QString& text)
    {
        int width = 0;
        for (const QChar letter : text) {
            auto known = letters.constFind(letter);
            if (known == letters.constEnd())
                known = letters.insert(letter, metrics.horizontalAdvance(letter));
            width += *known;
        }
        return width;
    }

private:
    QFontMetrics metrics;
    QHash<QChar, int> letters;
};

} // namespace dravik
