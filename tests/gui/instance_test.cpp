// The real velmora program as processes: a second start is refused with its
// warning and leaves the first running; a lock left by a killed process does
// not block the next start; a command-line file opens in the Matrix
// Calculator, also when a second start hands it to the first.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace {

const QString kProgram = QStringLiteral(VELMORA_PROGRAM);

// Each test runs the program with its own settings, data and runtime folders.
struct Programs {
  Programs() {
    for (const char* name : {"config", "data", "runtime"})
      QDir(home.path()).mkpath(QString::fromLatin1(name));
    QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  }
  ~Programs() {
    for (auto& p : started) {
      if (p->state() != QProcess::NotRunning) {
        p->kill();
        p->waitForFinished(2000);
      }
    }
  }

  QProcessEnvironment Environment(bool probe) const {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("runtime")));
    env.insert(QStringLiteral("VELMORA_TEST_BOXES"), QStringLiteral("stderr"));
    env.insert(QStringLiteral("VELMORA_STATE_PROBE"), QStringLiteral("1"));
    if (probe) env.insert(QStringLiteral("VELMORA_STARTUP_PROBE"), QStringLiteral("1"));
    return env;
  }

  QProcess& Start(bool probe, const QStringList& arguments = {}) {
    started.push_back(std::make_unique<QProcess>());
    QProcess& p = *started.back();
    p.setProcessEnvironment(Environment(probe));
    p.start(kProgram, arguments);
    EXPECT_TRUE(p.waitForStarted(5000));
    return p;
  }

  QString LockPath() const { return home.filePath(QStringLiteral("runtime/velmora.lock")); }

  // Waits until the running program holds its lock and shows its frame.
  bool WaitForLock(QProcess& p) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 10000) {
      if (QFile::exists(LockPath())) {
        p.waitForReadyRead(300);  // the frame's load follows the lock
        return true;
      }
      if (p.state() == QProcess::NotRunning) return false;
      p.waitForReadyRead(20);
    }
    return false;
  }

  QTemporaryDir home;
  std::vector<std::unique_ptr<QProcess>> started;
};

TEST(SingleInstance, ASecondStartWarnsAndEndsAndTheFirstRunsOn) {
  Programs programs;
  QProcess& first = programs.Start(false);
  ASSERT_TRUE(programs.WaitForLock(first));
  QProcess& second = programs.Start(false);
  ASSERT_TRUE(second.waitForFinished(10000)) << "the second start did not end";
  EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(second.exitCode(), 0);
  const QString err = QString::fromLocal8Bit(second.readAllStandardError());
  EXPECT_TRUE(
      err.contains(QStringLiteral("message box [exclamation]: Velmora Warning: Velmora is already running!")))
      << err.toStdString();
  // The first instance was left alone: still running, lock still held.
  EXPECT_FALSE(first.waitForFinished(300));
  EXPECT_EQ(first.state(), QProcess::Running);
  EXPECT_TRUE(QFile::exists(programs.LockPath()));
  // And it goes on refusing later starts.
  QProcess& third = programs.Start(false);
  ASSERT_TRUE(third.waitForFinished(10000));
  EXPECT_TRUE(third.readAllStandardError().contains("is already running!"));
}

TEST(SingleInstance, ALockLeftByAKilledProcessDoesNotBlockTheNextStart) {
  Programs programs;
  QProcess& crashed = programs.Start(false);
  ASSERT_TRUE(programs.WaitForLock(crashed));
  crashed.kill();  // SIGKILL: no clean-up, the lock file stays
  crashed.waitForFinished(5000);
  ASSERT_TRUE(QFile::exists(programs.LockPath()));
  QProcess& next = programs.Start(true);
  ASSERT_TRUE(next.waitForFinished(15000));
  const QByteArray err = next.readAllStandardError();
  EXPECT_FALSE(err.contains("is already running!")) << err.constData();
  EXPECT_TRUE(err.contains("startup: ready Graph 1")) << err.constData();
}

TEST(SingleInstance, AMatrixFileOnTheCommandLineOpensInTheMatrixCalculator) {
  Programs programs;
  const QString file = programs.home.filePath(QStringLiteral("some matrix.mcf"));
  QFile out(file);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(" 2  3 \r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
  out.close();
  QProcess& p = programs.Start(true, {file});
  ASSERT_TRUE(p.waitForFinished(15000));
  const QByteArray err = p.readAllStandardError();
  EXPECT_TRUE(err.contains(("matrix: opened " + file + " as 2x3").toLocal8Bit())) << err.constData();
  EXPECT_TRUE(err.contains("startup: ready Graph 1")) << err.constData();
  EXPECT_EQ(p.exitCode(), 0);
}

TEST(SingleInstance, ASecondStartWithAFileHandsItToTheFirst) {
  Programs programs;
  QProcess& first = programs.Start(false);
  ASSERT_TRUE(programs.WaitForLock(first));
  const QString file = programs.home.filePath(QStringLiteral("handed.mcf"));
  QFile out(file);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(" 3  1 \r\n1\r\n2\r\n3\r\n");
  out.close();
  // Handed over by a relative name from the file's folder.
  programs.started.push_back(std::make_unique<QProcess>());
  QProcess& second = *programs.started.back();
  QProcessEnvironment env = programs.Environment(false);
  second.setProcessEnvironment(env);
  second.setWorkingDirectory(programs.home.path());
  second.start(kProgram, {QStringLiteral("handed.mcf")});
  ASSERT_TRUE(second.waitForFinished(10000)) << "the second start did not end";
  EXPECT_EQ(second.exitCode(), 0);
  EXPECT_FALSE(second.readAllStandardError().contains("is already running!"));
  // The first, still running, opened it.
  QByteArray err;
  for (int i = 0; i < 100 && !err.contains("matrix: opened"); ++i) {
    first.waitForReadyRead(100);
    err += first.readAllStandardError();
  }
  EXPECT_TRUE(err.contains(("matrix: opened " + file + " as 3x1").toLocal8Bit())) << err.constData();
  EXPECT_EQ(first.state(), QProcess::Running);
}

}  // namespace
