#include "screens/panels/SheetSize.h"

#include "screens/Remembered.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr const char* Key = "SheetSize";

// Where offices print on Letter; everywhere else it is A4.
constexpr QLocale::Territory LetterTerritories[] = {
    QLocale::Belize,      QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
    QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,       QLocale::Nicaragua, QLocale::Panama,
    QLocale::Philippines, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela};

} // namespace

const std::vector<SheetSize>& SheetSizes()
{
    static const std::vector<SheetSize> sizes{{QPageSize::A4, "A4"}, {QPageSize::Letter, "Letter"}};
    return sizes;
}

QPageSize::PageSizeId ChosenSheetSize()
{
    const std::string remembered = Remembered(Key);
    for (const SheetSize& size : SheetSizes())
        if (remembered == size.Name)
            return size.Size;
    return UsualSheetSize(QLocale());
}

void ChooseSheetSize(QPageSize::PageSizeId chosen)
{
    for (const SheetSize& size : SheetSizes())
        if (size.Size == chosen)
            Remember(Key, size.Name);
}

QPageSize::PageSizeId UsualSheetSize(const QLocale& locale)
{
    const auto* end = std::end(LetterTerritories);
    return std::find(std::begin(LetterTerritories), end, locale.territory()) == end ? QPageSize::A4 : QPageSize::Letter;
}

} // namespace dravik
