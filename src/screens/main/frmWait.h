#pragma once

#include <QDialog>

namespace dravik {

// The wait screen: a caption and one label. It has no behaviour of its own and no button to close it by; QtPlatform shows
// it and unloads it. It is not modal: where it stays up after a failure, the windows behind it work on, and Escape or the
// desktop's own key for closing takes it out of the way until it is shown again. While work is under way neither reaches
// it, since what the user types is held back.
class frmWait : public QDialog {
    Q_OBJECT

public:
    explicit frmWait(QWidget* parent = nullptr);

signals:
    void Painted();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace dravik
