// Wall time from the start of the process to the first reading painted, with --demo and the offscreen
// platform. The program says so in a debug line; a run is a whole process.

#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

void startToFirstReading(benchmark::State &state) {
    for (auto _ : state) {
        const QTemporaryDir home;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("zpsg.app.debug=true"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setReadChannel(QProcess::StandardError);
        const auto begin = std::chrono::steady_clock::now();
        program.start(QStringLiteral(ZPSG_PROGRAM),
                      {QStringLiteral("--demo"), QStringLiteral("--data-dir"), home.path()});
        QByteArray said;
        while (!said.contains("first reading on screen") && program.waitForReadyRead(10000)) {
            said += program.readAllStandardError();
        }
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        program.terminate();
        program.waitForFinished();
        if (!said.contains("first reading on screen")) {
            state.SkipWithError("the program did not show a reading");
            return;
        }
    }
}
BENCHMARK(startToFirstReading)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(21);

} // namespace
