// The least that a program with a window costs to start: an empty one; with any argument, one with a single
// word in it, for which the toolkit looks for its fonts.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(687, 595);
    if (argc > 1) new QLabel(QStringLiteral("Quarvel"), &window);
    window.show();
    return QApplication::exec();
}
