#pragma once

#include <QApplication>

#include <functional>

namespace dravik {

// The application. What an event handler throws ends here, as the last resort, and is reported with the common failure
// message; the program goes on.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};

// Runs `handle` and returns its answer. What it throws is reported with the ending " in Application!" and answered with
// false; what is no exception of the standard library is swallowed without a word.
bool NotifyReporting(const std::function<bool()>& handle);

} // namespace dravik
