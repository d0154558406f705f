#include "imaging/LightCurve.h"

#include "imaging/FilteredResizing.h"
#include "tests/support/ColourFormulas.h"

#include <QtAV/StoredColours.h>

#include <opencv2/core.hpp>

#include <QTest>

#include <cmath>

using Transfer = QtAV::StoredColours::Transfer;

Q_DECLARE_METATYPE(Transfer)

class LightCurveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pq_isTheStandards()
    {
        const LightCurve& curve = LightCurve::of(Transfer::Pq);
        for (int code = 0; code <= 65535; code += 257) {
            const double light = testsupport::nitsOfPq(code / 65535.0) / 10000.0;
            const double got = static_cast<double>(curve.lightOf(static_cast<std::size_t>(code)));
            QVERIFY2(std::abs(got - light) <= 1e-6 + 1e-4 * light,
                     qPrintable(QString::number(code)));
        }
    }

    void codes_comeBackFromTheirLight_data()
    {
        QTest::addColumn<Transfer>("transfer");
        QTest::newRow("PQ") << Transfer::Pq;
        QTest::newRow("HLG") << Transfer::Hlg;
        QTest::newRow("sRGB") << Transfer::Standard;
    }
    void codes_comeBackFromTheirLight()
    {
        QFETCH(const Transfer, transfer);
        const LightCurve& curve = LightCurve::of(transfer);
        for (int code = 0; code <= 65535; ++code) {
            const float light = curve.lightOf(static_cast<std::size_t>(code));
            const double back = static_cast<double>(curve.codeOf(light)) * 65535.0;
            QVERIFY2(std::abs(back - code) <= 1.0,
                     qPrintable(QStringLiteral("%1 comes back as %2").arg(code).arg(back)));
        }
    }

    /// Alternating pixels of 1,000 cd/m² and black give 500.
    void chequers_becomeHalfOfTheirLight_inValuesOfHdr()
    {
        const double bright = testsupport::pqOf(1000.0);
        cv::Mat chequers(40, 40, CV_16UC3, cv::Scalar::all(0));
        for (int y = 0; y < chequers.rows; ++y) {
            for (int x = y % 2; x < chequers.cols; x += 2) {
                cv::Mat(chequers, cv::Rect(x, y, 1, 1)) =
                    cv::Scalar::all(std::round(bright * 65535.0));
            }
        }
        const cv::Mat small =
            filteredResize(chequers, {20, 20}, {ResizeFilter::Area, ResizeLight::Linear},
                           LightCurve::of(Transfer::Pq));
        const double code = small.at<cv::Vec3w>(10, 10)[0] / 65535.0;
        const double nits = testsupport::nitsOfPq(code);
        QVERIFY2(std::abs(nits - 500.0) < 1.0, qPrintable(QString::number(nits)));
    }
};

QTEST_GUILESS_MAIN(LightCurveTest)
#include "LightCurveTest.moc"
