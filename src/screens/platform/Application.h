#pragma once

#include <QApplication>

namespace dravik {

// The application. What an event handler throws ends here, as the last resort, and is reported with the ending
// " in Application!"; the program goes on.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace dravik
