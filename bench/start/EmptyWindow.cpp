// The least that a program of this toolkit can start with: a main window that says one word.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Empty window");
    window.setCentralWidget(new QLabel("Empty", &window));
    window.resize(900, 700);
    window.show();
    return QApplication::exec();
}
