// A bench display in memory, of 1366 x 768 pixels at whatever scaling QT_SCALE_FACTOR asks for.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

int main(int Argument_Count, char** Arguments) {
    testing::InitGoogleTest(&Argument_Count, Arguments);
    const double Scale = std::max(qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(), 1.0);
    const QTemporaryDir Folder;
    QFile Screen(Folder.filePath(QStringLiteral("screen.json")));
    if (!Screen.open(QIODevice::WriteOnly)) return 2;
    Screen.write(QStringLiteral("{\"screens\": [{\"name\": \"bench\", \"x\": 0, \"y\": 0, \"width\": %1, "
                                "\"height\": %2, \"logicalDpi\": 96, \"dpr\": 1}]}")
                     .arg(qRound(1366 * Scale))
                     .arg(qRound(768 * Scale))
                     .toUtf8());
    Screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + Screen.fileName().toUtf8());
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    const QApplication Application(Argument_Count, Arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
