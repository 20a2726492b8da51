#pragma once

#include "session/Session.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>

namespace dravik {

// What opening a screen cannot do without: a window of the toolkit with controls in a grid and a list of everybody in the
// league, laid out, shown and painted.
inline void ShowBarePage()
{
    constexpr int rows = 20;
    QWidget page;
    auto* grid = new QGridLayout(&page);
    for (int row = 0; row < rows; ++row) {
        grid->addWidget(new QLabel(QString("Label %1").arg(row)), row, 0);
        grid->addWidget(new QLineEdit(QString::number(row)), row, 1);
        grid->addWidget(new QPushButton(QString("Button %1").arg(row)), row, 2);
    }
    auto* everybody = new QListWidget;
    everybody->setUniformItemSizes(true);
    const auto list = [everybody](const auto& table) {
        for (const auto& person : table) {
            const auto name = person.Name.Trimmed();
            everybody->addItem(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
        }
    };
    list(Players);
    list(Goalies);
    grid->addWidget(everybody, 0, 3, rows, 1);
    page.resize(1000, 700);
    page.show();
    page.grab();
}

} // namespace dravik
