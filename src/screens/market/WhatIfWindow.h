#pragma once

#include "league/FreeAgentOffer.h"
#include "screens/panels/FigureTable.h"
#include "screens/panels/LookWindow.h"

#include <QLabel>

namespace dravik {

// What the chosen team would look like if everybody took what he is offered: people by position, the payroll against the cap, the
// money, beside what they are now. It follows the offers, and changes nothing.
class WhatIfWindow : public LookWindow {
    Q_OBJECT
public:
    static constexpr auto Name = "WhatIfWindow";

    WhatIfWindow(QWidget* screen, const OfferTable& offers);

    void ShowAnew() override;

    QLabel* lblOffers = nullptr; // how many are taken
    QLabel* lblHint = nullptr;   // how that is reckoned
    FigureTable* tblFigures = nullptr;

private:
    const OfferTable& all;
};

} // namespace dravik
