#pragma once

#include <QDialog>

namespace dravik {

// The wait screen: a caption and one label. It has no behaviour of its own and no button to close it by; QtPlatform shows
// it and unloads it.
class frmWait : public QDialog {
    Q_OBJECT

public:
    explicit frmWait(QWidget* parent = nullptr);
};

} // namespace dravik
