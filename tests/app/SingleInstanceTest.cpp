#include "app/SingleInstance.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QProcess>
#include <QThread>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

QProcess* StartCoinlight(const test::TempFolder& home, QObject* parent) {
    auto* process = new QProcess(parent);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(home.Path().string()));
    environment.insert(QStringLiteral("XDG_DATA_HOME"),
                       QString::fromStdString((home / "data").string()));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"),
                       QStringLiteral("coinlight.instance.info=true"));
    process->setProcessEnvironment(environment);
    process->start(QString::fromStdString(test::CoinlightProgram().string()), {});
    return process;
}

bool WaitUntilListening(const QString& name) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 15000) {
        QLocalSocket probe;
        probe.connectToServer(name);
        if (probe.waitForConnected(200)) {
            return true;
        }
        QThread::msleep(100);
    }
    return false;
}

TEST(SingleInstance, ASecondStartRaisesTheFirstAndLeavesWithoutAWindow) {
    test::TempFolder home;
    QObject owner;
    QProcess* first = StartCoinlight(home, &owner);
    ASSERT_TRUE(first->waitForStarted(5000));
    const auto dataFolder = home / "data" / "Coinlight";
    ASSERT_TRUE(WaitUntilListening(SingleInstance::ServerName(dataFolder)));

    // The first listens before its load makes the folders: wait for them, or it could make
    // temp again after it was removed below and fool the check on the second start.
    QElapsedTimer loading;
    loading.start();
    while (!std::filesystem::exists(dataFolder / "temp") && loading.elapsed() < 15000) {
        QThread::msleep(50);
    }
    ASSERT_TRUE(std::filesystem::exists(dataFolder / "temp"));
    // Even this marker cannot let a second Coinlight through: it is read too late.
    test::WriteFile(dataFolder / "settings" / "!allowmany.txt", "");
    std::filesystem::remove_all(dataFolder / "temp");

    QProcess* second = StartCoinlight(home, &owner);
    ASSERT_TRUE(second->waitForFinished(15000));
    EXPECT_EQ(second->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_TRUE(second->readAllStandardError().contains("asked it to come to the front"));
    EXPECT_FALSE(std::filesystem::exists(dataFolder / "temp"))
        << "the second start never reached the main window's load";

    QByteArray firstErrors;
    QElapsedTimer timer;
    timer.start();
    while (!firstErrors.contains("raise requested") && timer.elapsed() < 10000) {
        first->waitForReadyRead(200);
        firstErrors += first->readAllStandardError();
    }
    EXPECT_TRUE(firstErrors.contains("raise requested by another start"));
    EXPECT_EQ(first->state(), QProcess::Running) << "the first instance carries on";
    first->terminate();
    first->waitForFinished(5000);
}

TEST(SingleInstance, NamesDifferPerDataFolder) {
    EXPECT_NE(SingleInstance::ServerName("/a/Coinlight"),
              SingleInstance::ServerName("/a/Coinlight - IDE"));
    EXPECT_EQ(SingleInstance::ServerName("/a/Coinlight"),
              SingleInstance::ServerName("/a/Coinlight"));
}

} // namespace
} // namespace coinlight
