#pragma once

#include <QLocale>
#include <QPageSize>

#include <vector>

namespace dravik {

// A size of the paper that sheets are printed on.
struct SheetSize {
    QPageSize::PageSizeId Size;
    const char* Name; // in menus, and as it is remembered
};

// The sizes that one may choose.
const std::vector<SheetSize>& SheetSizes();

// The size that was chosen last, in whatever run; before that the one in use where the user lives.
QPageSize::PageSizeId ChosenSheetSize();
void ChooseSheetSize(QPageSize::PageSizeId size);

// The size in use in the territory of `locale`.
QPageSize::PageSizeId UsualSheetSize(const QLocale& locale);

} // namespace dravik
