#include "utils/KernelResampling.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <vector>

using KernelResampling::Kernel;
using KernelResampling::Sample;

namespace {

/// Lines of samples.
struct Grid
{
    QSize size;
    std::vector<Sample> samples = {};

    explicit Grid(const QSize& gridSize)
        : size(gridSize)
        , samples(static_cast<std::size_t>(gridSize.width()) *
                  static_cast<std::size_t>(gridSize.height()))
    {}

    [[nodiscard]] Sample* line(int y)
    {
        return samples.data() + static_cast<std::ptrdiff_t>(y) * size.width();
    }
};

/// A grid of which each sample is the function of its place, in the first channel.
template <typename Function>
Grid filled(const QSize& size, Function function)
{
    Grid grid(size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            grid.line(y)[x] = {static_cast<float>(function(x, y)), 0.0F, 0.0F, 1.0F};
        }
    }
    return grid;
}

Grid scaled(Grid& source, const QSize& size, Kernel kernel)
{
    Grid result(size);
    KernelResampling::resample(
        source.size, size, {kernel, kernel},
        [&source](int y, Sample* line) { std::copy_n(source.line(y), source.size.width(), line); },
        [&result](int y, const Sample* line) {
            std::copy_n(line, result.size.width(), result.line(y));
        });
    return result;
}

bool isNear(float a, double b)
{
    return std::abs(static_cast<double>(a) - b) < 0.01;
}

} // namespace

class KernelResamplingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void evenPictures_stayEven_data() { kernels(); }
    void evenPictures_stayEven()
    {
        QFETCH(const int, kernel);
        Grid source = filled({7, 5}, [](int, int) { return 0.25; });
        for (const QSize& size : {QSize(1, 1), QSize(3, 11), QSize(40, 2), QSize(7, 5)}) {
            const Grid result = scaled(source, size, static_cast<Kernel>(kernel));
            QVERIFY(
                std::all_of(result.samples.begin(), result.samples.end(), [](const Sample& sample) {
                    return isNear(sample[0], 0.25) && isNear(sample[3], 1.0);
                }));
        }
    }

    void picturesOfTheSameSize_stayAsTheyAre_data() { kernels(); }
    void picturesOfTheSameSize_stayAsTheyAre()
    {
        QFETCH(const int, kernel);
        Grid source = filled({6, 4}, [](int x, int y) { return (x * 7 + y * 3) % 5; });
        Grid result = scaled(source, source.size, static_cast<Kernel>(kernel));
        for (std::size_t i = 0; i < source.samples.size(); ++i) {
            QVERIFY(isNear(result.samples[i][0], static_cast<double>(source.samples[i][0])));
        }
    }

    void slopes_staySlopes_awayFromTheEdges_data() { kernels(); }
    void slopes_staySlopes_awayFromTheEdges()
    {
        QFETCH(const int, kernel);
        Grid source = filled({32, 3}, [](int x, int) { return x; });
        Grid result = scaled(source, {64, 3}, static_cast<Kernel>(kernel));
        for (int x = 12; x < 52; ++x) {
            const float value = result.line(1)[x][0];
            QVERIFY2(std::abs(static_cast<double>(value) - (x - 0.5) / 2) < 0.05,
                     qPrintable(QString::number(static_cast<double>(value))));
        }
    }

    void finePatterns_becomeGrey_whenTheyShrink_data() { kernels(); }
    void finePatterns_becomeGrey_whenTheyShrink()
    {
        QFETCH(const int, kernel);
        Grid source = filled({96, 96}, [](int x, int y) { return (x + y) % 2; });
        Grid result = scaled(source, {20, 20}, static_cast<Kernel>(kernel));
        for (int x = 3; x < 17; ++x) {
            QVERIFY(std::abs(static_cast<double>(result.line(10)[x][0]) - 0.5) < 0.05);
        }
    }

    void edges_overshoot_mostWithLanczos()
    {
        Grid source = filled({32, 1}, [](int x, int) { return x < 16 ? 0 : 1; });
        const auto highest = [&source](Kernel kernel) {
            const Grid result = scaled(source, {128, 1}, kernel);
            float most = 0.0F;
            for (const Sample& sample : result.samples) {
                most = std::max(most, sample[0]);
            }
            return static_cast<double>(most);
        };
        QVERIFY(highest(Kernel::Cubic) > 1.02);
        QVERIFY(highest(Kernel::Lanczos) > highest(Kernel::Cubic));
        QVERIFY(highest(Kernel::Lanczos) < 1.2);
    }

private:
    static void kernels()
    {
        QTest::addColumn<int>("kernel");
        QTest::newRow("cubic") << static_cast<int>(Kernel::Cubic);
        QTest::newRow("Lanczos") << static_cast<int>(Kernel::Lanczos);
    }
};

QTEST_GUILESS_MAIN(KernelResamplingTest)
#include "KernelResamplingTest.moc"
