// A window with nothing in it: what Qt alone needs in memory, to compare the program with.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("bare_window");
    window.resize(1024, 740);
    window.show();
    return QApplication::exec();
}
