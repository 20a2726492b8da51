#include "screens/panels/PayrollBar.h"

#include "machine/Platform.h"
#include "screens/panels/Accessible.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"
#include "session/Session.h"

#include <algorithm>
#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>

namespace dravik {

namespace {

constexpr int BarHeight = 14;
constexpr int MarkOverhang = 4;
constexpr double RoomBeyondCap = 1.1;

QString Money(long long amount) { return ToQString(Machine().CurrencyNoDecimals(static_cast<double>(amount))); }

QString Words(const CapStanding& standing)
{
    QString words = Money(standing.Pro) + " pro";
    if (LeagueData.FarmPayrollInCap)
        words += " + " + Money(standing.Farm) + " farm";
    const long long coaches = standing.Total - standing.Pro - (LeagueData.FarmPayrollInCap ? standing.Farm : 0);
    if (LeagueData.CoachPayrollInCap)
        words += " + " + Money(coaches) + " coaches";
    return words + " of " + Money(*standing.Cap);
}

class CapBar : public QWidget, public Gauge {
public:
    explicit CapBar(QWidget* parent) : QWidget(parent)
    {
        setAccessibleName("Payroll");
        setFixedHeight(BarHeight + 2 * MarkOverhang);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    void Show(const CapStanding& standing)
    {
        Standing = standing;
        update();
        QAccessibleValueChangeEvent changed(this, Shown());
        QAccessible::updateAccessibility(&changed);
    }

    [[nodiscard]] double Shown() const override { return static_cast<double>(Standing.Total); }
    [[nodiscard]] double Full() const override { return static_cast<double>(Standing.Cap.value_or(0)); }
    [[nodiscard]] QString InWords() const override { return Standing.Cap ? Words(Standing) : QString(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const double total = static_cast<double>(std::max(0LL, Standing.Total));
        const double cap = static_cast<double>(std::max(0LL, Standing.Cap.value_or(0)));
        const double most = std::max({total, cap * RoomBeyondCap, 1.0});
        const auto at = [&](double amount) { return width() * amount / most; };
        const auto fill = [&](double from, double to, const QColor& colour) {
            painter.fillRect(QRectF(at(from), MarkOverhang, at(to) - at(from), BarHeight), colour);
        };
        const QColor back = palette().color(QPalette::Window);
        const QColor front = palette().color(QPalette::WindowText);
        const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
        const double pro = std::clamp(static_cast<double>(Standing.Pro), 0.0, total);
        fill(0, most, Mixed(back, front, 0.1));
        fill(0, pro, Mixed(accent, back, 0.15));
        fill(pro, total, Mixed(accent, back, 0.5));
        if (total > cap)
            fill(cap, total, Alarming(back));
        painter.fillRect(QRectF(at(cap) - 1, 0, 2, height()), front);
    }

private:
    CapStanding Standing;
};

} // namespace

PayrollBar::PayrollBar(QWidget* parent) :
    QWidget(parent), bar(new CapBar(this)), sign(new WarningSign(this)), lblPayroll(new QLabel(this))
{
    lblPayroll->setObjectName("lblPayroll");
    lblPayroll->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap);
    row->addWidget(new QLabel("Payroll", this));
    row->addWidget(bar, 1);
    row->addWidget(sign);
    row->addWidget(lblPayroll);
    hide();
}

void PayrollBar::Show(const CapStanding& standing)
{
    setVisible(standing.Cap.has_value());
    if (!standing.Cap)
        return;
    static_cast<CapBar*>(bar)->Show(standing);
    sign->setVisible(standing.Total > *standing.Cap);
    lblPayroll->setText(Words(standing));
}

} // namespace dravik
