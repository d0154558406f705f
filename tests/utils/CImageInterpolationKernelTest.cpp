#include "utils/CImageInterpolationKernel.h"

#include "tests/utils/ChildProcess.h"

#include <QTest>

#include <cmath>
#include <memory>

namespace {

using Kernel = CImageInterpolationKernel<float>;

double sumOf(const Kernel& kernel)
{
    double sum = 0.0;
    for (int y = 0; y < kernel.size(); ++y) {
        for (int x = 0; x < kernel.size(); ++x) {
            sum += static_cast<double>(kernel.coeff(x, y));
        }
    }
    return sum;
}

/// The table that the one-dimensional samples span, normalised.
bool isProductOf(const Kernel& kernel, const QVector<double>& samples)
{
    double sum = 0.0;
    for (const double sample : samples) {
        sum += sample;
    }
    if (kernel.size() != samples.size()) {
        return false;
    }
    for (int y = 0; y < samples.size(); ++y) {
        for (int x = 0; x < samples.size(); ++x) {
            const double expected = samples[x] * samples[y] / (sum * sum);
            if (std::abs(static_cast<double>(kernel.coeff(x, y)) - expected) > 1e-6) {
                qWarning("(%d, %d): %f, expected %f", x, y, static_cast<double>(kernel.coeff(x, y)),
                         expected);
                return false;
            }
        }
    }
    return true;
}

} // namespace

class CImageInterpolationKernelTest : public QObject
{
    Q_OBJECT

private slots:
    void base_isZero_whenConstructed()
    {
        const CImageInterpolationKernelBase<float> table(3);
        QCOMPARE(table.size(), 3);
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 3; ++x) {
                QCOMPARE(table.coeff(x, y), 0.0F);
            }
        }
    }

    void base_isEmpty_whenSizeIsNegative()
    {
        const CImageInterpolationKernelBase<float> table(-4);
        QCOMPARE(table.size(), 0);
    }

    void bicubic_followsItsFormula_whenSizeIsEight()
    {
        // x = -2, -1.5, -1, -0.5, 0, 0.5, 1, 1.5 with a = -0.5
        const CBicubicKernel kernel(8, -0.5F);
        QVERIFY(isProductOf(kernel, {0.0, -0.0625, 0.0, 0.5625, 1.0, 0.5625, 0.0, -0.0625}));
    }

    void bicubic_followsItsParameter_whenItIsMinusOne()
    {
        // k(0.5) = 1/8 - 2/4 + 1, k(1.5) = -27/8 + 45/4 - 12 + 4
        const CBicubicKernel kernel(8, -1.0F);
        QVERIFY(isProductOf(kernel, {0.0, -0.125, 0.0, 0.625, 1.0, 0.625, 0.0, -0.125}));
    }

    void triangular_followsItsFormula()
    {
        const CTriangularKernel kernel;
        QVERIFY(isProductOf(kernel, {0.0, 0.5, 1.0, 0.5}));
    }

    void bell_followsItsFormula_whenSizeIsTwelve()
    {
        // x = -1.5, -1.25, …, 1.25
        const CBellBicubicKernel kernel(12);
        QVERIFY(isProductOf(kernel, {0.0, 0.03125, 0.125, 0.28125, 0.5, 0.6875, 0.75, 0.6875, 0.5,
                                     0.28125, 0.125, 0.03125}));
    }

    void lanczos_followsItsFormula_whenItHasTwoLobes()
    {
        // x = -2, -1.5, …, 1.5; k(0.5) = 8 sin(pi/2) sin(pi/4) / pi^2 and so on
        const double pi = std::acos(-1.0);
        const double half = 2.0 * std::sin(pi / 2) * std::sin(pi / 4) / (pi * pi * 0.25);
        const double oneAndHalf = 2.0 * std::sin(1.5 * pi) * std::sin(0.75 * pi) / (pi * pi * 2.25);
        const CLanczosKernel kernel(8, 2);
        QVERIFY(isProductOf(kernel, {0.0, oneAndHalf, 0.0, half, 1.0, half, 0.0, oneAndHalf}));
    }

    void table_sumsToOne_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {3, 4, 5, 6, 7, 16, 33, 64}) {
            QTest::addRow("%d", size) << size;
        }
    }
    void table_sumsToOne()
    {
        QFETCH(int, size);
        QVERIFY(std::abs(sumOf(CBicubicKernel(size, -0.5F)) - 1.0) < 1e-4);
        QVERIFY(std::abs(sumOf(CBellBicubicKernel(size)) - 1.0) < 1e-4);
        QVERIFY(std::abs(sumOf(CLanczosKernel(size, 2)) - 1.0) < 1e-4);
        QVERIFY(std::abs(sumOf(CTriangularKernel()) - 1.0) < 1e-6);
    }

    void table_staysZero_whenItHoldsNothingButTheKernelsEnd()
    {
        QCOMPARE(CBicubicKernel(1, -0.5F).coeff(0, 0), 0.0F);
        QCOMPARE(CBellBicubicKernel(1).coeff(0, 0), 0.0F);
        QVERIFY(std::isfinite(CLanczosKernel(1, 2).coeff(0, 0)));
    }

    void table_isEmpty_whenSizeIsNotPositive()
    {
        QCOMPARE(CBicubicKernel(0, -0.5F).size(), 0);
        QCOMPARE(CLanczosKernel(-3, 3).size(), 0);
        QCOMPARE(CBellBicubicKernel(0).size(), 0);
    }

    void coeff_aborts_whenPositionIsOutside_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::newRow("right") << 4 << 0;
        QTest::newRow("below") << 0 << 4;
        QTest::newRow("left") << -1 << 0;
        QTest::newRow("above") << 0 << -1;
    }
    void coeff_aborts_whenPositionIsOutside()
    {
        QFETCH(int, x);
        QFETCH(int, y);
        const ChildEnd end = runInChild([x, y] {
            const CTriangularKernel kernel;
            static_cast<void>(kernel.coeff(x, y));
        });
        QCOMPARE(end.signal, SIGABRT);
        QVERIFY2(end.output.contains("ASSERT failure in coeff: \"x < _size && y < _size\""),
                 end.output.constData());
    }

    void coeff_returns_whenPositionIsTheLast()
    {
        const ChildEnd end = runInChild([] {
            const CTriangularKernel kernel;
            static_cast<void>(kernel.coeff(3, 3));
        });
        QCOMPARE(end.signal, 0);
    }

    void kernel_isUsableThroughItsBase()
    {
        const std::unique_ptr<CImageInterpolationKernelBase<float>> kernel =
            std::make_unique<CBellBicubicKernel>(5);
        QCOMPARE(kernel->size(), 5);
        QVERIFY(kernel->coeff(2, 2) > kernel->coeff(1, 2));
    }
};

QTEST_GUILESS_MAIN(CImageInterpolationKernelTest)
#include "CImageInterpolationKernelTest.moc"
