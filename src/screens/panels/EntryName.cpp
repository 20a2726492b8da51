#include "screens/panels/EntryName.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr QStringView Restricted = u"-RFA";
constexpr qsizetype LongestInBrackets = 2;

// How long the last thing of `text` is, if it is letters in brackets behind a blank.
qsizetype BracketsAtEnd(QStringView text)
{
    constexpr QStringView before = u" (";
    constexpr QStringView behind = u")";
    const auto isCapital = [](QChar letter) { return letter >= u'A' && letter <= u'Z'; };
    for (qsizetype count = 1; count <= LongestInBrackets; ++count) {
        const qsizetype length = before.size() + count + behind.size();
        const QStringView end = text.last(std::min(length, text.size()));
        const QStringView letters = end.mid(before.size(), count);
        if (end.size() == length && end.startsWith(before) && end.endsWith(behind) &&
            std::all_of(letters.begin(), letters.end(), isCapital))
            return length;
    }
    return 0;
}

} // namespace

qsizetype NameLength(QStringView entry)
{
    while (entry.endsWith(u'*')) {
        entry.chop(1);
        if (entry.endsWith(u' '))
            entry.chop(1);
    }
    if (entry.endsWith(Restricted))
        entry.chop(Restricted.size());
    entry.chop(BracketsAtEnd(entry));
    return entry.size();
}

} // namespace dravik
