#include "tests/qtav/SoundServer.h"

#include "tests/support/RunProgram.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <sys/types.h>

using testsupport::ProgramResult;
using testsupport::runProgram;

namespace playing {

namespace {

constexpr int patienceMs = 30000;
constexpr int rate = 48000;
constexpr auto deviceArguments = "sink_name=quiet rate=48000 channels=2";

} // namespace

SoundServer::SoundServer()
{
    // The server must not inherit a sanitizer's runtime, nor the tests' platform.
    qputenv("PULSE_SERVER", "unix:" + m_dir.filePath(QStringLiteral("native")).toLocal8Bit());
    qputenv("PULSE_RUNTIME_PATH", m_dir.path().toLocal8Bit());
    qputenv("PULSE_STATE_PATH", m_dir.path().toLocal8Bit());
    qputenv("PULSE_COOKIE", m_dir.filePath(QStringLiteral("cookie")).toLocal8Bit());
}

SoundServer::~SoundServer()
{
    kill();
}

bool SoundServer::start()
{
    const QString socket = m_dir.filePath(QStringLiteral("native"));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(
        QStringLiteral("pulseaudio"),
        {QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--system=no"),
         QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
         QStringLiteral("--log-level=error"), QStringLiteral("--disable-shm=yes"),
         QStringLiteral("-L"),
         QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket,
         QStringLiteral("-L"),
         QStringLiteral("module-null-sink ") + QLatin1String(deviceArguments)});
    if (!m_process.waitForStarted(patienceMs)) {
        qWarning("pulseaudio does not start: %s", qUtf8Printable(m_process.errorString()));
        return false;
    }
    const QDeadlineTimer patience(patienceMs);
    while (m_process.state() == QProcess::Running && !patience.hasExpired()) {
        if (control({QStringLiteral("info")})) {
            return true;
        }
        QThread::msleep(20);
        m_process.waitForFinished(0);
    }
    qWarning("pulseaudio does not answer.");
    return false;
}

void SoundServer::kill()
{
    if (m_process.state() == QProcess::NotRunning) {
        return;
    }
    m_process.kill();
    m_process.waitForFinished(patienceMs);
}

void SoundServer::freeze()
{
    ::kill(pid_t(m_process.processId()), SIGSTOP);
}

void SoundServer::thaw()
{
    ::kill(pid_t(m_process.processId()), SIGCONT);
}

bool SoundServer::removeDevice()
{
    return control({QStringLiteral("unload-module"), QStringLiteral("module-null-sink")});
}

bool SoundServer::addDevice()
{
    QStringList arguments{QStringLiteral("load-module"), QStringLiteral("module-null-sink")};
    arguments += QString::fromLatin1(deviceArguments).split(u' ');
    return control(arguments);
}

int SoundServer::streamCount() const
{
    const ProgramResult result =
        runProgram(QStringLiteral("pactl"),
                   {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")},
                   patienceMs);
    return result.succeeded() ? int(result.standardOutput.count('\n')) : -1;
}

bool SoundServer::control(const QStringList& arguments) const
{
    return runProgram(QStringLiteral("pactl"), arguments, patienceMs).succeeded();
}

bool SoundRecording::start(int latencyMs)
{
    QStringList arguments{QStringLiteral("--raw"), QStringLiteral("--format=s16le"),
                          QStringLiteral("--rate=%1").arg(rate), QStringLiteral("--channels=1"),
                          QStringLiteral("--device=quiet.monitor")};
    if (latencyMs > 0) {
        arguments.append(QStringLiteral("--latency-msec=%1").arg(latencyMs));
    }
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &SoundRecording::take);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("parec"), arguments);
    if (!m_process.waitForStarted(patienceMs)) {
        return false;
    }
    const QDeadlineTimer patience(patienceMs);
    while (m_samples.isEmpty() && !patience.hasExpired()) {
        m_process.waitForReadyRead(100);
    }
    return !m_samples.isEmpty();
}

void SoundRecording::stop()
{
    m_process.terminate();
    m_process.waitForFinished(patienceMs);
}

/// The device passes on a block of samples when its first one is heard, and nothing for at least 10
/// ms between two blocks: samples after a pause begin a new block.
void SoundRecording::take()
{
    constexpr std::chrono::milliseconds pauseBetweenBlocks(5);
    const Time now = std::chrono::steady_clock::now();
    const auto before = std::chrono::nanoseconds(qint64(m_samples.size()) / qint64(sizeof(qint16)) *
                                                 1000000000 / rate);
    if (now - m_lastArrival > pauseBetweenBlocks) {
        m_begins.push_back(now - before);
    }
    m_samples += m_process.readAllStandardOutput();
    m_lastArrival = now;
}

/// The median, because single blocks may be late on a busy machine, and the first ones come before
/// the device has adapted its block size.
SoundRecording::Time SoundRecording::begin() const
{
    std::vector<Time> begins = m_begins;
    const auto middle = begins.begin() + std::ptrdiff_t(begins.size() / 2);
    std::nth_element(begins.begin(), middle, begins.end());
    return begins.empty() ? Time() : *middle;
}

QList<SoundRecording::Time> SoundRecording::toneStarts() const
{
    constexpr int loud = 5000;
    constexpr int silenceBetweenTones = rate / 4;
    const int count = m_samples.size() / int(sizeof(qint16));
    const Time first = begin();
    QList<Time> starts;
    int silent = silenceBetweenTones;
    for (int i = 0; i < count; ++i) {
        qint16 sample = 0;
        std::memcpy(&sample, m_samples.constData() + i * int(sizeof(qint16)), sizeof(sample));
        if (std::abs(int(sample)) < loud) {
            ++silent;
            continue;
        }
        if (silent >= silenceBetweenTones) {
            starts.append(first + std::chrono::nanoseconds(qint64(i) * 1000000000 / rate));
        }
        silent = 0;
    }
    return starts;
}

} // namespace playing
