#include <gmock/gmock.h>

#ifdef ZPSG_TEST_GUI
#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

int main(int argc, char **argv) {
#ifdef ZPSG_TEST_GUI
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
    ::testing::InitGoogleMock(&argc, argv);
    const Application application(argc, argv);
    return RUN_ALL_TESTS();
}
