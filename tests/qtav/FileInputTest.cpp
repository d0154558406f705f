#include "qtav/src/FileInput.h"

#include "tests/qtav/PretendedDisk.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

#include <memory>
#include <vector>

using QtAV::FileInput;
using testsupport::MemoryLimit;
using testsupport::TestDir;

namespace {

constexpr int megabyte = 1 << 20;

std::unique_ptr<FileInput> openedFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
    file.close();
    const QtAV::IsCancelled never = [] { return false; };
    QString error;
    return FileInput::open(path, never, error);
}

QByteArray countingBytes(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        bytes[i] = char(i * 31 / 7);
    }
    return bytes;
}

} // namespace

class FileInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { MemoryLimit::prepare(); }
    void read_givesAllBytes_whereNothingIsCached();
    void read_takesNoMemory_forWhatItIsAsked();
};

void FileInputTest::read_givesAllBytes_whereNothingIsCached()
{
    const TestDir dir;
    const QByteArray content = countingBytes(megabyte + 1);
    const auto input = openedFile(dir.filePath(QStringLiteral("file")), content);
    QVERIFY(input);
    const pretended::UncachedDisk disk;
    std::vector<uint8_t> buffer(2 * megabyte);
    QByteArray read;
    int bytes = 0;
    do {
        bytes = input->readAt(read.size(), buffer.data(), int(buffer.size()));
        QVERIFY(bytes >= 0);
        read.append(reinterpret_cast<const char*>(buffer.data()), bytes);
    } while (bytes > 0);
    QVERIFY(read == content);
    QCOMPARE(input->error(), 0);
}

/// A file can make FFmpeg ask for any number of bytes at once.
void FileInputTest::read_takesNoMemory_forWhatItIsAsked()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("The memory of this process cannot be limited.");
    }
    const TestDir dir;
    const QByteArray content = countingBytes(megabyte);
    const auto input = openedFile(dir.filePath(QStringLiteral("file")), content);
    QVERIFY(input);
    std::vector<uint8_t> buffer(64 * megabyte);
    const pretended::UncachedDisk disk;
    const MemoryLimit limit(16 * megabyte);
    const int bytes = input->readAt(0, buffer.data(), int(buffer.size()));
    QVERIFY(bytes > 0);
    QVERIFY(content.startsWith(QByteArray(reinterpret_cast<const char*>(buffer.data()), bytes)));
}

QTEST_GUILESS_MAIN(FileInputTest)
#include "FileInputTest.moc"
