// The yardstick of the start-up: a program that shows one empty Qt window and ends once it is painted.
// With an argument it prints its memory first.
#include "PremierePeinture.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget fenetre;
    fenetre.resize(480, 320);
    bench::FinALaPremierePeinture fin(&fenetre, argc > 1);
    fenetre.show();
    return QApplication::exec();
}
