#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return QApplication::exec();
}
