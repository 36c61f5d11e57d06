// The yardstick for a command line verb run as a whole process: a program that only prints
// its arguments, one per line. Built twice: as plain C++, and linked to Qt Core with every
// argument taken through QString and back (PRINT_ARGS_QT), the least a Qt program does.
#include <cstdio>

#ifdef PRINT_ARGS_QT
#include <QByteArray>
#include <QString>
#endif

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
#ifdef PRINT_ARGS_QT
        const QString argument = QString::fromLocal8Bit(argv[i]);
        std::puts(argument.toLocal8Bit().constData());
#else
        std::puts(argv[i]);
#endif
    }
    return 0;
}
