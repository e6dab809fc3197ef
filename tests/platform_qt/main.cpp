#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int Count, char** Arguments) {
    testing::InitGoogleTest(&Count, Arguments);
    QCoreApplication Application(Count, Arguments);
    return RUN_ALL_TESTS();
}
