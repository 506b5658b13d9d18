// The least that a program with a window costs to start: an empty one.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(687, 595);
    window.show();
    return QApplication::exec();
}
