#pragma once

#include "rules/SalaryCap.h"

#include <QLabel>

namespace dravik {

// The payroll as one bar against the cap, with its figures in words behind it. Pro stands first, then what else counts; a
// mark stands at the cap, and what lies beyond it is told with the warning sign.
class PayrollBar : public QWidget {
public:
    explicit PayrollBar(QWidget* parent = nullptr);

    // Hides itself in a league without a cap.
    void Show(const CapStanding& standing);

private:
    QWidget* bar;
    QWidget* sign;
    QLabel* lblPayroll;
};

} // namespace dravik
