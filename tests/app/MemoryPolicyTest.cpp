#include "app/MemoryPolicy.h"

#include <QTest>

#include <malloc.h>

#include <cstdlib>

namespace {

/// Bytes in blocks that are returned to the system individually when they are freed.
size_t bytesOnTheirOwn()
{
    return mallinfo2().hblkhd;
}

void takeAndFree(size_t bytes)
{
    void* volatile block = std::malloc(bytes);
    std::free(block);
}

} // namespace

class MemoryPolicyTest : public QObject
{
    Q_OBJECT

private slots:
    void largeBlocks_goBackToTheSystem_howeverLargeOnesWereFreedBefore();
    void largeBlocks_areUsedAgain_whenKept();
};

void MemoryPolicyTest::largeBlocks_goBackToTheSystem_howeverLargeOnesWereFreedBefore()
{
    constexpr size_t large = size_t(4) << 20;
    MemoryPolicy::returnFreedMemory();
    takeAndFree(4 * large);
    const size_t before = bytesOnTheirOwn();
    void* volatile block = std::malloc(large);
    const size_t after = bytesOnTheirOwn();
    std::free(block);
    QVERIFY(after >= before + large);
    QCOMPARE(bytesOnTheirOwn(), before);
}

void MemoryPolicyTest::largeBlocks_areUsedAgain_whenKept()
{
    constexpr size_t large = size_t(24) << 20;
    MemoryPolicy::keepFreedMemory();
    takeAndFree(large);
    const size_t system = mallinfo2().arena;
    QVERIFY(system >= large);
    const size_t onTheirOwn = bytesOnTheirOwn();
    void* volatile block = std::malloc(large);
    QCOMPARE(bytesOnTheirOwn(), onTheirOwn);
    QCOMPARE(mallinfo2().arena, system);
    std::free(block);
    QCOMPARE(mallinfo2().arena, system);
}

QTEST_GUILESS_MAIN(MemoryPolicyTest)
#include "MemoryPolicyTest.moc"
