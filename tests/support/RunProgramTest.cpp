#include "tests/support/RunProgram.h"

#include <QTest>

using testsupport::ProgramResult;
using testsupport::runProgram;

class RunProgramTest : public QObject
{
    Q_OBJECT

    static ProgramResult shell(const char* script, int timeoutMs = 20000)
    {
        return runProgram(QStringLiteral("/bin/sh"),
                          {QStringLiteral("-c"), QString::fromUtf8(script)}, timeoutMs);
    }

private slots:
    void result_holdsBothOutputsAndStatus_whenProgramExits()
    {
        const auto result = shell("echo out; echo err >&2; exit 3");
        QCOMPARE(result.end, ProgramResult::End::Exited);
        QCOMPARE(result.exitCode, 3);
        QCOMPARE(result.standardOutput, QByteArray("out\n"));
        QCOMPARE(result.standardError, QByteArray("err\n"));
        QVERIFY(!result.succeeded());
    }

    void result_isSuccess_whenStatusIsZero() { QVERIFY(shell("exit 0").succeeded()); }

    void result_isCrash_whenSignalEndsProgram()
    {
        QCOMPARE(shell("kill -SEGV $$").end, ProgramResult::End::Crashed);
    }

    void program_isKilled_atTimeLimit()
    {
        const auto result = shell("echo begun; exec sleep 60", 500);
        QCOMPARE(result.end, ProgramResult::End::TimedOut);
        QCOMPARE(result.standardOutput, QByteArray("begun\n"));
    }

    void result_isNotStarted_whenProgramIsMissing()
    {
        QCOMPARE(runProgram(QStringLiteral("/no/such/program"), {}).end,
                 ProgramResult::End::NotStarted);
    }

    void input_isEmpty() { QCOMPARE(shell("cat; echo end").standardOutput, QByteArray("end\n")); }
};

QTEST_GUILESS_MAIN(RunProgramTest)
#include "RunProgramTest.moc"
