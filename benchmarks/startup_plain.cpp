// A bare window with plain Qt and the sheet of a file.

#include "FirstPaint.h"

#include <QApplication>
#include <QFile>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QFile file(QCoreApplication::arguments().value(1));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    application.setStyleSheet(QString::fromUtf8(file.readAll()));
    FirstPaint window;
    window.show();
    return QApplication::exec();
}
