#pragma once

#include <QApplication>

namespace dravik {

// The toolkit keeps a reference to the number of arguments as long as the application lives.
struct ArgumentCount {
    int Count;
};

// The application. The program has no command line, so the toolkit is given the program's name alone, and its own options
// mean nothing. What an event handler throws ends here, as the last resort, and is reported with the ending
// " in Application!"; the program goes on.
class Application : private ArgumentCount, public QApplication {
public:
    Application(int argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace dravik
