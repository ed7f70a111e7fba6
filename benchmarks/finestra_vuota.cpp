// The yardstick of the start: a Qt program with an empty window as large as the start window.

#include <QApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication applicazione(argc, argv);
    QWidget finestra;
    finestra.resize(930, 560);
    finestra.move(finestra.screen()->geometry().center() - finestra.rect().center());
    finestra.show();
    return QApplication::exec();
}
