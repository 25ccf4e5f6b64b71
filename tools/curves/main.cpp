// zpsg-curve: makes, shows and writes the program's curve files.
#include "curves/CurveTool.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QFile out;
    QFile err;
    // By descriptor and without a buffer, so that a write that fails is told where it is made.
    constexpr int kOutput = 1;
    constexpr int kError = 2;
    if (!out.open(kOutput, QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        !err.open(kError, QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return zpsg::curves::Failed;
    }
    return zpsg::curves::runTool(QCoreApplication::arguments().mid(1), out, err);
}
