// The window's tests run headless: one QApplication for all of them.

#include <QApplication>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
