#include "screens/main/frmWait.h"

#include <QLabel>
#include <QVBoxLayout>

namespace dravik {

frmWait::frmWait(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName("frmWait");
    setWindowTitle("Dravik Hockey Simulator");
    // The program goes on when this screen was the last one to be seen.
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* label = new QLabel("Please Wait .....", this);
    label->setObjectName("lblWait");
    label->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(56, 28, 56, 28);
    layout->addWidget(label);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmWait::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    emit Painted();
}

} // namespace dravik
