#include "tests/support/RunProgram.h"

#include <QProcess>

namespace testsupport {

ProgramResult runProgram(const QString& program, const QStringList& arguments, int timeoutMs,
                         const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);

    ProgramResult result;
    if (!process.waitForStarted()) {
        return result;
    }
    if (process.waitForFinished(timeoutMs)) {
        const bool exited = process.exitStatus() == QProcess::NormalExit;
        result.end = exited ? ProgramResult::End::Exited : ProgramResult::End::Crashed;
        result.exitCode = exited ? process.exitCode() : -1;
    } else {
        process.kill();
        process.waitForFinished();
        result.end = ProgramResult::End::TimedOut;
    }
    result.standardOutput = process.readAllStandardOutput();
    result.standardError = process.readAllStandardError();
    return result;
}

} // namespace testsupport
