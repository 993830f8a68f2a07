// Start-up of the real program: from starting the velmora process to the
// frame shown with "Graph 1" (the program's start-up probe writes "startup:
// ready" then), offscreen, with fresh settings and runtime folders. The
// goal is under 500 ms. The reference in the same run is a bare Qt program
// start: the same process launch up to the same probe without the frame
// (velmora --version would not reach the event loop, so the reference is
// the time to the single-instance refusal, which ends before any window).
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace {

const QString kProgram = QStringLiteral(VELMORA_PROGRAM);

QProcessEnvironment Environment(const QTemporaryDir& home) {
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
  env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
  env.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
  env.insert(QStringLiteral("VELMORA_TEST_BOXES"), QStringLiteral("stderr"));
  env.insert(QStringLiteral("VELMORA_STARTUP_PROBE"), QStringLiteral("1"));
  return env;
}

// Milliseconds from the start of the process to a line holding `marker` on
// its standard error; negative when it never came.
double TimeTo(const QProcessEnvironment& env, const QByteArray& marker) {
  QProcess process;
  process.setProcessEnvironment(env);
  process.setProcessChannelMode(QProcess::SeparateChannels);
  QElapsedTimer clock;
  clock.start();
  process.start(kProgram, {});
  QByteArray seen;
  double elapsed = -1;
  while (clock.elapsed() < 20000) {
    const bool running = process.state() != QProcess::NotRunning;
    seen += process.readAllStandardError();
    if (seen.contains(marker)) {
      elapsed = static_cast<double>(clock.nsecsElapsed()) / 1e6;
      break;
    }
    if (!running) break;
    process.waitForReadyRead(20);
  }
  process.waitForFinished(5000);
  if (process.state() != QProcess::NotRunning) {
    process.kill();
    process.waitForFinished(1000);
  }
  return elapsed;
}

void BM_StartupToGraph1(benchmark::State& state) {
  QTemporaryDir home;
  const QProcessEnvironment env = Environment(home);
  for (auto _ : state) {
    const double ms = TimeTo(env, "startup: ready Graph 1");
    if (ms < 0) {
      state.SkipWithError("the program never showed Graph 1");
      return;
    }
    state.SetIterationTime(ms / 1000);
  }
}
BENCHMARK(BM_StartupToGraph1)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

// Reference: a start that a running first instance refuses: process, Qt and
// the lock, no frame.
void BM_ReferenceRefusedStart(benchmark::State& state) {
  QTemporaryDir home;
  QProcessEnvironment first = Environment(home);
  first.remove(QStringLiteral("VELMORA_STARTUP_PROBE"));
  QProcess running;
  running.setProcessEnvironment(first);
  running.start(kProgram, {});
  running.waitForStarted();
  // Wait for the first instance to hold its lock.
  QElapsedTimer wait;
  wait.start();
  while (!QFile::exists(home.filePath(QStringLiteral("velmora.lock"))) && wait.elapsed() < 10000) {
    running.waitForReadyRead(20);
  }
  const QProcessEnvironment second = Environment(home);
  for (auto _ : state) {
    const double ms = TimeTo(second, "is already running!");
    if (ms < 0) {
      state.SkipWithError("the second start was not refused");
      break;
    }
    state.SetIterationTime(ms / 1000);
  }
  running.kill();
  running.waitForFinished(2000);
}
BENCHMARK(BM_ReferenceRefusedStart)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
