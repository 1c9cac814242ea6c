// The window's tests run headless: one QApplication for all of them.

#include <QApplication>
#include <QStandardPaths>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The window's settings (its recent files) go to a test folder, not the user's.
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
