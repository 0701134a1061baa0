// The main of the tests that make widgets: one QApplication for the whole binary, on the
// offscreen platform unless the caller chose another.
#include <cstdlib>
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
