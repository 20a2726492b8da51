#include "screens/panels/Layouts.h"

#include <QGroupBox>
#include <QScrollArea>

namespace dravik {

namespace {

// Asks for all the room of what scrolls in it, and makes do with little.
class PageArea : public QScrollArea {
public:
    explicit PageArea(QWidget* parent) : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
    }
};

} // namespace

QHBoxLayout* MakeRow(std::initializer_list<QWidget*> widgets, int spacing)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    return row;
}

QVBoxLayout* MakeColumn(std::initializer_list<QWidget*> widgets, int spacing)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(spacing);
    for (QWidget* widget : widgets)
        column->addWidget(widget);
    return column;
}

QVBoxLayout* MakeColumn(QWidget* panel, int spacing)
{
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

QVBoxLayout* MakePage(QWidget* content, int spacing)
{
    QVBoxLayout* column = MakeColumn(content, spacing);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    return column;
}

QHBoxLayout* MakeFooter(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right)
{
    QHBoxLayout* row = MakeRow(left);
    row->addStretch(1);
    for (QWidget* widget : right)
        row->addWidget(widget);
    return row;
}

QWidget* MakeCommandColumn(std::initializer_list<QWidget*> commands, QWidget* parent)
{
    auto* panel = new QWidget(parent);
    QVBoxLayout* column = MakeColumn(panel);
    column->addStretch(1);
    for (QWidget* command : commands)
        column->addWidget(command);
    column->addStretch(1);
    return panel;
}

void SetGroupMargins(QLayout* layout) { layout->setContentsMargins(Margin, Gap, Margin, Margin); }

QGridLayout* MakeFieldGrid(QGroupBox* group, const QString& longestCaption)
{
    auto* grid = new QGridLayout(group);
    SetGroupMargins(grid);
    grid->setHorizontalSpacing(Margin);
    grid->setVerticalSpacing(Gap);
    grid->setColumnStretch(FieldColumn, 1);
    grid->setColumnMinimumWidth(CaptionColumn, group->fontMetrics().horizontalAdvance(longestCaption));
    return grid;
}

QWidget* MakeScrollingPage(QWidget* page, QLayout* footer, QWidget* parent)
{
    auto* area = new PageArea(parent);
    area->setWidget(page);
    if (footer == nullptr)
        return area;
    auto* whole = new QWidget(parent);
    QVBoxLayout* column = MakeColumn(whole, page->layout()->spacing());
    column->addWidget(area, 1);
    column->addLayout(footer);
    page->layout()->setContentsMargins(Margin, Margin, Margin, 0);
    footer->setContentsMargins(Margin, 0, Margin, Margin);
    return whole;
}

void ChainTabs(const QList<QWidget*>& order)
{
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

} // namespace dravik
